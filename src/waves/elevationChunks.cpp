#include "waves/elevationChunks.hpp"

#include "waves/elevationKernel.hpp"
#include "waves/timeInstants.hpp"

#include <algorithm>
#include <cmath>

namespace sorvik {

using elevationKernel::tileSize;
using elevationKernel::width;

namespace {

/// Beyond these the arrays of one panel of instants would take more than 128 MB.
constexpr std::size_t mostProbes = std::size_t(1) << 20;
constexpr std::size_t mostWaves = std::size_t(1) << 18;
/// Share of the summed amplitudes up to which a bound leaves only a few of a hundred values in
/// doubt.
constexpr double usefulShare = 1e-8;

/// Chunks of a few panels of instants stay in the cache with their elevations. Where the
/// probes' phasors are computed anew for each chunk, it is longer.
constexpr std::size_t cachedBytes = std::size_t(2) << 20;
constexpr std::size_t cachedPanels = 8;
constexpr std::size_t largestBytes = std::size_t(32) << 20;
constexpr std::size_t mostPanels = 16;

std::size_t rowsPerPanel(const timeInstants& instants) {
    return instants.isEven() ? 2 * width : width;
}

std::size_t panelsPerChunk(std::size_t waves, const probePhasors& probes,
                           const timeInstants& instants) {
    const std::size_t rowBytes = probes.panelCount() * width * sizeof(double);
    const std::size_t budget = probes.areKept() ? cachedBytes : largestBytes;
    const std::size_t byValues = budget / (rowBytes * rowsPerPanel(instants));
    const std::size_t byTimes = largestBytes / (2 * waves * width * sizeof(double));
    const std::size_t most = probes.areKept() ? cachedPanels : mostPanels;
    return std::max(std::size_t(1), std::min({byValues, byTimes, most}));
}

/// The largest |t| [s] of the instants, |start| + |i step| for evenly spaced ones, with what the
/// last chunk has beyond them. Not finite if an instant is not.
double latest(const timeInstants& instants) {
    if (instants.isEven()) {
        const double reach = 2.0 * width * mostPanels * std::fabs(instants.step());
        return std::fabs(instants.start()) +
               std::fabs(instants.step()) * static_cast<double>(instants.count()) + reach;
    }
    double most = 0;
    for (std::int64_t i = 0; i < instants.count(); ++i) {
        const double t = std::fabs(instants[i]);
        most = t <= most ? most : t;
        if (!std::isfinite(t)) {
            break;
        }
    }
    return most;
}

double farthest(const std::vector<double>& x, const std::vector<double>& y) {
    double most = 0;
    for (std::size_t i = 0; i < x.size() && std::isfinite(most); ++i) {
        const double distance = std::fabs(x[i]) + std::fabs(y[i]);
        most = distance <= most ? most : distance;
    }
    return most;
}

} // namespace

double elevationBound(const std::vector<planeWave>& waves, const std::vector<double>& x,
                      const std::vector<double>& y, const timeInstants& instants) {
    constexpr double twiceUnit = 0x1p-52;
    const double distance = farthest(x, y);
    const double time = latest(instants);
    const double constant = 38.0 + 3.0 * static_cast<double>(waves.size());
    double sum = 0;
    for (const planeWave& wave : waves) {
        sum += std::fabs(wave.amplitude) *
               (std::fabs(wave.waveNumber) * distance + 11.0 * std::fabs(wave.omega) * time +
                3.0 * std::fabs(wave.phase) + constant);
    }
    return twiceUnit * sum;
}

bool suitsElevationChunks(const std::vector<planeWave>& waves, const std::vector<double>& x,
                          const std::vector<double>& y, const timeInstants& instants) {
    if (waves.empty() || waves.size() > mostWaves || x.empty() || x.size() > mostProbes) {
        return false;
    }
    double amplitudes = 0;
    for (const planeWave& wave : waves) {
        amplitudes += std::fabs(wave.amplitude);
    }
    const double bound = elevationBound(waves, x, y, instants);
    return std::isfinite(bound) && bound <= usefulShare * amplitudes;
}

elevationChunks::elevationChunks(const std::vector<planeWave>& components,
                                 const std::vector<double>& x, const std::vector<double>& y,
                                 const timeInstants& timeAxis, std::size_t largestTable)
    : waves_(components), instants_(timeAxis), probes_(waves_, x, y, largestTable),
      times_(waves_.size(), panelsPerChunk(waves_.size(), probes_, instants_)),
      rows_(times_.panels * rowsPerPanel(instants_)), stride_(probes_.panelCount() * width),
      turned_(2 * waves_.size() * width), cosineTiles_(times_.panels * tileSize),
      sineTiles_(times_.panels * tileSize), values_(rows_ * stride_) {
    if (instants_.isEven()) {
        times_.setHalfSteps(waves_, instants_.step());
    }
}

void elevationChunks::compute(std::int64_t first) {
    double middle = 0;
    if (instants_.isEven()) {
        const double index = static_cast<double>(first) + static_cast<double>(rows_ - 1) / 2;
        middle = index * instants_.step() + instants_.start();
    } else {
        times_.setInstants(waves_, instants_, first, std::min(length(), instants_.count() - first));
    }
    const phasorTurn turn(waves_, middle);
    const std::size_t half = waves_.size() * width;
    for (std::size_t p = 0; p < probes_.panelCount(); ++p) {
        const double* panel = probes_.panel(p);
        if (instants_.isEven()) {
            turn.apply(panel, turned_.data());
            panel = turned_.data();
        }
        elevationKernel::multiply(waves_.size(), times_.panels, times_.cosines.data(), panel,
                                  cosineTiles_.data());
        elevationKernel::multiply(waves_.size(), times_.panels, times_.sines.data(), panel + half,
                                  sineTiles_.data());
        place(p);
    }
}

void elevationChunks::place(std::size_t probePanel) {
    const std::size_t count = times_.panels * width;
    const std::size_t middle = instants_.isEven() ? count : 0;
    for (std::size_t i = 0; i < count; ++i) {
        const double* even = cosineTiles_.data() + i * width;
        const double* odd = sineTiles_.data() + i * width;
        double* after = values_.data() + (middle + i) * stride_ + probePanel * width;
        for (std::size_t j = 0; j < width; ++j) {
            after[j] = even[j] + odd[j];
        }
        if (instants_.isEven()) {
            double* before = values_.data() + (middle - 1 - i) * stride_ + probePanel * width;
            for (std::size_t j = 0; j < width; ++j) {
                before[j] = even[j] - odd[j];
            }
        }
    }
}

} // namespace sorvik
