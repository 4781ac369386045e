#include "io/sorvikIO.hpp"

#include "base/classicText.hpp"
#include "base/excerpt.hpp"
#include "io/printer.hpp"

#include <algorithm>
#include <istream>
#include <iterator>
#include <string_view>

// Text becomes entries line by line; a value that begins with a bracket or a quote is read as a
// block across lines, and what follows the block on its last line is read as a line of its own.

const std::string sorvikIO::notFoundStr = "KEY_NOT_FOUND";

namespace {

constexpr char unwanted[] = {'(', ')', '[', ']', '{', '}', '<', '>', ',', ';', '\t', '"', '\''};

/// Opening to closing characters.
const std::map<char, char>& bracketPairs() {
    static const std::map<char, char> pairs = {{'(', ')'}, {'{', '}'},   {'[', ']'},
                                               {'<', '>'}, {'\'', '\''}, {'"', '"'}};
    return pairs;
}

/// Whether a block holds entries. A drive path such as C:\ in a JSON string is no assignment.
bool isNested(const std::string& block, char assign) {
    const std::size_t first = block.find(assign);
    return first != std::string::npos && first != block.find(":\\");
}

/// Reads the entries of a text one after the other. What is found further on in a line is kept for
/// the next entry, so that a line of many blocks is searched once and not once a block.
class entryReader {
public:
    entryReader(std::string_view content, char assignDLM)
        : text_(content), in_(content), assign_(assignDLM) {}

    /// As `sorvikIO::readNextEntry`.
    int next(std::string& key, std::string& value) {
        while (!isAtEnd_) {
            lineEnd_ = find('\n', lineEnd_);
            const std::size_t end = std::min(lineEnd_, text_.size());
            percent_ = find('%', percent_);
            hash_ = find('#', hash_);
            const std::size_t comment = percent_ < end ? percent_ : std::min(hash_, end);
            split_ = find(assign_, split_);
            if (split_ >= comment) {
                moveTo(lineEnd_);
                continue;
            }
            key = text_.substr(position_, split_ - position_);
            sorvikIO::strip(key);
            sorvikIO::stripFromUnwanted(key);
            const std::string_view rest = text_.substr(split_ + 1, comment - split_ - 1);
            const std::size_t first = rest.find_first_not_of(" \t");
            if (first == std::string_view::npos || bracketPairs().count(rest[first]) == 0) {
                value = rest;
                sorvikIO::strip(value);
                sorvikIO::stripFromUnwanted(value);
                moveTo(lineEnd_);
                return 1;
            }
            in_.clear();
            in_.seekg(static_cast<std::streamoff>(split_ + 1));
            value = sorvikIO::extractBlock(in_);
            isAtEnd_ = !in_.good();
            position_ = isAtEnd_ ? text_.size() : static_cast<std::size_t>(in_.tellg());
            return isNested(value, assign_) ? 2 : 1;
        }
        return 0;
    }

    /// Where the next entry is looked for.
    std::size_t place() const { return position_; }
    bool ended() const { return isAtEnd_; }
    /// Newlines of the text before the value of the last entry.
    std::ptrdiff_t newlinesBefore() const {
        return std::count(text_.data(), text_.data() + split_, '\n');
    }

private:
    /// The first `c` at or behind the position, where `known` is the first behind an earlier one.
    std::size_t find(char c, std::size_t known) const {
        return known != unknown && known >= position_ ? known : text_.find(c, position_);
    }

    /// Stands behind the line end, or at the end of a text that has none left.
    void moveTo(std::size_t newline) {
        isAtEnd_ = newline == std::string_view::npos;
        position_ = isAtEnd_ ? text_.size() : newline + 1;
    }

    static constexpr std::size_t unknown = std::string_view::npos - 1;

    std::string_view text_;
    sorvik::classicText in_;
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
        while (const int kind = entries.next(key, value)) {
            if (value.empty() || map.count(key) != 0) {
                continue;
            }
            if (kind == 1) {
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
        return {};
    }
    const std::string text = restOf(in);
    in.setstate(std::ios::eofbit);
    return blockReader(assign, member).read(text, nullptr);
}

int sorvikIO::readNextEntry(std::istream& in, std::string& key, std::string& value, char assign) {
    if (!in.good()) {
        return 0;
    }
    const std::streampos start = in.tellg();
    const std::string text = restOf(in);
    entryReader entries(text, assign);
    const int kind = entries.next(key, value);
    in.clear();
    in.seekg(start + static_cast<std::streamoff>(entries.place()));
    in.setstate(entries.ended() ? std::ios::eofbit : std::ios::goodbit);
    return kind;
}

std::string sorvikIO::extractBlock(std::istream& in) {
    char opener = 0;
    in >> opener;
    const auto pair = bracketPairs().find(opener);
    const char closer = pair == bracketPairs().end() ? '\0' : pair->second;

    std::string block;
    std::string part;
    std::ptrdiff_t depth = 1;
    while (in.good()) {
        std::getline(in, part, closer);
        depth += std::count(part.begin(), part.end(), opener) - 1;
        block += part;
        if (depth == 0) {
            break;
        }
        block += closer;
    }
    return block;
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
    return std::find(std::begin(unwanted), std::end(unwanted), c) != std::end(unwanted);
}
