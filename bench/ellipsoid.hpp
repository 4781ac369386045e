#pragma once

#include "mesh/triangle.hpp"

#include <cmath>
#include <vector>

/// A closed ellipsoid hull with semi-axes 20, 5 and 4 m about the origin: `around` meridians with
/// `rings` edges from pole to pole, 2 * around * (rings - 1) panels.
inline std::vector<triangle> ellipsoid(int around, int rings) {
    const double pi = std::acos(-1.0);
    const auto point = [&](int i, int j) {
        const double u = 2 * pi * (i % around) / around;
        const double v = pi * j / rings;
        return v3<float>{static_cast<float>(20 * std::sin(v) * std::cos(u)),
                         static_cast<float>(5 * std::sin(v) * std::sin(u)),
                         static_cast<float>(-4 * std::cos(v))};
    };
    std::vector<triangle> panels;
    for (int i = 0; i < around; ++i) {
        for (int j = 0; j < rings; ++j) {
            if (j > 0) {
                panels.emplace_back(point(i, j), point(i + 1, j), point(i, j + 1));
            }
            if (j < rings - 1) {
                panels.emplace_back(point(i + 1, j), point(i + 1, j + 1), point(i, j + 1));
            }
        }
    }
    return panels;
}
