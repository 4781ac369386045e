#include "check/inputText.hpp"

#include "base/numberText.hpp"
#include "io/entryReader.hpp"
#include "io/sorvikIO.hpp"

#include <algorithm>

namespace sorvik {
namespace {

/// The line that a place of a text is in. Places are asked for in ascending order.
class lineCounter {
public:
    lineCounter(std::string_view text, int firstLine) : text_(text), line_(firstLine) {}

    int at(std::size_t place) {
        const auto begin = text_.begin() + static_cast<std::ptrdiff_t>(counted_);
        const auto end = text_.begin() + static_cast<std::ptrdiff_t>(std::max(place, counted_));
        line_ += static_cast<int>(std::count(begin, end, '\n'));
        counted_ = std::max(place, counted_);
        return line_;
    }

private:
    std::string_view text_;
    std::size_t counted_ = 0;
    int line_;
};

bool holdsText(const std::string& content) {
    return content.compare(0, 2, "//") != 0 &&
           std::any_of(content.begin(), content.end(),
                       [](char c) { return isLetter(c) || isDigit(c); });
}

/// Goes through the blocks as the reader of the library does.
class scanner {
public:
    scanner(char assign, inputText& result) : assign_(assign), result_(result) {}

    /// By their keys within this block, the places of the entries that it keeps.
    using places = std::map<std::string, std::size_t>;

    places scan(std::string_view text, int firstLine, const std::string& prefix) {
        places own;
        std::map<std::string, int> blocks; // and their lines
        entryReader reader(text, assign_);
        lineCounter lines(text, firstLine);
        std::string key;
        std::string value;
        std::size_t end = 0;
        for (auto kind = reader.next(key, value); kind != entryKind::none;
             kind = reader.next(key, value)) {
            noteIgnored(text.substr(end, reader.begin() - end), lines.at(end));
            end = reader.end();
            const int line = lines.at(reader.split());
            const std::size_t place = add(reader, text, prefix + key, line);
            const int valueLine = lines.at(reader.valueBegin());
            entry(place).isBlock = kind == entryKind::nested;
            if (settle(own, key, value, place) && kind == entryKind::nested) {
                const auto [former, isFirst] = blocks.emplace(key, line);
                if (!isFirst) {
                    entry(place).outcome = textEntry::fate::merged;
                    entry(place).firstLine = former->second;
                }
                const std::string_view inner =
                    entry(place).isClosed ? entry(place).raw : result_.unclosed.emplace_back(value);
                addBlock(own, key, scan(inner, valueLine, prefix + key + sorvikIO::memberDLM));
            }
        }
        noteIgnored(text.substr(std::min(end, text.size())), lines.at(end));
        return own;
    }

private:
    textEntry& entry(std::size_t place) { return result_.entries[place]; }

    std::size_t add(const entryReader& reader, std::string_view text, std::string key, int line) {
        textEntry found;
        found.key = std::move(key);
        found.line = line;
        found.opener = reader.opener();
        found.isClosed = reader.isClosed();
        const std::size_t begin = reader.valueBegin();
        const bool hasCloser = found.opener != '\0' && found.isClosed;
        const std::size_t end = reader.end() - (hasCloser ? 1 : 0);
        found.raw = text.substr(begin, std::max(end, begin) - begin);
        result_.entries.push_back(std::move(found));
        return result_.entries.size() - 1;
    }

    /// Whether the entry counts; a block still has to be read.
    bool settle(places& own, const std::string& key, const std::string& value, std::size_t place) {
        const auto former = own.find(key);
        if (value.empty()) {
            entry(place).outcome = textEntry::fate::empty;
        } else if (former != own.end()) {
            lose(place, former->second);
        } else if (!entry(place).isBlock) {
            own.emplace(key, place);
        }
        return entry(place).outcome == textEntry::fate::kept;
    }

    void lose(std::size_t place, std::size_t winner) {
        entry(place).outcome =
            entry(place).isBlock ? textEntry::fate::dropped : textEntry::fate::repeated;
        entry(place).firstLine = entry(winner).line;
    }

    void addBlock(places& own, const std::string& key, places&& inner) {
        const std::string prefix = key + sorvikIO::memberDLM;
        auto next = own.lower_bound(prefix);
        for (const auto& [name, innerPlace] : inner) {
            const std::size_t before = own.size();
            next = own.emplace_hint(next, prefix + name, innerPlace);
            if (own.size() == before) {
                lose(innerPlace, next->second);
            }
            ++next;
        }
    }

    void noteIgnored(std::string_view text, int line) {
        std::size_t begin = 0;
        while (begin < text.size()) {
            const std::size_t end = std::min(text.find('\n', begin), text.size());
            if (holdsText(contentOfLine(text.substr(begin, end - begin)))) {
                result_.ignoredLines.push_back(line);
            }
            begin = end + 1;
            ++line;
        }
    }

    char assign_;
    inputText& result_;
};

} // namespace

inputText scanInput(std::string_view text, char assign) {
    inputText result;
    result.kept = scanner(assign, result).scan(text, 1, "");
    return result;
}

std::string contentOfLine(std::string_view line) {
    std::string content(line);
    sorvikIO::stripFromComment(content);
    sorvikIO::strip(content);
    return content;
}

} // namespace sorvik
