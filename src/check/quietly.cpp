#include "check/quietly.hpp"

#include <algorithm>
#include <sstream>

namespace sorvik {

std::string quietOutcome::message() const {
    // Either "FATAL ERROR: text", or a line of asterisks, the text, and another such line.
    std::size_t begin = std::min(text.find("FATAL ERROR"), text.find("Fatal error: "));
    if (begin == text.npos) {
        const std::size_t last = text.find_last_not_of(" \r\n");
        const std::size_t before = text.find_last_of("\r\n", last);
        begin = last == text.npos || before == text.npos ? 0 : before;
    } else {
        begin = text.find_first_of(":\n", begin) + 1;
    }
    const std::size_t mark =
        hasEnded ? text.find("* * * Terminating", begin) : text.find('\n', begin + 1);
    std::istringstream words(text.substr(begin, mark - begin));
    std::string line;
    for (std::string word; words >> word;) {
        line += (line.empty() ? "" : " ") + word;
    }
    return line;
}

} // namespace sorvik
