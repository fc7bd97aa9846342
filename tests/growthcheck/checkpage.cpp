// The page of a program and of a run: whole without its script, and, in a browser where there is one, with
// zoom and the values under the cursor.

#include "growthcheck/support/checkrun.h"
#include "growthcheck/support/programtext.h"
#include "support/files.h"
#include "support/testmain.h"
#include "support/testtext.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QXmlStreamReader>

using namespace TestText;

namespace {

constexpr int browserMs = 60000;

// Looks and acts as a reader would, and leaves what it saw in the page.
const char* const probe = R"(<script>
const picture = document.getElementById("picture");
const drawing = picture.querySelector("svg");
const box = drawing.getBoundingClientRect();
const values = document.getElementById("values");
const seen = [];
const at = share => ({ clientX: box.left + share * box.width, clientY: box.top + 5, bubbles: true, cancelable: true });
const move = share => picture.dispatchEvent(new PointerEvent("pointermove", at(share)));
const note = (name, value) => seen.push(`${name}=${value}`);
note("wide", document.documentElement.scrollWidth > window.innerWidth);
move(0.25); note("first", values.textContent);
move(0.72); note("second", values.textContent);
document.getElementById("nearer").click(); note("nearer", drawing.getAttribute("viewBox"));
picture.dispatchEvent(new WheelEvent("wheel", { ...at(1), deltaY: -1 })); note("wheel", drawing.getAttribute("viewBox"));
picture.dispatchEvent(new PointerEvent("pointerdown", at(0.5)));
picture.dispatchEvent(new PointerEvent("pointermove", { ...at(1), buttons: 1 })); note("drag", drawing.getAttribute("viewBox"));
window.dispatchEvent(new PointerEvent("pointerup"));
document.getElementById("farther").click();
document.getElementById("farther").click();
document.getElementById("farther").click(); note("farther", drawing.getAttribute("viewBox"));
document.getElementById("nearer").click();
document.getElementById("all").click(); note("all", drawing.getAttribute("viewBox"));
document.body.setAttribute("data-seen", seen.join("|"));
</script>)";

QString browser()
{
    for (const char* name : {"chromium", "chromium-browser", "google-chrome"}) {
        const QString path = QStandardPaths::findExecutable(QLatin1String(name));
        if (!path.isEmpty()) {
            return path;
        }
    }
    return {};
}

// The page after its scripts have run.
QString domOf(const QString& fileName, const QString& size)
{
    const QTemporaryDir profile;
    QProcess process;
    process.setProcessChannelMode(QProcess::SeparateChannels);
    process.start(browser(),
        {"--headless"_s, "--no-sandbox"_s, "--disable-gpu"_s, "--disable-quic"_s, "--no-first-run"_s,
            "--disable-background-networking"_s, "--disable-component-update"_s, "--disable-sync"_s,
            "--user-data-dir="_s + profile.path(), "--window-size="_s + size, "--dump-dom"_s,
            "file://"_s + QDir::current().absoluteFilePath(fileName)});
    if (!process.waitForFinished(browserMs)) {
        process.kill();
        process.waitForFinished();
    }
    return QString::fromUtf8(process.readAllStandardOutput());
}

} // namespace

class CheckPageTest : public QObject
{
    Q_OBJECT

    static QByteArray pageOf(const QStringList& words)
    {
        QFile::remove("page.html"_s);
        const CheckRun run = runCheck(words + QStringList{"--html"_s, "page.html"_s, "program.dat"_s});
        if (run.status > 1) {
            qFatal("no page: %s", qPrintable(run.complaints));
        }
        return fileText("page.html"_s);
    }

private slots:
    void init()
    {
        // 10 s with one shutter, then 10 s with two; 20.02 s in all.
        putFile(
            "program.dat"_s, programText({"t=10 open=As4 Ga=30"_s, "t=5 open=Ga,As4 g=SL x=2"_s, "t=0"_s}));
    }

    void itHoldsFindingsPictureAndTables()
    {
        putFile("RATES.txt"_s, "Ga 0.28\n");
        const QByteArray page = pageOf({"--layers"_s, "RATES.txt"_s, "--start-all"_s, "25"_s});
        for (const char* part :
            {"open-at-end", "class=\"lanes\"", "class=\"curves\"", "class=\"c1 curve planned\"",
                "2 x [GaAs 1.40 nm]", "<td>0:00:10.02</td>", "lang=\"en\"", "M10.02 1.15H20.04v0.7H10.02z"}) {
            QVERIFY2(page.contains(part), part);
        }
    }

    // The pictures of expected/ are what was drawn once and somebody looked at.
    void anExamplesPictureIsWhatItWas_data()
    {
        QTest::addColumn<QString>("name");
        for (const char* name : {"superlattice", "hold-point", "doping-staircase"}) {
            QTest::newRow(name) << QString::fromLatin1(name);
        }
    }

