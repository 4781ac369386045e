#include "io/aliasResolver.hpp"

#include "base/affixes.hpp"
#include "base/excerpt.hpp"
#include "io/inputLimits.hpp"
#include "io/printer.hpp"

#include <algorithm>
#include <iterator>

namespace sorvik {

namespace {

bool isAlias(std::string_view key) {
    return key.size() > sourceWord.size() && endsWith(key, sourceWord);
}

std::size_t commonLength(std::string_view a, std::string_view b) {
    const auto length = static_cast<std::ptrdiff_t>(std::min(a.size(), b.size()));
    return static_cast<std::size_t>(std::mismatch(a.begin(), a.begin() + length, b.begin()).first -
                                    a.begin());
}

std::string textOf(std::string_view prefix, std::string_view source) {
    return excerpt(prefix) + sorvikIO::memberDLM + std::string(sourceWord) + " = " +
           excerpt(source);
}

/// Whether an alias finds what it has added among the entries of its source.
bool feedsOnItself(std::string_view prefix, std::string_view source) {
    return prefix.size() > source.size() && startsWith(prefix, source);
}

[[noreturn]] void failFeeding(std::string_view prefix, std::string_view source) {
    printer::fatalError("The alias " + textOf(prefix, source) +
                        " feeds on itself: its own name begins with the name of its source. "
                        "Expected a source whose name is not the beginning of the alias.");
}

/// The key that an alias gives to its copy of the entry `key`.
std::string copiedKey(std::string_view prefix, std::string_view source, const std::string& key) {
    return std::string(prefix).append(key, source.size());
}

} // namespace

aliasResolver::aliasResolver(entries& target) : map_(target) {
    for (const auto& e : map_) {
        noteIfAlias(&e);
    }
}

bool aliasResolver::pass() {
    bool changed = false;
    for (auto turn = waiting_.begin(); turn != waiting_.end();) {
        alias& a = *turn->second;
        changed |= takeTurn(a);
        turn = a.news.empty() ? waiting_.erase(turn) : std::next(turn);
    }
    return changed;
}

bool aliasResolver::resolve(entries& map, std::string_view prefix, std::string_view source) {
    bool changed = false;
    for (auto e = map.lower_bound(std::string(source));
         e != map.end() && startsWith(e->first, source); ++e) {
        std::string key = copiedKey(prefix, source, e->first);
        // The copy would be copied in turn, and so on.
        if (feedsOnItself(prefix, source) && key > e->first) {
            failFeeding(prefix, source);
        }
        changed |= map.try_emplace(std::move(key), e->second).second;
    }
    return changed;
}

/// Checks new aliases at once: before its turn another one could copy it without end. An alias that
/// feeds on itself always has an entry to copy, its own.
void aliasResolver::noteIfAlias(entry e) {
    const std::string_view key = e->first;
    if (isAlias(key)) {
        const std::string_view prefix = key.substr(0, key.size() - sourceWord.size() - 1);
        if (feedsOnItself(prefix, e->second)) {
            failFeeding(prefix, e->second);
        }
        waiting_.emplace(key, &aliases_.emplace_back(alias{key, prefix, e->second}));
    }
}

/// Hands the entry to the aliases whose source is the beginning of its key, the longest source
/// first.
void aliasResolver::announce(entry e) {
    std::string_view head = e->first;
    for (auto after = bySource_.upper_bound(head); after != bySource_.begin();
         after = bySource_.upper_bound(head)) {
        const auto& [source, found] = *std::prev(after);
        const std::size_t common = commonLength(source, head);
        head = head.substr(0, common);
        if (common < source.size()) {
            continue;
        }
        for (alias* a : found) {
            a->news.insert(e);
            waiting_.emplace(a->key, a);
        }
        if (head.empty()) {
            return; // uncovered: an empty head of a key
        }
        head.remove_suffix(1);
    }
}

bool aliasResolver::takeTurn(alias& a) {
    if (!a.hadTurn) {
        a.hadTurn = true;
        bySource_[a.source].push_back(&a);
        for (auto it = map_.lower_bound(std::string(a.source));
             it != map_.end() && startsWith(it->first, a.source); ++it) {
            a.news.insert(a.news.end(), &*it);
        }
    }
    // What is added after the current entry belongs to this turn, what is added before it to the
    // next.
    bool changed = false;
    for (auto e = a.news.begin(); e != a.news.end(); e = a.news.erase(e)) {
        changed |= add(a, *e);
    }
    return changed;
}

void aliasResolver::checkSize() const {
    const bool hasMany = map_.size() > sorvikIO::maxMapEntries;
    if (!hasMany && addedText_ <= sorvikIO::maxAddedText) {
        return;
    }
    // uncovered: a million entries or 64 MiB of text; the limits cover it
    const alias& a = *std::max_element(
        aliases_.begin(), aliases_.end(),
        [](const alias& one, const alias& other) { return one.added < other.added; });
    const std::string what = hasMany ? "With its aliases the input has more than " +
                                           std::to_string(sorvikIO::maxMapEntries) + " entries. "
                                     : "The aliases of the input add more than " +
                                           std::to_string(sorvikIO::maxAddedText) + " characters. ";
    printer::fatalError(what + textOf(a.prefix, a.source) + " adds most entries, " +
                        std::to_string(a.added) + ". Expected aliases of smaller sources.");
}

bool aliasResolver::add(alias& a, entry e) {
    const auto [added, isNew] =
        map_.try_emplace(copiedKey(a.prefix, a.source, e->first), e->second);
    if (!isNew) {
        return false;
    }
    ++a.added;
    addedText_ += added->first.size() + added->second.size();
    checkSize();
    noteIfAlias(&*added);
    announce(&*added);
    return true;
}

} // namespace sorvik
