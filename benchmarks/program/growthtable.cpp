#include "growthtable.h"

#include "program/programfile.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QFile>
#include <QGridLayout>
#include <QMenu>
#include <QTabWidget>
#include <QTextStream>
#include <QTimer>

QVector<ProgramStep> fullProgram(bool allShutters)
{
    QVector<ProgramStep> steps(200);
    for (int k = 0; k < steps.size(); ++k) {
        ProgramStep& step = steps[k];
        for (size_t ch = 0; ch < step.setPoints.size(); ++ch) {
            step.setPoints.at(ch) = QString::number(300 + 10 * static_cast<int>(ch) + k);
        }
        for (int n = 0; n < ProgramStep::shutterCount; ++n) {
            step.shutters.at(static_cast<size_t>(n)) = allShutters ? k % 2 == 0 : n == 3 || n == k % 7;
        }
        step.timeSec = k + 1;
        step.group = QStringLiteral("G%1").arg(k);
        step.times = k + 1;
    }
    return steps;
}

void saveProgram(const QString& fname, const QVector<ProgramStep>& steps)
{
    QFile file(fname);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text)) {
        qFatal("cannot write %s", qPrintable(fname));
    }
    QTextStream stream(&file);
    ProgramFile::write(stream, steps);
}

void settle()
{
    // Some events are posted by others' handling, a layout's by the polishing before it.
    for (int i = 0; i < 10; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

ShownStation::ShownStation()
    : held(std::make_unique<HeldTicks>())
    , main(std::make_unique<MBEMain>())
    , cells(200, QVector<QWidget*>(13, nullptr))
{
    main->findChild<QTabWidget*>(QStringLiteral("tabWidget"))->setCurrentIndex(0);
    main->show();
    settle();

    auto* grid = main->findChild<QGridLayout*>(QStringLiteral("Program"));
    for (int i = 0; i < grid->count(); ++i) {
        int row = 0;
        int column = 0;
        int rows = 0;
        int columns = 0;
        grid->getItemPosition(i, &row, &column, &rows, &columns);
        if (row >= 2) {
            cells[row - 2][column] = grid->itemAt(i)->widget();
        }
    }

    QTimer::singleShot(0, [this] {
        firstMenu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        firstMenu->close();
    });
    QWidget* label = at(0, 0);
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(1, 1), label->mapToGlobal(QPoint(1, 1)));
    QCoreApplication::sendEvent(label, &event);
}

ShownStation::~ShownStation() = default;

void ShownStation::pick(int entry)
{
    firstMenu->actions().at(entry)->trigger();
}
