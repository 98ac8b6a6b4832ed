#pragma once

#include <random>

// A source of random numbers. Each new object is seeded from the system, so no two repeat the same sequence.
class Random {
public:
    Random();

    // A number from `low` to `high`, both included, each equally likely. The two may come in either order.
    int InRange(int low, int high);

private:
    std::mt19937 generator_;
};
