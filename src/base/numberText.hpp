#pragma once

#include <string>

namespace sorvik {

/// `value` as a stream writes it by default, in the classic locale.
std::string numberText(double value);

/// `value` in at most `digits` significant digits, 1 to 17, in the classic locale.
std::string numberText(double value, int digits);

/// The shortest text that is read as `value` again, in the classic locale.
std::string exactText(double value);

/// 100 times `share`, rounded to `decimals` digits after the point, such as "12.5 %".
std::string percentText(double share, int decimals);

/// Such as "from 0 to 1 m".
std::string rangeText(double from, double to, const std::string& unit);

/// The number that `text` begins with, 0 where there is none, read as std::strtod reads it in the
/// classic locale: what follows the number is ignored, white space before it too.
double leadingNumber(const char* text);

/// `value` without its fraction, 0 for NaN and from 1e15 on, where it would be no count of
/// anything.
constexpr long long wholeNumber(double value) {
    return value > -1e15 && value < 1e15 ? static_cast<long long>(value) : 0;
}

/// Whether `c` is one of 0 to 9, or a letter of ASCII, whatever the locale.
constexpr bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
constexpr bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

} // namespace sorvik
