#pragma once

#include <vector>

class waveModel;

namespace sorvik {

class timeInstants;

/// Computes the surface elevations [m] at the points (x[i], y[i]) [m] into `values`, instant after
/// instant: the numbers whose texts `writeElevationTable` writes.
///
/// As fast as that, by the same sums, and with the same use of the model; prints nothing. `x` and
/// `y` are of one length, which fits an int; `values` has room for it times the instants.
void computeElevations(waveModel& model, const std::vector<double>& x, const std::vector<double>& y,
                       const timeInstants& instants, double* values);

} // namespace sorvik
