#include "nemoh/fatalLine.hpp"

#include "io/printer.hpp"

void fatalLine(const std::string& file, int number, const std::string& expected,
               const std::string& found) {
    constexpr std::size_t shownLength = 60;
    const std::string shown =
        found.size() > shownLength ? found.substr(0, shownLength) + "..." : found;
    printer::fatalError(file + ", line " + std::to_string(number) + ": expected " + expected +
                        ", found \"" + shown + "\".");
}
