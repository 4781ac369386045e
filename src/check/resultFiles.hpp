#pragma once

#include "check/finding.hpp"
#include "check/nemohCal.hpp"
#include "check/resultTables.hpp"

#include <string>
#include <vector>

namespace sorvik {

/// The files of added mass, damping and excitation that the project in `folder` has, without the
/// folder.
std::vector<std::string> resultFiles(const std::string& folder);

/// Reads the results of the project in `folder`, as far as they can be read; what cannot becomes a
/// finding: `unread-results`, `counts-differ`, `not-finite` or `no-hydrostatics`.
nemohResults readNemohResults(const std::string& folder, const nemohCal& cal, report& result);

} // namespace sorvik
