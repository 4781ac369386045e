#pragma once

#include "check/finding.hpp"

#include <optional>
#include <string>

namespace sorvik {

/// Whose keys are demanded: with `both` those of a task that the file has keys of.
enum class inputTask { both, nemoh, wave };

/// What `checkInput` goes by.
struct inputOptions {
    inputTask task = inputTask::both; ///< the task that the file is for
    /// Where the wave task writes; named after the input file without it.
    std::optional<std::string> outputFolder;
    double probes = 1; ///< of the wave task
};

/// Checks an input file: its text, its keys and values, and the files that it names. Names of files
/// are relative to the current folder, as for the tasks. Throws `cannotCheck` where the file cannot
/// be read.
report checkInput(const std::string& file, const inputOptions& options);

/// The same of a text that was read from the file `name`, which need not exist.
report checkInputText(const std::string& name, const std::string& text,
                      const inputOptions& options);

} // namespace sorvik
