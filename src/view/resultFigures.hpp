#pragma once

#include "check/resultTables.hpp"

#include <string>
#include <vector>

namespace sorvik {

/// Added mass, damping and excitation of each body over frequency as HTML: a figure for each
/// degree of freedom. Added mass and damping are those of the motion on itself. Many bodies or
/// directions are not all drawn, which the text says. `meshes` name the bodies.
std::string resultFiguresHtml(const nemohResults& results, const std::vector<std::string>& meshes);

} // namespace sorvik
