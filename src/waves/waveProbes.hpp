#pragma once

#include <string>
#include <vector>

namespace sorvik {

/// Horizontal positions [m] at which the surface elevation is asked for.
struct waveProbes {
    std::vector<double> x;
    std::vector<double> y;
};

/// Takes the probes of the first of the flags -domain, -xyFile and -positions, or else the origin,
/// with a warning.
///
/// A grid is also written to "waveDomain.dat" in `folder`. Returns false, with a message, for a
/// file of positions that cannot be used; a grid that cannot be used is fatal.
bool findProbes(int argc, const char** argv, const std::string& folder, waveProbes& probes);

} // namespace sorvik
