#include "base/numberText.hpp"

#include "base/platform.hpp"
#include "base/sixDigits.hpp"

namespace sorvik {

std::string numberText(double value) {
    char text[sixDigits::room];
    return {text, sixDigits::write(text, value)};
}

double leadingNumber(const char* text) {
    return platform::strtodClassic(text);
}

} // namespace sorvik
