#pragma once

#include "check/finding.hpp"
#include "check/hullCheck.hpp"
#include "check/nemohCal.hpp"

#include <string>

namespace sorvik {

/// The name of a body's mesh that is there, in the project folder: as Nemoh reads it, or as it was
/// meant. Empty without either.
std::string findBodyMesh(const std::string& folder, const calBody& body);

/// Checks the hull of a body in the water of the project. The cures of findings name the keys of
/// the project. `file` is the mesh; throws `cannotCheck` where it cannot be opened.
hullReport checkBodyHull(const std::string& file, const nemohCal& cal, const calBody& body);

/// Checks the body `index` (from 0) of a project: its name, counts and mesh, and its first
/// irregular frequency. Facts have names such as "body1.panels".
void checkProjectBody(const std::string& folder, const nemohCal& cal, std::size_t index,
                      report& result);

/// Adds `no-hydrostatics` unless the project has a KH.dat, and what its motions need where they are
/// asked for.
void checkHydrostaticFiles(const std::string& folder, const nemohCal& cal, report& result);

} // namespace sorvik
