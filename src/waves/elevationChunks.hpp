#pragma once

#include "waves/wavePhasors.hpp"

#include <cstdint>
#include <vector>

namespace sorvik {

class timeInstants;

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
    /// The most instants in a chunk.
    static constexpr int longest = 256;

    /// Whether chunks serve for `probes` probes: there are components and probes, the arrays stay
    /// below 300 MB, and a `bound` [m] on the error leaves few elevations in doubt.
    static bool suit(const std::vector<planeWave>& waves, std::size_t probes, double bound);

    /// All must outlive the object, and suit it.
    elevationChunks(const std::vector<planeWave>& waves, const std::vector<double>& x,
                    const std::vector<double>& y, const timeInstants& instants,
                    std::size_t largestTable = usualTable);

    /// The number of instants in a chunk.
    std::int64_t length() const { return static_cast<std::int64_t>(rows_); }
    /// Computes the chunk that begins with the instant `first`.
    void compute(std::int64_t first);
    /// The elevations [m] at all probes at instant `index` of the chunk, below `length`.
    const double* row(std::int64_t index) const {
        return values_.data() + static_cast<std::size_t>(index) * stride_;
    }

private:
    void place(std::size_t group);

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
