// Measures the real program: its window on Qt's offscreen platform, its files encrypted in a folder of their own.

#include "BenchHomes.h"
#include "Benchmarks.h"
#include "RatioReporter.h"
#include "shell/App.h"
#include "shell/MenuBar1.h"
#include "shell/Pictures.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

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

int Measure(App& app) {
    StartUp(app);
    RegisterConnect();
    RegisterKeystrokes();
    RegisterRecipe();
    RegisterSave();
    RegisterLike();
    RegisterFills();
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return reporter.HasFailures() ? EXIT_FAILURE : EXIT_SUCCESS;
}

} // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir folder;
    BenchHomes::Make(folder.path());

    Runtime runtime(argc, argv);
    PreparePictures();
    App app;
    MenuBar1 menuBar;
    app.SetMenuBar(menuBar);
    return Measure(app);
}
