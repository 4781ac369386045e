#include "base/processEnd.hpp"

#include <cstdlib>
#include <iostream>
#include <utility>

namespace sorvik {
namespace {

endHandler current = nullptr;

} // namespace

endHandler setEndHandler(endHandler handler) {
    return std::exchange(current, handler);
}

void throwProcessEnd(int status) {
    throw processEnded{status};
}

void processEnd(int status) {
    if (current != nullptr) {
        current(status);
    }
    std::exit(status);
}

void endWithLine(std::string_view line, int status) {
    std::cout << line << std::endl;
    processEnd(status);
}

void endWithError(const std::string& message) {
    endWithLine("FATAL ERROR: " + message, 1);
}

} // namespace sorvik
