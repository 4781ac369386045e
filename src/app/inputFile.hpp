#pragma once

#include "io/inputMap.hpp"

#include <string>

namespace sorvik {

/// The entries of the input file. One that cannot be opened ends the process with status -1.
inputMap readInputFile(const std::string& name);

} // namespace sorvik
