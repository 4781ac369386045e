#pragma once

/// Prints the usage of the wave elevation task to standard output.
void waveHelp();
