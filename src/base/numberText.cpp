#include "base/numberText.hpp"

#include "base/platform.hpp"
#include "base/sixDigits.hpp"

#include <charconv>

namespace sorvik {
namespace {

constexpr std::size_t longestNumberText = 32; // of 17 digits with sign, point and exponent

} // namespace

std::string numberText(double value) {
    char text[sixDigits::room];
    return {text, sixDigits::write(text, value)};
}

std::string numberText(double value, int digits) {
    char text[longestNumberText];
    return {text,
            std::to_chars(text, text + sizeof text, value, std::chars_format::general, digits).ptr};
}

std::string exactText(double value) {
    char text[longestNumberText];
    return {text, std::to_chars(text, text + sizeof text, value).ptr};
}

double leadingNumber(const char* text) {
    return platform::strtodClassic(text);
}

} // namespace sorvik
