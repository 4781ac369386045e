#pragma once

#include <string>
#include <string_view>

namespace sorvik {

/// What ends the process in place of std::exit. It does not return: it ends the process, or throws.
using endHandler = void (*)(int status);

/// Sets what `processEnd` calls from now on, std::exit for nullptr, and returns what it called
/// before. A host that goes on after a fatal error sets a handler that throws.
endHandler setEndHandler(endHandler handler);

/// What `throwProcessEnd` throws.
struct processEnded {
    int status; ///< that the process was to end with
};

/// An end handler that throws `processEnded`.
[[noreturn]] void throwProcessEnd(int status);

/// Ends the process with `status`, as every fatal error of the library does.
[[noreturn]] void processEnd(int status);

/// Prints `line` and an end of line on standard output and ends the process with `status`.
[[noreturn]] void endWithLine(std::string_view line, int status);

/// Prints "FATAL ERROR: ", `message` and an end of line, and ends the process with status 1.
[[noreturn]] void endWithError(const std::string& message);

} // namespace sorvik
