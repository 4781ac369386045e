#pragma once

#include "view/surfaceRun.hpp"

#include <string>

namespace sorvik {

/// Writes the surface of a run on a grid into `folder`, which is made where it is missing:
/// surface0000.vts and so on, a file a frame with more digits where they are needed, points at the
/// elevation and "elevation" [m] as their data; then surface.pvd, which gives ParaView the times
/// [s]. Earlier files of these names are replaced. Returns the file that could not be written, or
/// "". A run at probes gives a surface.pvd without frames.
std::string writeVtkSurface(const std::string& folder, const surfaceRun& run);

} // namespace sorvik
