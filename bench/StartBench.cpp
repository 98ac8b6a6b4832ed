// A start of the program against a start of the least that has a window: the two by turns, each in a process of its own
// that measures itself (StartWatch.cpp). They open on the screen of DISPLAY, and without one on Qt's offscreen
// platform.

#include "platform/database/Database.h"
#include "store/DatabaseFiles.h"

#include <QProcess>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <vector>

namespace {

constexpr int turns = 15;

struct Start {
    double painted = 0;   // seconds from the start to the first painted list
    double processor = 0; // seconds of the processor until then
    double resident = 0;  // KiB once the program is at rest
    double share = 0;     // the same, a page that several processes have counted as a part
};

struct Starts {
    std::vector<Start> bare;
    std::vector<Start> program;
    QString problem;
};

// The library as it is shipped, of a user who has closed the window before: a first run looks for a new version.
QString MakeHome(const QString& folder) {
    qputenv("XDG_DATA_HOME", folder.toUtf8());
    const QString appName = QStringLiteral("Tipplewise Pourbook");
    UserFolder(true, appName).CreateAsFolder();
    SeedDatabase(true).CopyFileTo(UserFolder(true, appName));
    REALSQLDatabase db;
    db.SetDatabaseFile(WorkingDatabase(true, appName));
    db.SetEncryptionKey(DatabaseKey());
    if (db.Connect()) {
        db.SQLExecute(QStringLiteral(
            "UPDATE Setup SET AppLeft = 100, AppTop = 100, AppWidth = 750, AppHeight = 600, UserOptions = 'V01'"));
    }
    return db.ErrorMessage();
}

Start StartOnce(const char* name, QString& problem) {
    const QString path = ExecutableFile().Parent().Child(QString::fromLatin1(name)).AbsolutePath();
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    if (environment.contains(QStringLiteral("DISPLAY"))) {
        environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
    }
    process.setProcessEnvironment(environment);
    const auto begin = std::chrono::steady_clock::now().time_since_epoch();
    process.start(path, QStringList());
    process.waitForFinished();
    const QList<QByteArray> numbers = process.readAllStandardOutput().simplified().split(' ');
    if (numbers.size() != 4) {
        problem = path + QStringLiteral(" did not start: ") + QString::fromLocal8Bit(process.readAllStandardError());
        return {};
    }
    return {numbers[0].toDouble() - std::chrono::duration<double>(begin).count(), numbers[1].toDouble(),
            numbers[2].toDouble(), numbers[3].toDouble()};
}

Starts Measure() {
    Starts starts;
    const QByteArray home = qgetenv("XDG_DATA_HOME");
    const QTemporaryDir folder;
    starts.problem = MakeHome(folder.path());
    // The first turn reads the files from the disk, and does not count.
    for (int turn = 0; turn <= turns && starts.problem.isEmpty(); ++turn) {
        const Start bare = StartOnce("start_bare", starts.problem);
        const Start program = StartOnce("start_pourbook", starts.problem);
        if (turn > 0) {
            starts.bare.push_back(bare);
            starts.program.push_back(program);
        }
    }
    qputenv("XDG_DATA_HOME", home);
    return starts;
}

double Median(const std::vector<Start>& starts, double Start::*figure) {
    std::vector<double> values;
    values.reserve(starts.size());
    for (const Start& start : starts) {
        values.push_back(start.*figure);
    }
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

void CompareStarts(benchmark::State& state, double Start::*figure, double target, const char* sentence) {
    static const Starts starts = Measure();
    if (!starts.problem.isEmpty()) {
        state.SkipWithError(qPrintable(starts.problem));
        return;
    }
    for ([[maybe_unused]] auto turn : state) {
        state.SetIterationTime(Median(starts.program, &Start::painted));
    }
    state.counters["ratio"] = Median(starts.program, figure) / Median(starts.bare, figure);
    state.counters["target"] = target;
    state.SetLabel(sentence);
}

void Register(const char* name, double Start::*figure, double target, const char* sentence) {
    benchmark::RegisterBenchmark(name, [=](benchmark::State& state) { CompareStarts(state, figure, target, sentence); })
        ->UseManualTime()
        ->Iterations(1);
}

[[maybe_unused]] const bool registered = [] {
    Register("start/time", &Start::painted, 1.5, "from the start to the first painted list, against a bare Qt window");
    Register("start/processor", &Start::processor, 0, "the same in time of the processor");
    Register("start/memory", &Start::resident, 1.5, "memory after the start (RSS), against a bare Qt window");
    Register("start/memory-share", &Start::share, 0, "the same, shared pages counted in part (PSS)");
    return true;
}();

} // namespace
