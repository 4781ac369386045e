#pragma once

#include "waves/waveModel.hpp"

#include <string>
#include <vector>

/// A sea whose components the user lists, for one direction in the input file or for any number of
/// directions in a file of their own:
///
///     0              direction of the first block [degrees]
///     1.0  0.5       amplitudes [m]
///     0.1  0.2       frequencies [Hz]
///     0    90        phases [degrees]
///     45             direction of the next block
///     ...
///
/// Commas and brackets are blanks in both.
class customWave : public waveModel {
public:
    /// Still water.
    customWave() { declareSumOfTrains<customWave>(); }
    /// Reads the components; a list or a file that is missing is fatal.
    explicit customWave(const reader& config);

    /// Appends one train. With `useRadians` the direction is in rad, the frequencies in rad/s and
    /// the phases in rad; otherwise in degrees, Hz and degrees, and both lists are converted in
    /// place. Lists of different lengths end the process with status -1.
    void addWaveTrain(double direction, const std::vector<double>& amplitudes,
                      std::vector<double>& frequencies, std::vector<double>& phases,
                      bool useRadians);

    using waveModel::print;
    /// Writes direction, component count and first component of the first train in a few lines.
    virtual void print(std::ostream& out) const;

private:
    void readFile(const std::string& name, bool useRadians);
};
