// Keys that no task reads. The file belongs to the whole suite, so that a key counts as misspelt
// only where it nearly is one that a task reads, or stands in another group than that.
#include "base/affixes.hpp"
#include "base/excerpt.hpp"
#include "base/numberText.hpp"
#include "check/inputCase.hpp"
#include "check/keyTable.hpp"
#include "io/sorvikIO.hpp"

#include <algorithm>
#include <array>
#include <set>

namespace sorvik {
namespace {

constexpr std::size_t maxEdits = 2;
constexpr std::size_t longestKey = 80; // that is compared with the known ones

char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

std::string lowered(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), lower);
    return result;
}

/// The number of characters to insert, delete or replace, or `maxEdits` + 1 where it is larger.
std::size_t editsBetween(std::string_view a, std::string_view b) {
    constexpr std::size_t tooMany = maxEdits + 1;
    if (std::max(a.size(), b.size()) - std::min(a.size(), b.size()) > maxEdits ||
        b.size() > longestKey) {
        return tooMany;
    }
    // One row of the table of distances (V. I. Levenshtein, 1966).
    std::array<std::size_t, longestKey + 1> row{};
    for (std::size_t j = 0; j <= b.size(); ++j) {
        row[j] = j;
    }
    for (std::size_t i = 0; i < a.size(); ++i) {
        std::size_t diagonal = row[0];
        std::size_t least = row[0] = i + 1;
        for (std::size_t j = 0; j < b.size(); ++j) {
            const std::size_t replaced = diagonal + (a[i] == b[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, row[j] + 1, diagonal + 1});
            least = std::min(least, row[j + 1]);
        }
        if (least > maxEdits) {
            return tooMany;
        }
    }
    return row[b.size()];
}

std::string_view groupOf(std::string_view key) {
    const std::size_t dot = key.rfind(sorvikIO::memberDLM);
    return key.substr(0, dot == key.npos ? 0 : dot);
}

std::string_view memberOf(std::string_view key) {
    return key.substr(key.rfind(sorvikIO::memberDLM) + 1);
}

/// The last word of a name in camel case: "Depth" of "waterDepth".
std::string_view lastWord(std::string_view name) {
    std::size_t begin = name.size();
    while (begin > 0 && !(name[begin - 1] >= 'A' && name[begin - 1] <= 'Z')) {
        --begin;
    }
    return begin == 0 ? name : name.substr(begin - 1);
}

/// Whether a key is written nearly as a known one. A member of few letters is near to any other, so
/// that at least one of its letters has to be right.
bool isNear(std::string_view key, std::string_view known) {
    if (lowered(key) == lowered(known)) {
        return true;
    }
    return editsBetween(key, known) <= maxEdits &&
           editsBetween(memberOf(key), memberOf(known)) < memberOf(known).size();
}

/// The groups in which keys of the tasks stand, those around them, and these without the first.
const std::set<std::string_view>& knownGroups() {
    static const std::set<std::string_view> groups = [] {
        std::set<std::string_view> found = {""};
        for (const inputKey& key : keyTable()) {
            if (startsWith(key.name, bodyGroup)) {
                continue;
            }
            const std::string_view group = groupOf(key.name);
            found.insert(group);
            if (!groupOf(group).empty()) {
                found.insert(groupOf(group));
                found.insert(memberOf(group));
            }
        }
        return found;
    }();
    return groups;
}

/// Whether a key has the name of a known one, but stands in another group of the tasks.
bool isMisplaced(std::string_view key, std::string_view known) {
    const std::string_view group = groupOf(key);
    if (group == groupOf(known) || knownGroups().count(group) == 0) {
        return false;
    }
    const std::string_view first = key.substr(0, key.find(sorvikIO::memberDLM));
    const bool isTop = first == "environment" || first == "simulation" || first == "bem";
    const std::string_view name = isTop ? lastWord(memberOf(key)) : memberOf(key);
    return lowered(name) == lowered(memberOf(known)) ||
           lowered(memberOf(key)) == lowered(memberOf(known));
}

/// The name of the body that a key is of, or that the file asks for.
std::string bodyFor(const inputCase& input, std::string_view key) {
    const std::size_t dot = key.find(sorvikIO::memberDLM);
    const bool isOfBody = startsWith(key, bodyGroup) && dot != key.npos;
    return isOfBody ? std::string(key.substr(bodyGroup.size(), dot - bodyGroup.size()))
                    : input.body();
}

/// The key that was meant, or "".
std::string meantKey(const inputCase& input, const std::string& key) {
    if (key.size() > longestKey) {
        return "";
    }
    const std::string body = bodyFor(input, key);
    for (const inputKey& known : keyTable()) {
        std::string name = known.nameFor(body);
        if (isNear(key, name)) {
            return name;
        }
    }
    for (const inputKey& known : keyTable()) {
        // Given in its own place too, the other one is probably no mistake.
        if (isMisplaced(key, known.name) && !input.has(std::string(known.name))) {
            return std::string(known.name);
        }
    }
    return "";
}

/// Whether an alias carries the key elsewhere.
bool isSource(const std::set<std::string_view>& sources, std::string_view key) {
    for (std::size_t length = 1; length <= std::min(key.size(), longestKey); ++length) {
        if (sources.count(key.substr(0, length)) != 0) {
            return true;
        }
    }
    return false;
}

/// The keys, or as many as `room` characters hold and "...".
std::string joined(const std::vector<std::string>& keys, std::size_t room) {
    std::string text;
    for (const std::string& key : keys) {
        if (text.size() + key.size() > room) {
            return text + (text.empty() ? "..." : ", ...");
        }
        text += (text.empty() ? "" : ", ") + key;
    }
    return text;
}

void addUnknown(const inputCase& input, const std::string& key, const std::string& meant,
                report& result) {
    finding& found = addOfKey(result, "unknown-key", input, key,
                              "No task reads " + key + ". " + meant + " is probably meant.");
    found.cure = "Write " + meant + ", unless another program of the suite reads " + key + ".";
}

} // namespace

void checkInputKeys(const inputCase& input, report& result) {
    std::set<std::string_view> sources;
    for (const auto& [key, value] : input.given) {
        if (memberOf(key) == "source") {
            sources.insert(value);
        }
    }
    long long known = 0;
    std::vector<std::string> others;
    for (const auto& [key, value] : input.given) {
        if (findKey(key) != nullptr) {
            ++known;
            continue;
        }
        const std::string meant = isSource(sources, key) ? "" : meantKey(input, key);
        if (meant.empty()) {
            others.push_back(key);
            continue;
        }
        addUnknown(input, key, meant, result);
    }
    constexpr std::size_t room = 50;
    const std::string few = others.empty() ? "" : '(' + joined(others, room) + ')';
    result.addFact("knownKeys", "Keys of the tasks", known);
    result.addFact("otherKeyCount", "Other keys", static_cast<long long>(others.size()), few);
    result.addFact("otherKeys", "", joined(others, std::string::npos));
}

} // namespace sorvik
