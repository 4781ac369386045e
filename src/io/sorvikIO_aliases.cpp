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

std::string aliasText(const std::string& prefix, const std::string& source) {
    return "The alias " + prefix + sorvikIO::memberDLM + std::string(sourceWord) + " = " + source;
}

} // namespace

bool sorvikIO::assignAlternatives(std::map<std::string, std::string>& map) {
    bool changed = false;
    for (const auto& [key, value] : map) {
        if (key.size() > sourceWord.size() && endsWith(key, sourceWord)) {
            const std::string prefix = key.substr(0, key.size() - sourceWord.size() - 1);
            changed |= addAlternativeKey(map, prefix, value);
        }
    }
    return changed;
}

bool sorvikIO::addAlternativeKey(std::map<std::string, std::string>& map, const std::string& prefix,
                                 const std::string& source) {
    if (prefix.size() > source.size() && startsWith(prefix, source)) {
        printer::fatalError(aliasText(prefix, source) +
                            " feeds on itself: its own name begins with the name of its source. "
                            "Expected a source whose name is not the beginning of " +
                            prefix + ".");
    }
    bool changed = false;
    for (auto it = map.lower_bound(source); it != map.end() && startsWith(it->first, source);
         ++it) {
        changed |= map.emplace(prefix + it->first.substr(source.size()), it->second).second;
        if (map.size() > maxMapEntries) {
            printer::fatalError(aliasText(prefix, source) + " makes more than " +
                                std::to_string(maxMapEntries) + " entries.");
        }
    }
    return changed;
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
