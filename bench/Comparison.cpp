#include "Comparison.h"

#include <algorithm>
#include <chrono>
#include <vector>

namespace {

double Median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

void Measure(benchmark::State& state, const Deed& ours, const std::function<double()>& measure,
             const Promise& promise) {
    // The first run of each finds a cold machine and a key that is not derived yet.
    Seconds(ours);
    measure();
    std::vector<double> ratios;
    for ([[maybe_unused]] auto turn : state) {
        const double seconds = Seconds(ours);
        ratios.push_back(seconds / measure());
        state.SetIterationTime(seconds);
    }
    if (!ratios.empty()) {
        Report(state, Median(ratios), promise);
    }
}

} // namespace

double Seconds(const Deed& deed) {
    if (deed.prepare) {
        deed.prepare();
    }
    const auto begin = std::chrono::steady_clock::now();
    deed.run();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count() / deed.things;
}

void Compare(benchmark::State& state, const Deed& ours, const Deed& measure, const Promise& promise) {
    Measure(
        state, ours, [&measure] { return Seconds(measure); }, promise);
}

void CompareWithSeconds(benchmark::State& state, const Deed& ours, double seconds, const Promise& promise) {
    Measure(
        state, ours, [seconds] { return seconds; }, promise);
}

void Report(benchmark::State& state, double ratio, const Promise& promise) {
    state.counters["ratio"] = ratio;
    state.counters["target"] = promise.target;
    state.SetLabel(promise.sentence);
}
