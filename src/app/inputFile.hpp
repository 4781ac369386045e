#pragma once

#include "io/inputMap.hpp"

#include <string>

namespace sorvik {

/// Returns the entries of the input file `name`. One that cannot be opened ends the process with
/// status -1.
inputMap readInputFile(const std::string& name);

} // namespace sorvik
