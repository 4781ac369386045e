#include "base/textScanner.hpp"

#include "base/classicText.hpp"
#include "base/littleEndian.hpp"
#include "base/numberText.hpp"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>

// Most numbers in files are short: at most eight digits on each side of the point, and no exponent.
// Their digits are found and joined eight at a time within one 64-bit word (D. Lemire, Number
// parsing at a gigabyte per second, 2021), and the number is the quotient of two values that its
// type holds exactly, hence correctly rounded (W. D. Clinger, How to read floating point numbers
// accurately, 1990). Longer ones go to std::from_chars, and whatever the stream could read in
// another way goes to a stream.

namespace sorvik {

namespace {

constexpr std::size_t blockSize = std::size_t(1) << 18;
/// Characters in the block from which on a number is tried without asking for more; enough for a
/// sign, a point and two runs of digits.
constexpr std::ptrdiff_t usualLength = 48;

bool isSpace(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

/// Whether `c` can stand anywhere in what the stream takes for a number.
bool isNumeric(char c) {
    return isDigit(c) || c == '+' || c == '-' || c == '.' || c == 'e' || c == 'E';
}

/// The powers of ten up to that of the longest run of digits. A float too holds them exactly.
template <class T>
constexpr T tenTo[] = {T(1),      T(10),      T(100),      T(1000),     T(10000),
                       T(100000), T(1000000), T(10000000), T(100000000)};

/// T holds every whole number up to this one exactly.
template <class T>
constexpr std::uint64_t largestExact = std::uint64_t(1) << std::numeric_limits<T>::digits;

/// A run of at most 8 decimal digits.
struct digitRun {
    std::uint64_t value;
    int length;
};

/// Multiplies by 10^high in the upper half of a word, and by 10^low in the lower one.
constexpr std::uint64_t factors(int high, int low) {
    return tenTo<std::uint64_t>[high] << 32 | tenTo<std::uint64_t>[low];
}

/// The digits from `p` on, where 8 characters can be read: all at once, since a loop over numbers
/// of changing length is mostly mispredicted branches.
[[gnu::always_inline]] inline digitRun readDigits(const char* p) {
    constexpr std::uint64_t bytes = 0x0101010101010101U; // times b: b in every byte
    constexpr unsigned topBit = 0x80;
    // By byte: 0 to 9 for a digit; for others the top bit is set in `stops`, of which the lowest
    // counts.
    std::uint64_t text = littleEndian::load<std::uint64_t>(p) ^ bytes * '0';
    const std::uint64_t stops = ((text + bytes * (topBit - 10)) | text) & (bytes * topBit);
    const int length = stops == 0 ? 8 : __builtin_ctzll(stops) / 8;
    if (length == 0) {
        return {0, 0};
    }
    // Digits to the upper end, zeros before them; then pairs are joined, in every second byte. The
    // sum of the four, each times its power of ten, comes together in the upper half.
    text <<= 8 * (8 - length);
    text = text * 10 + (text >> 8);
    constexpr std::uint64_t oddPairs = 0x000000FF000000FFU;
    text = ((text & oddPairs) * factors(6, 2) + ((text >> 16) & oddPairs) * factors(4, 0)) >> 32;
    return {text, length};
}

/// Reads a number of few digits without an exponent, which most are; nullptr for others. There are
/// at least `usualLength` characters.
template <class T>
const char* readShort(const char* begin, T& value) {
    const bool isNegative = *begin == '-';
    const char* last = begin + (isNegative ? 1 : 0);
    const digitRun whole = readDigits(last);
    digitRun decimals{0, 0};
    last += whole.length;
    if (*last == '.') {
        decimals = readDigits(++last);
        last += decimals.length;
    }
    const std::uint64_t number =
        whole.value * tenTo<std::uint64_t>[decimals.length] + decimals.value;
    if (whole.length + decimals.length == 0 || isNumeric(*last) || number > largestExact<T>) {
        return nullptr;
    }
    const T magnitude = static_cast<T>(number) / tenTo<T>[decimals.length];
    value = isNegative ? -magnitude : magnitude;
    return last;
}

/// Reads a plain number in [begin, end), of `usualLength` at least, and returns where it ends;
/// nullptr for whatever takes a closer look: no number, one out of range, or one that the stream
/// would read further into.
template <class T>
const char* readPlain(const char* begin, const char* end, T& value) {
    if constexpr (std::is_floating_point_v<T>) {
        if (const char* last = readShort(begin, value)) {
            return last;
        }
    }
    const char* digits = begin + (*begin == '-' ? 1 : 0);
    // Words such as "nan" are no numbers to the stream.
    if (!(isDigit(*digits) || *digits == '.')) {
        return nullptr;
    }
    T number(0);
    const auto [last, error] = std::from_chars(begin, end, number);
    if (error != std::errc() || last == end || *last == 'e' || *last == 'E') {
        return nullptr;
    }
    value = number;
    return last;
}

} // namespace

textScanner::textScanner(std::istream& source, std::size_t longestNumber)
    : in_(source), block_(blockSize), next_(block_.data()), end_(block_.data()),
      longestNumber_(longestNumber), hasFailed_(!source.good()) {}

/// What every extraction asks first: reading on after the end is a failure.
bool textScanner::startExtraction() {
    hasFailed_ = hasFailed_ || ended_;
    return !hasFailed_;
}

/// Whether there is a next character; the end of the input is noted.
bool textScanner::atCharacter() {
    ended_ = next_ == end_ && !refill();
    return !ended_;
}

/// Brings more of the stream into the block, behind the characters not read yet; false at its end.
bool textScanner::refill() {
    const auto kept = static_cast<std::size_t>(end_ - next_);
    if (kept > block_.size() / 2) {
        // uncovered: a word longer than the block; the limits cover it
        std::vector<char> larger(2 * block_.size());
        std::memcpy(larger.data(), next_, kept);
        block_.swap(larger);
    } else {
        std::memmove(block_.data(), next_, kept);
    }
    next_ = block_.data();
    in_.read(block_.data() + kept, static_cast<std::streamsize>(block_.size() - kept));
    const auto added = static_cast<std::size_t>(in_.gcount());
    end_ = next_ + kept + added;
    taken_ += added;
    return added > 0;
}

/// Moves on while the characters are white space, or while they are not; notes the end.
template <bool space>
void textScanner::skipWhile() {
    do {
        const char* p = next_;
        while (p != end_ && isSpace(*p) == space) {
            ++p;
        }
        next_ = p;
    } while (next_ == end_ && refill());
    ended_ = next_ == end_;
}

void textScanner::skipSpace() {
    if (startExtraction()) {
        skipWhile<true>();
    }
}

void textScanner::skipBlanks() {
    if (!startExtraction()) {
        return;
    }
    while (atCharacter() && (*next_ == ' ' || *next_ == '\t')) {
        ++next_;
    }
}

void textScanner::skipWord() {
    if (!startExtraction()) {
        return;
    }
    skipWhile<true>();
    hasFailed_ = ended_;
    if (!ended_) {
        skipWhile<false>();
    }
}

void textScanner::skipLine() {
    if (!startExtraction()) {
        return;
    }
    hasFailed_ = !atCharacter();
    while (!ended_) {
        const auto left = static_cast<std::size_t>(end_ - next_);
        if (const void* newline = std::memchr(next_, '\n', left)) {
            next_ = static_cast<const char*>(newline) + 1;
            return;
        }
        next_ = end_;
        atCharacter();
    }
}

int textScanner::peek() {
    return startExtraction() && atCharacter() ? static_cast<unsigned char>(*next_) : -1;
}

template <class T>
bool textScanner::read(T& value) {
    if (!startExtraction()) {
        return false;
    }
    skipWhile<true>();
    if (ended_) {
        hasFailed_ = true;
        return false;
    }
    if (end_ - next_ >= usualLength) {
        if (const char* last = readPlain(next_, end_, value)) {
            next_ = last;
            return true;
        }
    }
    return readAsStream(value);
}

/// Gathers all that could belong to the number and leaves it to a stream.
template <class T>
bool textScanner::readAsStream(T& value) {
    std::ptrdiff_t length = 0;
    while ((length < end_ - next_ || refill()) && isNumeric(next_[length])) {
        if (static_cast<std::size_t>(++length) > longestNumber_) {
            hasFailed_ = true;
            return false;
        }
    }
    const bool isLast = length == end_ - next_;
    classicText text(std::string_view(next_, static_cast<std::size_t>(length)));
    value = T(0);
    text >> value;
    hasFailed_ = text.fail();
    const auto left = text.rdbuf()->in_avail();
    next_ += length - (left > 0 ? left : 0);
    ended_ = isLast && next_ == end_;
    return !hasFailed_;
}

template bool textScanner::read<float>(float&);
template bool textScanner::read<double>(double&);
template bool textScanner::read<int>(int&);

} // namespace sorvik
