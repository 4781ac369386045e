#pragma once

#include <string_view>

namespace sorvik {

constexpr bool startsWith(std::string_view text, std::string_view head) {
    return text.substr(0, head.size()) == head;
}

constexpr bool endsWith(std::string_view text, std::string_view tail) {
    return text.size() >= tail.size() && text.substr(text.size() - tail.size()) == tail;
}

} // namespace sorvik
