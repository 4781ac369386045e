#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace sorvik {

/// Statistics of the elevation at one probe. Waves run from one zero up-crossing, where the
/// elevation is below the still water level before and not below it after, to the next; a height is
/// that of the highest crest above the lowest trough within a wave (IAHR, List of sea state
/// parameters, 1989). What the record is too short for is nan.
struct probeStatistics {
    double mean = 0;           ///< m
    double significant = 0;    ///< Hm0, four standard deviations [m]
    double crossingPeriod = 0; ///< Tz, the mean period of the waves [s]
    double highestThird = 0;   ///< H1/3, the mean height of the highest third of the waves [m]
    double greatestHeight = 0; ///< Hmax [m]
    double crest = 0;          ///< the highest elevation [m]
    double trough = 0;         ///< the lowest elevation [m]
    double skewness = 0;       ///< 0 for linear waves
    double kurtosis = 0;       ///< 3 for a Gaussian sea
};

/// The statistics of a table of elevations.
struct elevationStatistics {
    std::vector<probeStatistics> probes;
    long long instants = 0; ///< those in the statistics
    double duration = 0;    ///< from the first of them to the last [s]
    /// What is wrong with the table, and the line; empty where it was read to its end. The
    /// statistics are then those of the lines before it.
    std::string fault;
    long long faultLine = 0;
};

/// Reads a table of elevations: a line per instant, with the time [s] and the elevation [m] at each
/// probe, separated by blanks or tabs. Instants before `start` [s], where the sea is not at its
/// full height, are left out of the statistics, and so is time 0, where it is flat.
elevationStatistics readElevations(std::istream& in, double start);

} // namespace sorvik
