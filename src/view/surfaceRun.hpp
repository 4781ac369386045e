#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace sorvik {

/// What `readSurfaceRun` keeps of a run.
struct surfaceLimits {
    std::size_t frames = 0;          ///< at most; 0 for as many as `values` allows
    std::size_t values = 10'000'000; ///< elevations of all frames together, at most
    std::size_t nodes = 250'000;     ///< of a frame, at most
    std::size_t series = 24;         ///< probes whose series are kept, at most
    std::vector<double> probes;      ///< x1, y1, x2, ...: places on the grid whose series are kept
};

/// The series of elevations at a place, of all instants of the run.
struct surfaceProbe {
    std::string name; ///< such as "Probe 1"
    double x = 0;     ///< of the node nearest to the place asked for [m]; 0 without a grid
    double y = 0;
    std::vector<float> elevations; ///< m
};

/// The result folder of a wave elevation task, as it was read. A run on a grid has frames; of a run
/// at probes only the series are there.
struct surfaceRun {
    std::size_t columns = 0;        ///< nodes along x in a frame, 0 without a grid
    std::size_t rows = 0;           ///< along y
    std::vector<double> x;          ///< of the columns [m]; ascending unless the size is negative
    std::vector<double> y;          ///< of the rows [m], in the same way
    std::vector<double> frameTimes; ///< s
    std::vector<float> frames;      ///< elevations [m]: (frame, row, column), the last fastest
    std::vector<double> times;      ///< of all instants [s]; none is before the one above
    std::vector<surfaceProbe> probes;
    std::size_t everyInstant = 1; ///< a frame is kept of so many instants
    /// A node is kept of so many along both axes; an axis with fewer keeps its first and last.
    std::size_t everyNode = 1;
    std::size_t nodesOfRun = 0; ///< at each instant: those of the grid, or the probes

    bool isGrid() const { return columns > 0; }
};

/// Reads waveElevation.dat of a folder, and waveDomain.dat where it is there.
///
/// On a grid the series are those at the nodes nearest to `limits.probes`, or at the centre and the
/// first corner; without a grid those of the first probes of the table. A file that is missing or
/// damaged or does not fit the other, and places that are not on the grid, throw `cannotCheck`,
/// which names the line. Memory is bounded by the limits and 100 million numbers for the series,
/// whatever is in the files.
surfaceRun readSurfaceRun(const std::string& folder, const surfaceLimits& limits);

} // namespace sorvik
