#pragma once

#include "base/viewBuffer.hpp"

#include <istream>
#include <locale>
#include <string_view>

namespace sorvik {

/// An input stream over text that someone else owns, in the classic locale whatever the user's is.
class classicText : private viewBuffer, public std::istream {
public:
    explicit classicText(std::string_view text) : viewBuffer(text), std::istream(this) {
        std::istream::imbue(std::locale::classic());
    }
};

} // namespace sorvik
