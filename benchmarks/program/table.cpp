// The program table: bringing it up, and changing it as a whole, beside the plain ways of doing so.

#include "app/mbemain.h"
#include "benchmarks/program/growthtable.h"
#include "benchmarks/support/benchapp.h"
#include "benchmarks/support/figures.h"
#include "program/aline.h"
#include "support/panel.h"
#include "support/programtab.h"
#include "support/ticks.h"
#include "ui_mainwindow.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QElapsedTimer>
#include <QMenu>
#include <QTimer>

#include <ctime>
#include <functional>
#include <string>

namespace {

constexpr int turns = 15;

double msOf(const std::function<void()>& work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

// ---- bringing the table up

struct Form : public QMainWindow, public Ui::MainWindow
{
    Form()
    {
        setupUi(this);
        tabWidget->setCurrentIndex(0);
    }
};

QLineEdit* plainEdit(QWidget* parent)
{
    auto* edit = new QLineEdit(QStringLiteral("0"), parent);
    edit->setAlignment(Qt::AlignRight);
    return edit;
}

void placeUnstyledRow(QWidget* host, QGridLayout* grid, int row)
{
    auto* label = new QLabel(QString::number(row - 1), host);
    label->setFrameShape(QFrame::StyledPanel);
    label->setAlignment(Qt::AlignCenter);
    grid->addWidget(label, row, StepColumn);
    for (int n = 0; n < Channels::shutterCount; ++n) {
        auto* cell = new QWidget(host);
        auto* box = new QHBoxLayout(cell);
        box->setSpacing(1);
        box->setContentsMargins(0, 0, 0, 0);
        QLineEdit* edit = plainEdit(cell);
        edit->setMinimumWidth(50);
        box->addWidget(edit);
        auto* button = new QToolButton(cell);
        button->setMaximumHeight(20);
        button->setText(QStringLiteral("Off"));
        box->addWidget(button);
        grid->addWidget(cell, row, FirstCellColumn + n);
    }
    for (int column = FirstSubstrateColumn; column < ProgramColumns; ++column) {
        grid->addWidget(plainEdit(host), row, column);
    }
}

double msUntilUp(const std::function<void(Form&, int row)>& placeRow)
{
    Form form;
    return msOf([&] {
        for (int k = 0; k < ProgramTab::rows; ++k) {
            placeRow(form, k + 2);
        }
        form.show();
        settle();
    });
}

void measureStart(const Figures& figures)
{
    std::vector<double> oursMs;
    std::vector<double> unstyledMs;
    for (int turn = 0; turn < turns; ++turn) {
        unstyledMs.push_back(
            msUntilUp([](Form& form, int row) { placeUnstyledRow(form.SA01, form.Program, row); }));
        QList<aLine*> lines;
        oursMs.push_back(msUntilUp([&lines](Form& form, int row) {
            lines.append(new aLine(form.SA01));
            lines.last()->placeInGrid(form.Program, row);
            lines.last()->setStep(row - 1);
        }));
        qDeleteAll(lines);
    }
    figures.atMost("table up, over the same widgets unstyled", 1.3, median(oursMs) / median(unstyledMs), "");
}

// ---- changing it

// A station's window on its screen with the program table in front, its polling held.
class ShownTable
{
public:
    ShownTable()
        : tab(main)
    {
        tab.show();
        settle();
        QTimer::singleShot(0, [this] {
            firstMenu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            firstMenu->close();
        });
        QWidget* label = tab.stepLabel(0);
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(1, 1), label->mapToGlobal(QPoint(1, 1)));
        QCoreApplication::sendEvent(label, &event);
    }

    // Picks from the menu of row 0, without the menu's own time.
    void pick(RowEntry entry) { firstMenu->actions().at(static_cast<int>(entry))->trigger(); }
    void clear() { callSlot(&main, "APClear"); }
    ProgramTab& table() { return tab; }

private:
    HeldTicks held;
    MBEMain main;
    ProgramTab tab;
    QMenu* firstMenu = nullptr;
};

// The table as it should be, shown by setting every style sheet and text.
class NaiveTable
{
public:
    explicit NaiveTable(const ProgramTab& shown)
        : tab(shown)
    {
    }

