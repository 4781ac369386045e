#include "nemoh/fatalLine.hpp"

#include "base/excerpt.hpp"
#include "io/printer.hpp"

namespace sorvik {

void fatalLine(const std::string& file, int number, const std::string& expected,
               const std::string& found) {
    printer::fatalError(file + ", line " + std::to_string(number) + ": expected " + expected +
                        ", found \"" + excerpt(found) + "\".");
}

} // namespace sorvik
