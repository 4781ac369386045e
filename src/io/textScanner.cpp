#include "io/textScanner.hpp"

#include "io/classicText.hpp"

#include <charconv>
#include <cstring>

namespace {

constexpr std::size_t blockSize = std::size_t(1) << 18;
/// Characters in the block from which on a number is tried without asking for more.
constexpr std::ptrdiff_t usualLength = 48;

bool isSpace(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Whether `c` can stand anywhere in what the stream takes for a number.
bool isNumeric(char c) {
    return isDigit(c) || c == '+' || c == '-' || c == '.' || c == 'e' || c == 'E';
}

/// Reads a plain number in [begin, end), and returns where it ends; nullptr for whatever takes a
/// closer look: no number, one out of range, or one that the stream would read further into.
template <class T>
const char* readPlain(const char* begin, const char* end, T& value) {
    const char* digits = begin + (*begin == '-' ? 1 : 0);
    // Words such as "nan" are no numbers to the stream.
    if (digits == end || !(isDigit(*digits) || *digits == '.')) {
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

textScanner::textScanner(std::istream& source)
    : in(source), block(blockSize), next(block.data()), end(block.data()),
      hasFailed(!source.good()) {}

/// What every extraction asks first: reading on after the end is a failure.
bool textScanner::startExtraction() {
    hasFailed = hasFailed || ended;
    return !hasFailed;
}

/// Whether there is a next character; the end of the input is noted.
bool textScanner::atCharacter() {
    ended = next == end && !refill();
    return !ended;
}

/// Brings more of the stream into the block, behind the characters not read yet; false at its end.
bool textScanner::refill() {
    const auto kept = static_cast<std::size_t>(end - next);
    if (kept > block.size() / 2) {
        std::vector<char> larger(2 * block.size());
        std::memcpy(larger.data(), next, kept);
        block.swap(larger);
    } else {
        std::memmove(block.data(), next, kept);
    }
    next = block.data();
    in.read(block.data() + kept, static_cast<std::streamsize>(block.size() - kept));
    const auto added = static_cast<std::size_t>(in.gcount());
    end = next + kept + added;
    return added > 0;
}

void textScanner::skipSpaceCharacters() {
    while (atCharacter() && isSpace(*next)) {
        ++next;
    }
}

void textScanner::skipSpace() {
    if (startExtraction()) {
        skipSpaceCharacters();
    }
}

void textScanner::skipWord() {
    if (!startExtraction()) {
        return;
    }
    skipSpaceCharacters();
    hasFailed = ended;
    while (!ended && !isSpace(*next)) {
        ++next;
        atCharacter();
    }
}

void textScanner::skipLine() {
    if (!startExtraction()) {
        return;
    }
    hasFailed = !atCharacter();
    while (!ended) {
        const auto left = static_cast<std::size_t>(end - next);
        if (const void* newline = std::memchr(next, '\n', left)) {
            next = static_cast<const char*>(newline) + 1;
            return;
        }
        next = end;
        atCharacter();
    }
}

int textScanner::peek() {
    return startExtraction() && atCharacter() ? static_cast<unsigned char>(*next) : -1;
}

template <class T>
bool textScanner::read(T& value) {
    if (!startExtraction()) {
        return false;
    }
    skipSpaceCharacters();
    if (ended) {
        hasFailed = true;
        return false;
    }
    if (end - next >= usualLength) {
        if (const char* last = readPlain(next, end, value)) {
            next = last;
            return true;
        }
    }
    return readAsStream(value);
}

/// Gathers all that could belong to the number and lets a stream have the say.
template <class T>
bool textScanner::readAsStream(T& value) {
    std::ptrdiff_t length = 0;
    while ((length < end - next || refill()) && isNumeric(next[length])) {
        ++length;
    }
    const bool isLast = length == end - next;
    classicText text(std::string_view(next, static_cast<std::size_t>(length)));
    value = T(0);
    text >> value;
    hasFailed = text.fail();
    const auto left = text.rdbuf()->in_avail();
    next += length - (left > 0 ? left : 0);
    ended = isLast && next == end;
    return !hasFailed;
}

template bool textScanner::read<float>(float&);
template bool textScanner::read<double>(double&);
template bool textScanner::read<int>(int&);
