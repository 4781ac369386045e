#pragma once

#include "check/hullCheck.hpp"

#include <string>
#include <vector>

namespace sorvik {

/// Writes a hull that has panels, checked at `level` [m], into `folder`, which is made where it is
/// missing. Earlier files of these names are replaced. Returns the file that could not be written,
/// or "".
///
/// STEM.vtp has all panels in the order of the mesh, corners merged as the Nemoh writer merges
/// them. Cell data: "panel", its number from 1; "Normals", by the order of the corners, 0 0 0 for a
/// panel without area; "area" [m²]; "wet", 0 for a dry panel, 1 for a wet one, 2 for one that the
/// level cuts, a corner at the level being submerged; and for each kind of finding that has panels,
/// under its name, 1 for these. STEM-wet.vtp has the wetted surface as cut, with "Normals" and
/// "area".
std::string writeVtkHull(const std::string& folder, const std::string& stem, const hullReport& hull,
                         double level);

/// A stem for each mesh file: its name without folder and ending, followed by "-2", "-3", ... where
/// `writeVtkHull` would otherwise write a file twice, on systems that ignore the case of names too.
std::vector<std::string> vtkStems(const std::vector<std::string>& meshFiles);

} // namespace sorvik
