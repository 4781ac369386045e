#pragma once

#include "view/page.hpp"
#include "view/surfaceRun.hpp"

#include <string>

namespace sorvik {

/// The page of a run of wave elevations: its surface, which a script animates, where it has a grid;
/// what of the run is shown; a table and the series of its probes, and their spectra.
///
/// Numbers of a grid are sea-x and sea-y [m], sea-times [s], and sea-frames: the elevations in
/// 32767ths of the attribute data-peak [m] of the stage. A series stands in an element with
/// data-name, data-x and data-y.
pageContent seaPage(const std::string& name, const surfaceRun& run);

} // namespace sorvik
