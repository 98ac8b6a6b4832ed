#pragma once

#include <benchmark/benchmark.h>

#include <functional>

// What is compared: the time of `run`. `prepare` comes before each run, untimed, and may be empty. Where a run does
// several of the things that are compared, its time is divided by their number.
struct Deed {
    std::function<void()> run;
    std::function<void()> prepare = {};
    double things = 1;
};

// What a ratio is, in words, and the most that it may come to; 0 where it is only of interest.
struct Promise {
    const char* sentence;
    double target = 0;
};

// The time of one run, in seconds.
double Seconds(const Deed& deed);

// Runs the two in turns, so that whatever else the machine does falls on both, and reports how many times as long
// `ours` takes as `measure`: the median over the turns.
void Compare(benchmark::State& state, const Deed& ours, const Deed& measure, const Promise& promise);

// The same against a fixed time.
void CompareWithSeconds(benchmark::State& state, const Deed& ours, double seconds, const Promise& promise);

// Reports a ratio that was found in another way.
void Report(benchmark::State& state, double ratio, const Promise& promise);

// The time of one picture at 60 a second.
constexpr double frame = 1.0 / 60.0;
