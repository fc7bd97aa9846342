// The command line of the simulator.

#include "simulator/options.h"

#include "support/testmain.h"

using namespace TestText;

using namespace Chamber;

namespace {

CommandLine read(const QStringList& options)
{
    return readCommandLine(QStringList("chambersim"_s) + options, "1.2.3"_s);
}

QStringList words(const char* text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

double rateOf(const Options& options, FaultKind kind)
{
    return options.faultRates[static_cast<size_t>(kind)];
}

} // namespace

class ChamberOptionsTest : public QObject
{
    Q_OBJECT

private slots:
    void withoutOptionsItListensOnThisMachineOnly()
    {
        const CommandLine commandLine = read({});
        QCOMPARE(commandLine.error, QString());
        QCOMPARE(commandLine.text, QString());
        QCOMPARE(commandLine.options.listenAddress.toString(), "127.0.0.1"_s);
        QCOMPARE(commandLine.options.port, quint16(1234));
        QCOMPARE(commandLine.options.seed, quint64(1));
        QCOMPARE(commandLine.options.timeScale, 1.0);
        QCOMPARE(commandLine.options.latencyMs, 5);
        QCOMPARE(commandLine.options.jitterMs, 2);
        QCOMPARE(commandLine.options.faultRates, FaultRates());
        QVERIFY(!commandLine.options.quiet);
        QVERIFY(!commandLine.options.once);
    }

    void everyOptionIsRead()
    {
        const CommandLine commandLine = read(words(
            "--listen 127.0.0.7 --port 0 --seed 18446744073709551615 --time-scale 60.5 --latency 150:20 "
            "--fault late=0.25 --fault=wrong-length=1 --record bytes.bin --quiet --once"));
        QCOMPARE(commandLine.error, QString());
        QCOMPARE(commandLine.options.listenAddress.toString(), "127.0.0.7"_s);
        QCOMPARE(commandLine.options.port, quint16(0));
        QCOMPARE(commandLine.options.seed, ~quint64(0));
        QCOMPARE(commandLine.options.timeScale, 60.5);
        QCOMPARE(commandLine.options.latencyMs, 150);
        QCOMPARE(commandLine.options.jitterMs, 20);
        QCOMPARE(rateOf(commandLine.options, FaultKind::Late), 0.25);
        QCOMPARE(rateOf(commandLine.options, FaultKind::WrongLength), 1.0);
        QCOMPARE(rateOf(commandLine.options, FaultKind::Lost), 0.0);
        QCOMPARE(commandLine.options.recordFile, "bytes.bin"_s);
        QVERIFY(commandLine.options.quiet);
        QVERIFY(commandLine.options.once);
    }

    void aRecordingIsNamed()
    {
        QCOMPARE(read(words("--replay day.log")).options.replayFile, "day.log"_s);
        QVERIFY(read({}).options.replayFile.isEmpty());
    }

    void aLatencyAloneHasNoJitter()
    {
        const Options options = read(words("--latency 0")).options;
        QCOMPARE(options.latencyMs, 0);
        QCOMPARE(options.jitterMs, 0);
    }

    void badOptionsAreToldInOneLine_data()
    {
        QTest::addColumn<QString>("mentions");
        const auto row = [](const char* options, const char* mentions) {
            QTest::newRow(options) << QString::fromLatin1(mentions);
        };
        row("--frob", "frob");
        row("leftover", "'leftover'");
        row("--port", "port");
        row("--port x", "--port 'x'");
        row("--port -1", "--port '-1'");
        row("--port 65536", "--port '65536'");
        row("--port=", "--port ''");
        row("--port 1 --port 2", "--port is given more than once");
        row("--listen nowhere", "--listen 'nowhere'");
        row("--listen 256.0.0.1", "--listen '256.0.0.1'");
        row("--seed -1", "--seed '-1'");
        row("--seed 1.5", "--seed '1.5'");
        row("--time-scale 0", "--time-scale '0'");
        row("--time-scale -2", "--time-scale '-2'");
        row("--time-scale nan", "--time-scale 'nan'");
        row("--time-scale inf", "--time-scale 'inf'");
        row("--latency fast", "--latency 'fast'");
        row("--latency -1", "--latency '-1'");
        row("--latency 5:", "--latency '5:'");
        row("--latency 5:2:1", "--latency '5:2:1'");
        row("--latency 60001", "--latency '60001'");
        row("--fault late", "--fault 'late'");
        row("--fault sometimes=0.1", "--fault 'sometimes=0.1'");
        row("--fault late=1.1", "--fault 'late=1.1'");
        row("--fault late=-0.1", "--fault 'late=-0.1'");
        row("--fault late=nan", "--fault 'late=nan'");
        row("--fault late=", "--fault 'late='");
        row("--fault late=0.1 --fault late=0.2", "--fault 'late=0.2'");
        row("--record=", "--record ''");
        row("--replay=", "--replay ''");
        row("--replay a --fault late=0.1", "--fault with --replay");
        row("--quiet=yes", "quiet");
    }

    void badOptionsAreToldInOneLine()
    {
        QFETCH(QString, mentions);
        const CommandLine commandLine = read(words(QTest::currentDataTag()));
        QVERIFY2(commandLine.error.contains(mentions), qPrintable(commandLine.error));
        QVERIFY(!commandLine.error.contains(QLatin1Char('\n')));
    }

    void helpNamesEveryOptionAndEveryFault()
    {
        const CommandLine commandLine = read({"--help"_s});
        QCOMPARE(commandLine.error, QString());
        for (const char* option : {"--listen", "--port", "--seed", "--time-scale", "--latency", "--fault",
                 "--record", "--replay", "--quiet", "--once", "--help", "--version"}) {
            QVERIFY2(commandLine.text.contains(QLatin1String(option)), option);
        }
        for (int kind = 0; kind < faultKindCount; ++kind) {
            const QByteArray name = faultName(static_cast<FaultKind>(kind));
            QVERIFY2(commandLine.text.contains(QLatin1String(name) + QLatin1Char(':')), name);
        }
    }

    void versionIsTold() { QCOMPARE(read({"--version"_s}).text, "chambersim 1.2.3\n"_s); }
};

NELVO_TEST_MAIN(ChamberOptionsTest)
#include "chamberoptions.moc"
