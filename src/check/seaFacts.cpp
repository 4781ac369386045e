#include "check/seaFacts.hpp"

#include "waves/angles.hpp"
#include "waves/waveModel.hpp"

#include <algorithm>
#include <cmath>
#include <complex>

namespace sorvik {

namespace {

void addPeriods(seaFacts& facts, const std::vector<seaComponent>& waves) {
    double inverse = 0;
    double m0 = 0;
    double m1 = 0;
    double m2 = 0;
    for (const seaComponent& wave : waves) {
        const double energy = wave.energy();
        inverse += energy / wave.frequency;
        m0 += energy;
        m1 += energy * wave.frequency;
        m2 += energy * wave.frequency * wave.frequency;
    }
    facts.height = 4 * std::sqrt(m0);
    facts.T01 = m0 / m1;
    facts.T02 = std::sqrt(m0 / m2);
    facts.Te = inverse / m0;
}

void addShares(seaFacts& facts, const std::vector<seaComponent>& waves) {
    std::vector<double> energies;
    energies.reserve(waves.size());
    double sum = 0;
    double squares = 0;
    for (const seaComponent& wave : waves) {
        energies.push_back(wave.energy());
        sum += wave.energy();
        squares += wave.energy() * wave.energy();
        facts.largestCrest += std::fabs(wave.amplitude);
    }
    facts.kurtosis = 3 - 1.5 * squares / (sum * sum);
    std::sort(energies.begin(), energies.end(), std::greater<>());
    constexpr double most = 0.9;
    for (double held = 0; held < most * sum && facts.componentsOf90Percent < energies.size();) {
        held += energies[facts.componentsOf90Percent++];
    }
}

/// J. Kuik, G. van Vledder, L. Holthuijsen, A method for the routine analysis of pitch-and-roll
/// buoy wave data, J. Phys. Oceanogr. 18, 1988.
void addDirections(seaFacts& facts, const std::vector<seaComponent>& waves) {
    std::complex<double> sum = 0;
    double total = 0;
    for (const seaComponent& wave : waves) {
        sum += std::polar(wave.energy(), wave.direction * radiansPerDegree);
        total += wave.energy();
    }
    const double resultant = std::min(std::abs(sum) / total, 1.0);
    facts.direction = std::arg(sum) / radiansPerDegree;
    facts.spread = std::sqrt(2 - 2 * resultant) / radiansPerDegree;
}

/// `waves` lie in the order of their frequencies.
void addRanges(seaFacts& facts, const std::vector<seaComponent>& waves, double gravity) {
    const auto [least, greatest] =
        std::minmax_element(waves.begin(), waves.end(),
                            [](const auto& one, const auto& other) { return one.kh < other.kh; });
    facts.leastKh = least->kh;
    facts.greatestKh = greatest->kh;
    facts.longestPeriod = 1 / waves.front().frequency;
    facts.shortestPeriod = 1 / waves.back().frequency;
    const double beyond = facts.height * facts.height / 16 / 100;
    auto last = waves.rbegin();
    double energy = last->energy();
    while (energy < beyond) {
        energy += (++last)->energy();
    }
    facts.shortestUsualPeriod = 1 / last->frequency;

    const auto peak =
        std::max_element(waves.begin(), waves.end(), [](const auto& one, const auto& other) {
            return one.energy() < other.energy();
        });
    facts.peakPeriod = 1 / peak->frequency;
    facts.peakLength = peak->length;
    facts.peakKh = peak->kh;
    facts.steepness = waves.size() == 1
                          ? 2 * facts.largestCrest / peak->length
                          : 2 * pi * facts.height / (gravity * facts.peakPeriod * facts.peakPeriod);
}

/// The greatest number that both are multiples of, but for a remainder of `tolerance`: Euclid's
/// algorithm.
double commonDivisor(double one, double other, double tolerance) {
    while (other > tolerance) {
        const double remainder = std::fabs(one - std::round(one / other) * other);
        one = other;
        other = remainder;
    }
    return one;
}

/// The mean of exp(i 2 pi f t) over the energy: of what the elevation at t has in common with that
/// at 0. Its magnitude belongs to the groups.
std::complex<double> correlation(const std::vector<seaComponent>& waves, double t) {
    std::complex<double> sum = 0;
    double total = 0;
    for (const seaComponent& wave : waves) {
        sum += std::polar(wave.energy(), 2 * pi * std::fmod(wave.frequency * t, 1.0));
        total += wave.energy();
    }
    return sum / total;
}

/// `waves` lie in the order of their frequencies.
void addRepetition(seaFacts& facts, const std::vector<seaComponent>& waves) {
    constexpr double sameFrequency = 1e-9; // as a share
    constexpr double samePhase = 1e-3;     // turns
    constexpr double alike = 0.999;
    const double lowest = waves.front().frequency;
    double narrowest = lowest;
    std::vector<double> gaps;
    for (std::size_t i = 1; i < waves.size(); ++i) {
        const double gap = waves[i].frequency - waves[i - 1].frequency;
        if (gap > sameFrequency * waves[i].frequency) {
            gaps.push_back(gap);
            narrowest = std::min(narrowest, gap);
        }
    }
    if (gaps.empty()) {
        facts.repeatPeriod = 1 / lowest;
        return;
    }
    double spacing = gaps.front();
    for (const double gap : gaps) {
        spacing = commonDivisor(spacing, gap, samePhase * narrowest);
    }
    if (std::abs(correlation(waves, 1 / spacing)) > alike) {
        facts.groupPeriod = 1 / spacing;
    }
    const double whole = commonDivisor(lowest, spacing, samePhase * narrowest);
    if (correlation(waves, 1 / whole).real() > alike) {
        facts.repeatPeriod = 1 / whole;
    }
}

} // namespace

std::vector<seaComponent> componentsOf(const waveModel& sea) {
    std::vector<seaComponent> all;
    int number = 0;
    for (const waveTrain& train : sea.trains()) {
        ++number;
        for (const waveComponent2D& each : train.components()) {
            const double k = std::fabs(each.waveNumber());
            all.push_back({number, train.directionDegrees(), each.amplitude(),
                           std::fabs(each.angularFrequency()) / (2 * pi), 2 * pi / k,
                           each.phase() / radiansPerDegree, k * sea.depth()});
        }
    }
    return all;
}

seaFacts factsOf(const std::vector<seaComponent>& components, double gravity) {
    seaFacts facts;
    facts.components = components.size();
    // A component without energy or frequency is no wave.
    std::vector<seaComponent> waves;
    std::copy_if(components.begin(), components.end(), std::back_inserter(waves),
                 [](const seaComponent& each) { return each.energy() > 0 && each.frequency > 0; });
    if (waves.empty()) {
        return facts;
    }
    std::stable_sort(waves.begin(), waves.end(), [](const auto& one, const auto& other) {
        return one.frequency < other.frequency;
    });
    addPeriods(facts, waves);
    addShares(facts, waves);
    addDirections(facts, waves);
    addRanges(facts, waves, gravity);
    addRepetition(facts, waves);
    return facts;
}

} // namespace sorvik
