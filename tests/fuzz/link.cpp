// Whatever the adapter says: a real window at a real socket takes it in, polls, ramps and keeps its journal.
//
// The window stays from input to input, since building it takes longer than ten thousand of them.

#include "fuzz/fuzztarget.h"

#include "journal/journalline.h"
#include "support/files.h"
#include "support/station.h"

#include <QCoreApplication>
#include <QFile>
#include <QLabel>
#include <QLineEdit>

using namespace TestText;

namespace {

Station& station()
{
    static Station* const one = [] {
        prepareFuzzing();
        auto* made = new Station; // for the fuzzer's life
        require(made->open(), "the station sends its opening bytes");
        return made;
    }();
    return *one;
}

void letArrive()
{
    for (int turn = 0; turn < 3; ++turn) {
        QCoreApplication::processEvents(QEventLoop::AllEvents);
    }
}

void pressRun(FuzzInput& input)
{
    static const QStringList numbers
        = {"0"_s, "25"_s, "1200"_s, "-40"_s, "0.001"_s, "1e308"_s, "nan"_s, "x"_s, QString(), "9999.95"_s};
    const int channel = input.below(Channels::count);
    station().find<QLineEdit>(cell("TDeg", channel)).setText(numbers[input.below(numbers.size())]);
    station().find<QLineEdit>(cell("DTime", channel)).setText(numbers[input.below(numbers.size())]);
    station().click(cell("RunT", channel));
}

void playOne(FuzzInput& input)
{
    switch (input.below(8)) {
    case 0:
        station().tick(input.byte());
        break;
    case 1:
        DrivenClock::advance(input.byte() * 500LL);
        station().tick();
        break;
    case 2:
        pressRun(input);
        break;
    case 3:
        station().click(cell("CS", input.below(Channels::shutterCount)));
        callSlot(&station().window(), "ActionShutter");
        break;
    case 4:
        // As a controller answers: the value is anything of seven characters.
        station().adapter.post('0' + QByteArray::number(1 + input.below(9)) + 'M' + input.piece(7) + "C\r\n");
        break;
    default:
        station().adapter.post(input.piece(input.byte()));
        break;
    }
    station().tick();
    letArrive();
}

void checkWire()
{
    for (const Wire::Message& message : station().adapter.takeMessages()) {
        if (message.kind == Wire::Message::Other) {
            require(message.bytes.startsWith("++"), "the station sends whole messages");
        } else if (message.kind == Wire::Message::SetPoint) {
            const QByteArray value = message.bytes.mid(6, message.bytes.indexOf('\x03') - 6);
            bool isNumber = false;
            value.toDouble(&isNumber);
            require(
                isNumber && message.bytes == Wire::setPoint(message.value, value), "a set point is whole");
            require(!value.contains('n'), "a set point is finite"); // "inf", "nan"
        } else if (message.kind == Wire::Message::Shutters) {
            require(message.value < 0x80, "a mask has seven bits");
        }
    }
}

void checkPanel()
{
    for (int channel = 0; channel < Channels::count; ++channel) {
        for (const char* row : {"CDeg", "SDeg"}) {
            const QString text = station().find<QLabel>(cell(row, channel)).text();
            bool isNumber = false;
            const double value = text.toDouble(&isNumber);
            require(text == "----.-"_s || (isNumber && qIsFinite(value)), "a temperature is a number");
        }
    }
}

void checkJournal()
{
    QFile file(journalFile);
    if (!file.open(QIODevice::ReadWrite)) {
        return;
    }
    while (!file.atEnd()) {
        require(readJournalLine(file.readLine()).has_value(), "a journal line can be read");
    }
    file.resize(0);
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput input(data, size);
    station().adapter.forget();
    while (!input.isAtEnd()) {
        playOne(input);
    }
    checkWire();
    checkPanel();
    checkJournal();
    QFile::remove(recordFile);
    // The next input begins with a new line and a free bus.
    station().adapter.post("\n");
    letArrive();
    return 0;
}
