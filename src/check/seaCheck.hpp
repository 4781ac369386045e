#pragma once

#include "check/finding.hpp"

#include <string>

namespace sorvik {

/// What `checkSea` is to do beyond the facts.
struct seaOptions {
    std::string components; ///< file to write the components to, or ""
    std::string table;      ///< table of elevations to compare with the components, or ""
};

/// Checks the sea of an input file as the wave elevation task makes it: what its components add up
/// to, how well they sample the spectrum, and whether instants and duration suit them.
///
/// Names of files in the input are relative to the folder of the process, as in the task. The file
/// of components begins with a line of names and units; a line per component holds train, direction
/// [degrees], amplitude [m], frequency [Hz], period [s], length [m] and phase [degrees], separated
/// by tabs. Throws `cannotCheck` where a file cannot be opened or written, or where the file of
/// components is one of those read.
report checkSea(const std::string& file, const seaOptions& options);

} // namespace sorvik
