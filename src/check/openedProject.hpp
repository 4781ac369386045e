#pragma once

#include "check/finding.hpp"
#include "check/nemohCal.hpp"
#include "check/projectBody.hpp"
#include "check/resultsCheck.hpp"

#include <string>

/// Checks of a project whose Nemoh.cal was read.
namespace sorvik {

/// As `checkProject(folder)`. Where `take` is there, it gets each hull, whose own facts and
/// findings the report then lacks. Hulls are checked one after the other, in the order of the
/// bodies. Throws `cannotCheck` where a mesh cannot be opened.
report checkProject(const std::string& folder, const nemohCal& cal, const hullTaker& take = {});

/// As `checkResults(folder)`.
resultsReport checkResults(const std::string& folder, const nemohCal& cal);

} // namespace sorvik
