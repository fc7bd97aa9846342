// The program table: bringing it up, and changing it as a whole, beside the plain ways of doing so.
//
// Targets: up within 1.3 times the same widgets unstyled; each change until its last repaint within 50 ms and
// 0.4 times the naive way, which sets every style sheet and text each time.

#include "growthtable.h"

#include "program/aline.h"
#include "support/testmain.h"
#include "ui_mainwindow.h"

#include <QElapsedTimer>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>
#include <functional>
#include <vector>

namespace {

const QString white = QStringLiteral("background-color: rgb(255, 255, 255);");
const QString yellow = QStringLiteral("background-color: rgb(255, 255, 15);");
const QString olive = QStringLiteral("background-color: rgb(185, 185, 105);");

double secondsOf(const std::function<void()>& work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) / 1e9;
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
    grid->addWidget(label, row, 0);
    for (int n = 0; n < 7; ++n) {
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
        grid->addWidget(cell, row, n + 1);
    }
    for (int column = 8; column <= 12; ++column) {
        grid->addWidget(plainEdit(host), row, column);
    }
}

void tableUp(benchmark::State& state, bool ours)
{
    for (auto _ : state) {
        Form form;
        QList<aLine*> lines;
        state.SetIterationTime(secondsOf([&] {
            for (int k = 0; k < 200; ++k) {
                if (ours) {
                    lines.append(new aLine(form.SA01));
                    lines.last()->placeInGrid(form.Program, k + 2);
                    lines.last()->setStep(k + 1);
                } else {
                    placeUnstyledRow(form.SA01, form.Program, k + 2);
                }
            }
            form.show();
            settle();
        }));
        qDeleteAll(lines);
    }
}

// ---- changing it

// The table as it should be, shown by setting every style sheet and text.
class NaiveTable
{
public:
    explicit NaiveTable(ShownStation& shown)
        : station(shown)
        , clip(ProgramStep())
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
        moved.prepend(clip);
        moved.removeLast();
        show(moved);
    }

private:
    void showEdit(QWidget* edit, const QString& text)
    {
        edit->setStyleSheet(white);
        static_cast<QLineEdit*>(edit)->setText(text);
    }
    void showRow(int k)
    {
        const ProgramStep& step = steps[k];
        for (int n = 0; n < 7; ++n) {
            const auto i = static_cast<size_t>(n);
            QLayout* box = station.at(k, n + 1)->layout();
            showEdit(box->itemAt(0)->widget(), step.setPoints.at(i));
            auto* button = static_cast<QToolButton*>(box->itemAt(1)->widget());
            button->setStyleSheet(step.shutters.at(i) ? yellow : olive);
            button->setText(step.shutters.at(i) ? QStringLiteral("On") : QStringLiteral("Off"));
        }
        showEdit(station.at(k, 8), step.setPoints[7]);
        showEdit(station.at(k, 9), step.setPoints[8]);
        showEdit(station.at(k, 10), QString::number(step.timeSec, 'g', 6));
        showEdit(station.at(k, 11), step.group);
        showEdit(station.at(k, 12), QString::number(step.times));
    }

    ShownStation& station;
    QVector<ProgramStep> steps;
    ProgramStep clip;
};

enum Change { Load, Clear, Cut, PasteUp };

const char* const changeNames[] = {"load", "clear", "cut", "paste(up)"};

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

// Both ways in turns, so that the machine's moods fall on both alike.
void changeTable(benchmark::State& state)
{
    const auto change = static_cast<Change>(state.range(0));
    const QVector<ProgramStep> program = fullProgram(state.range(1) != 0);
    const QString fname = QStringLiteral("full.dat");
    saveProgram(fname, program);

    ShownStation ours;
    const auto load = [&] { QMetaObject::invokeMethod(&ours.window(), "APLoadProg", Q_ARG(QString, fname)); };
    ShownStation theirs;
    NaiveTable naive(theirs);

    std::vector<double> oursMs;
    std::vector<double> oursCpuMs; // what is left when other programs keep the machine busy
    std::vector<double> naiveMs;
    for (auto _ : state) {
        if (change == Load) {
            callSlot(&ours.window(), "APClear");
            naive.show(QVector<ProgramStep>(200));
        } else {
            load();
            naive.show(program);
        }
        settle();

        const std::clock_t before = std::clock();
        const double seconds = secondsOf([&] {
            switch (change) {
            case Load:
                load();
                break;
            case Clear:
                callSlot(&ours.window(), "APClear");
                break;
            case Cut:
                ours.pick(1);
                break;
            case PasteUp:
                ours.pick(2);
                break;
            }
            settle();
        });
        state.SetIterationTime(seconds);
        oursCpuMs.push_back(1000.0 * static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC);
        oursMs.push_back(1000.0 * seconds);
        naiveMs.push_back(1000.0 * secondsOf([&] {
            switch (change) {
            case Load:
                naive.show(program);
                break;
            case Clear:
                naive.show(QVector<ProgramStep>(200));
                break;
            case Cut:
                naive.cutFirst();
                break;
            case PasteUp:
                naive.pasteFirst();
                break;
            }
            settle();
        }));
    }
    state.SetLabel(changeNames[change]);
    state.counters["ours_ms"] = median(oursMs);
    state.counters["ours_cpu_ms"] = median(oursCpuMs);
    state.counters["naive_ms"] = median(naiveMs);
    state.counters["ratio"] = median(oursMs) / median(naiveMs);
}

} // namespace

BENCHMARK_CAPTURE(tableUp, unstyled, false)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(15);
BENCHMARK_CAPTURE(tableUp, ours, true)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(15);
BENCHMARK(changeTable)
    ->ArgNames({"change", "allShutters"})
    ->ArgsProduct({{Load, Clear, Cut, PasteUp}, {0, 1}})
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(15);

int main(int argc, char* argv[])
{
    qputenv("NELVO_ADAPTER", "127.0.0.1");
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    return runIsolated(argc, argv, [&] {
        benchmark::Initialize(&argc, argv);
        benchmark::RunSpecifiedBenchmarks();
        return 0;
    });
}
