#include "base/numberText.hpp"

#include "base/platform.hpp"
#include "base/sixDigits.hpp"

#include <charconv>
#include <cmath>

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

std::string percentText(double share, int decimals) {
    const double scale = std::pow(10.0, decimals);
    return numberText(std::round(share * (100 * scale)) / scale) + " %";
}

std::string rangeText(double from, double to, const std::string& unit) {
    return "from " + numberText(from) + " to " + numberText(to) + " " + unit;
}

double leadingNumber(const char* text) {
    return platform::strtodClassic(text);
}

} // namespace sorvik
