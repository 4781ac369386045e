#include "check/hullSurface.hpp"

#include <algorithm>
#include <cmath>

namespace sorvik {
namespace {

point3 widened(const v3<float>& p) {
    return {static_cast<double>(p.x), static_cast<double>(p.y), static_cast<double>(p.z)};
}

/// The point at z = `level` on the edge from `a` to `b`, the same from both ends.
point3 crossing(const point3& a, const point3& b, double level) {
    const point3& low = a[2] < b[2] ? a : b;
    const point3& high = a[2] < b[2] ? b : a;
    const double t = (level - low[2]) / (high[2] - low[2]);
    return {low[0] + t * (high[0] - low[0]), low[1] + t * (high[1] - low[1]), level};
}

/// Panels within this distance of the level [m] lie in it.
constexpr double lidTolerance = 1e-4;

/// The mean over a triangle of the coordinate `u`, and of the product of two coordinates.
double mean(const corners3& t, std::size_t u) {
    return (t[0][u] + t[1][u] + t[2][u]) / 3;
}
double mean(const corners3& t, std::size_t u, std::size_t v) {
    const double products = t[0][u] * t[0][v] + t[1][u] * t[1][v] + t[2][u] * t[2][v];
    return (products + 9 * mean(t, u) * mean(t, v)) / 12;
}

} // namespace

corners3 cornersOf(const triangle& panel) {
    return {widened(panel.vertexA), widened(panel.vertexB), widened(panel.vertexC)};
}

point3 difference(const point3& a, const point3& b) {
    return {a[0] - b[0], a[1] - b[1], a[2] - b[2]};
}

point3 crossProduct(const point3& a, const point3& b) {
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

double norm(const point3& a) {
    return std::sqrt(a[0] * a[0] + a[1] * a[1] + a[2] * a[2]);
}

point3 centreOf(const corners3& t) {
    return {mean(t, 0), mean(t, 1), mean(t, 2)};
}

point3 areaVector(const corners3& t) {
    const point3 twice = crossProduct(difference(t[1], t[0]), difference(t[2], t[0]));
    return {twice[0] / 2, twice[1] / 2, twice[2] / 2};
}

double longestEdge(const corners3& t) {
    return std::max(
        {norm(difference(t[1], t[0])), norm(difference(t[2], t[1])), norm(difference(t[0], t[2]))});
}

bool isFinite(const corners3& t) {
    return std::all_of(t.begin(), t.end(), [](const point3& p) {
        return std::isfinite(p[0]) && std::isfinite(p[1]) && std::isfinite(p[2]);
    });
}

bool isLid(const corners3& panel, double level) {
    return std::all_of(panel.begin(), panel.end(), [&](const point3& corner) {
        return std::abs(corner[2] - level) <= lidTolerance;
    });
}

box boxAround(const std::vector<triangle>& panels) {
    box around = {{HUGE_VAL, HUGE_VAL, HUGE_VAL}, {-HUGE_VAL, -HUGE_VAL, -HUGE_VAL}};
    for (const triangle& panel : panels) {
        const corners3 t = cornersOf(panel);
        for (std::size_t corner = 0; corner < 3 && isFinite(t); ++corner) {
            for (std::size_t i = 0; i < 3; ++i) {
                around.low[i] = std::min(around.low[i], t[corner][i]);
                around.high[i] = std::max(around.high[i], t[corner][i]);
            }
        }
    }
    return around;
}

clippedTriangle clipBelow(const corners3& t, double level) {
    std::array<point3, 4> polygon;
    std::size_t count = 0;
    for (std::size_t i = 0; i < 3; ++i) {
        const point3& from = t[i];
        const point3& to = t[(i + 1) % 3];
        if (from[2] <= level) {
            polygon[count++] = from;
        }
        if ((from[2] < level && to[2] > level) || (from[2] > level && to[2] < level)) {
            polygon[count++] = crossing(from, to, level);
        }
    }
    clippedTriangle clipped;
    for (std::size_t i = 2; i < count; ++i) {
        clipped.parts[static_cast<std::size_t>(clipped.count++)] = {polygon[0], polygon[i - 1],
                                                                    polygon[i]};
    }
    return clipped;
}

void surfaceSums::add(const corners3& t) {
    const point3 a = areaVector(t);
    area += norm(a);
    for (std::size_t i = 0; i < 3; ++i) {
        volume[i] += a[i] * mean(t, i);
        volumeMoment[i] += a[i] * mean(t, i, i) / 2;
    }
    waterplane -= a[2];
    x -= a[2] * mean(t, 0);
    y -= a[2] * mean(t, 1);
    xx -= a[2] * mean(t, 0, 0);
    yy -= a[2] * mean(t, 1, 1);
    xy -= a[2] * mean(t, 0, 1);
}

} // namespace sorvik
