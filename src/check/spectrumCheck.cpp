#include "check/spectrumCheck.hpp"

#include "base/numberText.hpp"
#include "check/keyTable.hpp"
#include "io/reader.hpp"
#include "waves/Jonswap.hpp"
#include "waves/angles.hpp"

#include <algorithm>
#include <cmath>

namespace sorvik {

namespace {

/// `value` with `digits` significant digits.
double rounded(double value, int digits) {
    const double unit = std::pow(10.0, std::floor(std::log10(value)) - (digits - 1));
    return std::round(value / unit) * unit;
}

/// Significant digits of a number in the input, at most six.
int digitsOf(double value) {
    int digits = 1;
    while (digits < 6 && std::fabs(rounded(value, digits) / value - 1) > 1e-9) {
        ++digits;
    }
    return digits;
}

/// Where `given`, in many digits, seems to be computed for a round `result`, which is proportional
/// to it: that round number, else 0.
double roundAim(double given, double result) {
    const int digits = digitsOf(given);
    if (digits < 4) {
        return 0;
    }
    const double aim = rounded(result, std::min(digits - 2, 3));
    const double lastDigit = std::pow(10.0, std::floor(std::log10(given)) - (digits - 1));
    return std::fabs(result / aim - 1) <= 1.1 * lastDigit / given ? aim : 0;
}

/// Densities of a spectrum on a fine grid around its peak.
struct fineSpectrum {
    static constexpr double first = 0.1; ///< as shares of the peak frequency, like the next two
    static constexpr double last = 10;
    static constexpr double step = 5e-4;

    fineSpectrum(const Jonswap& sea, double peak) : scale(peak) {
        for (int i = 0; i <= std::lround((last - first) / step); ++i) {
            const double density = sea.setS(scale * (first + i * step));
            densities.push_back(std::isfinite(density) ? density : 0);
        }
        // Beyond the grid the density falls with the fifth power.
        tail = densities.back() * last * scale / 4;
    }

    /// The energy between two frequencies, apart from the tail.
    double energy(double from, double to) const {
        double sum = 0;
        for (std::size_t i = 0; i < densities.size(); ++i) {
            const double at = scale * (first + static_cast<double>(i) * step);
            sum += at >= from && at < to ? densities[i] : 0;
        }
        return sum * step * scale;
    }

    /// Between the frequencies around the peak where the density is half of the peak's.
    double peakWidth() const {
        const auto top = std::max_element(densities.begin(), densities.end());
        const auto isLow = [&](double density) { return density < *top / 2; };
        const auto upper = std::find_if(top, densities.end(), isLow);
        const auto lower = std::find_if(std::make_reverse_iterator(top), densities.rend(), isLow);
        return static_cast<double>(upper - lower.base()) * step * scale;
    }

