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

/// The body of a page that shows hulls: a stage, which its script draws from the numbers that this
/// appends, and the facts and findings of each hull. `headings` are directions of waves [degrees],
/// drawn as arrows around the hulls.
std::string hullBody(const std::vector<viewedHull>& hulls, double level,
                     const std::vector<double>& headings, std::vector<pageNumbers>& numbers);

/// The page of hulls in the water.
pageContent hullPage(const std::vector<viewedHull>& hulls, double level);

} // namespace sorvik
