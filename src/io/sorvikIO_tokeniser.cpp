#include "io/sorvikIO.hpp"

#include "base/classicLocale.hpp"
#include "base/excerpt.hpp"
#include "io/brackets.hpp"
#include "io/printer.hpp"

#include <algorithm>
#include <istream>
#include <iterator>
#include <string_view>

// Text becomes entries line by line; a value that begins with a bracket or a quote is read as a
// block across lines, and what follows the block on its last line is read as a line of its own.

const std::string sorvikIO::notFoundStr = "KEY_NOT_FOUND";

namespace {

/// What `readNextEntry` finds; its values are those that it returns.
enum class entryKind { none, plain, nested };

/// What `stripFromUnwanted` turns into blanks besides brackets.
constexpr std::string_view separators = ",;\t";

/// Whether a block holds entries. A drive path such as C:\ in a JSON string is no assignment.
bool isNested(const std::string& block, char assign) {
    const std::size_t first = block.find(assign);
    return first != std::string::npos && first != block.find(":\\");
}

/// A key, or a value that opens no block.
std::string stripped(std::string_view part) {
    std::string text(part);
    sorvikIO::strip(text);
    sorvikIO::stripFromUnwanted(text);
    return text;
}

/// Whether the first character of a value, blanks apart, opens a block.
bool beginsBlock(std::string_view value) {
    const std::size_t first = value.find_first_not_of(" \t");
    return first != std::string_view::npos && sorvik::brackets::opens(value[first]);
}

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
    entryReader(std::string_view text, char assignDLM) : text_(text), assign_(assignDLM) {}

    /// As `sorvikIO::readNextEntry`.
    entryKind next(std::string& key, std::string& value) {
        while (!isAtEnd_) {
            const std::size_t end = contentEnd();
            split_ = find(assign_, split_);
            if (split_ >= end) {
                moveBehind(lineEnd_);
                continue;
            }
            key = stripped(text_.substr(position_, split_ - position_));
            const std::string_view rest = text_.substr(split_ + 1, end - split_ - 1);
            if (beginsBlock(rest)) {
                value = takeBlock();
                return isNested(value, assign_) ? entryKind::nested : entryKind::plain;
            }
            value = stripped(rest);
            moveBehind(lineEnd_);
            return entryKind::plain;
        }
        return entryKind::none;
    }

    /// Newlines of the text before the value of the last entry.
    std::ptrdiff_t newlinesBefore() const {
        return std::count(text_.data(), text_.data() + split_, '\n');
    }

private:
    /// Where the line, or the comment in it, ends what is read of it.
    std::size_t contentEnd() {
        lineEnd_ = find('\n', lineEnd_);
        percent_ = find('%', percent_);
        hash_ = find('#', hash_);
        const std::size_t end = std::min(lineEnd_, text_.size());
        return percent_ < end ? percent_ : std::min(hash_, end);
    }

    /// Reads the block that follows the assignment.
    std::string takeBlock() {
        position_ = text_.find_first_not_of(" \t", split_ + 1);
        const char opener = text_[position_++];
        const char closer = sorvik::brackets::closerOf(opener);
        return joinBlock(opener, closer, [&](std::string& part) {
            const bool hasMore = !isAtEnd_;
            if (hasMore) {
                const std::size_t end = text_.find(closer, position_);
                part = text_.substr(position_, end - position_);
                moveBehind(end);
            }
            return hasMore;
        });
    }

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
    std::size_t split_ = unknown;
    std::size_t lineEnd_ = unknown;
    std::size_t percent_ = unknown;
    std::size_t hash_ = unknown;
    bool isAtEnd_ = false;
};

/// A block whose entries are being read.
struct openBlock {
    const entryReader& entries;
    int depth;
    const openBlock* parent;
};

[[noreturn]] void failTooDeep(const openBlock& block) {
    std::ptrdiff_t line = 1;
    for (const openBlock* b = &block; b != nullptr; b = b->parent) {
        line += b->entries.newlinesBefore();
    }
    printer::fatalError("Line " + std::to_string(line) + " of the input opens block number " +
                        std::to_string(block.depth) + " within blocks. At most " +
                        std::to_string(sorvikIO::maxNesting) + " are expected.");
}

/// Reads a text and the blocks in it.
class blockReader {
public:
    blockReader(char assignDLM, char memberDLM) : assign_(assignDLM), member_(memberDLM) {}

