#pragma once

#include "check/nemohCal.hpp"
#include "view/hullPage.hpp"
#include "view/page.hpp"

#include <string>
#include <vector>

namespace sorvik {

/// A project folder of Nemoh 3, checked.
struct viewedProject {
    std::string folder;
    nemohCal cal;
    report result;                 ///< without what stands beside the hulls
    std::vector<viewedHull> hulls; ///< as Nemoh gets them, of the bodies whose mesh is there
};

/// Checks a project whose Nemoh.cal was read. Throws `cannotCheck` where a mesh cannot be opened.
viewedProject viewProject(const std::string& folder, const nemohCal& cal);

/// The page of a project: its hulls with the directions of the load cases around them, the facts
/// and findings of the project, and with results, which are read for it, their curves.
pageContent projectPage(const viewedProject& project);

/// The files that the page is made from.
std::vector<std::string> projectFiles(const std::string& folder, const nemohCal& cal);

} // namespace sorvik
