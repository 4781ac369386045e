#pragma once

#include <cstddef>
#include <list>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace sorvik {

/// Ends the keys of aliases.
constexpr std::string_view sourceWord = "source";

/// Resolves the `source` entries of a map in passes, as if every pass walked the whole map.
///
/// An entry, once it has been carried over to an alias, has nothing more to give to it, since no
/// entry is overwritten or removed. So a pass looks only at the aliases that entries were added for
/// since their last turn, and at these entries: many passes cost little more than one.
class aliasResolver {
public:
    using entries = std::map<std::string, std::string>;

    /// The map must outlive the resolver and be changed by it alone.
    explicit aliasResolver(entries& target);

    /// Resolves every alias once, in key order; returns whether an entry was added.
    bool pass();

    /// Resolves the one alias `prefix`.source = `source`, as `sorvikIO::addAlternativeKey`.
    static bool resolve(entries& map, std::string_view prefix, std::string_view source);

private:
    using entry = const entries::value_type*;

    struct byKey {
        bool operator()(entry a, entry b) const { return a->first < b->first; }
    };

    struct alias {
        std::string_view key; ///< that of its own entry, by which aliases take turns
        std::string_view prefix;
        std::string_view source;
        bool hadTurn = false;
        std::set<entry, byKey> news{}; ///< entries of the source since the last turn
        std::size_t added = 0;         ///< entries that it has brought
    };

    void noteIfAlias(entry e);
    void announce(entry e);
    bool takeTurn(alias& a);
    bool add(alias& a, entry e);
    void checkSize() const;

    entries& map_;
    std::size_t addedText_ = 0;
    std::list<alias> aliases_;
    /// By key, those with news and those before their first turn.
    std::map<std::string_view, alias*> waiting_;
    /// By source, those that had a turn.
    std::map<std::string_view, std::vector<alias*>> bySource_;
};

} // namespace sorvik
