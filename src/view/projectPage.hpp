#pragma once

#include "view/page.hpp"

#include <string>
#include <vector>

namespace sorvik {

/// The page of a project folder of Nemoh 3: the hulls as Nemoh gets them with the directions of the
/// load cases around them, the facts and findings of the project, and with results their curves.
/// Throws `cannotCheck` where there is no Nemoh.cal to read.
pageContent projectPage(const std::string& folder);

/// The files that the page is made from. Throws as `projectPage`.
std::vector<std::string> projectFiles(const std::string& folder);

} // namespace sorvik