    void show(const QVector<ProgramStep>& program)
    {
        steps = program;
        for (int k = 0; k < steps.size(); ++k) {
            showRow(k);
        }
    }
    void cutFirst()
    {
        QVector<ProgramStep> rest = steps.mid(1);
        rest.append(steps.constLast());
        show(rest);
    }
    void pasteFirst()
    {
        QVector<ProgramStep> moved = steps;
        moved.prepend(ProgramStep());
        moved.removeLast();
        show(moved);
    }

private:
    static void showEdit(QLineEdit* edit, const QString& text)
    {
        edit->setStyleSheet(white);
        edit->setText(text);
    }
    void showRow(int k)
    {
        const ProgramStep& step = steps[k];
        for (int channel = 0; channel < Channels::count; ++channel) {
            showEdit(tab.setPoint(k, channel), step.setPoints.at(static_cast<size_t>(channel)));
        }
        for (int n = 0; n < Channels::shutterCount; ++n) {
            const bool isOpen = step.shutters.at(static_cast<size_t>(n));
            QToolButton* button = tab.shutter(k, n);
            button->setStyleSheet(isOpen ? yellow : olive);
            button->setText(isOpen ? QStringLiteral("On") : QStringLiteral("Off"));
        }
        showEdit(tab.time(k), QString::number(step.timeSec, 'g', 6));
        showEdit(tab.group(k), step.group);
        showEdit(tab.times(k), QString::number(step.times));
    }

    const ProgramTab& tab;
    QVector<ProgramStep> steps;
};

struct Change
{
    const char* name;
    bool isFromEmpty; ///< the table is empty before it, else full
    std::function<void()> ours;
    std::function<void()> naive;
};

void measureChanges(const Figures& figures, bool allShutters)
{
    const QString fname = QStringLiteral("full.dat");
    const QVector<ProgramStep> empty(ProgramTab::rows);
    const QVector<ProgramStep> full = fullProgram(allShutters);
    ShownTable ours;
    ours.table().load(full);
    ours.table().saveFile(fname);
    ShownTable theirs;
    NaiveTable naive(theirs.table());
    const Change changes[] = {
        {"load", true, [&] { ours.table().loadFile(fname); }, [&] { naive.show(full); }},
        {"clear", false, [&] { ours.clear(); }, [&] { naive.show(empty); }},
        {"cut", false, [&] { ours.pick(RowEntry::Cut); }, [&] { naive.cutFirst(); }},
        {"paste(up)", false, [&] { ours.pick(RowEntry::PasteUp); }, [&] { naive.pasteFirst(); }},
    };
    for (const Change& change : changes) {
        std::vector<double> oursMs;
        std::vector<double> oursCpuMs; // what is left when other programs keep the machine busy
        std::vector<double> naiveMs;
        // Both ways in turns, so that the machine's moods fall on both alike.
        for (int turn = 0; turn < turns; ++turn) {
            if (change.isFromEmpty) {
                ours.clear();
            } else {
                ours.table().loadFile(fname);
            }
            naive.show(change.isFromEmpty ? empty : full);
            settle();
            const std::clock_t before = std::clock();
            oursMs.push_back(msOf([&change] {
                change.ours();
                settle();
            }));
            oursCpuMs.push_back(1000.0 * static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC);
            naiveMs.push_back(msOf([&change] {
                change.naive();
                settle();
            }));
        }
        const std::string name
            = change.name + std::string(allShutters ? ", every shutter changes" : ", two shutters change");
        figures.atMost((name + ": until the last repaint").c_str(), 50.0, median(oursMs), "ms");
        figures.show("  of it processor time", median(oursCpuMs), "ms");
        figures.atMost("  over setting everything anew", 0.4, median(oursMs) / median(naiveMs), "");
    }
}

} // namespace

int main(int argc, char* argv[])
{
    return runBenchmark(argc, argv, [] {
        const Figures figures("program-table");
        measureStart(figures);
        measureChanges(figures, false);
        measureChanges(figures, true);
        return 0;
    });
}
