#include "waves/Jonswap.hpp"

#include "base/memory.hpp"
#include "io/reader.hpp"
#include "numerics/matrixOp.hpp"
#include "waves/angles.hpp"
#include "waves/globals.hpp"
#include "waves/inputCheck.hpp"

#include <algorithm>
#include <cmath>
#include <iostream>

namespace {

/// Whether the amplitudes of these densities are finite.
bool areFinite(const std::vector<double>& densities) {
    return std::all_of(densities.begin(), densities.end(),
                       [](double density) { return std::isfinite(2 * density); });
}

} // namespace

Jonswap::Jonswap(const reader& config) : waveModel(config) {
    declareSumOfTrains<Jonswap>();
    const inputMap& inputs = config.inputs;
    hs_ = inputs.read<double>(prefix + "Hs", hs_);
    gamma_ = inputs.read<double>(prefix + "gamma", gamma_);
    sigma1_ = inputs.read<double>(prefix + "sigma1", sigma1_);
    sigma2_ = inputs.read<double>(prefix + "sigma2", sigma2_);
    alpha_ = inputs.read<double>(prefix + "alpha", alpha_);
    seed_ = inputs.read<int>(prefix + "seed", seed_);
    const bool useRadians = inputs.read<int>(prefix + "useRadians", 0) != 0;
    const double frequencyFactor = useRadians ? 1.0 : 2 * sorvik::pi;
    const double angleFactor = useRadians ? 1.0 : sorvik::radiansPerDegree;

    const auto fp = inputs.read<double>(prefix + "fp", 0.1);
    if (!(fp > 0.0)) {
        sorvik::refuseInput(config, prefix + "fp", fp, "a peak frequency above zero");
    }
    omegaP_ = fp * frequencyFactor;
    const frequencyGrid grid = readGrid(config, frequencyFactor);
    const auto direction = inputs.read<double>(prefix + "direction", 0.0);
    fillSpectrum(config, grid);
    waveTrain& train = addTrain(direction * angleFactor);
    fillTrain(grid, train);
    if (sorvik::firstInfinite(train) >= 0) {
        sorvik::refuseInput(config, prefix + "f1", grid[grid.count - 1] / frequencyFactor,
                            "a frequency whose wave number is finite");
    }
    finishTrains();
}

Jonswap::frequencyGrid Jonswap::readGrid(const reader& config, double frequencyFactor) const {
    const inputMap& inputs = config.inputs;
    const int n = inputs.read<int>(prefix + "components", 100);
    if (n < 2) {
        sorvik::refuseInput(config, prefix + "components", n, "at least 2");
    }
    // The component, its density, frequency, amplitude and phase.
    if (!sorvik::memory::canHold(static_cast<std::size_t>(n),
                                 sizeof(waveComponent2D) + 4 * sizeof(double))) {
        sorvik::refuseInput(config, prefix + "components", n, "a number that fits into memory");
    }
    const auto f0 = inputs.read<double>(prefix + "f0", 0.01);
    if (!(f0 > 0.0)) {
        sorvik::refuseInput(config, prefix + "f0", f0, "a frequency above zero");
    }
    const auto f1 = inputs.read<double>(prefix + "f1", 10.0);
    if (!(f1 > f0)) {
        sorvik::refuseInput(config, prefix + "f1", f1, "a frequency above " + prefix + "f0");
    }
    const double first = f0 * frequencyFactor;
    const double last = f1 * frequencyFactor;
    if (!std::isfinite(last)) {
        sorvik::refuseInput(config, prefix + "f1", f1, "a frequency that is finite in rad/s");
    }
    return {first, (last - first) / (n - 1), n};
}

double Jonswap::setS(const double& omega) const {
    const double g = globals::verticalGravity();
    const double sigma = omegaP_ >= omega ? sigma1_ : sigma2_;
    const double offPeak = omega / omegaP_ - 1;
    const double r = std::exp(-(offPeak * offPeak) / (2 * sigma * sigma));
    return 2 * sorvik::pi * alpha_ * (g * g) * std::pow(omega, -5.0) *
           std::exp(-1.25 * std::pow(omegaP_ / omega, 4.0)) * std::pow(gamma_, r);
}

void Jonswap::fillSpectrum(const reader& config, const frequencyGrid& grid) {
    spectrum_.reserve(static_cast<std::size_t>(grid.count));
    for (int i = 0; i < grid.count; ++i) {
        spectrum_.push_back(setS(grid[i]));
    }
    const double m0 = matrixOp::trapz(grid.count, grid.step, spectrum_.data());
    const bool isHeightGiven = hs_ > 0.0;
    const bool isUsable = isHeightGiven ? m0 > 0.0 : m0 >= 0.0 && areFinite(spectrum_);
    if (!isUsable || !std::isfinite(m0)) {
        sorvik::refuseInput("The variance of the JONSWAP spectrum", m0,
                            "a finite one above zero [m2]: check " + prefix +
                                "fp, f0, f1, gamma, sigma1, sigma2 and alpha");
    }
    const double H = 4 * std::sqrt(m0);
    if (!isHeightGiven) {
        hs_ = H;
        return;
    }
    const double q = (hs_ / H) * (hs_ / H);
    matrixOp::scale(grid.count, q, spectrum_.data());
    alpha_ *= q;
    if (!areFinite(spectrum_)) {
        sorvik::refuseInput(config, prefix + "Hs", hs_, "a height whose components are finite");
    }
}

void Jonswap::fillTrain(const frequencyGrid& grid, waveTrain& train) {
    std::vector<double> amplitudes;
    std::vector<double> frequencies;
    amplitudes.reserve(spectrum_.size());
    frequencies.reserve(spectrum_.size());
    for (int i = 0; i < grid.count; ++i) {
        // The density alone gives the amplitude, whatever the step of the grid.
        amplitudes.push_back(std::sqrt(2 * spectrum_[static_cast<std::size_t>(i)]));
        frequencies.push_back(grid[i]);
    }
    std::vector<double> phases(spectrum_.size());
    seed_ = uniformPhaseDistribution(seed_, grid.count, phases.data());
    std::cout << "Using " << grid.count
              << " uniformly disributed random phases generated by Standard "
                 "mersenne_twister_engine\n\tReproduce with seed no: "
              << seed_ << std::endl;
    train.setFrom_w(grid.count, amplitudes.data(), frequencies.data(), phases.data());
}

// uncovered: no task calls it
void Jonswap::print(std::ostream& out) const {
    printFirstTrain(out, "JONSWAP spectrum wave components:");
}
