#pragma once

#include "check/finding.hpp"
#include "check/hullTopology.hpp"
#include "check/hydrostatics.hpp"
#include "mesh/bodyMesh.hpp"

#include <array>
#include <optional>
#include <string>

namespace sorvik {

/// What `checkHull` goes by. Lengths in m, z up; level and centre of gravity are those of the moved
/// mesh.
struct hullOptions : hydrostaticOptions {
    /// The point of the mesh that becomes (0, 0, 0), as for `-meshConvert`.
    point3 origin = {};
    std::optional<double> w1; ///< highest wave frequency [rad/s]
    double depth = 0;         ///< of the water, 0 for deep water
    bool onlyRecords = false; ///< check what is read of the file, and not the hull
};

/// What a check of a hull gives.
struct hullReport {
    report result; ///< facts and findings
    /// Whether there are panels, to which the rest applies.
    bool hasPanels = false;
    bodyMesh mesh;         ///< as it was read, moved, and cut at the level
    hullTopology topology; ///< of the panels below the level
    hydrostatics values;
};

/// Checks a mesh file: what was read of it, its shape, its hydrostatics at the level, and its
/// fitness for Nemoh. Throws `cannotCheck` where the file cannot be opened or an option cannot be
/// used.
hullReport checkHull(const std::string& file, const hullOptions& options);

} // namespace sorvik
