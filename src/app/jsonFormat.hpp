#pragma once

/// The -toJSON task: writes the input file named by -f as JSON beside it.
///
/// Returns 1. An input file that cannot be opened ends the process with status -1.
int jsonFormat(int argc, const char** argv);
