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

probePhasors::probePhasors(const std::vector<planeWave>& components, const std::vector<double>& xs,
                           const std::vector<double>& ys, std::size_t largestTable)
    : waves_(components), x_(xs), y_(ys), panels_((x_.size() + width - 1) / width),
      panelSize_(2 * waves_.size() * width),
      kept_(panels_ <= largestTable / sizeof(double) / panelSize_) {
    table_.resize(kept_ ? panels_ * panelSize_ : panelSize_);
    for (std::size_t p = 0; kept_ && p < panels_; ++p) {
        fill(p, table_.data() + p * panelSize_);
    }
}

const double* probePhasors::panel(std::size_t index) {
    if (kept_) {
        return table_.data() + index * panelSize_;
    }
    fill(index, table_.data());
    return table_.data();
}

void probePhasors::fill(std::size_t index, double* panel) const {
    double* real = panel;
    double* imaginary = panel + panelSize_ / 2;
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

timePhasors::timePhasors(std::size_t waves, std::size_t panelCount)
    : panels(panelCount), cosines(waves * panels * width), sines(cosines.size()) {}

template <typename angle>
void timePhasors::fill(std::size_t waves, const angle& angleOf) {
    std::size_t next = 0;
    for (std::size_t p = 0; p < panels; ++p) {
        for (std::size_t c = 0; c < waves; ++c) {
            for (std::size_t i = 0; i < width; ++i) {
                const double theta = angleOf(c, p * width + i);
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

void phasorTurn::apply(const double* panel, double* turned) const {
    const std::size_t half = cosines_.size() * width;
    for (std::size_t c = 0; c < cosines_.size(); ++c) {
        for (std::size_t j = c * width; j < (c + 1) * width; ++j) {
            turned[j] = panel[j] * cosines_[c] + panel[half + j] * sines_[c];
            turned[half + j] = panel[half + j] * cosines_[c] - panel[j] * sines_[c];
        }
    }
}

} // namespace sorvik
