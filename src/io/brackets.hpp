#pragma once

#include <string_view>

namespace sorvik {

/// The characters that open and close the blocks of the input language.
namespace brackets {

/// Opening and closing characters in turn. A quote closes what it opens.
constexpr std::string_view pairs = R"((){}[]<>''"")";

/// Whether `c` begins a block.
constexpr bool opens(char c) {
    const std::size_t place = pairs.find(c);
    return place != std::string_view::npos && place % 2 == 0;
}

/// The character that closes what `opener` opens; '\0' for one that opens nothing.
constexpr char closerOf(char opener) {
    return opens(opener) ? pairs[pairs.find(opener) + 1] : '\0';
}

} // namespace brackets

} // namespace sorvik
