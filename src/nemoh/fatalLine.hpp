#pragma once

#include <string>

namespace sorvik {

/// Ends the process with a fatal error about the line `number`, counted from 1, of a result file:
/// what was `expected` of it, and what it holds (the beginning of it where it is long).
[[noreturn]] void fatalLine(const std::string& file, int number, const std::string& expected,
                            const std::string& found);

} // namespace sorvik
