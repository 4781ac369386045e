#pragma once

#include "check/hullCheck.hpp"
#include "check/meshFile.hpp"

namespace sorvik {

// The steps of `checkHull`, for callers that keep the mesh in memory.

/// What was read of a mesh file.
struct hullFile {
    meshFileFacts facts;
    report result;       ///< what its reader leaves out
    bodyMesh mesh;       ///< moved and cut; it may have no panels
    std::string failure; ///< the fatal error that ended the reader, or ""
    std::string text;    ///< that the reader printed
};

/// Throws `cannotCheck` where there is no file of this name that can be opened.
void requireMeshFile(const std::string& file);

/// Reads a mesh file that can be opened as `sorvikPre` does, moves it by minus the origin and cuts
/// it at the level. Left out are the panel that the reader makes of the line that ends a Nemoh
/// mesh, with its image, and the facets that it adds to a binary STL file that is cut off.
hullFile readHull(const std::string& file, const hullOptions& options);

/// Adds the facts on hydrostatics.
void addHydrostaticFacts(const hydrostatics& h, report& result);

/// Adds facts and findings on `checked.mesh`, which has panels and is cut at the level, and sets
/// what follows from it.
void examineHull(const meshFileFacts& file, const hullOptions& options, hullReport& checked);

} // namespace sorvik