    std::map<std::string, std::string> read(std::string_view text, const openBlock* parent) {
        std::map<std::string, std::string> map;
        std::string key;
        std::string value;
        entryReader entries(text, assign_);
        const openBlock block{entries, parent == nullptr ? 1 : parent->depth + 1, parent};
        for (auto kind = entries.next(key, value); kind != entryKind::none;
             kind = entries.next(key, value)) {
            if (value.empty() || map.count(key) != 0) {
                continue;
            }
            if (kind == entryKind::plain) {
                sorvikIO::stripFromUnwanted(value);
                map.emplace(key, value);
                continue;
            }
            if (block.depth > sorvikIO::maxNesting) {
                failTooDeep(block);
            }
            addBlock(map, key, read(value, &block));
        }
        return map;
    }

private:
    void addBlock(std::map<std::string, std::string>& map, const std::string& key,
                  std::map<std::string, std::string>&& entries) {
        const std::string prefix = key + member_;
        auto next = map.lower_bound(prefix);
        for (auto& [subKey, subValue] : entries) {
            const std::size_t before = map.size();
            next = std::next(map.emplace_hint(next, prefix + subKey, std::move(subValue)));
            addedText_ += map.size() > before ? prefix.size() : 0;
            if (addedText_ > sorvikIO::maxAddedText) {
                printer::fatalError("The names of blocks, such as " + sorvik::excerpt(key) +
                                    ", add more than " + std::to_string(sorvikIO::maxAddedText) +
                                    " characters to the keys of the input.");
            }
        }
    }

    char assign_;
    char member_;
    std::size_t addedText_ = 0;
};

/// The rest of the stream.
std::string restOf(std::istream& in) {
    return {std::istreambuf_iterator<char>(in), {}};
}

} // namespace

std::map<std::string, std::string> sorvikIO::readInputStream(std::istream& in, char assign,
                                                             char member) {
    if (!in.good()) {
        return {}; // uncovered: a stream at its end
    }
    const std::string text = restOf(in);
    in.setstate(std::ios::eofbit);
    return blockReader(assign, member).read(text, nullptr);
}

int sorvikIO::readNextEntry(std::istream& in, std::string& key, std::string& value, char assign) {
    std::string line;
    while (in.good()) {
        const std::streampos start = in.tellg();
        std::getline(in, line);
        stripFromComment(line);
        const std::size_t split = line.find(assign);
        if (split == std::string::npos) {
            continue;
        }
        key = stripped(line.substr(0, split));
        const std::string rest = line.substr(split + 1);
        if (!beginsBlock(rest)) {
            value = stripped(rest);
            return static_cast<int>(entryKind::plain);
        }
        in.seekg(start + static_cast<std::streamoff>(split + 1));
        value = extractBlock(in);
        return static_cast<int>(isNested(value, assign) ? entryKind::nested : entryKind::plain);
    }
    in.setstate(std::ios::failbit);
    return static_cast<int>(entryKind::none);
}

std::string sorvikIO::extractBlock(std::istream& in) {
    const sorvik::classicLocale whileReading(in);
    char opener = 0;
    in >> opener;
    const char closer = sorvik::brackets::closerOf(opener);
    return joinBlock(opener, closer, [&](std::string& part) {
        const bool hasMore = in.good();
        if (hasMore) {
            std::getline(in, part, closer);
        }
        return hasMore;
    });
}

void sorvikIO::stripFromComment(std::string& line) {
    const std::size_t percent = line.find('%');
    const std::size_t cut = percent != std::string::npos ? percent : line.find('#');
    if (cut != std::string::npos) {
        line.erase(cut);
    }
}

void sorvikIO::strip(std::string& s) {
    s.erase(0, std::min(s.find_first_not_of(" \t"), s.size()));
    if (!s.empty() && s.back() == '\r') {
        s.pop_back();
    }
    while (s.size() > 1 && (s.back() == ' ' || s.back() == '\t')) {
        s.pop_back();
    }
}

void sorvikIO::stripFromUnwanted(std::string& s) {
    std::string kept;
    kept.reserve(s.size());
    for (std::size_t i = 0; i < s.size(); ++i) {
        if (s[i] == '%' || (s[i] == '/' && i + 1 < s.size() && s[i + 1] == '/')) {
            // The newline itself is kept and looked at next.
            i = std::min(s.find('\n', i), s.size()) - 1;
        } else if (!checkUnwanted(s[i])) {
            kept += s[i];
        } else if (i + 1 < s.size()) {
            kept += ' ';
        }
    }
    strip(kept);
    s = std::move(kept);
}

bool sorvikIO::checkUnwanted(char c) {
    const auto isIn = [c](std::string_view text) { return text.find(c) != std::string_view::npos; };
    return isIn(sorvik::brackets::pairs) || isIn(separators);
}
