#include "check/quietly.hpp"

#include <sstream>

namespace sorvik {

std::string quietOutcome::message() const {
    const std::string mark = "FATAL ERROR: ";
    std::istringstream lines(text);
    std::string last;
    for (std::string line; std::getline(lines, line);) {
        const std::size_t found = line.find(mark);
        if (found != line.npos) {
            return line.substr(found + mark.size());
        }
        last = line.empty() ? last : line;
    }
    return last;
}

} // namespace sorvik
