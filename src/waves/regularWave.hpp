#pragma once

#include "waves/waveModel.hpp"

/// One Airy wave, of given amplitude, phase and direction, and of given period, frequency, length
/// or wave number.
class regularWave : public waveModel {
public:
    /// Still water, amplitude 0.
    regularWave() { declareSumOfTrains<regularWave>(); }
    /// Reads the wave and prints its parameters. One of period, frequency, length and wave number
    /// must be given; that none is, or that it is zero or not finite, is fatal. An amplitude of 0
    /// prints a warning.
    explicit regularWave(const reader& config);

    using waveModel::print;
    /// Writes direction, component count and the wave in a few lines.
    virtual void print(std::ostream& out) const;

private:
    void fillTrain(const reader& config, waveTrain& train, double phase) const;

    double amplitude_ = 0.0; ///< m
};
