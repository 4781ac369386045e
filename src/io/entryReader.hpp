#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

namespace sorvik {

/// What an entry holds; its values are those that `sorvikIO::readNextEntry` returns.
enum class entryKind { none, plain, nested };

/// A key, or a value that opens no block, without blanks at its ends, brackets and comments.
std::string strippedText(std::string_view part);
/// Whether the first character of a value, blanks apart, opens a block.
bool beginsBlock(std::string_view value);
/// Whether a block holds entries. A drive path such as C:\ in a JSON string is no assignment.
bool holdsEntries(const std::string& block, char assign);

/// Joins the text of a block from its parts: `nextPart` gives what precedes the next `closer`, or
/// the end of the text, and false when there is nothing more.
template <class NextPart>
std::string joinBlock(char opener, char closer, NextPart nextPart) {
    std::string block;
    std::ptrdiff_t depth = 1;
    for (std::string part; nextPart(part);) {
        depth += std::count(part.begin(), part.end(), opener) - 1;
        block += part;
        if (depth == 0) {
            break;
        }
        block += closer;
    }
    return block;
}

/// Reads the entries of a text one after the other. What is found further on in a line is kept for
/// the next entry, so that a line of many blocks is searched once and not once a block.
class entryReader {
public:
    /// The text must outlive the reader.
    entryReader(std::string_view text, char assignDLM) : text_(text), assign_(assignDLM) {}

    /// As `sorvikIO::readNextEntry`.
    entryKind next(std::string& key, std::string& value);

    // ---- Of the last entry ----

    /// Newlines of the text before the value.
    std::ptrdiff_t newlinesBefore() const;
    /// Where the line of the entry begins.
    std::size_t begin() const { return begin_; }
    /// Where the assignment is.
    std::size_t split() const { return split_; }
    /// Where the value begins: that of a block after its bracket.
    std::size_t valueBegin() const { return valueBegin_; }
    /// Where reading goes on: after the line, or after the block.
    std::size_t end() const { return position_; }
    /// The character that opens the block; '\0' where the value is none.
    char opener() const { return opener_; }
    /// Whether the bracket that closes the block was found; true where the value is none.
    bool isClosed() const { return isClosed_; }

private:
    std::size_t contentEnd();
    std::string takeBlock();

    /// The first `c` from the position on, where `known` is the first from an earlier one on.
    std::size_t find(char c, std::size_t known) const {
        return known != unknown && known >= position_ ? known : text_.find(c, position_);
    }

    /// Moves behind the character that was found, or to the end where none was.
    void moveBehind(std::size_t found) {
        isAtEnd_ = found == std::string_view::npos;
        position_ = isAtEnd_ ? text_.size() : found + 1;
    }

    static constexpr std::size_t unknown = std::string_view::npos - 1;

    std::string_view text_;
    char assign_;
    std::size_t position_ = 0;
    std::size_t begin_ = 0;
    std::size_t split_ = unknown;
    std::size_t valueBegin_ = 0;
    std::size_t lineEnd_ = unknown;
    std::size_t percent_ = unknown;
    std::size_t hash_ = unknown;
    char opener_ = '\0';
    bool isClosed_ = true;
    bool isAtEnd_ = false;
};

} // namespace sorvik
