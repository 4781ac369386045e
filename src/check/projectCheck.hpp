#pragma once

#include "check/finding.hpp"

#include <string>

namespace sorvik {

/// Checks a project folder of Nemoh 3 before the solver runs: Nemoh.cal, the meshes that it names,
/// and what they ask of the solver. Throws `cannotCheck` where there is no Nemoh.cal to read.
report checkProject(const std::string& folder);

} // namespace sorvik
