#include "base/classicText.hpp"
#include "check/inputFileCheck.hpp"
#include "check/inputText.hpp"
#include "check/quietly.hpp"
#include "io/inputMap.hpp"
#include "io/sorvikIO.hpp"
#include "target.hpp"

using namespace sorvik;

/// The first character chooses the dialect, the rest is the file. What the program reads, the check
/// reads too, and finds in its text.
void tryText(const std::string& text) {
    const bool isJson = !text.empty() && text[0] == 'j';
    const std::string content = text.substr(text.empty() ? 0 : 1);
    const std::string name = pathOf(isJson ? "case.json" : "case.m");
    std::map<std::string, std::string> map;
    const auto read = [&] {
        classicText in(content);
        map = sorvikIO::readInputStream(in, inputMap::assignmentOf(name), '.');
    };
    const bool hasEnded = quietly(read).hasEnded;
    const report result = checkInputText(name, content, {});
    check((result.find("refused-input") != nullptr) == hasEnded);
    if (hasEnded) {
        return;
    }
    const inputText found = scanInput(content, inputMap::assignmentOf(name));
    check(found.kept.size() == map.size());
    for (const auto& [key, value] : map) {
        const auto place = found.kept.find(key);
        check(place != found.kept.end() && found.entries[place->second].key == key);
    }
}
