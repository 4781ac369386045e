#pragma once

#include "mesh/panels.hpp"

#include <iosfwd>

/// Panels as nodes and node numbers, the mesh files of Nemoh. Lengths in m.
namespace sorvik::nemohMesh {

/// Adds the numbers of node and panel lines to the counters and returns the symmetry flag: 1 for
/// half of a hull, symmetric about y = 0. Counting ends where the lines do not fit the format.
int count(std::istream& stream, int& nNodes, int& nPanels);

/// Appends the panels of a file, a quadrilateral as two triangles, sets `nFaces` to the number of
/// all panels and completes a half hull. Returns whether there are any.
///
/// The line that ends the panels comes in as one more, of zero area at (0, 0, 0). A node that the
/// file lacks is (0, 0, 0).
bool read(std::istream& stream, panelStore panels);

/// Writes the panels, corners closer than 1e-5 merged, and returns the number of nodes.
int write(std::ostream& stream, const panelView& panels);

} // namespace sorvik::nemohMesh
