#pragma once

#include "check/hullCheck.hpp"
#include "view/page.hpp"

#include <string>
#include <vector>

namespace sorvik {

/// How many places of one finding a page marks at most.
constexpr std::size_t placesMarked = 20'000;

/// How far from the origin a page draws along each axis [m].
constexpr double farthestDrawn = 1e30;

/// Appends what the script of a page draws of a hull, with ids that begin with `prefix`:
/// - nodes: x, y, z [m] of the corners of all panels, those of the same numbers once
/// - faces: three nodes a panel, from 0; one node thrice for a panel that cannot be drawn, because
///   a coordinate is not a number or beyond `farthestDrawn`. The other lists leave such out.
/// - pieces: nine coordinates of each panel that the cut at the level made
/// - waterline: six coordinates of each piece of it
/// - open: the open edges below the level, three times the panel plus the corner, all from 0
/// - finding0, finding1, ...: x, y, z of the first `placesMarked` places of a finding
/// - finding0Panels, ...: their panels, from 1, or 0
void addHullNumbers(const hullReport& hull, double level, const std::string& prefix,
                    std::vector<pageNumbers>& numbers);

} // namespace sorvik
