#pragma once

#include "check/hullCheck.hpp"
#include "check/meshFile.hpp"

namespace sorvik {

// The steps of `checkHull` after reading, for a mesh that is already in memory.

/// Takes out the panel that the reader makes of the line that ends a Nemoh mesh, and its image, and
/// cuts the mesh again; leaves meshes of other formats. `mesh` is as it was read. All corners of
/// these panels lie at the mesh's zero.
void removeNemohEnd(const meshFileFacts& file, const hullOptions& options, bodyMesh& mesh);

/// Adds the facts on hydrostatics.
void addHydrostaticFacts(const hydrostatics& h, report& result);

/// Adds facts and findings on `checked.mesh`, which has panels and is cut at the level, and sets
/// what follows from it.
void examineHull(const meshFileFacts& file, const hullOptions& options, hullReport& checked);

} // namespace sorvik
