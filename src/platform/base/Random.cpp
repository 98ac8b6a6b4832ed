#include "platform/base/Random.h"

#include <algorithm>

Random::Random() {
    std::random_device system;
    std::seed_seq seed{system(), system(), system(), system()};
    generator_.seed(seed);
}

int Random::InRange(int low, int high) {
    return std::uniform_int_distribution<int>(std::min(low, high), std::max(low, high))(generator_);
}
