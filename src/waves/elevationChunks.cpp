#include "waves/elevationChunks.hpp"

#include "waves/elevationKernel.hpp"
#include "waves/timeInstants.hpp"

#include <algorithm>
#include <cmath>

namespace sorvik {

using elevationKernel::tileSize;
using elevationKernel::width;

namespace {

/// Beyond these the arrays of one strip of instants would take more than 128 MB.
constexpr std::size_t mostProbes = std::size_t(1) << 20;
constexpr std::size_t mostWaves = std::size_t(1) << 18;
/// Share of the summed amplitudes up to which a bound leaves only a few of a hundred values in
/// doubt.
constexpr double usefulShare = 1e-8;

/// Chunks of a few strips of instants stay in the cache with their elevations. Where the probes'
/// phasors are computed anew for each chunk, it is longer.
constexpr std::size_t cachedBytes = std::size_t(2) << 20;
constexpr std::size_t cachedStrips = 8;
constexpr std::size_t largestBytes = std::size_t(32) << 20;
constexpr std::size_t mostStrips = 16;
static_assert(elevationChunks::longest == 2 * width * mostStrips);

std::size_t rowsPerStrip(const timeInstants& instants) {
    return instants.isEven() ? 2 * width : width;
}

std::size_t stripsPerChunk(std::size_t waves, const probePhasors& probes,
                           const timeInstants& instants) {
    const std::size_t rowBytes = probes.groupCount() * width * sizeof(double);
    const std::size_t budget = probes.areKept() ? cachedBytes : largestBytes;
    const std::size_t byValues = budget / (rowBytes * rowsPerStrip(instants));
    const std::size_t byTimes = largestBytes / (2 * waves * width * sizeof(double));
    const std::size_t most = probes.areKept() ? cachedStrips : mostStrips;
    return std::max(std::size_t(1), std::min({byValues, byTimes, most}));
}

} // namespace

bool elevationChunks::suit(const std::vector<planeWave>& waves, std::size_t probes, double bound) {
    if (waves.empty() || waves.size() > mostWaves || probes == 0 || probes > mostProbes) {
        return false;
    }
    double amplitudes = 0;
    for (const planeWave& wave : waves) {
        amplitudes += std::fabs(wave.amplitude);
    }
    return std::isfinite(bound) && bound <= usefulShare * amplitudes;
}

elevationChunks::elevationChunks(const std::vector<planeWave>& waves, const std::vector<double>& x,
                                 const std::vector<double>& y, const timeInstants& instants,
                                 std::size_t largestTable)
    : waves_(waves), instants_(instants), probes_(waves_, x, y, largestTable),
      times_(waves_.size(), stripsPerChunk(waves_.size(), probes_, instants_)),
      rows_(times_.strips * rowsPerStrip(instants_)), stride_(probes_.groupCount() * width),
      turned_(2 * waves_.size() * width), cosineTiles_(times_.strips * tileSize),
      sineTiles_(times_.strips * tileSize), values_(rows_ * stride_) {
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
    const std::size_t stripSize = waves_.size() * width;
    for (std::size_t g = 0; g < probes_.groupCount(); ++g) {
        const double* real = probes_.group(g);
        if (instants_.isEven()) {
            turn.apply(real, turned_.data());
            real = turned_.data();
        }
        const double* imaginary = real + stripSize;
        elevationKernel::multiply(waves_.size(), times_.strips, times_.cosines.data(), real,
                                  cosineTiles_.data());
        elevationKernel::multiply(waves_.size(), times_.strips, times_.sines.data(), imaginary,
                                  sineTiles_.data());
        place(g);
    }
}

/// Puts the elevations of a group of probes from the tiles into the rows of the chunk.
void elevationChunks::place(std::size_t group) {
    const std::size_t count = times_.strips * width;
    const std::size_t middle = instants_.isEven() ? count : 0;
    for (std::size_t i = 0; i < count; ++i) {
        const double* even = cosineTiles_.data() + i * width;
        const double* odd = sineTiles_.data() + i * width;
        double* after = values_.data() + (middle + i) * stride_ + group * width;
        for (std::size_t j = 0; j < width; ++j) {
            after[j] = even[j] + odd[j];
        }
        if (instants_.isEven()) {
            double* before = values_.data() + (middle - 1 - i) * stride_ + group * width;
            for (std::size_t j = 0; j < width; ++j) {
                before[j] = even[j] - odd[j];
            }
        }
    }
}

} // namespace sorvik
