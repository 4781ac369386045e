#pragma once

#include "check/finding.hpp"

#include <pybind11/pybind11.h>

namespace sorvik::python {

/// {"facts": {...}, "findings": [...]}, with the names of sorvikCheck's JSON.
pybind11::dict dictOf(const report& result);

/// Only the facts.
pybind11::dict factsDict(const report& result);

} // namespace sorvik::python
