#include "BenchHomes.h"
#include "Benchmarks.h"
#include "Comparison.h"
#include "shell/App.h"
#include "shell/MainWindow.h"

#include <QCoreApplication>

#include <algorithm>
#include <string>
#include <vector>

namespace {

MainWindow& Window() {
    return MainWindow::Instance();
}

void Fill(benchmark::State& state) {
    if (!App::Instance().FillDrinkList()) {
        state.SkipWithError("the fill failed");
    }
}

// Counts the cells that the list draws as long as it lives, so that no time is reported in which nothing was painted.
class PaintedCells {
public:
    PaintedCells() : handler_(Window().DrinkList.CellTextPaint) {
        Window().DrinkList.CellTextPaint = [this](Graphics& g, int row, int column, int x, int y) {
            ++count_;
            return handler_(g, row, column, x, y);
        };
    }
    ~PaintedCells() { Window().DrinkList.CellTextPaint = handler_; }
    PaintedCells(const PaintedCells&) = delete;
    PaintedCells& operator=(const PaintedCells&) = delete;

    [[nodiscard]] int Count() const { return count_; }

private:
    std::function<bool(Graphics&, int, int, int, int)> handler_;
    int count_ = 0;
};

// A key that finds everything, and then the one that takes it back, so that each leaves the same rows.
void TypeKey() {
    EditField& box = Window().SearchBox;
    box.SetText(box.Text().isEmpty() ? QStringLiteral("%") : QString());
    QCoreApplication::processEvents();
}

// What the last turn left to be painted is not part of the next.
void Settle() {
    QCoreApplication::processEvents();
}

void CheckPainted(benchmark::State& state, const PaintedCells& cells) {
    if (cells.Count() == 0) {
        state.SkipWithError("nothing was painted");
    }
}

void KeyAgainstFill(benchmark::State& state, int drinks, double target) {
    BenchHomes::Use(drinks);
    Fill(state);
    const PaintedCells cells;
    // The search is part of both sides: the fill that is the measure finds the text that the key has left.
    Compare(state, {TypeKey, Settle}, {[&] { Fill(state); }, Settle},
            {"a key in the search box until the list is painted, against the fill alone", target});
    CheckPainted(state, cells);
    Window().SearchBox.SetText(QString());
}

void KeyAgainstFrame(benchmark::State& state) {
    BenchHomes::Use(600);
    Fill(state);
    const PaintedCells cells;
    CompareWithSeconds(state, {TypeKey, Settle}, frame, {"the same key at 600 drinks, in frames", 1});
    CheckPainted(state, cells);
    Window().SearchBox.SetText(QString());
}

void SelectDrink(benchmark::State& state, int drinks) {
    BenchHomes::Use(drinks);
    Fill(state);
    Settle();
    const PaintedCells cells;
    int row = 0;
    const auto select = [&] {
        row = (row + 7919) % drinks;
        Window().DrinkList.SetListIndex(row);
        QCoreApplication::processEvents();
    };
    CompareWithSeconds(state, {select, Settle}, frame, {"a drink selected until its recipe is painted, in frames", 1});
    if (Window().DrinkName.Text() != Window().DrinkList.Cell(row, 1)) {
        state.SkipWithError("the recipe does not show");
    }
}

// The time until the page that begins at this row is painted.
double SecondsToPaint(int row) {
    return Seconds({[row] {
                        Window().DrinkList.SetScrollPosition(row);
                        QCoreApplication::processEvents();
                    },
                    [row] {
                        Window().DrinkList.SetScrollPosition(row < 100 ? row + 100 : row - 100);
                        QCoreApplication::processEvents();
                    }});
}

// The best of some passes counts for each place: what another program takes of the machine is no fault of the place.
void Scroll(benchmark::State& state, int drinks, int passes) {
    BenchHomes::Use(drinks);
    Fill(state);
    Settle();
    constexpr int places = 400;
    const PaintedCells cells;
    for ([[maybe_unused]] auto turn : state) {
        std::vector<double> best(places, 1.0);
        for (int pass = 0; pass < passes; ++pass) {
            for (int place = 0; place < places; ++place) {
                double& seconds = best[static_cast<std::size_t>(place)];
                seconds = std::min(seconds, SecondsToPaint(static_cast<int>(qint64(drinks) * place / places)));
            }
        }
        const double slowest = *std::max_element(best.begin(), best.end());
        state.SetIterationTime(slowest);
        Report(state, slowest / best.front(),
               {"the slowest page of a scroll from end to end, against the first page", 2});
    }
    CheckPainted(state, cells);
}

} // namespace

void RegisterPaint(const BenchPlan& plan) {
    for (const int drinks : plan.Sizes()) {
        const std::string size = std::to_string(drinks);
        benchmark::RegisterBenchmark(("key/" + size).c_str(), KeyAgainstFill, drinks,
                                     drinks == plan.MiddleSize() ? 1.3 : 0)
            ->UseManualTime()
            ->Iterations(plan.TurnsFor(drinks));
        benchmark::RegisterBenchmark(("select/" + size).c_str(), SelectDrink, drinks)
            ->UseManualTime()
            ->Iterations(plan.Turns(151));
    }
    benchmark::RegisterBenchmark("key/frame", KeyAgainstFrame)->UseManualTime()->Iterations(plan.Turns(151));
    benchmark::RegisterBenchmark("scroll", Scroll, plan.LargestSize(), plan.Turns(9))->UseManualTime()->Iterations(1);
}
