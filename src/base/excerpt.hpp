#pragma once

#include <string>
#include <string_view>

namespace sorvik {

/// `text`, or its first 60 characters and "..." where it is too long for a message.
inline std::string excerpt(std::string_view text) {
    constexpr std::size_t longest = 60;
    return std::string(text.substr(0, longest)) + (text.size() > longest ? "..." : "");
}

} // namespace sorvik
