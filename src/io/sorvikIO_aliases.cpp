#include "io/sorvikIO.hpp"

#include "io/aliasResolver.hpp"

#include <algorithm>

// "<prefix>.source = <source>" gives <prefix> every entry of <source> that it does not have. The
// match is plain text: the source "wave" covers the keys "wave.Hs" and "waves.n" alike.

bool sorvikIO::assignAlternatives(std::map<std::string, std::string>& map) {
    return sorvik::aliasResolver(map).pass();
}

bool sorvikIO::addAlternativeKey(std::map<std::string, std::string>& map, const std::string& prefix,
                                 const std::string& source) {
    return sorvik::aliasResolver::resolve(map, prefix, source);
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
