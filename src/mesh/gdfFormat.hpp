#pragma once

#include "mesh/panels.hpp"

#include <iosfwd>
#include <string>

/// Panels as WAMIT geometric data files (GDF), of which ULEN and GRAV are read and not applied.
namespace sorvik::gdf {

/// Appends the panels of a file, completes them by the symmetries that it states and prints the
/// numbers; `name` is that of the file, for messages.
///
/// Records in odd places give the triangle of their first three corners; those in even places give
/// none. Returns false where the file holds fewer whole records than it announces.
bool read(std::istream& in, const std::string& name, panelStore panels);

/// Writes every panel as a quadrilateral whose last corner is the first again, without symmetries.
/// `ULEN` [m] and `GRAV` [m/s²] are stated and not applied.
void write(std::ostream& stream, const panelView& panels, double ULEN, double GRAV);

} // namespace sorvik::gdf