    void anExamplesPictureIsWhatItWas()
    {
        QFETCH(QString, name);
        putFile("program.dat"_s, fileText(QStringLiteral(NELVO_EXAMPLES "/") + name + ".dat"_s));
        const QByteArray page = pageOf({"--start-all"_s, "25"_s});
        const int from = page.indexOf("<div class=\"picture\"");
        QByteArray picture
            = page.mid(from, page.indexOf("<p class=\"values\"") - from).replace("><", ">\n<") + '\n';
        putFile(name + ".picture.html"_s, picture);
        QCOMPARE(QString::fromUtf8(picture).split(u'\n'),
            QString::fromUtf8(fileText(QStringLiteral(NELVO_EXPECTED "/") + name + ".picture.html"_s))
                .split(u'\n'));
    }

    void itLoadsNothing()
    {
        const QByteArray page = pageOf({});
        QVERIFY(page.contains("default-src 'none'"));
        QVERIFY(!page.contains("http:") && !page.contains("https:") && !page.contains(" src=")
            && !page.contains("<link") && !page.contains("url("));
    }

    void itSpeaksJapanese()
    {
        const QByteArray page = pageOf({"--language"_s, "ja"_s});
        QVERIFY(page.contains("lang=\"ja\""));
        QVERIFY(QString::fromUtf8(page).contains("シャッター"_s));
        QVERIFY(!page.contains("Findings"));
    }

    // Whatever stands in a program is text on the page.
    void hostileTextsStayTexts()
    {
        putFile("program.dat"_s,
            programText({"t=1 g=</script><script>alert(1)</script> Ga=<img/onerror='x'>"_s,
                "t=1 g=\"&amp;\u2028\x01"_s}));
        const QByteArray page = pageOf({});
        QCOMPARE(page.count("<script"), 2);
        QVERIFY(!page.contains("<img"));
        QVERIFY(page.contains("&lt;/script&gt;"));
    }

    void aHugeProgramIsASmallPage()
    {
        putFile("program.dat"_s, programText({"t=0.5 open=Ga g=A x=2147483647"_s, "t=1 g=A"_s, "t=1"_s}));
        const QByteArray page = pageOf({});
        QVERIFY(page.size() < 100000);
        QVERIFY(page.contains("class=\"folded\""));
        putFile("program.dat"_s, programText(QStringList("t=1e9 Ga=0.1 g=A x=100"_s)));
        QVERIFY(pageOf({}).size() < 4000000);
    }

    void noPageWhereNoneCanBe()
    {
        const CheckRun run = runCheck({"--html"_s, "absent/page.html"_s, "program.dat"_s});
        QCOMPARE(run.status, 2);
        QVERIFY(run.complaints.startsWith("absent/page.html cannot be written"_s));
    }

    void aReaderZoomsAndSeesValues_data()
    {
        QTest::addColumn<QString>("size");
        QTest::newRow("wide") << "1280,900"_s;
        QTest::newRow("narrow") << "500,900"_s;
    }

    void aReaderZoomsAndSeesValues()
    {
        QFETCH(QString, size);
        if (browser().isEmpty()) {
            QSKIP("no Chromium is installed");
        }
        QByteArray page = pageOf({"--start-all"_s, "25"_s, "--at"_s, "2026-11-22T08:00"_s});
        putFile("probe.html"_s, page.replace("</body>", QByteArray(probe) + "</body>"));
        const QString dom = domOf("probe.html"_s, size);
        const QString seen = QRegularExpression("data-seen=\"([^\"]*)\""_s).match(dom).captured(1);
        const QStringList all = seen.split(u'|');
        QVERIFY2(all.size() == 8, qPrintable(dom.right(2000)));
        QCOMPARE(all[0], "wide=false"_s);
        QCOMPARE(all[1], "first=0:00:05.01 · 2026-11-22 08:00:05 · step 1 · open: As4 · Ga 30.0"_s);
        QCOMPARE(all[2],
            "second=0:00:14.42 · 2026-11-22 08:00:14 · step 2 · pass 1 of 2 · SL · open: Ga As4 · Ga 30.0"_s);
        const auto view = [&all](int index) { return all[index].section(u'=', 1).split(u' '); };
        QCOMPARE(view(3)[2].toDouble(), 10.02); // half of it, around the middle
        QCOMPARE(view(3)[0].toDouble(), 5.01);
        QVERIFY(qAbs(view(4)[2].toDouble() - 8.016) < 1e-6); // the right edge stays
        QVERIFY(qAbs(view(4)[0].toDouble() - 7.014) < 0.05); // pixels are whole there
        QVERIFY(qAbs(view(5)[0].toDouble() - 3.006) < 0.05); // half of what shows goes to the right
        QCOMPARE(view(6)[2].toDouble(), 20.04);
        QCOMPARE(view(6)[0].toDouble(), 0.0);
        QCOMPARE(view(7)[2].toDouble(), 20.04);
    }
};

NELVO_TEST_MAIN(CheckPageTest)
#include "checkpage.moc"
