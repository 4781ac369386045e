#pragma once

#include "view/hullPage.hpp"
#include "view/page.hpp"

#include <string>
#include <vector>

namespace sorvik {

/// The hulls of a project folder of Nemoh 3 as Nemoh gets them, of the bodies whose mesh is there.
/// Throws `cannotCheck` where there is no Nemoh.cal to read.
std::vector<viewedHull> projectHulls(const std::string& folder);

/// The page of a project: its hulls with the directions of the load cases around them, the facts
/// and findings of the project, and with results their curves. Throws as `projectHulls`.
pageContent projectPage(const std::string& folder, const std::vector<viewedHull>& hulls);

/// The files that the page is made from. Throws as `projectHulls`.
std::vector<std::string> projectFiles(const std::string& folder);

} // namespace sorvik
