#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace sorvik {

/// A block of a wave file (see `customWave`): the components of one direction, in its units.
struct waveBlock {
    double direction = 0.0;
    std::vector<double> amplitudes;
    std::vector<double> frequencies;
    std::vector<double> phases;
};

/// Reads the next block of the wave file `name`. Returns false where no number follows, as at the
/// end of the file. A block that is cut off is fatal. Commas, brackets and the other characters
/// that the input language turns into blanks are blanks here too.
bool readWaveBlock(std::istream& in, const std::string& name, waveBlock& block);

} // namespace sorvik
