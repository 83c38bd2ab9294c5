// What the main window costs: opening it, and a click during a flood. Runs without a display.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QPushButton>
#include <QTemporaryDir>
#include <algorithm>

#include "ui/ConsoleView.h"
#include "ui/Dialogs.h"
#include "ui/frmVorel.h"

namespace {

/// From nothing to a window that has been painted and answers.
void OpenMainWindow(benchmark::State& state) {
    const QTemporaryDir folder;
    QtDialogs dialogs;
    for (auto _ : state) {
        frmVorel window(dialogs, folder.path());
        window.Start();
        window.show();
        QApplication::processEvents();
        benchmark::DoNotOptimize(window.grab());
    }
}
BENCHMARK(OpenMainWindow)->Unit(benchmark::kMillisecond);

/// The memory that this process holds, in MB.
double ResidentMegabytes() {
    QFile status("/proc/self/statm");
    if (!status.open(QIODevice::ReadOnly)) return 0;
    return status.readAll().split(' ').at(1).toDouble() * 4096 / 1e6;  // told in pages
}

/// A second of 20,000 lines, arriving in bursts as packets do, with a click after every burst: how long the slowest
/// click waits until its button has acted and the window is painted.
void ClickDuringFlood(benchmark::State& state) {
    constexpr int kLines = 20000, kBursts = 100;
    const QTemporaryDir folder;
    QtDialogs dialogs;
    frmVorel window(dialogs, folder.path());
    window.Start();
    window.show();
    QApplication::processEvents();
    auto* const console = window.findChild<ConsoleView*>("lstView");
    auto* const button = window.findChild<QAbstractButton*>("cmdEmoticon_0");
    qint64 slowest = 0;
    for (auto _ : state) {
        for (int burst = 0; burst < kBursts; ++burst) {
            for (int i = 0; i < kLines / kBursts; ++i)
                window.ShowConsoleLine("Somebody: a line of a flood, as long as most");
            QElapsedTimer waited;
            waited.start();
            button->click();
            console->Lines().Flush();
            QApplication::processEvents();
            benchmark::DoNotOptimize(window.grab());
            slowest = std::max(slowest, waited.nsecsElapsed());
        }
    }
    state.SetItemsProcessed(state.iterations() * kLines);
    state.counters["slowest_click_ms"] = static_cast<double>(slowest) / 1e6;
    state.counters["lines_kept"] = console->Lines().rowCount();
    state.counters["resident_MB"] = ResidentMegabytes();
}
BENCHMARK(ClickDuringFlood)->Unit(benchmark::kMillisecond)->Iterations(3);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
