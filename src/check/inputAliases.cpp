#include "base/affixes.hpp"
#include "base/excerpt.hpp"
#include "check/inputCase.hpp"
#include "io/aliasResolver.hpp"

#include <algorithm>

// "prefix.source = source" copies every key that begins with the text of the source. The keys of
// the map are sorted, so that those of one beginning are neighbours.

namespace sorvik {
namespace {

using sortedKeys = std::vector<std::string_view>;
using keyIterator = sortedKeys::const_iterator;

/// The first key from `from` on that does not begin with `head`.
keyIterator endOf(const sortedKeys& keys, keyIterator from, std::string_view head) {
    return std::partition_point(from, keys.end(),
                                [&](std::string_view key) { return startsWith(key, head); });
}

/// A key that begins with the source without being an entry of it, such as body10.x for body1.
/// Empty where there is none.
std::string_view farKey(const sortedKeys& keys, keyIterator first, const std::string& source) {
    const keyIterator last = endOf(keys, first, source);
    const keyIterator own = first + (first != last && *first == source ? 1 : 0);
    const std::string members = source + '.';
    const keyIterator firstMember = std::lower_bound(own, last, std::string_view(members));
    if (firstMember != own) {
        return *own;
    }
    const keyIterator lastMember = endOf(keys, firstMember, members);
    return lastMember != last ? *lastMember : std::string_view();
}

void checkAlias(const inputCase& input, const sortedKeys& keys, const std::string& key,
                const std::string& source, report& result) {
    const bool isMeant =
        key.size() > sourceWord.size() && key[key.size() - sourceWord.size() - 1] == '.';
    const keyIterator first = std::lower_bound(keys.begin(), keys.end(), std::string_view(source));
    const bool isIdle = first == keys.end() || !startsWith(*first, source);
    const std::string alias = excerpt(key) + " = " + excerpt(source);
    if (isIdle && isMeant) {
        addOfKey(result, "idle-alias", input, key,
                 "The alias " + alias + " has no effect: no key begins with its source.");
    }
    if (isIdle) {
        return;
    }
    if (!isMeant) {
        addOfKey(result, "far-alias", input, key,
                 excerpt(key) + " ends in \"source\" and is an alias too: it copies " +
                     excerpt(*first) + ".");
        return;
    }
    const std::string_view far = farKey(keys, first, source);
    if (!far.empty()) {
        addOfKey(result, "far-alias", input, key,
                 "The alias " + alias + " copies " + excerpt(far) +
                     " too, whose name only begins like that of its source.");
    }
}

} // namespace

void checkInputAliases(const inputCase& input, report& result) {
    sortedKeys keys;
    for (const auto& [key, value] : input.inputs.map) {
        keys.push_back(key);
    }
    long long aliases = 0;
    for (const auto& [key, value] : input.given) {
        if (key.size() > sourceWord.size() && endsWith(key, sourceWord)) {
            ++aliases;
            checkAlias(input, keys, key, value, result);
        }
    }
    result.addFact("aliases", "", aliases);
}

} // namespace sorvik
