#pragma once

#include <benchmark/benchmark.h>

#include <functional>

// What is compared: the time of `run`. `prepare` comes before each run, untimed, and may be empty.
struct Deed {
    std::function<void()> run;
    std::function<void()> prepare;
};

// Runs the two in turns, so that whatever else the machine does falls on both, and reports how many times as long
// `ours` takes as `measure`: the median over the turns. The sentence says in words what the ratio is.
void Compare(benchmark::State& state, const Deed& ours, const Deed& measure, const char* sentence);

// The same against a fixed time.
void CompareWithSeconds(benchmark::State& state, const Deed& ours, double seconds, const char* sentence);
