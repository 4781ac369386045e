#pragma once

#include <cstddef>
#include <list>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace sorvik {

/// An entry as it stands in the text of an input file.
struct textEntry {
    /// What becomes of it when the input is read.
    enum class fate {
        kept,
        repeated, ///< an entry of the same key comes first
        dropped,  ///< a block whose key has a plain value already
        merged,   ///< a block after one of the same key
        empty     ///< there is no value
    };

    std::string key; ///< with the blocks around it, dotted
    int line = 0;    ///< from 1
    fate outcome = fate::kept;
    int firstLine = 0;    ///< of the entry that wins over it
    bool isBlock = false; ///< whether it holds entries
    char opener = '\0';   ///< of a value in brackets or quotes
    bool isClosed = true;
    std::string_view raw; ///< the value with brackets and comments, but without outer brackets
};

/// What the map of an input file hides: entries that lose, lines, brackets.
struct inputText {
    inputText() = default;
    inputText(const inputText&) = delete; // Entries point into `unclosed`.
    inputText& operator=(const inputText&) = delete;
    inputText(inputText&&) = default;
    inputText& operator=(inputText&&) = default;
    ~inputText() = default;

    std::vector<textEntry> entries; ///< in the order of the text
    /// The place in `entries` of every key that is kept: those of the map before its aliases.
    std::map<std::string, std::size_t> kept;
    /// Texts of blocks that are not closed, which are read with the brackets that they lack.
    std::list<std::string> unclosed;
    std::vector<int> ignoredLines; ///< that hold text, but neither an entry nor a comment
};

/// Reads the places of all entries of a text, with `assign` between keys and values. The text must
/// outlive the result. Blocks nest as deep as `sorvikIO::readInputStream` allows.
inputText scanInput(std::string_view text, char assign);

/// A line of text without its comment and the blanks at its ends.
std::string contentOfLine(std::string_view line);

} // namespace sorvik
