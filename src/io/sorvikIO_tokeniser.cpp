#include "io/sorvikIO.hpp"

#include "io/printer.hpp"
#include "io/viewBuffer.hpp"

#include <algorithm>
#include <istream>
#include <limits>

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

/// A block whose text is being read: the stream that holds it and where its entry begins in there.
struct openBlock {
    std::istream& in;
    std::streampos entry;
    int depth;
    const openBlock* parent;
};

/// Newlines of the stream before `end`.
long newlinesBefore(std::istream& in, std::streampos end) {
    in.clear();
    in.seekg(0);
    long count = 0;
    for (std::streamoff left = end; left > 0 && in.good(); --left) {
        count += in.get() == '\n' ? 1 : 0;
    }
    return count;
}

[[noreturn]] void failTooDeep(const openBlock& block) {
    long line = 1;
    for (const openBlock* b = &block; b != nullptr; b = b->parent) {
        line += newlinesBefore(b->in, b->entry);
    }
    printer::fatalError("Line " + std::to_string(line) + " of the input opens block number " +
                        std::to_string(block.depth) + " within blocks. At most " +
                        std::to_string(sorvikIO::maxNesting) + " are expected.");
}

/// Whether a block holds entries. A drive path such as C:\ in a JSON string is no assignment.
bool isNested(const std::string& block, char assign) {
    const std::size_t first = block.find(assign);
    return first != std::string::npos && first != block.find(":\\");
}

/// Reads the entry and stands the stream behind it; `entry` receives the position after `assign`.
int readEntry(std::istream& in, std::string& key, std::string& value, char assign,
              std::streampos& entry) {
    std::string line;
    while (in.good()) {
        const std::streampos lineStart = in.tellg();
        std::getline(in, line);
        sorvikIO::stripFromComment(line);
        const std::size_t split = line.find(assign);
        if (split == std::string::npos) {
            continue;
        }
        key = line.substr(0, split);
        value = line.substr(split + 1);
        sorvikIO::strip(key);
        sorvikIO::strip(value);
        sorvikIO::stripFromUnwanted(key);
        entry = lineStart + static_cast<std::streamoff>(split + 1);
        if (value.empty() || bracketPairs().count(value.front()) == 0) {
            sorvikIO::stripFromUnwanted(value);
            return 1;
        }
        in.seekg(entry);
        value = sorvikIO::extractBlock(in);
        return isNested(value, assign) ? 2 : 1;
    }
    return 0;
}

std::map<std::string, std::string> readBlock(std::istream& in, char assign, char member,
                                             const openBlock* parent) {
    std::map<std::string, std::string> map;
    std::string key;
    std::string value;
    openBlock block{in, 0, parent == nullptr ? 1 : parent->depth + 1, parent};
    while (in.good()) {
        const int kind = readEntry(in, key, value, assign, block.entry);
        if (kind == 0) {
            break;
        }
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
        viewBuffer buffer(value);
        std::istream text(&buffer);
        const std::string prefix = key + member;
        for (auto& [subKey, subValue] : readBlock(text, assign, member, &block)) {
            map.emplace(prefix + subKey, std::move(subValue));
        }
    }
    return map;
}

} // namespace

std::map<std::string, std::string> sorvikIO::readInputStream(std::istream& in, char assign,
                                                             char member) {
    return readBlock(in, assign, member, nullptr);
}

int sorvikIO::readNextEntry(std::istream& in, std::string& key, std::string& value, char assign) {
    std::streampos entry;
    return readEntry(in, key, value, assign, entry);
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
