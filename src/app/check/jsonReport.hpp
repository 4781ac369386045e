#pragma once

#include "check/finding.hpp"

#include <iosfwd>
#include <string>

namespace sorvik {

/// Writes a report as JSON: program, version, command, facts by name, and all findings with all
/// their places. Numbers that are not finite are null.
void writeJson(std::ostream& out, const std::string& command, const report& result);

} // namespace sorvik
