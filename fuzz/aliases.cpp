#include "io/inputMap.hpp"
#include "languageCheck.hpp"

using namespace sorvik;

namespace {

constexpr std::size_t maxPlainEntries = 60;

/// Every alias against every key, in passes, until nothing is new or the map is too large for that.
void resolvePlainly(entries& map) {
    for (std::size_t before = 0; map.size() != before;) {
        before = map.size();
        for (const auto& [key, source] : map) {
            if (key.size() < 7 || key.substr(key.size() - 6) != "source") {
                continue;
            }
            for (const auto& [name, value] : map) {
                if (map.size() > maxPlainEntries) {
                    return;
                }
                if (name.compare(0, source.size(), source) == 0) {
                    map.emplace(key.substr(0, key.size() - 7) + name.substr(source.size()), value);
                }
            }
        }
    }
}

} // namespace

void tryText(const std::string& text) {
    entries map = readText(text, '=');
    resolvePlainly(map);
    const bool isSmall = map.size() <= maxPlainEntries;
    // Growth to the limits takes a second, and some of it is enough.
    if (isSmall || text.size() % 32 == 0) {
        classicText in(text);
        const inputMap resolved(in, '=', '.');
        check(!isSmall || map == resolved.map);
    }
}
