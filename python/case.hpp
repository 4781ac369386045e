#pragma once

#include "io/inputMap.hpp"

#include <string>

namespace sorvik::python {

/// An input file.
struct inputCase {
    std::string file;
    inputMap inputs;
};

} // namespace sorvik::python
