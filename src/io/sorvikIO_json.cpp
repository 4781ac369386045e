#include "io/sorvikIO.hpp"

#include "io/classicText.hpp"
#include "io/printer.hpp"

#include <algorithm>
#include <cctype>

// Dotted keys become nested objects. Within every object all plain members come first, in key
// order, and all nested objects after them, in name order.

namespace {

std::string jsonWord(const std::string& word) {
    const bool isText = std::isalpha(static_cast<unsigned char>(word.front())) != 0;
    return isText ? '"' + word + '"' : word;
}

std::vector<std::string> words(const std::string& value) {
    std::vector<std::string> found;
    classicText in(value);
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
    const auto dots = std::count(key.begin(), key.end(), sorvikIO::memberDLM);
    if (dots >= sorvikIO::maxNesting) {
        printer::fatalError("The key " + key.substr(0, 60) + "... has " + std::to_string(dots + 1) +
                            " components. At most " + std::to_string(sorvikIO::maxNesting) +
                            " are expected.");
    }
}

/// Appends the object; nested ones are written in place, so that no text is copied level by level.
void appendObject(std::string& text, std::map<std::string, std::string>&& map, int indent) {
    // By name: the entries of a nested object, with the name and the "." cut off their keys.
    std::map<std::string, std::map<std::string, std::string>> groups;
    const std::size_t start = text.size();
    text += "{\n";
    for (auto& [key, value] : map) {
        const std::size_t dot = key.find(sorvikIO::memberDLM);
        if (dot == std::string::npos) {
            text += sorvikIO::addJSONLine(key, std::move(value), indent + 1);
        } else {
            groups[key.substr(0, dot)].emplace(key.substr(dot + 1), std::move(value));
        }
    }
    for (auto& [name, group] : groups) {
        text += memberHead(name, indent + 1);
        appendObject(text, std::move(group), indent + 1);
        text += ",\n";
    }
    // The last comma goes; of an empty object the opening brace goes instead.
    text.erase(std::max(start, text.size() - 2), 1);
    text.append(static_cast<std::size_t>(indent), '\t');
    text += '}';
}

} // namespace

std::string sorvikIO::toJSON(std::map<std::string, std::string> map, int indent) {
    for (const auto& [key, value] : map) {
        checkDepth(key);
    }
    std::string text;
    appendObject(text, std::move(map), indent);
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
