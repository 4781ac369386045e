#pragma once

#include "mesh/triangle.hpp"

#include <cstddef>
#include <utility>
#include <vector>

namespace sorvik {

/// An edge of a panel.
struct panelEdge {
    std::size_t panel = 0;  ///< one that it belongs to, from 0
    std::size_t corner = 0; ///< it runs from this corner of the panel, 0 to 2, to the next
};

/// How the panels below a level hang together, corners closer than 1e-5 m merged.
struct hullTopology {
    std::size_t nodes = 0;                ///< of all panels, as the Nemoh writer merges them
    std::vector<panelEdge> openEdges;     ///< of one panel
    std::vector<panelEdge> turnedEdges;   ///< of two panels that run through them in one direction
    std::vector<panelEdge> branchedEdges; ///< of more than two panels
    /// Panels with the same three corners: a later one and the first.
    std::vector<std::pair<std::size_t, std::size_t>> coincident;
};

/// Takes time and memory in proportion to the number of panels. Only edges with an end more than
/// 1e-4 m below `level` count: a hull that is open at its waterline is whole. Panels of which
/// two corners merge have no edges.
hullTopology topologyBelow(const std::vector<triangle>& panels, double level);

} // namespace sorvik
