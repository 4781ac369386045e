#pragma once

#include "waves/waveModel.hpp"

#include <vector>

/// An irregular, long-crested sea: a JONSWAP spectrum on equally spaced frequencies, with random
/// phases that a seed reproduces.
class Jonswap : public waveModel {
public:
    /// Still water, no spectrum.
    Jonswap() { declareSumOfTrains<Jonswap>(); }
    /// Reads the spectrum, scales it to the significant wave height where that is above zero, and
    /// prints the seed. A grid of frequencies that cannot be used, or a component that is not
    /// finite, is fatal.
    explicit Jonswap(const reader& config);

    /// The spectral density [m² s] at `omega` [rad/s], above zero: 2 pi times the JONSWAP form
    /// alpha g² omega^-5 exp(-5/4 (omegaP/omega)^4) gamma^r. The factor cancels out of spectra that
    /// are scaled to a wave height.
    double setS(const double& omega) const;

    using waveModel::print;
    /// Writes direction, component count and the first component in a few lines.
    virtual void print(std::ostream& out) const;

    /// The significant wave height [m]: as given, or that of the spectrum.
    double significantWaveHeight() const { return hs_; }
    /// The seed that reproduces the phases.
    int usedSeed() const { return seed_; }
    /// The spectral density [m² s] at each frequency, after scaling.
    const std::vector<double>& spectralDensity() const { return spectrum_; }

private:
    struct frequencyGrid {
        double first; ///< rad/s
        double step;  ///< rad/s
        int count;
        double operator[](int i) const { return first + i * step; }
    };

    frequencyGrid readGrid(const reader& config, double frequencyFactor) const;
    void fillSpectrum(const reader& config, const frequencyGrid& grid);
    void fillTrain(const frequencyGrid& grid, waveTrain& train);

    double hs_ = -1.0;
    double omegaP_ = 0.0;
    double gamma_ = 1.0;
    double sigma1_ = 0.07; ///< spectral width up to the peak
    double sigma2_ = 0.09; ///< spectral width above the peak
    double alpha_ = 0.0081;
    int seed_ = -1;
    std::vector<double> spectrum_;
};
