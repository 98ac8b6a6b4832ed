// Measures the real program: its window on Qt's offscreen platform, its files encrypted in a folder of their own.
//
//     pourbook_bench [--smoke] [--benchmark_filter=EXPRESSION]

#include "BenchHomes.h"
#include "Benchmarks.h"
#include "RatioReporter.h"
#include "shell/App.h"
#include "shell/MenuBar1.h"
#include "shell/Pictures.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

// Brings the program up as a start does, as far as the first turns of the event loop.
void StartUp(App& app) {
    Runtime::Start(app);
    while (!app.AppLoaded && !Runtime::HasQuit()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    if (Runtime::HasQuit()) {
        std::fputs("The program did not start.\n", stderr);
        std::exit(EXIT_FAILURE);
    }
    // The window shows with the turn after.
    QCoreApplication::processEvents();
}

int Measure(App& app, const BenchPlan& plan) {
    StartUp(app);
    RegisterFill(plan);
    RegisterMatch(plan);
    RegisterPaint(plan);
    RegisterConnect(plan);
    RegisterLike(plan);
    // The last, because it changes what is in the bar.
    RegisterSave(plan);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return reporter.HasFailures() ? EXIT_FAILURE : EXIT_SUCCESS;
}

// Takes the option "--smoke" out of the command line; the others are Google Benchmark's.
BenchPlan TakePlan(int& argc, char** argv) {
    char** const end = std::remove_if(argv + 1, argv + argc,
                                      [](const char* argument) { return std::strcmp(argument, "--smoke") == 0; });
    const BenchPlan plan{end != argv + argc};
    argc = static_cast<int>(end - argv);
    return plan;
}

} // namespace

int main(int argc, char** argv) {
    const BenchPlan plan = TakePlan(argc, argv);
    benchmark::Initialize(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir folder;
    BenchHomes::SetFolder(folder.path());
    BenchHomes::Use(600);

    Runtime runtime(argc, argv);
    PreparePictures();
    App app;
    MenuBar1 menuBar;
    app.SetMenuBar(menuBar);
    return Measure(app, plan);
}
