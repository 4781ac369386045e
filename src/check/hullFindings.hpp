#pragma once

#include "check/hullCheck.hpp"
#include "check/hullTopology.hpp"
#include "check/meshFile.hpp"
#include "mesh/bodyMesh.hpp"

namespace sorvik {

/// A mesh as it was read, and all that the findings on it go by.
struct examinedHull {
    const bodyMesh& mesh;
    const meshFileFacts& file;
    const hullOptions& options;
    const hydrostatics& values;
    const hullTopology& topology;
    point3 low; ///< of the box
    point3 high;
};

/// Of the wetted panels as `sorvikPre` cuts them.
struct panelSizes {
    double longestEdge = 0;  ///< m
    double smallestArea = 0; ///< m²
    /// The largest ratio of the longest edge to the height above it; 1.15 for equal edges.
    double worstAspect = 0;
    double area = 0;   ///< of all panels, but those of a lid [m²]
    double volume = 0; ///< that they enclose with the level, from the z component [m³]
};
panelSizes sizesOf(const std::vector<triangle*>& panels, double level);

/// The length of a wave of `omega` [rad/s] in water of `depth` [m], 0 for deep water.
double waveLength(double omega, double gravity, double depth);

/// Adds the findings on edges: `open-edges`, `half-hull`, `turned-edges` and the like.
void addEdgeFindings(const examinedHull& hull, report& result);
/// Adds the findings on single panels and corners.
void addPanelFindings(const examinedHull& hull, const panelSizes& sizes, report& result);
/// Adds the findings on the hull as a whole: volumes, place in the water, size, mass, long edges.
void addShapeFindings(const examinedHull& hull, const panelSizes& sizes, report& result);

} // namespace sorvik
