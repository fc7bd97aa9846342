// Whether the panels' texts have room, in every language and with the longest texts that the station shows.

#include "app/formtable.h"
#include "app/language.h"
#include "support/station.h"
#include "support/testmain.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QScreen>
#include <QSizeGrip>
#include <QStatusBar>
#include <QStyleOptionButton>
#include <QTabBar>
#include <QTabWidget>
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

// The room that the style leaves for a button's text: a box has its tick beside it. A button of the other
// kinds may use all of itself, since its text is what it consists of.
QSize roomForText(const QWidget& widget)
{
    const auto* box = qobject_cast<const QCheckBox*>(&widget);
    if (box != nullptr) {
        QStyleOptionButton option;
        option.initFrom(box);
        const QRect contents = box->style()->subElementRect(QStyle::SE_CheckBoxContents, &option, box);
        return {contents.width(), widget.height()};
    }
    return {widget.contentsRect().width(), widget.height()};
}

// The ink counts for the height: the table's rows are as low as they are meant to be, whatever the font's
// lines need.
QSize neededForText(const QWidget& widget)
{
    const QString text = textOf(widget);
    return {
        widget.fontMetrics().horizontalAdvance(text), widget.fontMetrics().tightBoundingRect(text).height()};
}

QList<QWidget*> labelsAndButtons(const QWidget& window)
{
    QList<QWidget*> found;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        const bool hasText
            = qobject_cast<QLabel*>(widget) != nullptr || qobject_cast<QAbstractButton*>(widget) != nullptr;
        if (hasText && widget->isVisibleTo(&window) && !textOf(*widget).isEmpty()) {
            found.append(widget);
        }
    }
    return found;
}

QString nameOf(const QWidget& widget)
{
    return widget.objectName().isEmpty() ? QLatin1String(widget.metaObject()->className())
                                         : widget.objectName();
}

// A paused program in the table, with the longest figures that its bar shows.
void showLongestBar(const Station& station)
{
    station.click("ProgPause"_s);
    for (const char* figure : {"DispTime01", "DispTime02", "DispTTime01", "DispTTime02"}) {
        station.find<QLabel>(QLatin1String(figure)).setText("86400000.0"_s);
    }
}

// Lays the window out at its initial size as showing it would, without a platform window.
void layOut(const Station& station)
{
    station.window().grab();
}

// The messages that the station shows, each made as the operator makes it, and as long as it may reasonably
// be: the channel with the longest name, entries of the panel's width.
QStringList longestMessages(const Station& station)
{
    const int channel = Channels::count - 2;
    QStringList messages;
    const auto press = [&](const QString& target, const QString& minutes) {
        station.pressRun(channel, target, minutes);
        messages.append(station.statusBar());
    };
    press("100"_s, "-1234.5"_s);
    press("1234.5"_s, "0.5"_s);
    press("100 deg C"_s, "123.5"_s);
    return messages;
}

// The toolkit writes a message six pixels from the left, and up to the corner by which the window is sized.
QStringList withoutRoom(const QStringList& messages, const QStatusBar& bar)
{
    const auto* grip = bar.findChild<QSizeGrip*>();
    const int room = (grip == nullptr ? bar.width() : grip->x()) - 6;
    QStringList cramped;
    for (const QString& message : messages) {
        const int needed = bar.fontMetrics().horizontalAdvance(message);
        if (message.isEmpty() || needed > room) {
            cramped.append("%1 needs %2 of %3"_s.arg(message).arg(needed).arg(room));
        }
    }
    return cramped;
}

