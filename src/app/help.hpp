#pragma once

/// Prints the usage of all tasks to standard output.
void help();
