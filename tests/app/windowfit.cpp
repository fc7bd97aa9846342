// Whether the panels' texts have room, in every language and with the longest texts that the station shows.

#include "app/formtable.h"
#include "app/language.h"
#include "support/station.h"
#include "support/testmain.h"

#include <QLineEdit>
#include <QTranslator>

using namespace TestText;

namespace {

QString textOf(const QWidget& widget)
{
    return widget.property("text").toString();
}

// The width that the widget leaves for its text.
int roomIn(const QWidget& widget)
{
    const auto* edit = qobject_cast<const QLineEdit*>(&widget);
    // The toolkit keeps two pixels left and right of an entry's text.
    return edit == nullptr ? widget.contentsRect().width() : widget.width() - 2 * (2 + 1);
}

// Lays the window out at its initial size as showing it would, without a platform window.
void layOut(const Station& station)
{
    station.window().grab();
}

void showLongestTexts(const Station& station)
{
    for (int channel = 0; channel < Channels::count; ++channel) {
        station.click(cell("TCActive", channel));
        for (const char* row : {"CDeg", "SDeg"}) {
            station.find<QLabel>(cell(row, channel)).setText("1234.5"_s);
        }
        station.find<QLabel>(cell("ETime", channel)).setText(" 1234.56"_s);
        station.find<QLineEdit>(cell("TDeg", channel)).setText("1234.5"_s);
        station.find<QLineEdit>(cell("DTime", channel)).setText("123.5"_s);
    }
}

} // namespace

class WindowFitTest : public QObject
{
    Q_OBJECT

private slots:
    void everyTextHasRoom_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<bool>("longest");
        for (const Language& language : languages()) {
            QTest::addRow("%s, at start", qPrintable(language.argument)) << language.argument << false;
            QTest::addRow("%s, longest texts", qPrintable(language.argument)) << language.argument << true;
        }
    }

    void everyTextHasRoom()
    {
        QFETCH(QString, language);
        QFETCH(bool, longest);
        QTranslator translator;
        const Language& chosen = chooseLanguage({QString(), language});
        QCOMPARE(speak(chosen, translator), !chosen.catalogue.isEmpty());
        Station station;
        QVERIFY(station.open());
        if (longest) {
            showLongestTexts(station);
        }
        layOut(station);

        QStringList cramped;
        for (const FormWidget& listed : formWidgets()) {
            const QWidget& widget = *widgetsNamed(station.window(), listed.name).first();
            const int needed = widget.fontMetrics().horizontalAdvance(textOf(widget));
            // What lies on the tab in the background has not been laid out.
            if (widget.isVisibleTo(&station.window()) && needed > roomIn(widget)) {
                cramped.append("%1: %2 needs %3 of %4"_s.arg(
                    listed.name, textOf(widget), QString::number(needed), QString::number(roomIn(widget))));
            }
        }
        QCOMPARE(cramped, QStringList());
    }

    void columnsStandUnderEachOther()
    {
        Station station;
        QVERIFY(station.open());
        layOut(station);

        const auto edges = [&station](const char* row, int number) {
            const QRect geometry = station.widget(cell(row, number)).geometry();
            return qMakePair(geometry.left(), geometry.right());
        };
        for (int number = 0; number < Channels::count; ++number) {
            for (const char* row : {"TCActive", "CDeg", "TDeg", "DTime", "RunT", "SDeg", "ETime"}) {
                QCOMPARE(edges(row, number), edges("CName", number));
            }
        }
        for (int number = 0; number < Channels::shutterCount; ++number) {
            QCOMPARE(edges("CS", number), edges("SName", number));
            QCOMPARE(edges("NS", number), edges("SName", number));
        }
    }
};

NELVO_TEST_MAIN(WindowFitTest)
#include "windowfit.moc"
