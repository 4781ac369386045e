#pragma once

#include "check/finding.hpp"

#include <iosfwd>
#include <string>

namespace sorvik {

/// Writes a report for people: facts with a label, then findings, the gravest first, each with its
/// first places and its cure. `title` says what was checked; `hasColour` marks the severities.
void writeText(std::ostream& out, const std::string& title, const report& result, bool hasColour);

/// The value of a fact with its unit, such as "(0, 0, -0.75) m".
std::string valueText(const fact& shown);

/// A place as text, such as "panel 5 at (1, 0, -3)" or "line 7, nemoh.rho".
std::string placeText(const location& place);

} // namespace sorvik
