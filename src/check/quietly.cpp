#include "check/quietly.hpp"

namespace sorvik {

std::string quietOutcome::lastLine() const {
    const std::size_t last = text.find_last_not_of(" \r\n");
    if (last == text.npos) {
        return "";
    }
    const std::size_t before = text.find_last_of("\r\n", last);
    const std::size_t first = before == text.npos ? 0 : before + 1;
    const std::string line = text.substr(first, last + 1 - first);
    const std::string mark = "FATAL ERROR: ";
    return line.compare(0, mark.size(), mark) == 0 ? line.substr(mark.size()) : line;
}

} // namespace sorvik
