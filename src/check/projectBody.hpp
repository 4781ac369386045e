#pragma once

#include "check/finding.hpp"
#include "check/nemohCal.hpp"

#include <string>

namespace sorvik {

/// Checks the body `index` (from 0) of a project: its name, counts and mesh, and its first
/// irregular frequency. Facts have names such as "body1.panels".
void checkProjectBody(const std::string& folder, const nemohCal& cal, std::size_t index,
                      report& result);

/// Adds `no-hydrostatics` unless the project has a KH.dat, and what its motions need where they are
/// asked for.
void checkHydrostaticFiles(const std::string& folder, const nemohCal& cal, report& result);

} // namespace sorvik
