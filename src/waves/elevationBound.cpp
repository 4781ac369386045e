#include "waves/elevationBound.hpp"

#include "waves/elevationChunks.hpp"
#include "waves/timeInstants.hpp"

#include <cmath>

namespace sorvik {

namespace {

/// The terms of the bound, in units of the last place: those of `eta` and those of the chunks.
constexpr double perPlace = 1;
constexpr double perTime = 1 + 10;
constexpr double perPhase = 1 + 2;
constexpr double perComponent = 4 + 34;
constexpr double perSum = 3;
constexpr double twiceUnit = 0x1p-52;

/// The largest |t| [s] of the instants, |start| + |i step| for evenly spaced ones, with what the
/// last chunk has beyond them. Not finite if an instant is not.
double latest(const timeInstants& instants) {
    if (instants.isEven()) {
        const double reach = elevationChunks::longest * std::fabs(instants.step());
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
    const double distance = farthest(x, y);
    const double time = latest(instants);
    const double constant = perComponent + perSum * static_cast<double>(waves.size());
    double sum = 0;
    for (const planeWave& wave : waves) {
        sum += std::fabs(wave.amplitude) * (perPlace * std::fabs(wave.waveNumber) * distance +
                                            perTime * std::fabs(wave.omega) * time +
                                            perPhase * std::fabs(wave.phase) + constant);
    }
    return twiceUnit * sum;
}

} // namespace sorvik
