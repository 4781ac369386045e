#pragma once

#include "check/finding.hpp"
#include "check/seaFacts.hpp"

#include <string>

class Jonswap;
class reader;

namespace sorvik {

/// The JONSWAP spectrum of an input file against the components that sample it.
class spectrumCheck {
public:
    /// `duration` [s] is that of the run at full height. The references must outlive the object.
    spectrumCheck(const reader& config, const Jonswap& sea, const seaFacts& facts, double duration);

    /// Adds what is known of the spectrum.
    void addFacts(report& result) const;
    /// Adds the findings on its sampling and its height.
    void addFindings(report& result) const;
    /// What to give for a sea of the wanted height that is sampled well and lasts for the run: the
    /// keys f0, f1, components and Hs or alpha, as a sentence.
    std::string proposal() const;

private:
    void integrate(const Jonswap& sea);
    void takeHeights();
    void addGridFindings(report& result) const;
    void addHeightFinding(report& result) const;
    double spacing() const { return (f1_ - f0_) / (count_ - 1); }
    double componentsInPeak() const { return peakWidth_ / spacing(); }
    bool isPeakResolved() const;
    bool hasAllEnergy() const;
    /// The key that gives a height, and the value for one that is `factor` times the present one.
    std::string levelText(double factor) const;

    const seaFacts& facts_;
    double duration_;
    double radiansPerUnit_; ///< of the frequencies in the input file: 2 pi for Hz, 1 for rad/s
    double fp_;             ///< in that unit, as the next two
    double f0_;
    double f1_;
    int count_;
    double given_;                 ///< Hs of the input; not above zero if alpha counts
    double alpha_;                 ///< of the input
    double spectral_ = 0;          ///< height of the spectrum on the frequencies [m]
    double whole_ = 0;             ///< height of the whole spectrum [m]
    double wanted_ = 0;            ///< height that the input seems to aim at [m]
    bool hasWantedHeight_ = false; ///< whether the components have it
    double below_ = 0;             ///< share of the energy below f0
    double above_ = 0;             ///< share of the energy above f1
    double peakWidth_ = 0;         ///< between the points of half the peak's density, as f0
};

} // namespace sorvik
