// What the random operator does to the window, the chart and the files.

#include "soak/randomoperator.h"

#include "support/files.h"

#include <QAbstractButton>
#include <QFile>
#include <QTabWidget>
#include <QWheelEvent>
#include <QtTest>

using namespace TestText;

void RandomOperator::dragChart()
{
    tell("drags the chart"_s);
    QWidget& view = station.widget("TSView"_s);
    const Qt::MouseButton button = below(2) == 0 ? Qt::LeftButton : Qt::RightButton;
    QPoint at(below(qMax(1, view.width())), below(qMax(1, view.height())));
    QTest::mousePress(&view, button, Qt::NoModifier, at);
    for (int step = below(6); step >= 0; --step) {
        at += QPoint(below(201) - 100, below(201) - 100);
        // QTest's own move tells no buttons.
        QMouseEvent move(QEvent::MouseMove, at, Qt::NoButton, button, Qt::NoModifier);
        QCoreApplication::sendEvent(&view, &move);
    }
    QTest::mouseRelease(&view, button, Qt::NoModifier, at);
}

void RandomOperator::wheelChart()
{
    tell("turns the wheel over the chart"_s);
    QWidget& view = station.widget("TSView"_s);
    const QPointF at(view.width() / 2.0, view.height() / 2.0);
    const Qt::MouseButtons held = below(2) == 0 ? Qt::NoButton : Qt::RightButton;
    for (int notches = below(12); notches >= 0; --notches) {
        const int turn = below(2) == 0 ? 120 : -120;
        QWheelEvent wheel(at, view.mapToGlobal(at.toPoint()), QPoint(), QPoint(0, turn), held, Qt::NoModifier,
            Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&view, &wheel);
    }
}

void RandomOperator::resetChart()
{
    tell("double-clicks the chart"_s);
    QTest::mouseDClick(&station.widget("TSView"_s), Qt::LeftButton);
}

void RandomOperator::pickLine()
{
    tell("clicks a line's selector"_s);
    const QList<QAbstractButton*> selectors = station.widget("Tshow"_s).findChildren<QAbstractButton*>();
    if (!selectors.isEmpty()) {
        QTest::mouseClick(selectors[below(selectors.size())], Qt::LeftButton);
    }
}

void RandomOperator::switchTab()
{
    tell("switches the tab"_s);
    auto& tabs = station.find<QTabWidget>("tabWidget"_s);
    tabs.setCurrentIndex(below(tabs.count()));
}

void RandomOperator::resizeWindow()
{
    tell("resizes the window"_s);
    station.window().resize(700 + below(1400), 500 + below(900));
}

// Under the program's eyes: it has to make them anew.
void RandomOperator::removeFiles()
{
    const QString name = oneOf(QVector<QString>{stateFile, recordFile, "NelvoJournal.log"_s});
    tell("removes "_s + name);
    QFile::remove(name);
    if (name == stateFile) {
        model.cells.forgetInUse();
    } else if (name == recordFile) {
        model.cells.forgetRecords();
    }
}
