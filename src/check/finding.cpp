#include "check/finding.hpp"

#include <algorithm>
#include <utility>

namespace sorvik {

std::string_view nameOf(severity level) {
    return level == severity::error ? "error" : level == severity::warning ? "warning" : "note";
}

location location::ofPanel(std::size_t index, const std::array<double, 3>& centre) {
    location place;
    place.panel = static_cast<int>(index) + 1;
    place.hasPoint = true;
    place.point = centre;
    return place;
}

location location::ofLine(int line) {
    location place;
    place.line = line;
    return place;
}

location location::ofKey(const std::string& key, int line) {
    location place;
    place.key = key;
    place.line = line;
    return place;
}

void report::addFact(std::string name, std::string label, fact::values value, std::string unit) {
    facts.push_back({std::move(name), std::move(label), std::move(value), std::move(unit)});
}

finding& report::add(std::string_view name, std::string message, std::vector<location> where) {
    const auto& kinds = findingKinds();
    const auto kind = std::find_if(kinds.begin(), kinds.end(),
                                   [&](const findingKind& each) { return each.name == name; });
    if (kind == kinds.end()) {
        throw std::logic_error("No kind of finding is called " + std::string(name));
    }
    const std::size_t count = std::max<std::size_t>(where.size(), 1);
    findings.push_back({kind->level, std::string(name), std::move(message), std::string(kind->cure),
                        count, std::move(where)});
    return findings.back();
}

const finding* report::find(std::string_view name) const {
    const auto found = std::find_if(findings.begin(), findings.end(),
                                    [&](const finding& each) { return each.name == name; });
    return found == findings.end() ? nullptr : &*found;
}

std::size_t report::count(severity level) const {
    return static_cast<std::size_t>(
        std::count_if(findings.begin(), findings.end(),
                      [&](const finding& each) { return each.level == level; }));
}

} // namespace sorvik
