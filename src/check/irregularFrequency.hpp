#pragma once

#include "check/hydrostatics.hpp"

#include <string>

namespace sorvik {

/// The lowest frequency at which the water that the hull displaces would slosh in it, and panel
/// methods without a lid give wrong results.
struct irregularFrequency {
    double omega = 0;   ///< rad/s; 0 for a hull without a waterplane
    std::string method; ///< the shape that stands for the waterplane, and the source
};

/// Estimates it from the area and the moments of the waterplane and the draught:
/// omega² = g k coth(k T), where k is the lowest wave number of the waterplane with zero potential
/// at its edge. A rectangle of sides L and B has k = pi sqrt(1/L² + 1/B²), a circle of radius R
/// has k = 2.405 / R. For any other plane of area A, also in parts, k >= 2.405 sqrt(pi / A) (Faber
/// and Krahn), which gives a lower bound.
irregularFrequency firstIrregularFrequency(const hydrostatics& h, double gravity);

} // namespace sorvik
