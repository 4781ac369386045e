#pragma once

#include "numerics/matrixOp.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <random>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::ElementsAreArray;
using numbers = std::vector<double>;
inline const double notANumber = std::nan("");

/// Numbers in -1 to 1 whose sums depend on the order of summation.
inline numbers randomNumbers(int count, unsigned seed) {
    std::mt19937 random(seed);
    numbers drawn(static_cast<std::size_t>(count));
    std::generate(drawn.begin(), drawn.end(), [&] { return std::ldexp(random(), -31) - 1.0; });
    return drawn;
}
