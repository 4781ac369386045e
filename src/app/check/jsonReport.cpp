#include "app/check/jsonReport.hpp"

#include <nlohmann/json.hpp>

#include <ostream>

namespace sorvik {
namespace {

using json = nlohmann::ordered_json;

json toJson(const location& place) {
    json object = json::object();
    if (!place.file.empty()) {
        object["file"] = place.file;
    }
    if (place.line > 0) {
        object["line"] = place.line;
    }
    if (!place.key.empty()) {
        object["key"] = place.key;
    }
    if (place.panel > 0) {
        object["panel"] = place.panel;
    }
    if (place.hasPoint) {
        object["point"] = place.point;
    }
    return object;
}

json toJson(const finding& each) {
    json where = json::array();
    for (const location& place : each.where) {
        where.push_back(toJson(place));
    }
    return {{"severity", nameOf(each.level)},
            {"name", each.name},
            {"message", each.message},
            {"cure", each.cure},
            {"count", each.count},
            {"where", std::move(where)}};
}

} // namespace

void writeJson(std::ostream& out, const std::string& command, const report& result) {
    json facts = json::object();
    for (const fact& each : result.facts) {
        std::visit([&](const auto& value) { facts[each.name] = value; }, each.value);
    }
    json findings = json::array();
    for (const finding& each : result.findings) {
        findings.push_back(toJson(each));
    }
    const json whole = {{"program", "sorvikCheck"},
                        {"version", SORVIK_VERSION},
                        {"command", command},
                        {"facts", std::move(facts)},
                        {"findings", std::move(findings)}};
    // Names of files may hold bytes that are no UTF-8.
    out << whole.dump(2, ' ', false, json::error_handler_t::replace) << '\n';
}

} // namespace sorvik
