#pragma once

#include "check/finding.hpp"
#include "check/resultTables.hpp"

namespace sorvik {

/// Judges the matrices of added mass and damping over the frequencies, and adds what they show as
/// facts and as `unsymmetric`, `negative-damping` and `spike`.
///
/// Values are compared with the largest of their kind: translations [kg], rotations [kg m²], and
/// the geometric mean of both for the coupling of the two.
void checkCurves(const nemohResults& results, report& result);

} // namespace sorvik
