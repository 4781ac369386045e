#pragma once

#include <string>

/// Returns if the input file can be opened; otherwise says so and ends the process with status -1.
void requireInputFile(const std::string& name);
