#include "check/hydrostatics.hpp"

#include "check/hullSurface.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

namespace sorvik {
namespace {

struct wetSums {
    surfaceSums sums; ///< relative to `zero`
    point3 zero = {};
    double lowest = std::numeric_limits<double>::infinity();
};

/// The middle of the panels' box at the height of the level: sums about it lose no digits to a hull
/// that lies far from the origin.
point3 middleOf(const std::vector<triangle>& panels, double level) {
    const auto [low, high] = boxAround(panels);
    return {(low[0] + high[0]) / 2, (low[1] + high[1]) / 2, level};
}

wetSums sumBelow(const std::vector<triangle>& panels, double level) {
    wetSums wet;
    wet.zero = middleOf(panels, level);
    for (const triangle& panel : panels) {
        const corners3 whole = cornersOf(panel);
        if (!isFinite(whole) || isLid(whole, level)) {
            continue;
        }
        const corners3 moved = {difference(whole[0], wet.zero), difference(whole[1], wet.zero),
                                difference(whole[2], wet.zero)};
        const clippedTriangle clipped = clipBelow(moved, 0);
        for (int i = 0; i < clipped.count; ++i) {
            const corners3& part = clipped.parts[static_cast<std::size_t>(i)];
            wet.sums.add(part);
            wet.lowest = std::min({wet.lowest, part[0][2], part[1][2], part[2][2]});
        }
    }
    return wet;
}

/// a / b; not a number where there is nothing to divide by.
double quotient(double a, double b) {
    return b == 0 ? std::numeric_limits<double>::quiet_NaN() : a / b;
}

/// Sets volume, buoyancy and waterplane, in the coordinates of the mesh.
void setShape(const wetSums& wet, hydrostatics& h) {
    const surfaceSums& s = wet.sums;
    h.wettedArea = s.area;
    h.volume = s.volume;
    h.draught = std::isfinite(wet.lowest) ? -wet.lowest : 0;
    for (std::size_t i = 0; i < 3; ++i) {
        h.buoyancy[i] = quotient(s.volumeMoment[i], s.volume[2]) + wet.zero[i];
    }
    h.waterplane = s.waterplane;
    const bool isCut = std::abs(s.waterplane) > 1e-9 * s.area;
    const double x = isCut ? s.x / s.waterplane : 0;
    const double y = isCut ? s.y / s.waterplane : 0;
    h.waterplaneX = isCut ? x + wet.zero[0] : 0;
    h.waterplaneY = isCut ? y + wet.zero[1] : 0;
    h.Ixx = s.yy - y * s.y;
    h.Iyy = s.xx - x * s.x;
    h.Ixy = s.xy - x * s.y;
}

/// Linear restoring about the centre of gravity: J. N. Newman, Marine Hydrodynamics (1977),
/// section 6.16. The weight has no moment about its own centre.
std::array<double, 36> stiffnessOf(const hydrostatics& h, const hydrostaticOptions& options) {
    const double weightDensity = options.density * options.gravity;
    const double x = h.waterplaneX - options.cog[0];
    const double y = h.waterplaneY - options.cog[1];
    const point3 arm = difference(h.buoyancy, options.cog);
    const double V = h.volume[2];
    std::array<double, 36> K = {};
    const auto set = [&](std::size_t row, std::size_t column, double value) {
        K[6 * (row - 1) + column - 1] = weightDensity * value;
    };
    set(3, 3, h.waterplane);
    set(3, 4, h.waterplane * y);
    set(4, 3, h.waterplane * y);
    set(3, 5, -h.waterplane * x);
    set(5, 3, -h.waterplane * x);
    set(4, 4, h.Ixx + h.waterplane * y * y + V * arm[2]);
    set(5, 5, h.Iyy + h.waterplane * x * x + V * arm[2]);
    set(4, 5, -h.Ixy - h.waterplane * x * y);
    set(5, 4, -h.Ixy - h.waterplane * x * y);
    set(4, 6, -V * arm[0]);
    set(5, 6, -V * arm[1]);
    double largest = 0;
    for (const double value : K) {
        largest = std::max(largest, std::abs(value));
    }
    for (double& value : K) {
        // What symmetry cancels leaves rounding errors, which would go into files.
        value = std::abs(value) < 1e-13 * largest ? 0 : value;
    }
    return K;
}

} // namespace

hydrostatics computeHydrostatics(const std::vector<triangle>& panels,
                                 const hydrostaticOptions& options) {
    hydrostatics h;
    setShape(sumBelow(panels, options.level), h);
    const double V = h.volume[2];
    h.displacement = options.density * V;
    h.mass = options.mass.value_or(h.displacement);
    const double BG = h.buoyancy[2] - options.cog[2];
    h.GMt = BG + quotient(h.Ixx, V);
    h.GMl = BG + quotient(h.Iyy, V);
    h.stiffness = stiffnessOf(h, options);
    return h;
}

} // namespace sorvik
