#include "Comparison.h"

#include <algorithm>
#include <chrono>
#include <vector>

namespace {

double Seconds(const Deed& deed) {
    if (deed.prepare) {
        deed.prepare();
    }
    const auto begin = std::chrono::steady_clock::now();
    deed.run();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

double Median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

void Measure(benchmark::State& state, const Deed& ours, const std::function<double()>& measure, const char* sentence) {
    std::vector<double> ratios;
    for ([[maybe_unused]] auto turn : state) {
        const double seconds = Seconds(ours);
        ratios.push_back(seconds / measure());
        state.SetIterationTime(seconds);
    }
    if (!ratios.empty()) {
        state.counters["ratio"] = Median(ratios);
    }
    state.SetLabel(sentence);
}

} // namespace

void Compare(benchmark::State& state, const Deed& ours, const Deed& measure, const char* sentence) {
    Measure(
        state, ours, [&measure] { return Seconds(measure); }, sentence);
}

void CompareWithSeconds(benchmark::State& state, const Deed& ours, double seconds, const char* sentence) {
    Measure(
        state, ours, [seconds] { return seconds; }, sentence);
}
