// What the text of an input file hides from its map: its encoding, its dialect, and entries and
// lines that are lost without a message.
#include "base/affixes.hpp"
#include "check/inputCase.hpp"
#include "io/brackets.hpp"
#include "io/entryReader.hpp"
#include "io/sorvikIO.hpp"

#include <algorithm>

namespace sorvik {
namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view littleEndianMark = "\xFF\xFE";
constexpr std::string_view bigEndianMark = "\xFE\xFF";

bool isUtf16(std::string_view text) {
    if (startsWith(text, littleEndianMark) || startsWith(text, bigEndianMark)) {
        return true;
    }
    // Without a mark, every other byte of ASCII text is zero.
    const std::string_view head = text.substr(0, 64);
    return head.size() > 3 && 3 * std::count(head.begin(), head.end(), '\0') >
                                  static_cast<std::ptrdiff_t>(head.size());
}

location ofEntry(const textEntry& entry) {
    return location::ofKey(entry.key, entry.line);
}

/// Adds one finding for all entries that `isMeant` holds for.
template <class Predicate>
finding* addForAll(const inputCase& input, report& result, std::string_view kind,
                   const std::string& message, Predicate isMeant) {
    std::vector<location> where;
    for (const textEntry& entry : input.text.entries) {
        if (isMeant(entry)) {
            where.push_back(ofEntry(entry));
        }
    }
    return where.empty() ? nullptr : &result.add(kind, message, std::move(where));
}

/// Whether a value that opens no block holds another assignment.
bool holdsAssignment(const inputCase& input, const textEntry& entry) {
    return entry.opener == '\0' && contentOfLine(entry.raw).find(input.assign) != std::string::npos;
}

void checkBrackets(const inputCase& input, report& result) {
    for (const textEntry& entry : input.text.entries) {
        if (!entry.isClosed) {
            result.add("unclosed-bracket",
                       std::string("The ") + entry.opener + " in line " +
                           std::to_string(entry.line) + " is not closed by a " +
                           brackets::closerOf(entry.opener) +
                           ". It takes the rest of the block or file.",
                       {ofEntry(entry)});
            return; // Those below it follow from it, or are cured like it.
        }
    }
    addForAll(input, result, "hidden-block",
              std::string("A value in brackets or quotes holds '") + input.assign +
                  "' and is read as a block of entries.",
              [](const textEntry& e) { return e.isBlock && e.opener != '{'; });
}

void checkSeveral(const inputCase& input, report& result) {
    if (input.assign == ':') {
        addForAll(input, result, "compact-json",
                  "A line holds several members. The value of the first takes the others in.",
                  [&](const textEntry& e) { return holdsAssignment(input, e); });
        return;
    }
    addForAll(input, result, "several-entries",
              "A line holds several entries. The value of the first takes the others in.",
              [&](const textEntry& e) { return holdsAssignment(input, e); });
}

void checkRepeated(const inputCase& input, report& result) {
    using fate = textEntry::fate;
    const auto add = [&](const std::string& message, fate outcome) {
        return addForAll(input, result, "repeated-key", message,
                         [&](const textEntry& e) { return e.outcome == outcome; });
    };
    const auto isFirst = [&](const textEntry& e) { return e.outcome == fate::repeated; };
    const auto& entries = input.text.entries;
    const auto first = std::find_if(entries.begin(), entries.end(), isFirst);
    if (first != entries.end()) {
        add(first->key + " is given in line " + std::to_string(first->firstLine) +
                " already. The first value wins.",
            fate::repeated);
    }
    add("A block is dropped, since a plain value of the same name comes first.", fate::dropped);
    if (first != entries.end()) {
        return;
    }
    if (finding* merged = add("Blocks of the same name are merged into one.", fate::merged)) {
        merged->level = severity::note;
        merged->cure = "Nothing, unless a second object was meant.";
    }
}

/// Whether a line that is ignored is an entry of the other dialect.
bool isOtherDialect(const std::string& line, char assign) {
    if (assign == ':') {
        return line.find('=') != line.npos;
    }
    return (line.front() == '"' || line.front() == '{') && line.find(':') != line.npos;
}

void checkIgnored(const inputCase& input, report& result) {
    std::vector<location> foreign;
    std::vector<location> lost;
    std::size_t begin = 0;
    int line = 1;
    for (const int number : input.text.ignoredLines) {
        for (; line < number; ++line) {
            begin = input.content.find('\n', begin) + 1;
        }
        const std::size_t end = input.content.find('\n', begin);
        const std::string content = contentOfLine(input.content.substr(begin, end - begin));
        const bool isForeign = !content.empty() && isOtherDialect(content, input.assign);
        (isForeign ? foreign : lost).push_back(location::ofLine(number));
    }
    if (!foreign.empty()) {
        result.add("wrong-dialect",
                   input.assign == ':'
                       ? "The name of the file holds .json, so that ':' is expected between keys "
                         "and values. Lines with '=' are ignored."
                       : "The file holds JSON, but its name does not end in .json. Lines without "
                         "'=' are ignored.",
                   std::move(foreign));
    }
    if (!lost.empty()) {
        result.add("ignored-text", "Text that is neither an entry nor a comment is ignored.",
                   std::move(lost));
    }
}

} // namespace

void checkInputEncoding(const inputCase& input, report& result) {
    if (isUtf16(input.content)) {
        result.add("utf-16", "The file is text in UTF-16, of which no key is found.");
    }
    if (startsWith(input.content, byteOrderMark)) {
        const auto& entries = input.text.entries;
        const bool hidesKey = !entries.empty() && entries.front().line == 1;
        finding& found = result.add("byte-order-mark",
                                    hidesKey ? "A byte order mark at the beginning of the file "
                                               "becomes part of the first key, which is not found."
                                             : "The file begins with a byte order mark, which is "
                                               "harmless as long as line 1 holds no entry.",
                                    {location::ofLine(1)});
        found.level = hidesKey ? severity::error : severity::note;
    }
}

void checkInputEntries(const inputCase& input, report& result) {
    checkBrackets(input, result);
    checkSeveral(input, result);
    checkIgnored(input, result);
    checkRepeated(input, result);
}

} // namespace sorvik
