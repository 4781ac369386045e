#pragma once

#include "check/finding.hpp"
#include "check/seaFacts.hpp"

#include <string>

namespace sorvik {

/// Adds the statistics of a table of elevations, as -waveElevation writes it, beside what the
/// components give in the mean, and findings where it cannot be read or belongs to another sea.
///
/// For one component that is exact; for more it is that of a Gaussian sea: H1/3 = Hm0, and
/// the greatest height and crest of N waves Hm0 sqrt(ln N / 2) and Hm0 sqrt(ln N / 8), those of the
/// distribution by M. S. Longuet-Higgins (1952), within what all components together can give.
/// Instants before `rampTime` [s] do not count. A file that cannot be read throws `cannotCheck`.
void addTable(report& result, const std::string& file, const seaFacts& sea, double rampTime);

} // namespace sorvik
