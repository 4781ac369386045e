#include "io/inputMap.hpp"

#include "base/classicText.hpp"
#include "base/files.hpp"
#include "base/rewrite.hpp"
#include "io/aliasResolver.hpp"
#include "io/printer.hpp"
#include "io/sorvikIO.hpp"

#include <algorithm>
#include <iostream>

namespace {

constexpr int maxPasses = 502;
/// The number of changing passes after which a quiet one is reported. Others pass in silence.
constexpr int reportedPasses = 500;

bool isJson(const std::string& name) {
    return name.find(".json") != std::string::npos;
}

std::string readAll(std::istream& file, const std::string& name) {
    std::string content;
    std::vector<char> block(std::size_t(1) << 16);
    while (file.good()) {
        file.read(block.data(), static_cast<std::streamsize>(block.size()));
        content.append(block.data(), static_cast<std::size_t>(file.gcount()));
    }
    if (file.bad()) {
        // uncovered: the disk reports an error; the torture covers it
        printer::fatalError("Cannot read the input file " + name +
                            " to its end. Expected a file on a disk without errors.");
    }
    return content;
}

} // namespace

inputMap::inputMap(std::istream& in, char assignDLM, char memberDLM)
    : map(sorvikIO::readInputStream(in, assignDLM, memberDLM)), assign_(assignDLM),
      member_(memberDLM) {
    assignSources();
}

inputMap::inputMap(const std::string& name) {
    readFile(name);
}

bool inputMap::readFile(const std::string& name) {
    fileName_ = name;
    assign_ = assignmentOf(fileName_);
    std::ifstream file = sorvik::files::open(fileName_);
    if (!file.is_open()) {
        return false;
    }
    // Read whole: blocks are found by going back and forth in the text.
    const std::string content = readAll(file, fileName_);
    sorvik::classicText text(content);
    map = sorvikIO::readInputStream(text, assign_, member_);
    assignSources();
    return true;
}

char inputMap::assignmentOf(const std::string& name) {
    return isJson(name) ? ':' : '=';
}

void inputMap::assignSources() {
    sorvik::aliasResolver aliases(map);
    int changes = 0;
    for (int pass = 0; pass < maxPasses; ++pass) {
        if (!aliases.pass()) {
            if (changes == reportedPasses) {
                std::cout << "Warning: 500 iterations of assignAlternatives in sorvikIO. "
                             "Something is off..."
                          << std::endl;
            }
            return;
        }
        ++changes;
    }
}

template <class T>
T inputMap::read(const std::string& key, const T& fallback) const {
    const auto entry = map.find(key);
    if (entry == map.end()) {
        return fallback;
    }
    T value{};
    sorvikIO::parse(entry->second, value);
    return value;
}

template double inputMap::read(const std::string&, const double&) const;
template int inputMap::read(const std::string&, const int&) const;
template std::vector<double> inputMap::read(const std::string&, const std::vector<double>&) const;

void inputMap::set(const std::string& key, const std::string& value) {
    if (value.find(assign_) == std::string::npos) {
        map[key] = value;
        return;
    }
    sorvik::classicText text(value);
    const inputMap entries(text, sorvikIO::assignmentDLM, sorvikIO::memberDLM);
    const std::string prefix = key + sorvikIO::memberDLM;
    for (const auto& [subKey, subValue] : entries.map) {
        set(prefix + subKey, subValue);
    }
}

void inputMap::print(std::string outName) const {
    if (!isJson(outName)) {
        return;
    }
    if (outName == ".json") {
        outName = sorvik::files::withoutExtension(fileName_) + ".json";
    }
    const std::string text = sorvikIO::toJSON(map, 0);
    if (!sorvik::rewrite(fileName_, outName, [&](std::ostream& out) { out << text; })) {
        printer::fatalError("Cannot write the JSON file " + outName +
                            ". Expected a file in an existing folder that can be written to, and "
                            "room on the disk.");
    }
}

std::vector<std::string> inputMap::getKeys(const std::string& word) const {
    const std::string marker = word + "Type";
    std::vector<std::string> names;
    for (const auto& [key, value] : map) {
        for (std::string name : sorvikIO::splitKey(key)) {
            if (name.compare(0, word.size(), word) != 0 || name == marker) {
                continue;
            }
            if (std::find(names.begin(), names.end(), name) == names.end()) {
                names.push_back(std::move(name));
            }
        }
    }
    return names;
}
