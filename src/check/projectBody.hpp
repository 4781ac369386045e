#pragma once

#include "check/finding.hpp"
#include "check/hullCheck.hpp"
#include "check/nemohCal.hpp"

#include <functional>
#include <string>

namespace sorvik {

/// The name of a body's mesh that is there, in the project folder: as Nemoh reads it, or as it was
/// meant. Empty without either.
std::string findBodyMesh(const std::string& folder, const calBody& body);

/// Takes the hull of a body, checked in the water of the project, and the name of its mesh in the
/// project folder. The cures of findings name the keys of the project.
using hullTaker = std::function<void(const std::string& mesh, hullReport hull)>;

/// Checks the body `index` (from 0) of a project: its name, counts and mesh, and its first
/// irregular frequency. Facts have names such as "body1.panels". The facts and findings of the hull
/// alone go to `take` if it is there, else into `result`. Throws `cannotCheck` where the mesh
/// cannot be opened.
void checkProjectBody(const std::string& folder, const nemohCal& cal, std::size_t index,
                      report& result, const hullTaker& take);

/// Adds `no-hydrostatics` unless the project has a KH.dat, and what its motions need where they are
/// asked for.
void checkHydrostaticFiles(const std::string& folder, const nemohCal& cal, report& result);

} // namespace sorvik
