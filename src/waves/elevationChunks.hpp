#pragma once

#include "waves/wavePhasors.hpp"

#include <cstdint>
#include <vector>

namespace sorvik {

class timeInstants;

/// How far the sums of `elevationChunks`, and their products with a ramp factor, may lie from those
/// of `waveModel::eta`, as the elevation [m] at full ramp. Not a number, infinite or above any
/// use where an input is.
///
/// Both take the same numbers k s, so that they differ by rounding alone. With u = 2^-53, D the
/// largest |x| + |y| and T the largest |t| that enters, a component of amplitude a contributes at
/// most a u times
/// - k D + omega T + |phase| for the angle k s - (omega t - phase) that `eta` rounds,
/// - 10 omega T + 2 |phase| for phases at evenly spaced instants: i step, t, omega t and the
///   difference are rounded at each instant there and at the middle of a chunk here, and the way
///   from the middle twice more,
/// - 4 for the cosine (2), the product with a and that with the ramp factor in `eta`,
/// - 34 for cosines and sines (2 each), the products and the turn to the middle of a chunk here,
/// - 3 N for the sums of N components there and here.
/// Twice the total covers the products of errors and a library whose cosine is half as good.
double elevationBound(const std::vector<planeWave>& waves, const std::vector<double>& x,
                      const std::vector<double>& y, const timeInstants& instants);

/// Whether `elevationChunks` serves: there are components and probes, its arrays stay below
/// 300 MB, and few elevations are in doubt.
bool suitsElevationChunks(const std::vector<planeWave>& waves, const std::vector<double>& x,
                          const std::vector<double>& y, const timeInstants& instants);

/// Surface elevations before the ramp at all probes, a chunk of instants at a time, by angle
/// addition: a cos(k s - P) = a cos(k s) cos P + a sin(k s) sin P, so that a chunk is a product of
/// two matrices instead of a cosine per probe, instant and component.
///
/// Evenly spaced instants lie in pairs around the middle of their chunk. There the probes' phasors
/// are turned to the middle, and one pair of sums, over cosines and over sines of the distance from
/// the middle, gives both instants as its sum and its difference.
class elevationChunks {
public:
    /// How many bytes the phasors of the probes may take before they are computed for each chunk.
    static constexpr std::size_t usualTable = std::size_t(128) << 20;

    /// All must outlive the object, and suit it.
    elevationChunks(const std::vector<planeWave>& waves, const std::vector<double>& x,
                    const std::vector<double>& y, const timeInstants& instants,
                    std::size_t largestTable = usualTable);

    /// The number of instants in a chunk.
    std::int64_t length() const { return static_cast<std::int64_t>(rows_); }
    /// Computes the chunk that begins with the instant `first`.
    void compute(std::int64_t first);
    /// The elevations at all probes at instant `index` of the chunk, which has that instant.
    const double* row(std::int64_t index) const {
        return values_.data() + static_cast<std::size_t>(index) * stride_;
    }

private:
    void place(std::size_t probePanel);

    const std::vector<planeWave>& waves_;
    const timeInstants& instants_;
    probePhasors probes_;
    timePhasors times_;
    std::size_t rows_;
    std::size_t stride_;
    std::vector<double> turned_;
    std::vector<double> cosineTiles_;
    std::vector<double> sineTiles_;
    std::vector<double> values_;
};

} // namespace sorvik
