#pragma once

/// The -waveElevation task: writes the surface elevations of the sea state in the input file -f at
/// the probes of -domain, -xyFile or -positions to "waveElevation.dat" in the folder -o.
///
/// Returns 0, or -1 where the file of -xyFile cannot be used. Other faults end the process.
int waveElevation(int argc, const char** argv);

/// Prints the usage of the wave elevation task to standard output.
void waveHelp();
