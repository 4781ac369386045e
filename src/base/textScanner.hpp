#pragma once

#include <cstddef>
#include <iosfwd>
#include <limits>
#include <vector>

namespace sorvik {

/// Reads white space, words, lines and numbers from a stream through large blocks.
///
/// Every member does what the stream's own extraction of that kind does in the classic locale: the
/// same values, the same end positions and the same states for any input. The stream is read ahead,
/// so that nothing else may read from it.
class textScanner {
public:
    /// The stream must outlive the scanner. A number of more than `longestNumber` characters, with
    /// leading zeros, is a failure, so that memory is bounded.
    explicit textScanner(std::istream& source,
                         std::size_t longestNumber = std::numeric_limits<std::size_t>::max());

    /// Neither at the end nor failed.
    bool good() const { return !ended_ && !hasFailed_; }
    bool failed() const { return hasFailed_; }
    /// Characters read so far.
    std::size_t position() const { return taken_ - static_cast<std::size_t>(end_ - next_); }

    /// As `in >> std::ws`.
    void skipSpace();
    /// Moves past blanks and tabs, but no further than the end of the line.
    void skipBlanks();
    /// As `in >> word`.
    void skipWord();
    /// As `std::getline(in, line)`.
    void skipLine();
    /// As `in.peek()`: the next character, or -1.
    int peek();

    /// As `in >> value` for float, double and int: 0 where there is no number, the nearest limit
    /// where it is out of range, untouched where the stream is no longer good. Returns whether a
    /// number was read.
    template <class T>
    bool read(T& value);

private:
    bool startExtraction();
    bool atCharacter();
    bool refill();
    template <bool space>
    void skipWhile();
    template <class T>
    bool readAsStream(T& value);

    std::istream& in_;
    std::vector<char> block_;
    const char* next_;
    const char* end_;
    std::size_t longestNumber_;
    std::size_t taken_ = 0; ///< characters that the block has held so far
    bool ended_ = false;
    bool hasFailed_;
};

} // namespace sorvik
