#include "waves/timeInstants.hpp"

#include "base/numberText.hpp"
#include "io/printer.hpp"
#include "io/reader.hpp"
#include "waves/inputCheck.hpp"
#include "waves/numericTable.hpp"

#include <cmath>
#include <cstddef>

namespace sorvik {

namespace {

timeInstants listedInstants(const std::string& fileName) {
    std::vector<double> table;
    const int columns = readNumericTable(fileName, table);
    if (columns < 1 || table.empty()) {
        printer::fatalError("The time file " + fileName +
                            " is no table of numbers, expected rows of one length, separated by "
                            "blanks, with the instants in the first column");
    }
    const auto width = static_cast<std::size_t>(columns);
    std::size_t rows = 0;
    for (std::size_t i = 0; i < table.size(); i += width) {
        table[rows++] = table[i];
    }
    table.resize(rows);
    return timeInstants(std::move(table));
}

} // namespace

timeInstants readInstants(const reader& config) {
    const std::string timeFile = config.outputFolder + "/time.dat";
    if (reader::fileExist(timeFile, false)) {
        return listedInstants(timeFile);
    }
    const std::string stepKey = "simulation.print.dt";
    const auto start = config.inputs.read<double>("simulation.time.start", 0.0);
    const auto end = config.inputs.read<double>("simulation.time.end", 100.0);
    const auto step = config.inputs.read<double>(stepKey, 0.05);
    if (!std::isfinite(step) || step == 0.0) {
        refuseInput(config, stepKey, step, "a finite time step other than zero");
    }
    if (!std::isfinite(end - start)) {
        refuseInput("The time span of simulation.time.start and simulation.time.end",
                    "from " + numberText(start) + " to " + numberText(end), "a finite one");
    }
    // Beyond it a double cannot number the instants.
    constexpr double maxCount = 0x1p53;
    const double count = std::floor((end - start) / step + 1.0);
    if (count > maxCount) {
        refuseInput(config, stepKey, step, "a time step that gives at most 2^53 instants");
    }
    return {start, step, count < 1.0 ? 0 : static_cast<std::int64_t>(count)};
}

} // namespace sorvik
