#include "base/files.hpp"
#include "base/numberText.hpp"
#include "check/inputCase.hpp"
#include "check/keyTable.hpp"

#include <algorithm>
#include <cmath>

namespace sorvik {
namespace {

const std::string startKey = "simulation.time.start";
const std::string endKey = "simulation.time.end";
const std::string stepKey = "simulation.print.dt";

constexpr double largestCount = 0x1p53; // that the task numbers
constexpr double largeTable = 1e9;      // bytes
// Of a time, and of an elevation with its tab and six digits, on average.
constexpr double bytesOfTime = 7;
constexpr double bytesOfElevation = 10;
constexpr double twoPi = 6.283185307179586;

/// The highest frequency of the sea [Hz] and its key; no key where none is given.
struct highest {
    std::string key;
    double frequency = 0;
};

highest highestFrequency(const inputCase& input) {
    const std::string type = input.valueOf(waveGroup + "type");
    const bool isInRadians = input.number(waveGroup + "useRadians") != 0;
    const double factor = isInRadians ? 1 / twoPi : 1;
    if (type == "JONSWAP") {
        return {waveGroup + "f1", input.number(waveGroup + "f1") * factor};
    }
    if (type == "custom" && !input.has(waveGroup + "file")) {
        const std::vector<double> all = input.list(waveGroup + "frequency");
        const auto largest = std::max_element(all.begin(), all.end());
        return {waveGroup + "frequency", largest == all.end() ? 0 : *largest * factor};
    }
    if (type != "regular") {
        return {};
    }
    if (input.has(waveGroup + "period")) {
        const double period = std::fabs(input.number(waveGroup + "period"));
        return {waveGroup + "period", period > 0 ? 1 / period : 0};
    }
    if (input.has(waveGroup + "frequency")) {
        return {waveGroup + "frequency",
                std::fabs(input.inputs.read<double>(waveGroup + "frequency", 0.0))};
    }
    return {waveGroup + "omega", std::fabs(input.number(waveGroup + "omega")) / twoPi};
}

void checkStep(const inputCase& input, double step, report& result) {
    const highest found = highestFrequency(input);
    const double nyquist = 1 / (2 * step);
    constexpr double tolerance = 1 + 1e-9;
    if (found.frequency > nyquist * tolerance && std::isfinite(found.frequency)) {
        addOfKey(result, "out-of-range", input, found.key,
                 found.key + " gives " + numberText(found.frequency) + " Hz, but " + stepKey +
                     " = " + numberText(step) + " s shows frequencies up to " +
                     numberText(nyquist) + " Hz only.")
            .level = severity::warning;
    }
}

void checkSize(const inputCase& input, double count, report& result) {
    const double bytes = count * (bytesOfTime + bytesOfElevation * input.options.probes);
    if (count <= largestCount) {
        result.addFact("instants", "Instants", static_cast<long long>(count));
        result.addFact("tableBytes", "Size of the table, about", bytes, "bytes");
    }
    if (!(count <= largestCount)) {
        addOfKey(result, "out-of-range", input, stepKey,
                 stepKey + " gives " + numberText(count) + " instants, expected at most 2^53.");
    } else if (bytes >= largeTable) {
        addOfKey(result, "large-table", input, stepKey,
                 "The table will have " + numberText(count) + " rows and about " +
                     numberText(bytes / largeTable) + " GB, with " +
                     numberText(input.options.probes) + " probes.");
    }
}

void checkAxis(const inputCase& input, report& result) {
    const double start = input.number(startKey);
    const double end = input.number(endKey);
    const double step = input.number(stepKey);
    if (!(step > 0)) {
        return; // It is out of its own range.
    }
    if (end < start) {
        addOfKey(result, "out-of-range", input, input.has(endKey) ? endKey : startKey,
                 endKey + " is " + numberText(end) + ", before " + startKey + ", which is " +
                     numberText(start) + ": the table will be empty.");
        return;
    }
    checkSize(input, std::floor((end - start) / step + 1.0), result);
    checkStep(input, step, result);
}

void addStale(const std::string& file, const std::string& effect, severity level, report& result) {
    location place;
    place.file = file;
    result.add("stale-time-file", file + " is left in the output folder. " + effect, {place})
        .level = level;
}

} // namespace

void checkTimeInput(const inputCase& input, report& result) {
    const std::string folder =
        input.options.outputFolder.value_or(files::withoutExtension(input.file));
    result.addFact("outputFolder", "", folder);
    const std::string domain = folder + "/waveDomain.dat";
    if (files::canOpen(domain)) {
        addStale(domain,
                 "It describes the grid of an earlier run, unless this one has -domain too.",
                 severity::note, result);
    }
    const std::string instants = folder + "/time.dat";
    if (files::canOpen(instants)) {
        addStale(instants, "Its instants replace the time keys of the input.", severity::warning,
                 result);
    } else {
        checkAxis(input, result);
    }
}

} // namespace sorvik
