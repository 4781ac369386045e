#pragma once

#include "check/hullCheck.hpp"
#include "view/page.hpp"

#include <string>
#include <vector>

namespace sorvik {

/// A hull on a page.
struct viewedHull {
    std::string name; ///< of its file
    hullReport hull;
};

/// The page of hulls in the water: a scene that its script draws from the numbers, and beside it
/// the facts and findings of each.
pageContent hullPage(const std::vector<viewedHull>& hulls, double level);

} // namespace sorvik
