#include "io/sorvikIO.hpp"

#include "base/classicText.hpp"
#include "base/excerpt.hpp"
#include "base/numberText.hpp"
#include "io/printer.hpp"

#include <algorithm>
#include <iterator>

// Dotted keys become nested objects. Within every object all plain members come first, in key
// order, and all nested objects after them, in name order.

namespace {

std::string jsonWord(const std::string& word) {
    const bool isText = sorvik::isLetter(word.front());
    return isText ? '"' + word + '"' : word;
}

std::vector<std::string> words(const std::string& value) {
    std::vector<std::string> found;
    sorvik::classicText in(value);
    std::string word;
    while (in >> word) {
        found.push_back(word);
    }
    return found;
}

bool isPath(const std::string& value) {
    return value.find("..") != std::string::npos || value.find_first_of("/\\") != std::string::npos;
}

std::string join(const std::vector<std::string>& parts, const std::string& separator) {
    std::string joined;
    for (const std::string& part : parts) {
        joined += (joined.empty() ? "" : separator) + part;
    }
    return joined;
}

/// The beginning of a member line, up to its value.
std::string memberHead(const std::string& key, int indent) {
    return std::string(static_cast<std::size_t>(indent), '\t') + '"' + key + "\" : ";
}

void checkDepth(const std::string& key) {
    // The blocks that a key of plain names stands in, and its own name.
    constexpr int most = sorvikIO::maxNesting + 1;
    const auto components = std::count(key.begin(), key.end(), sorvikIO::memberDLM) + 1;
    if (components > most) {
        printer::fatalError("The key " + sorvik::excerpt(key) + " has " +
                            std::to_string(components) + " components. At most " +
                            std::to_string(most) + " are expected.");
    }
}

using position = std::map<std::string, std::string>::const_iterator;

/// A nested object: the entries whose keys go on with its name and a ".". They are neighbours.
struct group {
    std::string_view name;
    position first;
    position last;
};

/// Appends the object of a range of entries, whose keys begin alike up to `prefix`; nested ones are
/// written in place, so that nothing is copied level by level.
void appendObject(std::string& text, position first, position last, std::size_t prefix,
                  int indent) {
    std::vector<group> groups;
    const std::size_t start = text.size();
    text += "{\n";
    for (position entry = first; entry != last; ++entry) {
        const std::string_view key = std::string_view(entry->first).substr(prefix);
        const std::size_t dot = key.find(sorvikIO::memberDLM);
        if (dot == std::string_view::npos) {
            text += sorvikIO::addJSONLine(std::string(key), entry->second, indent + 1);
            continue;
        }
        const std::string_view name = key.substr(0, dot);
        if (groups.empty() || groups.back().name != name) {
            groups.push_back({name, entry, entry});
        }
        groups.back().last = std::next(entry);
    }
    // Names may come in another order than the keys that they begin: "a-b.x" precedes "a.x".
    std::sort(groups.begin(), groups.end(),
              [](const group& a, const group& b) { return a.name < b.name; });
    for (const group& g : groups) {
        text += memberHead(std::string(g.name), indent + 1);
        appendObject(text, g.first, g.last, prefix + g.name.size() + 1, indent + 1);
        text += ",\n";
    }
    // The last comma goes; of an empty object the opening brace goes instead.
    text.erase(std::max(start, text.size() - 2), 1);
    text.append(static_cast<std::size_t>(indent), '\t');
    text += '}';
    if (text.size() > sorvikIO::maxJsonText) {
        printer::fatalError("The JSON text of the input has more than " +
                            std::to_string(sorvikIO::maxJsonText) +
                            " characters. Expected fewer or shorter keys.");
    }
}

} // namespace

std::string sorvikIO::toJSON(const std::map<std::string, std::string>& map, int indent) {
    for (const auto& [key, value] : map) {
        checkDepth(key);
    }
    std::string text;
    appendObject(text, map.begin(), map.end(), 0, indent);
    return text;
}

std::string sorvikIO::addJSONLine(const std::string& key, std::string value, int indent) {
    if (value.empty()) {
        value = "{}";
    } else if (value.front() != '{') {
        value = frmtJSONvalue(value);
    }
    return memberHead(key, indent) + value + ",\n";
}

std::string sorvikIO::frmtJSONvalue(const std::string& value) {
    std::vector<std::string> parts = words(value);
    if (isPath(value)) {
        return '"' + join(parts, " ") + '"';
    }
    std::transform(parts.begin(), parts.end(), parts.begin(), jsonWord);
    const std::string joined = join(parts, " , ");
    return parts.size() > 1 ? '[' + joined + ']' : joined;
}

std::string sorvikIO::fileNameFromPath(const std::string& path) {
    return path.substr(path.find_last_of("/\\") + 1);
}
