#include "support/stationfixture.h"

#include "app/mbemain.h"

#include <QFile>
#include <QStatusBar>
#include <QtTest>

namespace {

// So many ticks in a row without traffic, and the next ones wait for events: a machine under load must not
// let a test tick its way into the station's 300-tick time-out.
constexpr int patientTicks = 50;

QByteArray withCheck(const QByteArray& message)
{
    char check = 0;
    for (const char byte : message) {
        check = static_cast<char>(check ^ byte);
    }
    return message + check;
}

} // namespace

QByteArray reading(double degC)
{
    // No two blanks in a row: the link would make them one, and the line one short.
    return "01M" + QByteArray::number(degC, 'f', 2).rightJustified(7, '0') + "E";
}

QByteArray readBytes(int channel)
{
    return QByteArray("\x04"
                      "0")
        + static_cast<char>('1' + channel) + "M1\x05\n";
}

QByteArray setPointBytes(int channel, const QByteArray& value)
{
    const QByteArray message = QByteArray("\x04"
                                          "0")
        + static_cast<char>('1' + channel) + "\x02S1" + value + '\x03';
    return withCheck(message) + '\n';
}

StationFixture::StationFixture(Ticks ticks)
{
    qputenv("NELVO_ADAPTER", adapter.address().toLatin1());
    if (ticks == Ticks::Held) {
        held = std::make_unique<HeldTicks>();
    }
}

StationFixture::~StationFixture()
{
    close();
    qunsetenv("NELVO_ADAPTER");
    QFile::remove(QStringLiteral("NelvoCurrentStat.dat"));
    QFile::remove(QStringLiteral("TemperatureRec.dat"));
}

void StationFixture::storeInUse(const QList<int>& channels)
{
    QFile file(QStringLiteral("NelvoCurrentStat.dat"));
    if (!file.open(QIODevice::WriteOnly)) {
        qFatal("no state file");
    }
    for (int ch = 0; ch < 9; ++ch) {
        file.write(
            "ActiveF" + QByteArray::number(ch) + (channels.contains(ch) ? "\tActive\n" : "\tInActive\n"));
    }
}

bool StationFixture::open()
{
    window = std::make_unique<MBEMain>();
    // Not shown: clicks and keys reach it all the same, and the off-screen platform would warn about size
    // hints.
    const char opening[] = "++eoi\n\n\n++auto 1\n++addr 3\n++eos 3\n++eoi\n\x1B\x00\n";
    return adapter.expect(QByteArray(opening, sizeof(opening) - 1));
}

void StationFixture::close()
{
    window.reset();
}

void StationFixture::tick(int times)
{
    callSlot(window.get(), "WatchTMP", times);
}

QWidget* StationFixture::widget(const QString& name) const
{
    auto* found = window->findChild<QWidget*>(name);
    if (found == nullptr) {
        qFatal("no widget %s", qPrintable(name));
    }
    return found;
}

QString StationFixture::text(const QString& name) const
{
    return widget(name)->property("text").toString();
}

QString StationFixture::style(const QString& name) const
{
    return widget(name)->styleSheet();
}

QString StationFixture::statusBar() const
{
    return window->statusBar()->currentMessage();
}

void StationFixture::click(const QString& name)
{
    QTest::mouseClick(widget(name), Qt::LeftButton);
}

void StationFixture::type(const QString& name, const QString& text)
{
    QWidget* entry = widget(name);
    QTest::keyClick(entry, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(entry, Qt::Key_Delete);
    QTest::keyClicks(entry, text);
}

bool StationFixture::tickUntil(const std::function<bool()>& condition, int maximumTicks)
{
    int quiet = 0;
    for (int i = 0; i < maximumTicks; ++i) {
        if (condition()) {
            return true;
        }
        tick();
        // A tick's bytes leave in one turn of the event loop and arrive in another; so does the answer.
        for (int turn = 0; turn < 3; ++turn) {
            QCoreApplication::processEvents(QEventLoop::AllEvents);
        }
        quiet = answer() ? 0 : quiet + 1;
        if (quiet > patientTicks) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }
    return condition();
}

bool StationFixture::round()
{
    const int before = records();
    return tickUntil([before] { return records() > before; });
}

int StationFixture::records()
{
    QFile file(QStringLiteral("TemperatureRec.dat"));
    return file.open(QIODevice::ReadOnly) ? file.readAll().count('\n') : 0;
}

bool StationFixture::answer()
{
    const QByteArray bytes = adapter.received();
    const int end = bytes.lastIndexOf('\n');
    if (end < 0) {
        return false;
    }
    adapter.expect(bytes.left(end + 1));
    for (const QByteArray& line : bytes.left(end).split('\n')) {
        if (line.startsWith('\x04') && line.endsWith('\x05')) {
            const int channel = line[2] - '1';
            reads.append(channel);
            adapter.post(answers.value(channel, reading(25.0)) + "\r\n");
        } else if (line.startsWith('\x04')) {
            setPoints.append(line);
            adapter.post("\x06\r\n");
        }
    }
    return true;
}
