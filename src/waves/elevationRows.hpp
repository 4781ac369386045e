#pragma once

#include "waves/elevationBound.hpp"
#include "waves/elevationChunks.hpp"
#include "waves/timeInstants.hpp"
#include "waves/waveModel.hpp"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

namespace sorvik {

/// The sea, the probes [m] and the instants of a table of elevations.
struct elevationRequest {
    waveModel& model;
    const std::vector<double>& x;
    const std::vector<double>& y;
    const timeInstants& instants;
};

/// Makes the rows of a table, an instant each, for `Rows`, which has
/// - isOpen(): whether it takes more rows
/// - begin(t): an instant [s] begins
/// - addSums(sums, count, ramp, bound): takes elevations `ramp` times `sums` until one is in doubt,
///   that is until not every number within `bound` of it has the same text; returns how many
/// - add(elevation) and end()
template <class Rows>
class elevationRows {
public:
    elevationRows(const elevationRequest& asked, Rows& rows) : asked_(asked), rows_(rows) {}

    /// The model is asked for all, or, where it is a sum of trains, for what fast sums leave in
    /// doubt. It is left at the last instant.
    void make() {
        if (asked_.instants.count() < 1) {
            return;
        }
        if (asked_.model.isSumOfTrains()) {
            const std::vector<planeWave> waves = planeWavesOf(asked_.model);
            const double bound = elevationBound(waves, asked_.x, asked_.y, asked_.instants);
            if (elevationChunks::suit(waves, asked_.x.size(), bound)) {
                makeFromChunks(waves, bound);
                asked_.model.setTime(asked_.instants[asked_.instants.count() - 1]);
                return;
            }
        }
        makeFromModel();
    }

private:
    /// What the model answers, which is nan at a probe once it has been: the elevations of the
    /// instant before are there when it is asked.
    void makeFromModel() {
        std::vector<double> elevations(asked_.x.size(), 0.0);
        for (std::int64_t i = 0; i < asked_.instants.count() && rows_.isOpen(); ++i) {
            const double t = asked_.instants[i];
            rows_.begin(t);
            asked_.model.setTime(t);
            asked_.model.eta(static_cast<int>(elevations.size()), asked_.x.data(), asked_.y.data(),
                             elevations.data());
            for (const double elevation : elevations) {
                rows_.add(elevation);
            }
            rows_.end();
        }
    }

    /// Sums from chunks lie within `bound` of those of the model before the ramp.
    void makeFromChunks(const std::vector<planeWave>& waves, double bound) {
        elevationChunks chunks(waves, asked_.x, asked_.y, asked_.instants);
        const std::int64_t count = asked_.instants.count();
        for (std::int64_t first = 0; first < count && rows_.isOpen(); first += chunks.length()) {
            chunks.compute(first);
            const std::int64_t rows = std::min(chunks.length(), count - first);
            for (std::int64_t row = 0; row < rows && rows_.isOpen(); ++row) {
                const double t = asked_.instants[first + row];
                rows_.begin(t);
                addElevations(t, chunks.row(row), bound);
                rows_.end();
            }
        }
    }

    void addElevations(double t, const double* sums, double bound) {
        const double ramp = asked_.model.rampFactorAt(t);
        const std::size_t count = asked_.x.size();
        std::size_t j = 0;
        while ((j += rows_.addSums(sums + j, count - j, ramp, ramp * bound)) < count) {
            // At rest, zeros carry the sign of the sum.
            const bool isSignedZero = ramp == 0.0 && std::fabs(sums[j]) > bound;
            rows_.add(isSignedZero ? ramp * sums[j] : elevationOf(t, j));
            ++j;
        }
    }

    /// The elevation of probe `j` at the instant `t` as the model gives it.
    double elevationOf(double t, std::size_t j) {
        double elevation = 0.0;
        asked_.model.setTime(t);
        asked_.model.eta(1, &asked_.x[j], &asked_.y[j], &elevation);
        return elevation;
    }

    const elevationRequest& asked_;
    Rows& rows_;
};

} // namespace sorvik
