#include "waves/wavePhasors.hpp"

#include "waves/elevationKernel.hpp"
#include "waves/timeInstants.hpp"
#include "waves/waveModel.hpp"

#include <algorithm>
#include <cmath>

namespace sorvik {

using elevationKernel::width;

std::vector<planeWave> planeWavesOf(const waveModel& model) {
    std::vector<planeWave> waves;
    for (const waveTrain& train : model.trains()) {
        for (const waveComponent2D& component : train.components()) {
            waves.push_back({component.amplitude(), component.waveNumber(),
                             component.angularFrequency(), component.phase(),
                             train.directionCosine(), train.directionSine()});
        }
    }
    return waves;
}

probePhasors::probePhasors(const std::vector<planeWave>& waves, const std::vector<double>& x,
                           const std::vector<double>& y, std::size_t largestTable)
    : waves_(waves), x_(x), y_(y), groups_((x_.size() + width - 1) / width),
      groupSize_(2 * waves_.size() * width),
      kept_(groups_ <= largestTable / sizeof(double) / groupSize_) {
    table_.resize(kept_ ? groups_ * groupSize_ : groupSize_);
    for (std::size_t g = 0; kept_ && g < groups_; ++g) {
        fill(g, table_.data() + g * groupSize_);
    }
}

const double* probePhasors::group(std::size_t index) {
    if (kept_) {
        return table_.data() + index * groupSize_;
    }
    fill(index, table_.data());
    return table_.data();
}

void probePhasors::fill(std::size_t index, double* group) const {
    double* real = group;
    double* imaginary = group + groupSize_ / 2;
    for (const planeWave& wave : waves_) {
        for (std::size_t j = 0; j < width; ++j) {
            const std::size_t probe = std::min(index * width + j, x_.size() - 1);
            const double s = x_[probe] * wave.directionCosine + y_[probe] * wave.directionSine;
            const double angle = wave.waveNumber * s;
            *real++ = wave.amplitude * std::cos(angle);
            *imaginary++ = wave.amplitude * std::sin(angle);
        }
    }
}

timePhasors::timePhasors(std::size_t waves, std::size_t stripCount)
    : strips(stripCount), cosines(waves * strips * width), sines(cosines.size()) {}

template <class Angle>
void timePhasors::fill(std::size_t waves, const Angle& angleOf) {
    std::size_t next = 0;
    for (std::size_t strip = 0; strip < strips; ++strip) {
        for (std::size_t c = 0; c < waves; ++c) {
            for (std::size_t i = 0; i < width; ++i) {
                const double theta = angleOf(c, strip * width + i);
                cosines[next] = std::cos(theta);
                sines[next] = std::sin(theta);
                ++next;
            }
        }
    }
}

void timePhasors::setInstants(const std::vector<planeWave>& waves, const timeInstants& instants,
                              std::int64_t first, std::int64_t count) {
    fill(waves.size(), [&](std::size_t c, std::size_t i) {
        const double t = instants[first + std::min(static_cast<std::int64_t>(i), count - 1)];
        return waves[c].omega * t - waves[c].phase;
    });
}

void timePhasors::setHalfSteps(const std::vector<planeWave>& waves, double step) {
    fill(waves.size(), [&](std::size_t c, std::size_t m) {
        return waves[c].omega * ((static_cast<double>(m) + 0.5) * step);
    });
}

phasorTurn::phasorTurn(const std::vector<planeWave>& waves, double t) {
    for (const planeWave& wave : waves) {
        const double angle = wave.omega * t - wave.phase;
        cosines_.push_back(std::cos(angle));
        sines_.push_back(std::sin(angle));
    }
}

void phasorTurn::apply(const double* group, double* turned) const {
    const std::size_t half = cosines_.size() * width;
    for (std::size_t c = 0; c < cosines_.size(); ++c) {
        for (std::size_t j = c * width; j < (c + 1) * width; ++j) {
            turned[j] = group[j] * cosines_[c] + group[half + j] * sines_[c];
            turned[half + j] = group[half + j] * cosines_[c] - group[j] * sines_[c];
        }
    }
}

} // namespace sorvik
