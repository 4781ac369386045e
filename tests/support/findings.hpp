#pragma once

#include "check/finding.hpp"

#include <string>
#include <vector>

/// The names of the findings, in their order.
inline std::vector<std::string> namesOf(const sorvik::report& result) {
    std::vector<std::string> names;
    for (const sorvik::finding& each : result.findings) {
        names.push_back(each.name);
    }
    return names;
}