    double scale;
    double tail;
    std::vector<double> densities;
};

} // namespace

spectrumCheck::spectrumCheck(const reader& config, const Jonswap& sea, const seaFacts& facts,
                             double duration)
    : facts_(facts), duration_(duration) {
    const auto number = [&](const char* name, double fallback) {
        return config.inputs.read<double>(waveGroup + name, fallback);
    };
    radiansPerUnit_ = config.inputs.read<int>(waveGroup + "useRadians", 0) != 0 ? 1 : 2 * pi;
    fp_ = number("fp", 0.1);
    f0_ = number("f0", 0.01);
    f1_ = number("f1", 10.0);
    count_ = sea.trains().front().componentCount();
    given_ = number("Hs", -1);
    alpha_ = number("alpha", 0.0081);
    spectral_ = sea.significantWaveHeight();
    integrate(sea);
    takeHeights();
}

void spectrumCheck::integrate(const Jonswap& sea) {
    const double first = f0_ * radiansPerUnit_;
    const double last = f1_ * radiansPerUnit_;
    const fineSpectrum fine(sea, fp_ * radiansPerUnit_);
    const double end = fine.scale * (fineSpectrum::last + fineSpectrum::step / 2);
    const double whole = fine.energy(0, end) + fine.tail;
    const double beyond = last < end ? fine.tail : fine.tail * std::pow(end / last, 4.0);
    below_ = fine.energy(0, first) / whole;
    above_ = (fine.energy(last, end) + beyond) / whole;
    peakWidth_ = fine.peakWidth() / radiansPerUnit_;
    whole_ = given_ > 0 ? given_ : 4 * std::sqrt(whole);
}

void spectrumCheck::takeHeights() {
    // The variance of the components is the sum of the densities, without the spacing of the
    // frequencies. Those who know give Hs times its root, or alpha times it.
    const double factor = spacing() * radiansPerUnit_;
    if (given_ > 0) {
        const double aim = roundAim(given_, given_ / std::sqrt(factor));
        wanted_ = aim > 0 ? aim : given_;
    } else {
        // The alpha of seas is about 0.01, and that times the spacing far below.
        constexpr double leastAlpha = 5e-4;
        const bool isConverted = alpha_ < leastAlpha && alpha_ * 2 * pi / factor > leastAlpha;
        wanted_ = whole_ / std::sqrt(isConverted ? factor : 2 * pi);
    }
    constexpr double tolerance = 0.02;
    hasWantedHeight_ = std::fabs(facts_.height / wanted_ - 1) < tolerance;
}

void spectrumCheck::addFacts(report& result) const {
    if (given_ > 0) {
        result.addFact("Hs.given", "Hs in the input", given_, "m");
    }
    result.addFact("Hs.spectrum", "", spectral_, "m");
    result.addFact("Hs.wanted", "Height aimed at", wanted_, "m");
    result.addFact("Tp.given", "Tp in the input", 2 * pi / (fp_ * radiansPerUnit_), "s");
    result.addFact("energyBelowGrid", "", below_);
    result.addFact("energyAboveGrid", "", above_);
    result.addFact("componentsInPeak", "", componentsInPeak());
}

std::string spectrumCheck::levelText(double factor) const {
    return given_ > 0 ? "Hs = " + numberText(given_ * factor)
                      : "alpha = " + numberText(alpha_ * factor * factor);
}

bool spectrumCheck::isPeakResolved() const {
    constexpr double fewest = 3;
    return componentsInPeak() >= fewest;
}

bool spectrumCheck::hasAllEnergy() const {
    constexpr double mostLost = 0.02;
    return below_ + above_ <= mostLost;
}

std::string spectrumCheck::proposal() const {
    constexpr double leastPeaks = 60; // in the repeat period
    const double hertz = radiansPerUnit_ / (2 * pi);
    const double period = std::ceil(std::max(duration_, leastPeaks / (fp_ * hertz)));
    const double first = leadingNumber(numberText(fp_ / 2).c_str());
    const double last = leadingNumber(numberText(fp_ * 5).c_str());
    const double steps = std::round((last - first) * hertz * period);
    return "Give f0 = " + numberText(first) + ", f1 = " + numberText(last) +
           ", components = " + std::to_string(std::llround(steps) + 1) + " and " +
           levelText(wanted_ / whole_ * std::sqrt((last - first) / steps * radiansPerUnit_)) +
           " for a sea of " + numberText(rounded(wanted_, 4)) +
           " m that does not repeat itself within " + numberText(period) + " s.";
}

void spectrumCheck::addFindings(report& result) const {
    addGridFindings(result);
    addHeightFinding(result);
}

void spectrumCheck::addGridFindings(report& result) const {
    const std::string unit = radiansPerUnit_ == 1 ? " rad/s" : " Hz";
    if (!isPeakResolved()) {
        const double strongest = 2 * pi / (facts_.peakPeriod * radiansPerUnit_);
        finding& peak = result.add("unresolved-peak",
                                   "The frequencies are " + numberText(spacing()) + unit +
                                       " apart, and the peak at fp = " + numberText(fp_) + unit +
                                       " is " + numberText(rounded(peakWidth_, 2)) + unit +
                                       " wide at half its height: the strongest component has " +
                                       numberText(strongest) + unit + ".");
        peak.cure = proposal();
        peak.level = componentsInPeak() < 1 ? severity::error : severity::warning;
    }
    if (!hasAllEnergy()) {
        finding& cut = result.add(
            "cut-off-energy", percentText(below_, 1) +
                                  " of the spectrum's energy lies below f0 = " + numberText(f0_) +
                                  unit + ", " + percentText(above_, 1) +
                                  " above f1 = " + numberText(f1_) + unit + ".");
        cut.cure = proposal();
        cut.level = fp_ > f0_ && fp_ < f1_ ? severity::warning : severity::error;
    }
}

void spectrumCheck::addHeightFinding(report& result) const {
    if (hasWantedHeight_) {
        return;
    }
    const std::string height = numberText(rounded(facts_.height, 4)) + " m";
    const std::string aim = numberText(rounded(wanted_, 4)) + " m";
    const std::string source =
        given_ > 0 ? "as Hs says" : "as the usual spectrum with alpha = " + numberText(alpha_);
    finding& found =
        result.add("height-differs", "The table will have a significant height of " + height +
                                         ", not of " + aim + " " + source + ".");
    found.cure = isPeakResolved() && hasAllEnergy() && !facts_.hasFewComponents()
                     ? "Give " + levelText(wanted_ / facts_.height) + " for a table of " + aim +
                           "; keep the value if you want " + height + "."
                     : proposal();
}

} // namespace sorvik
