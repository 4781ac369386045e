#pragma once

#include "waves/wavePhasors.hpp"

#include <vector>

namespace sorvik {

/// How far the sums of `elevationChunks`, and their products with a ramp factor, may lie from those
/// of `waveModel::eta`, as the elevation [m] at full ramp. Where an input is not finite, neither is
/// the bound, or it is above any use.
///
/// Both ways take the same numbers k s, so that they differ by rounding alone. With u = 2^-53, D
/// the largest |x| + |y| and T the largest |t| that enters, a component of amplitude a contributes
/// at most a u times
/// - k D + omega T + |phase| for the angle k s - (omega t - phase) that `eta` rounds,
/// - 10 omega T + 2 |phase| for phases at evenly spaced instants: i step, t, omega t and the
///   difference are rounded at each instant there and at the middle of a chunk here, and the way
///   from the middle twice more,
/// - 4 for the cosine (2), the product with a and that with the ramp factor in `eta`,
/// - 34 for cosines and sines (2 each), the products and the turn to the middle of a chunk here,
/// - 3 N for the sums of N components there and here.
/// Twice the total covers the products of errors, and a library whose cosine is half as accurate.
double elevationBound(const std::vector<planeWave>& waves, const std::vector<double>& x,
                      const std::vector<double>& y, const timeInstants& instants);

} // namespace sorvik
