#include "io/sixDigits.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>

namespace {

constexpr double smallest = 1e-4;
constexpr double largest = 999999.0;
/// Powers of ten that bring [1e-4, 1e-3), [1e-3, 1e-2), ... [1e5, 1e6) into [1e5, 1e6). All are
/// exact, so that scaling rounds once.
constexpr double scales[] = {1e9, 1e8, 1e7, 1e6, 1e5, 1e4, 1e3, 1e2, 1e1, 1e0};
constexpr int firstExponent = -4;
/// More than the rounding error of a scaled value, 2^-34.
constexpr double scalingError = 1e-9;
/// Bounds beyond this share of the last digit could reach into the next finer decade.
constexpr double largestBound = 0.04;

constexpr char pairs[] =
    "00010203040506070809101112131415161718192021222324252627282930313233343536"
    "37383940414243444546474849505152535455565758596061626364656667686970717273"
    "7475767778798081828384858687888990919293949596979899";

/// Which of `scales` a magnitude in [smallest, largest) takes.
int decade(double magnitude) {
    return (magnitude >= 1e-3) + (magnitude >= 1e-2) + (magnitude >= 1e-1) + (magnitude >= 1e0) +
           (magnitude >= 1e1) + (magnitude >= 1e2) + (magnitude >= 1e3) + (magnitude >= 1e4) +
           (magnitude >= 1e5);
}

/// Writes the number digits[0].digits[1..5] times ten to the power of `exponent`, -4 to 5, without
/// trailing zeros.
char* layOut(char* out, std::uint32_t number, int exponent) {
    char digits[6];
    const std::size_t n = number;
    std::memcpy(digits, pairs + 2 * (n / 10000), 2);
    std::memcpy(digits + 2, pairs + 2 * (n / 100 % 100), 2);
    std::memcpy(digits + 4, pairs + 2 * (n % 100), 2);
    int count = 6;
    while (digits[count - 1] == '0') {
        --count;
    }
    if (exponent < 0) {
        std::copy_n("0.000", 5, out);
        out += 1 - exponent;
        std::memcpy(out, digits, sizeof digits);
        return out + count;
    }
    const int whole = exponent + 1;
    std::memcpy(out, digits, sizeof digits);
    if (count <= whole) {
        return out + whole;
    }
    out[whole] = '.';
    std::memcpy(out + whole + 1, digits + whole, static_cast<std::size_t>(count - whole));
    return out + count + 1;
}

} // namespace

char* sixDigits::writeIfCertain(char* out, double value, double bound) {
    const double magnitude = std::fabs(value);
    if (!(magnitude >= smallest && magnitude < largest)) {
        return nullptr;
    }
    const int d = decade(magnitude);
    const double scaled = magnitude * scales[d];
    const double doubt = bound * scales[d] + scalingError;
    auto number = static_cast<std::uint32_t>(scaled);
    const double rest = scaled - number;
    if (!(std::fabs(rest - 0.5) > doubt) || doubt > largestBound) {
        return nullptr;
    }
    number += rest > 0.5 ? 1 : 0;
    int exponent = firstExponent + d;
    if (number == 1000000) {
        number = 100000;
        ++exponent;
    }
    if (std::signbit(value)) {
        *out++ = '-';
    }
    return layOut(out, number, exponent);
}

char* sixDigits::write(char* out, double value) {
    if (char* end = writeIfCertain(out, value, 0.0)) {
        return end;
    }
    if (value == 0.0) {
        if (std::signbit(value)) {
            *out++ = '-';
        }
        *out++ = '0';
        return out;
    }
    return std::to_chars(out, out + maxLength, value, std::chars_format::general, 6).ptr;
}
