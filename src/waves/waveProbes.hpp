#pragma once

#include <string>
#include <vector>

namespace sorvik {

/// Horizontal positions [m] at which the surface elevation is asked for.
struct waveProbes {
    std::vector<double> x;
    std::vector<double> y;
};

/// What the command line asks for: the flag that counts and the texts after it.
struct probeRequest {
    enum class kind {
        origin,   ///< no flag
        grid,     ///< Xsize, Ysize, nx and ny of -domain
        file,     ///< the file of -xyFile, "" where it is missing
        positions ///< x1, y1, x2, ... of -positions; a last x without its y is ignored
    };
    kind from = kind::origin;
    std::vector<std::string> values;
};

/// Makes the probes that are asked for; for the origin with a warning.
///
/// A grid is also written to "waveDomain.dat" in `folder`. Returns false, with a message, for a
/// file that cannot be used; a grid that cannot be used is fatal.
bool makeProbes(const probeRequest& request, const std::string& folder, waveProbes& probes);

} // namespace sorvik