QStringList withoutRoom(const QTabBar& bar)
{
    QStringList cramped;
    for (int i = 0; i < bar.count(); ++i) {
        // Where titles are too long the bar scrolls, and the others are out of sight.
        const QRect tab = bar.tabRect(i);
        if (bar.fontMetrics().horizontalAdvance(bar.tabText(i)) > tab.width() || !bar.rect().contains(tab)) {
            cramped.append(bar.tabText(i));
        }
    }
    return cramped;
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

void addLanguages()
{
    QTest::addColumn<QString>("language");
    for (const Language& language : languages()) {
        QTest::newRow(qPrintable(language.argument)) << language.argument;
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

    // On the screen's resolution: the texts of both tabs, which the form's table does not have.
    void everyLabelAndButtonHasRoom_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<int>("tabIndex");
        for (const Language& language : languages()) {
            QTest::addRow("%s, program", qPrintable(language.argument)) << language.argument << 0;
            QTest::addRow("%s, chart", qPrintable(language.argument)) << language.argument << 1;
        }
    }

    void everyLabelAndButtonHasRoom()
    {
        QFETCH(QString, language);
        QFETCH(int, tabIndex);
        const int dpi = qEnvironmentVariableIntValue("QT_FONT_DPI");
        QVERIFY(dpi == 0 || qRound(QGuiApplication::primaryScreen()->logicalDotsPerInchY()) == dpi);
        QTranslator translator;
        speak(chooseLanguage({QString(), language}), translator);
        Station station;
        QVERIFY(station.open());
        station.find<QTabWidget>("tabWidget"_s).setCurrentIndex(tabIndex);
        if (tabIndex == 0) {
            station.program().enter(0, "100"_s);
            station.click("ProgRun"_s);
            showLongestBar(station);
        }
        station.window().show();
        QVERIFY(QTest::qWaitForWindowExposed(&station.window()));
        layOut(station);

        QStringList cramped;
        const QList<QWidget*> all = labelsAndButtons(station.window());
        QVERIFY(all.size() > 50);
        for (const QWidget* widget : all) {
            const QSize needed = neededForText(*widget);
            const QSize room = roomForText(*widget);
            if (needed.width() > room.width() || needed.height() > room.height()) {
                cramped.append("%1: %2 needs %3 x %4 of %5 x %6"_s.arg(nameOf(*widget), textOf(*widget))
                                   .arg(needed.width())
                                   .arg(needed.height())
                                   .arg(room.width())
                                   .arg(room.height()));
            }
        }
        QCOMPARE(cramped, QStringList());
    }

    void everyMessageAndTabTitleHasRoom_data() { addLanguages(); }

    void everyMessageAndTabTitleHasRoom()
    {
        QFETCH(QString, language);
        QTranslator translator;
        speak(chooseLanguage({QString(), language}), translator);
        Station station;
        QVERIFY(station.open());
        station.window().show();
        QVERIFY(QTest::qWaitForWindowExposed(&station.window()));
        layOut(station);

        const QStringList messages = longestMessages(station);
        QCOMPARE(QSet<QString>(messages.begin(), messages.end()).size(), 3);
        QCOMPARE(withoutRoom(messages, station.find<QStatusBar>("statusbar"_s)), QStringList());
        QCOMPARE(withoutRoom(*station.find<QTabWidget>("tabWidget"_s).tabBar()), QStringList());
    }

    void theWindowNeverWidens_data() { addLanguages(); }

    // Neither another state of the buttons nor a figure without end.
    void theWindowNeverWidens()
    {
        QFETCH(QString, language);
        QTranslator translator;
        speak(chooseLanguage({QString(), language}), translator);
        Station station;
        QVERIFY(station.open());
        const auto width = [&station] {
            layOut(station);
            return station.window().minimumSizeHint().width();
        };
        const int before = width();
        for (int channel = 0; channel < Channels::count; ++channel) {
            station.pressRun(channel, "0.0"_s, "10"_s);
            QCOMPARE(station.style(cell("RunT", channel)), yellow);
        }
        QCOMPARE(width(), before);
        for (int channel = 0; channel < Channels::count; ++channel) {
            station.click(cell("TCActive", channel));
            QCOMPARE(station.style(cell("TCActive", channel)), olive);
        }
        QCOMPARE(width(), before);
        station.program().enter(0, "1e300"_s);
        station.program().click("Check");
        station.program().click("Run");
        QCOMPARE(width(), before);
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
