#pragma once

#include "check/finding.hpp"
#include "check/resultTables.hpp"

#include <string>

namespace sorvik {

/// What a check of results gives.
struct resultsReport {
    report result;       ///< facts and findings
    nemohResults values; ///< as they were read
};

/// Checks the results that Nemoh left in a project folder, against Nemoh.cal and for what no sound
/// body has. Changes nothing there. Throws `cannotCheck` where there is no Nemoh.cal to read.
resultsReport checkResults(const std::string& folder);

} // namespace sorvik
