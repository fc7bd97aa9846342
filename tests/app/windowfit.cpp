// Whether the panels' texts have room, in both languages and with the longest texts that the station shows.

#include "app/formtable.h"
#include "app/language.h"
#include "app/mbemain.h"
#include "support/scriptedadapter.h"
#include "support/testmain.h"
#include "support/ticks.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QTranslator>

#include <memory>

class WindowFit : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qputenv("NELVO_ADAPTER", ownLoopbackAddress().toLatin1()); }
    void everyTextHasRoom_data();
    void everyTextHasRoom();
    void columnsStandUnderEachOther();
};

namespace {

QString textOf(const QWidget& widget)
{
    return widget.property("text").toString();
}

/// The width that the widget leaves for its text.
int roomIn(const QWidget& widget)
{
    const auto* edit = qobject_cast<const QLineEdit*>(&widget);
    // The toolkit keeps two pixels left and right of an entry's text.
    return edit == nullptr ? widget.contentsRect().width() : widget.width() - 2 * (2 + 1);
}

/// Lays the window out at its initial size as showing it would, without a platform window.
void layOut(MBEMain& window)
{
    window.grab();
}

void showLongestTexts(MBEMain& window)
{
    for (int number = 1; number <= 9; ++number) {
        const auto named = [number](const char* prefix) {
            return QStringLiteral("%1%2").arg(QLatin1String(prefix)).arg(number, 2, 10, QChar(u'0'));
        };
        window.findChild<QAbstractButton*>(named("TCActive"))->click();
        window.findChild<QLabel*>(named("CDeg"))->setText(QStringLiteral("1234.5"));
        window.findChild<QLabel*>(named("SDeg"))->setText(QStringLiteral("1234.5"));
        window.findChild<QLabel*>(named("ETime"))->setText(QStringLiteral(" 1234.56"));
        window.findChild<QLineEdit*>(named("TDeg"))->setText(QStringLiteral("1234.5"));
        window.findChild<QLineEdit*>(named("DTime"))->setText(QStringLiteral("123.5"));
    }
}

} // namespace

void WindowFit::everyTextHasRoom_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<bool>("longest");
    for (const Language& language : languages()) {
        QTest::addRow("%s, at start", qPrintable(language.argument)) << language.argument << false;
        QTest::addRow("%s, longest texts", qPrintable(language.argument)) << language.argument << true;
    }
}

void WindowFit::everyTextHasRoom()
{
    QFETCH(QString, language);
    QFETCH(bool, longest);
    QTranslator translator;
    QCOMPARE(speak(chooseLanguage({QString(), language}), translator), language == japanese().argument);
    const HeldTicks held;
    MBEMain window;
    if (longest) {
        showLongestTexts(window);
    }
    layOut(window);

    QStringList cramped;
    for (const FormWidget& listed : formWidgets()) {
        const QWidget& widget = *widgetsNamed(window, listed.name).first();
        const int needed = widget.fontMetrics().horizontalAdvance(textOf(widget));
        // What lies on the tab in the background has not been laid out.
        if (widget.isVisibleTo(&window) && needed > roomIn(widget)) {
            cramped.append(QStringLiteral("%1: %2 needs %3 of %4")
                               .arg(listed.name, textOf(widget), QString::number(needed),
                                   QString::number(roomIn(widget))));
        }
    }
    QCOMPARE(cramped, QStringList());
}

void WindowFit::columnsStandUnderEachOther()
{
    const HeldTicks held;
    MBEMain window;
    layOut(window);

    const auto edges = [&window](const char* prefix, int number) {
        const QString name
            = QStringLiteral("%1%2").arg(QLatin1String(prefix)).arg(number, 2, 10, QChar(u'0'));
        const QRect geometry = window.findChild<QWidget*>(name)->geometry();
        return qMakePair(geometry.left(), geometry.right());
    };
    for (int number = 1; number <= 9; ++number) {
        for (const char* prefix : {"TCActive", "CDeg", "TDeg", "DTime", "RunT", "SDeg", "ETime"}) {
            QCOMPARE(edges(prefix, number), edges("CName", number));
        }
    }
    for (int number = 1; number <= 7; ++number) {
        QCOMPARE(edges("CS", number), edges("SName", number));
        QCOMPARE(edges("NS", number), edges("SName", number));
    }
}

NELVO_TEST_MAIN(WindowFit)

#include "windowfit.moc"
