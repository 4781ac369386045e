#include "io/sorvikIO.hpp"

#include "base/classicLocale.hpp"
#include "base/excerpt.hpp"
#include "io/brackets.hpp"
#include "io/entryReader.hpp"
#include "io/printer.hpp"

#include <algorithm>
#include <istream>
#include <iterator>
#include <string_view>

using sorvik::entryKind;
using sorvik::entryReader;

// Text becomes entries line by line; a value that begins with a bracket or a quote is read as a
// block across lines, and what follows the block on its last line is read as a line of its own.

const std::string sorvikIO::notFoundStr = "KEY_NOT_FOUND";

namespace {

/// What `stripFromUnwanted` turns into blanks besides brackets.
constexpr std::string_view separators = ",;\t";

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
        key = sorvik::strippedText(line.substr(0, split));
        const std::string rest = line.substr(split + 1);
        if (!sorvik::beginsBlock(rest)) {
            value = sorvik::strippedText(rest);
            return static_cast<int>(entryKind::plain);
        }
        in.seekg(start + static_cast<std::streamoff>(split + 1));
        value = extractBlock(in);
        return static_cast<int>(sorvik::holdsEntries(value, assign) ? entryKind::nested
                                                                    : entryKind::plain);
    }
    in.setstate(std::ios::failbit);
    return static_cast<int>(entryKind::none);
}

std::string sorvikIO::extractBlock(std::istream& in) {
    const sorvik::classicLocale whileReading(in);
    char opener = 0;
    in >> opener;
    const char closer = sorvik::brackets::closerOf(opener);
    return sorvik::joinBlock(opener, closer, [&](std::string& part) {
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
