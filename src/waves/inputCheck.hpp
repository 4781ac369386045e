#pragma once

#include <string>

class reader;
class waveTrain;

namespace sorvik {

/// Ends the run with a fatal error: `name` is a key or a flag, `found` its value.
[[noreturn]] void refuseInput(const std::string& name, const std::string& found,
                              const std::string& expected);
[[noreturn]] void refuseInput(const std::string& name, double found, const std::string& expected);

/// Ends the run with a fatal error about the value of `key`: its text in the input, or `fallback`
/// if it is not given.
[[noreturn]] void refuseInput(const reader& config, const std::string& key, double fallback,
                              const std::string& expected);

/// The index of the first component whose amplitude, frequency or wave number is not finite; -1
/// where all are.
int firstInfinite(const waveTrain& train);

} // namespace sorvik
