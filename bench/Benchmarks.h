#pragma once

#include <vector>

// How much is measured. A smoke run only shows that everything still works, with small files and few turns.
struct BenchPlan {
    bool smoke = false;

    [[nodiscard]] std::vector<int> Sizes() const {
        return smoke ? std::vector{600, 1'000} : std::vector{600, 1'000, 10'000, 100'000};
    }
    // The size at which what is measured at one size only is measured.
    [[nodiscard]] int MiddleSize() const { return smoke ? 1'000 : 10'000; }
    [[nodiscard]] int LargestSize() const { return smoke ? 1'000 : 100'000; }
    [[nodiscard]] int Turns(int turns) const { return smoke ? 1 : turns; }
    // The same, fewer the more there is to do in a turn.
    [[nodiscard]] int TurnsFor(int drinks) const { return Turns(drinks > 10'000 ? 9 : drinks > 1'000 ? 41 : 151); }
};

// What is measured, one function a subject. Each registers its comparisons; the program has started by then.
void RegisterConnect(const BenchPlan& plan);
void RegisterFill(const BenchPlan& plan);
void RegisterLike(const BenchPlan& plan);
void RegisterMatch(const BenchPlan& plan);
void RegisterPaint(const BenchPlan& plan);
void RegisterSave(const BenchPlan& plan);
