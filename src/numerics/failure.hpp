#pragma once

#include <string>

namespace matrixOp {

/// Prints "FATAL ERROR: ", the message and an end of line on standard output, and ends the process
/// with status 1.
[[noreturn]] void fail(const std::string& message);

} // namespace matrixOp
