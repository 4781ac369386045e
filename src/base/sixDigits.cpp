#include "base/sixDigits.hpp"

#include "base/littleEndian.hpp"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>

// Digits. A power of ten, which a double holds exactly up to 1e22, scales the number into [1e5,
// 1e6) with one rounding. The nearest integer then is the six digits, unless the scaled number lies
// so near to a half that its error, or what the caller allows for, could round it the other way.
// Such numbers, a few in a thousand million, and those out of range go to std::to_chars, which is
// right for all. A fast way that knows when it may be wrong: F. Loitsch, Printing floating-point
// numbers quickly and accurately with integers, 2010.
//
// Layout. The digits are two triples from tables, joined in one 64-bit number with the first
// character in the lowest byte. The point is put in by moving the digits behind it up by a byte,
// and trailing zeros are cut off by the length.

namespace sorvik {

namespace {

constexpr double powersOfTen[] = {1e-4, 1e-3, 1e-2, 1e-1, 1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6};
constexpr int firstExponent = -4;
/// A number with all its six digits before the point is scaled by 1.
constexpr int unscaledExponent = 5;
/// Integers of six digits are those from `sixDigitsBegin` to below `sixDigitsEnd`.
constexpr std::int32_t sixDigitsBegin = 100'000;
constexpr std::int32_t sixDigitsEnd = 1'000'000;
/// There are so many triples of digits.
constexpr std::uint32_t tripleCount = 1000;
/// Decades from 1e-4 to 1e6, between two for the magnitudes around them that share a power of two
/// with them: they allow nothing.
constexpr std::size_t firstDecade = 1;
constexpr std::size_t lastDecade = 10;
constexpr std::size_t decadeCount = 12;
/// More than the rounding error of a scaled value, 2^-34 below 2^20, and of the sum that rounds it.
constexpr double scalingError = 1e-9;
/// A number rounds to the integer below the sum; where that is not the nearest, it is in doubt.
constexpr double half = 0.5;
/// Bounds beyond this share of the last digit could reach into the next finer decade.
constexpr double largestBound = 0.04;

/// How numbers of [10^e, 10^(e+1)) are scaled to six digits and laid out.
struct alignas(64) decade {
    /// Exact, so that scaling into [1e5, 1e6) rounds once.
    double scale = 1;
    /// Stands before the digits: "0.", "0.0" and so on for e < 0.
    char prefix[8] = {};
    std::size_t prefixLength = 0;
    /// The length of the text of so many digits, prefix, point and zeros before the point included.
    std::uint8_t lengths[8] = {};
    /// Texts of eight characters are numbers here, the first in the lowest byte: where the point
    /// stands, and which digits come before it (all if there is none to insert).
    std::uint64_t point = 0;
    std::uint64_t beforePoint = ~std::uint64_t(0);
};

constexpr std::array<decade, decadeCount> makeDecades() {
    std::array<decade, decadeCount> decades;
    for (std::size_t i = firstDecade; i <= lastDecade; ++i) {
        decade& d = decades[i];
        const int exponent = firstExponent + static_cast<int>(i - firstDecade);
        for (int power = exponent; power < unscaledExponent; ++power) {
            d.scale *= 10;
        }
        if (exponent < 0) {
            for (char& c : d.prefix) {
                c = '0';
            }
            d.prefix[1] = '.';
            d.prefixLength = static_cast<std::size_t>(1 - exponent);
        } else {
            d.point = std::uint64_t('.') << (8 * (exponent + 1));
            d.beforePoint = (std::uint64_t(1) << (8 * (exponent + 1))) - 1;
        }
        for (int digits = 1; digits <= 6; ++digits) {
            const int length = exponent < 0            ? 1 - exponent + digits
                               : digits > exponent + 1 ? digits + 1
                                                       : exponent + 1;
            d.lengths[digits] = static_cast<std::uint8_t>(length);
        }
    }
    return decades;
}

constexpr std::array<decade, decadeCount> decades = makeDecades();

/// The decade of the numbers in [2^e, 2^(e+1)) that lie below `limit`; the others are in the next.
struct binade {
    std::size_t decade = 0;
    double limit = 0;
};

constexpr int firstBinaryExponent = -14;
constexpr std::size_t binadeCount = 34;

constexpr std::array<binade, binadeCount> makeBinades() {
    std::array<binade, binadeCount> binades;
    double begin = 1.0 / (1 << -firstBinaryExponent);
    for (binade& b : binades) {
        while (powersOfTen[b.decade] <= begin) {
            ++b.decade;
        }
        b.limit = powersOfTen[b.decade];
        begin *= 2;
    }
    return binades;
}

constexpr std::array<binade, binadeCount> binades = makeBinades();

/// By decade, how far from an integer a scaled value may lie to be certain; negative for never.
using margins = std::array<double, decadeCount>;

constexpr margins marginsOf(double bound) {
    margins limits{};
    for (std::size_t i = 0; i < decadeCount; ++i) {
        const double doubt = bound * decades[i].scale + scalingError;
        const bool isUsual = i >= firstDecade && i <= lastDecade;
        limits[i] = isUsual && doubt <= largestBound ? half - doubt : -1.0;
    }
    return limits;
}

constexpr margins exactMargins = marginsOf(0.0);

/// The digits of 0 to 999, the first in the lowest byte.
constexpr std::array<std::uint32_t, tripleCount> makeTriples() {
    std::array<std::uint32_t, tripleCount> triples{};
    for (std::uint32_t i = 0; i < triples.size(); ++i) {
        triples[i] = ('0' + i / 100) | ('0' + i / 10 % 10) << 8 | ('0' + i % 10) << 16;
    }
    return triples;
}

constexpr std::array<std::uint32_t, tripleCount> triples = makeTriples();

constexpr unsigned countShift = 56;

/// The same as last three of six digits, and in the highest byte how many of the three are left
/// without trailing zeros.
constexpr std::array<std::uint64_t, tripleCount> makeLastTriples() {
    std::array<std::uint64_t, tripleCount> last{};
    for (std::size_t i = 0; i < last.size(); ++i) {
        const std::uint64_t count = i % 10 != 0 ? 3 : i % 100 != 0 ? 2 : i != 0 ? 1 : 0;
        last[i] = std::uint64_t(triples[i]) << 24 | count << countShift;
    }
    return last;
}

constexpr std::array<std::uint64_t, tripleCount> lastTriples = makeLastTriples();

/// Writes six digits as `d` lays them out, without trailing zeros behind the point.
inline char* layOut(char* out, std::uint32_t number, const decade& d) {
    const std::uint32_t high = number / tripleCount;
    const std::uint64_t last = lastTriples[number % tripleCount];
    const std::uint64_t digits = triples[high] | last;
    auto count = static_cast<std::size_t>(last >> countShift) + 3;
    if (count == 3) {
        count = static_cast<std::size_t>(lastTriples[high] >> countShift);
    }
    std::memcpy(out, d.prefix, sizeof d.prefix);
    littleEndian::store(out + d.prefixLength,
                        (digits & d.beforePoint) | d.point | (digits & ~d.beforePoint) << 8);
    return out + d.lengths[count];
}

/// Writes `value` if its margin allows; otherwise, and outside the decades, returns nullptr.
[[gnu::always_inline]] inline char* writeWithin(const margins& limits, char* out, double value) {
    // Of a double: the bits below its exponent, and what is added to that.
    constexpr int mantissaBits = 52;
    constexpr int exponentBias = 1023;
    constexpr std::uint64_t firstBiased = exponentBias + firstBinaryExponent;
    const double magnitude = std::fabs(value);
    std::uint64_t bits = 0;
    std::memcpy(&bits, &magnitude, sizeof bits);
    const auto index = static_cast<std::size_t>((bits >> mantissaBits) - firstBiased);
    if (index >= binadeCount) {
        return nullptr;
    }
    std::size_t d = binades[index].decade + (magnitude >= binades[index].limit ? 1 : 0);
    const double scaled = magnitude * decades[d].scale;
    auto number = static_cast<std::int32_t>(scaled + half);
    if (!(std::fabs(scaled - number) < limits[d])) {
        return nullptr;
    }
    if (number == sixDigitsEnd) {
        if (d == lastDecade) {
            return nullptr;
        }
        number = sixDigitsBegin;
        ++d;
    }
    *out = '-';
    out += std::signbit(value) ? 1 : 0;
    return layOut(out, static_cast<std::uint32_t>(number), decades[d]);
}

/// The same for magnitudes from 1e-16 to 1e-4, which take an exponent.
char* writeSmall(char* out, double value, double bound) {
    constexpr const decade& units = decades[firstDecade + std::size_t(-firstExponent)];
    constexpr int leastExponent = -16;
    constexpr double firstScale = 1e10; // of [1e-5, 1e-4); like its multiples up to 1e22 exact
    const double magnitude = std::fabs(value);
    if (!(magnitude < powersOfTen[0])) {
        return nullptr;
    }
    int exponent = firstExponent - 1;
    double scale = firstScale;
    for (; magnitude * scale < sixDigitsBegin; scale *= 10) {
        if (--exponent < leastExponent) {
            return nullptr;
        }
    }
    const double scaled = magnitude * scale;
    const auto number = static_cast<std::int32_t>(scaled + half);
    const double doubt = bound * scale + scalingError;
    if (number >= sixDigitsEnd || doubt > largestBound ||
        std::fabs(scaled - number) + doubt >= half) {
        return nullptr;
    }
    *out = '-';
    out += std::signbit(value) ? 1 : 0;
    out = layOut(out, static_cast<std::uint32_t>(number), units);
    out[0] = 'e';
    out[1] = '-';
    out[2] = static_cast<char>('0' - exponent / 10);
    out[3] = static_cast<char>('0' - exponent % 10);
    return out + 4;
}

[[gnu::always_inline]] inline char* writeCertain(const margins& limits, char* out, double value,
                                                 double bound) {
    char* end = writeWithin(limits, out, value);
    return end != nullptr ? end : writeSmall(out, value, bound);
}

} // namespace

char* sixDigits::writeIfCertain(char* out, double value, double bound) {
    return writeCertain(marginsOf(bound), out, value, bound);
}

std::size_t sixDigits::writeColumns(char*& out, const double* values, std::size_t count,
                                    double factor, double bound) {
    const margins limits = marginsOf(bound);
    char* end = out;
    std::size_t written = 0;
    for (; written < count; ++written) {
        *end = '\t';
        char* next = writeCertain(limits, end + 1, factor * values[written], bound);
        if (next == nullptr) {
            break;
        }
        end = next;
    }
    out = end;
    return written;
}

char* sixDigits::write(char* out, double value) {
    if (char* end = writeCertain(exactMargins, out, value, 0.0)) {
        return end;
    }
    if (value == 0.0) {
        if (std::signbit(value)) {
            *out++ = '-';
        }
        *out++ = '0';
        return out;
    }
    return std::to_chars(out, out + room, value, std::chars_format::general, 6).ptr;
}

} // namespace sorvik
