#pragma once

#include "check/finding.hpp"

#include <string>

/// Reports of checks on pages.
namespace sorvik {

/// The facts with a label as a table.
std::string factsHtml(const report& result);

/// The findings as a list, the gravest first, each with its count, cure and first places. Each
/// element has the attributes data-finding, its place in `result`, and data-prefix, in front of the
/// ids of its numbers.
std::string findingsHtml(const report& result, const std::string& prefix);

} // namespace sorvik
