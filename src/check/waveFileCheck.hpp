#pragma once

#include "check/finding.hpp"

#include <string>

namespace sorvik {

/// Adds a finding where the wave file holds more numbers after the place where its reading ends.
void addLostTrains(report& result, const std::string& waveFile);

} // namespace sorvik
