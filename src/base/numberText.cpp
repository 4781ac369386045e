#include "base/numberText.hpp"

#include "base/platform.hpp"
#include "base/sixDigits.hpp"

#include <cmath>

namespace sorvik {

std::string numberText(double value) {
    char text[sixDigits::room];
    return {text, sixDigits::write(text, value)};
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
