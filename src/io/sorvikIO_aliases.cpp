#include "io/sorvikIO.hpp"

#include "io/printer.hpp"

#include <string_view>

// "<prefix>.source = <source>" gives <prefix> every entry of <source> that it does not have. The
// match is plain text: the source "wave" covers the keys "wave.Hs" and "waves.n" alike.

namespace {

constexpr std::string_view sourceWord = "source";

bool startsWith(std::string_view text, std::string_view head) {
    return text.substr(0, head.size()) == head;
}

bool endsWith(std::string_view text, std::string_view tail) {
    return text.size() >= tail.size() && text.substr(text.size() - tail.size()) == tail;
}

bool isAlias(std::string_view key) {
    return key.size() > sourceWord.size() && endsWith(key, sourceWord);
}

/// What an alias stands for: its key without the member delimiter and "source".
std::string prefixOf(const std::string& key) {
    return key.substr(0, key.size() - sourceWord.size() - 1);
}

[[noreturn]] void refuseAlias(const std::string& prefix, const std::string& source,
                              const std::string& reason) {
    printer::fatalError("The alias " + prefix + sorvikIO::memberDLM + std::string(sourceWord) +
                        " = " + source + " " + reason);
}

/// An alias that begins with its own source gives itself new entries for ever.
void checkAlias(const std::string& prefix, const std::string& source) {
    if (prefix.size() > source.size() && startsWith(prefix, source)) {
        refuseAlias(prefix, source,
                    "feeds on itself: its own name begins with the name of its source. Expected a "
                    "source whose name is not the beginning of " +
                        prefix + ".");
    }
}

/// The characters of all entries.
std::size_t textOf(const std::map<std::string, std::string>& map) {
    std::size_t text = 0;
    for (const auto& [key, value] : map) {
        text += key.size() + value.size();
    }
    return text;
}

/// As `addAlternativeKey` for a map of `text` characters. New aliases are checked before anything
/// can grow from them.
bool addEntries(std::map<std::string, std::string>& map, const std::string& prefix,
                const std::string& source, std::size_t& text) {
    bool changed = false;
    for (auto it = map.lower_bound(source); it != map.end() && startsWith(it->first, source);
         ++it) {
        const auto [entry, isNew] =
            map.emplace(prefix + it->first.substr(source.size()), it->second);
        if (!isNew) {
            continue;
        }
        changed = true;
        if (isAlias(entry->first)) {
            checkAlias(prefixOf(entry->first), entry->second);
        }
        text += entry->first.size() + entry->second.size();
        if (map.size() > sorvikIO::maxMapEntries || text > sorvikIO::maxMapText) {
            refuseAlias(prefix, source,
                        "makes more than " + std::to_string(sorvikIO::maxMapEntries) +
                            " entries or " + std::to_string(sorvikIO::maxMapText) +
                            " characters of the input.");
        }
    }
    return changed;
}

} // namespace

bool sorvikIO::assignAlternatives(std::map<std::string, std::string>& map) {
    for (const auto& [key, value] : map) {
        if (isAlias(key)) {
            checkAlias(prefixOf(key), value);
        }
    }
    bool changed = false;
    std::size_t text = textOf(map);
    for (const auto& [key, value] : map) {
        if (isAlias(key)) {
            changed |= addEntries(map, prefixOf(key), value, text);
        }
    }
    return changed;
}

bool sorvikIO::addAlternativeKey(std::map<std::string, std::string>& map, const std::string& prefix,
                                 const std::string& source) {
    checkAlias(prefix, source);
    std::size_t text = textOf(map);
    return addEntries(map, prefix, source, text);
}

std::vector<std::string> sorvikIO::splitKey(const std::string& key) {
    std::vector<std::string> components;
    std::size_t begin = 0;
    while (begin < key.size()) {
        const std::size_t end = std::min(key.find(memberDLM, begin), key.size());
        components.push_back(key.substr(begin, end - begin));
        begin = end + 1;
    }
    return components;
}
