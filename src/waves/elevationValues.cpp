#include "waves/elevationValues.hpp"

#include "base/textWriter.hpp"
#include "waves/elevationBound.hpp"
#include "waves/elevationChunks.hpp"
#include "waves/timeInstants.hpp"
#include "waves/waveModel.hpp"

#include <algorithm>
#include <cmath>
#include <ostream>

namespace sorvik {
namespace {

/// What is asked for.
struct elevationRequest {
    waveModel& model;
    const std::vector<double>& x;
    const std::vector<double>& y;
    const timeInstants& instants;
};

/// What the model answers, which is nan at a probe once it has been: the numbers of the instant
/// before are there when it is asked.
void computeDirect(const elevationRequest& asked, double* values) {
    std::vector<double> row(asked.x.size(), 0.0);
    for (std::int64_t i = 0; i < asked.instants.count(); ++i) {
        asked.model.setTime(asked.instants[i]);
        asked.model.eta(static_cast<int>(row.size()), asked.x.data(), asked.y.data(), row.data());
        values = std::copy(row.begin(), row.end(), values);
    }
}

/// Computes an instant from `sums`, which lie within `bound` of those of the model before the ramp.
/// Where the text is in doubt, the model is asked; `texts` goes nowhere and finds out.
void computeRow(const elevationRequest& asked, double t, const double* sums, double bound,
                textWriter& texts, double* values) {
    const double ramp = asked.model.rampFactorAt(t);
    const std::size_t count = asked.x.size();
    std::transform(sums, sums + count, values, [ramp](double sum) { return ramp * sum; });
    std::size_t j = 0;
    while ((j += texts.writeColumns(sums + j, count - j, ramp, ramp * bound)) < count) {
        // At rest, zeros carry the sign of the sum.
        if (ramp != 0.0 || !(std::fabs(sums[j]) > bound)) {
            values[j] = 0.0;
            asked.model.setTime(t);
            asked.model.eta(1, &asked.x[j], &asked.y[j], &values[j]);
        }
        ++j;
    }
}

void computeChunks(const elevationRequest& asked, const std::vector<planeWave>& waves, double bound,
                   double* values) {
    std::ostream nowhere(nullptr);
    textWriter texts(nowhere);
    elevationChunks chunks(waves, asked.x, asked.y, asked.instants);
    const std::int64_t count = asked.instants.count();
    for (std::int64_t first = 0; first < count; first += chunks.length()) {
        chunks.compute(first);
        const std::int64_t rows = std::min(chunks.length(), count - first);
        for (std::int64_t row = 0; row < rows; ++row) {
            computeRow(asked, asked.instants[first + row], chunks.row(row), bound, texts, values);
            values += asked.x.size();
        }
    }
}

} // namespace

void computeElevations(waveModel& model, const std::vector<double>& x, const std::vector<double>& y,
                       const timeInstants& instants, double* values) {
    if (instants.count() < 1) {
        return;
    }
    const elevationRequest asked = {model, x, y, instants};
    if (model.isSumOfTrains()) {
        const std::vector<planeWave> waves = planeWavesOf(model);
        const double bound = elevationBound(waves, x, y, instants);
        if (elevationChunks::suit(waves, x.size(), bound)) {
            computeChunks(asked, waves, bound, values);
            return;
        }
    }
    computeDirect(asked, values);
}

} // namespace sorvik
