#pragma once

#include "waves/timeInstants.hpp"

#include <iosfwd>
#include <vector>

class waveModel;

namespace sorvik {

/// Writes the surface elevations [m] at the points (x[i], y[i]) [m]: one line per instant, the time
/// [s] and the elevations in point order, separated by tabs. Shows the progress on standard output
/// and leaves the model at the last instant.
///
/// The model is asked with `setTime` and `eta` for each instant in turn; one that `isSumOfTrains`
/// may be asked less often, and the text is the same. `x` and `y` are of one length, which fits an
/// int. Writing ends where `out` fails.
void writeElevationTable(waveModel& model, const std::vector<double>& x,
                         const std::vector<double>& y, const timeInstants& instants,
                         std::ostream& out);

} // namespace sorvik
