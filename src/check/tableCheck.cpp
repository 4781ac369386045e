#include "check/tableCheck.hpp"

#include "base/files.hpp"
#include "base/numberText.hpp"
#include "check/elevationStatistics.hpp"

#include <algorithm>
#include <cmath>

namespace sorvik {

namespace {

/// What is expected of the components in a record of that duration [s].
probeStatistics expectedOf(const seaFacts& sea, double duration) {
    probeStatistics expected;
    expected.significant = sea.height;
    expected.crossingPeriod = sea.T02;
    expected.kurtosis = sea.kurtosis;
    if (sea.components == 1) {
        expected.highestThird = expected.greatestHeight = 2 * sea.largestCrest;
        expected.crest = sea.largestCrest;
    } else {
        const double waves = std::log(std::max(duration / sea.T02, 1.0));
        expected.highestThird = sea.height;
        expected.crest = std::min(sea.height * std::sqrt(waves / 8), sea.largestCrest);
        expected.greatestHeight = 2 * expected.crest;
    }
    expected.trough = -expected.crest;
    return expected;
}

/// A statistic in the report.
struct statisticText {
    const char* name;
    const char* label;
    const char* unit;
    double probeStatistics::*value;
};

constexpr statisticText statistics[] = {
    {"mean", "Mean", "m", &probeStatistics::mean},
    {"Hm0", "Hm0", "m", &probeStatistics::significant},
    {"Tz", "Tz", "s", &probeStatistics::crossingPeriod},
    {"H13", "H1/3", "m", &probeStatistics::highestThird},
    {"Hmax", "Hmax", "m", &probeStatistics::greatestHeight},
    {"crest", "Crest", "m", &probeStatistics::crest},
    {"trough", "Trough", "m", &probeStatistics::trough},
    {"skewness", "Skewness", "", &probeStatistics::skewness},
    {"kurtosis", "Kurtosis", "", &probeStatistics::kurtosis},
};

void addStatistics(report& result, const elevationStatistics& table, const seaFacts& sea) {
    const probeStatistics expected = expectedOf(sea, table.duration);
    result.addFact("table.probes", "Probes of the table",
                   static_cast<long long>(table.probes.size()));
    result.addFact("table.instants", "Instants at full height", table.instants);
    for (const statisticText& each : statistics) {
        std::vector<double> values;
        for (const probeStatistics& probe : table.probes) {
            values.push_back(probe.*each.value);
        }
        const std::string name = std::string("table.") + each.name;
        const std::string label = each.label + (", expected " + numberText(expected.*each.value));
        result.addFact(std::string("expected.") + each.name, "", expected.*each.value, each.unit);
        constexpr std::size_t fewProbes = 4;
        if (values.size() <= fewProbes) {
            result.addFact(name, label, values, each.unit);
            continue;
        }
        const auto [least, most] = std::minmax_element(values.begin(), values.end());
        result.addFact(name + ".range", label + ", from and to", std::vector<double>{*least, *most},
                       each.unit);
        result.addFact(name, "", std::move(values), each.unit);
    }
}

void addDifference(report& result, const elevationStatistics& table, const seaFacts& sea) {
    // Heights of a record of so many waves lie within some percent of those of the sea.
    constexpr double manyWaves = 50;
    constexpr double likeHeights = 0.75;
    double squares = 0;
    for (const probeStatistics& probe : table.probes) {
        squares += probe.significant * probe.significant;
    }
    const double height = std::sqrt(squares / static_cast<double>(table.probes.size()));
    const double ratio = std::min(height, sea.height) / std::max(height, sea.height);
    const bool isLong = !(table.duration < manyWaves * sea.T02); // so is any without waves
    if (isLong && ratio < likeHeights) {
        result.add("table-differs", "Hm0 of the table is " + numberText(height) +
                                        " m; with these components it is " +
                                        numberText(sea.height) + " m.");
    }
}

} // namespace

void addTable(report& result, const std::string& file, const seaFacts& sea, double rampTime) {
    std::ifstream in = files::open(file);
    const elevationStatistics table = readElevations(in, rampTime);
    if (!in.is_open() || in.bad()) {
        throw cannotCheck("Cannot read the table " + file + " to its end.");
    }
    if (!table.fault.empty()) {
        location place;
        place.file = file;
        place.line = static_cast<int>(table.faultLine);
        result.add("bad-table", "Found: " + table.fault + ".", {place});
        return;
    }
    for (fact& each : result.facts) {
        // Both do not fit on a screen.
        const bool isMain = each.name == "Hs.table" || each.name == "Tp" || each.name == "seed";
        each.label = isMain ? each.label : "";
    }
    addStatistics(result, table, sea);
    addDifference(result, table, sea);
}

} // namespace sorvik
