#pragma once

#include "base/classicText.hpp"
#include "base/numberText.hpp"
#include "io/sorvikIO.hpp"
#include "target.hpp"

#include <map>
#include <vector>

using entries = std::map<std::string, std::string>;

inline entries readText(const std::string& text, char assign) {
    sorvik::classicText in(text);
    return sorvikIO::readInputStream(in, assign, '.');
}

/// The same by the entry, in blocks by recursion.
inline entries readOneByOne(const std::string& text, char assign) {
    entries map;
    sorvik::classicText in(text);
    std::string key, value;
    while (const int kind = sorvikIO::readNextEntry(in, key, value, assign)) {
        if (value.empty() || map.count(key) != 0) {
            continue;
        }
        if (kind == 1) {
            sorvikIO::stripFromUnwanted(value);
            map[key] = value;
            continue;
        }
        for (const auto& [subKey, subValue] : readOneByOne(value, assign)) {
            map.emplace(std::string(key).append(1, '.').append(subKey), subValue);
        }
    }
    return map;
}

/// The words of a value, each with a blank after it.
inline std::string wordsOf(const std::string& value) {
    std::string words;
    sorvik::classicText in(value);
    for (std::string word; in >> word;) {
        words.append(word) += ' ';
    }
    return words;
}

/// Whether JSON, which escapes nothing, holds the entry such that it reads as one.
inline bool isPlain(const std::string& key, const std::string& value) {
    const std::string words = wordsOf(value);
    const bool isPath =
        value.find("..") != std::string::npos || value.find_first_of("/\\") != std::string::npos;
    const bool isBare =
        !isPath && words.find(' ') + 1 == words.size() && !sorvik::isLetter(words[0]);
    const bool isRead =
        isBare ? words.find('#') == std::string::npos : words.find(':') == words.find(":\\");
    return isRead && key.find_first_of(":#\r") == std::string::npos &&
           key.find(" .") == std::string::npos && key.find(". ") == std::string::npos;
}

/// Compares the words of a text's map with those of its JSON text. There a plain entry hides the
/// block of its name, and one without words is none.
inline void checkLanguage(const std::string& text, char assign) {
    const entries map = readText(text, assign);
    check(map == readOneByOne(text, assign));
    const std::string json = sorvikIO::toJSON(map, 0);
    entries expected;
    for (const auto& [key, value] : map) {
        if (!isPlain(key, value)) {
            return;
        }
        std::size_t dot = key.find('.');
        while (dot != std::string::npos && expected.count(key.substr(0, dot)) == 0) {
            dot = key.find('.', dot + 1);
        }
        if (dot == std::string::npos && !wordsOf(value).empty()) {
            expected[key] = wordsOf(value);
        }
    }
    // No text of the program's own ends it.
    entries again = [&]() noexcept { return readText(json, ':'); }();
    for (auto& [key, value] : again) {
        value = wordsOf(value);
    }
    check(again == expected);
}
