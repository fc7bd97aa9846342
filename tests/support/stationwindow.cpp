#include "support/stationwindow.h"

#include <QKeyEvent>
#include <QStatusBar>
#include <QtTest>

using namespace TestText;

StationWindow::StationWindow() = default;

StationWindow::~StationWindow()
{
    close();
}

void StationWindow::build()
{
    main = std::make_unique<MBEMain>();
    widgets = std::make_unique<NamedWidgets>(*main);
}

void StationWindow::close()
{
    tab.reset();
    widgets.reset();
    main.reset();
}

ProgramTab& StationWindow::program()
{
    if (tab == nullptr) {
        tab = std::make_unique<ProgramTab>(*main);
    }
    return *tab;
}

QString StationWindow::statusBar() const
{
    return main->statusBar()->currentMessage();
}

QChar StationWindow::state(const QString& name, const QString& on, const QString& off) const
{
    if (text(name) == on && style(name) == yellow) {
        return u'o';
    }
    return text(name) == off && style(name) == olive ? u'x' : u'?';
}

QString StationWindow::states(const char* row, const QString& on, const QString& off) const
{
    QString letters;
    for (int number = 0; main->findChild<QWidget*>(cell(row, number)) != nullptr; ++number) {
        letters += state(cell(row, number), on, off);
    }
    return letters;
}

bool StationWindow::isRamping(int channel) const
{
    return state(cell("RunT", channel), "Stop"_s, "Run"_s) == u'o';
}

void StationWindow::click(const QString& name) const
{
    QTest::mouseClick(&widget(name), Qt::LeftButton);
}

void StationWindow::typeInto(QWidget& entry, const QString& text)
{
    QTest::keyClick(&entry, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&entry, Qt::Key_Delete);
    for (const QChar character : text) {
        if (character.unicode() < 0x80) {
            QTest::keyClick(&entry, character.toLatin1());
            continue;
        }
        // The toolkit's own simulated keyboard has ASCII alone.
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(character));
        QCoreApplication::sendEvent(&entry, &press);
    }
}

void StationWindow::pressRun(int channel, const QString& target, const QString& duration) const
{
    type(cell("TDeg", channel), target);
    type(cell("DTime", channel), duration);
    click(cell("RunT", channel));
}

void StationWindow::togglePolling() const
{
    QTest::keyClick(&widget("TMPCtrlActive"_s), Qt::Key_Space);
}
