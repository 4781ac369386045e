#include "reports.hpp"

#include "guard.hpp"

#include <pybind11/stl.h>

namespace sorvik::python {
namespace {

py::dict placeOf(const location& place) {
    py::dict object;
    if (!place.file.empty()) {
        object["file"] = textOf(place.file);
    }
    if (place.line > 0) {
        object["line"] = place.line;
    }
    if (!place.key.empty()) {
        object["key"] = textOf(place.key);
    }
    if (place.panel > 0) {
        object["panel"] = place.panel;
    }
    if (place.hasPoint) {
        object["point"] = place.point;
    }
    return object;
}

py::dict findingOf(const finding& each) {
    py::list where;
    for (const location& place : each.where) {
        where.append(placeOf(place));
    }
    py::dict object;
    object["severity"] = nameOf(each.level);
    object["name"] = each.name;
    object["message"] = textOf(each.message);
    object["cure"] = textOf(each.cure);
    object["count"] = each.count;
    object["where"] = where;
    return object;
}

py::object valueOf(const std::string& text) {
    return textOf(text);
}
template <class T>
py::object valueOf(const T& value) {
    return py::cast(value);
}

} // namespace

py::dict factsDict(const report& result) {
    py::dict facts;
    for (const fact& each : result.facts) {
        facts[each.name.c_str()] =
            std::visit([](const auto& value) -> py::object { return valueOf(value); }, each.value);
    }
    return facts;
}

py::dict dictOf(const report& result) {
    py::list findings;
    for (const finding& each : result.findings) {
        findings.append(findingOf(each));
    }
    py::dict whole;
    whole["facts"] = factsDict(result);
    whole["findings"] = findings;
    return whole;
}

} // namespace sorvik::python
