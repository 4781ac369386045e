#include "waves/customWave.hpp"

#include "base/files.hpp"
#include "base/processEnd.hpp"
#include "io/printer.hpp"
#include "io/reader.hpp"
#include "numerics/matrixOp.hpp"
#include "waves/angles.hpp"
#include "waves/inputCheck.hpp"
#include "waves/waveFile.hpp"

#include <iostream>

namespace {

/// Adds the train of a block; a frequency, which `source` gives, without a finite wave number is
/// fatal.
void addBlock(customWave& sea, sorvik::waveBlock& block, bool useRadians,
              const std::string& source) {
    const std::vector<double> given = block.frequencies;
    sea.addWaveTrain(block.direction, block.amplitudes, block.frequencies, block.phases,
                     useRadians);
    const int infinite = sorvik::firstInfinite(sea.trains().back());
    if (infinite >= 0) {
        sorvik::refuseInput(source, given[static_cast<std::size_t>(infinite)],
                            "a frequency whose wave number is finite");
    }
}

} // namespace

customWave::customWave(const reader& config) : waveModel(config) {
    declareSumOfTrains<customWave>();
    const inputMap& inputs = config.inputs;
    const bool useRadians = inputs.read<int>(prefix + "useRadians", 0) != 0;
    if (inputs.map.count(prefix + "file") > 0) {
        std::cout << " Reading file info" << std::endl;
        readFile(config.mustRead<std::string>(prefix + "file"), useRadians);
    } else {
        std::cout << " Reading single-direction style input of customWave. Use .file input for "
                     "multiple directions"
                  << std::endl;
        sorvik::waveBlock block;
        block.direction = inputs.read<double>(prefix + "direction", 0.0);
        block.amplitudes = config.mustRead<std::vector<double>>(prefix + "amplitude");
        block.frequencies = config.mustRead<std::vector<double>>(prefix + "frequency");
        block.phases = config.mustRead<std::vector<double>>(prefix + "phase");
        addBlock(*this, block, useRadians, prefix + "frequency");
    }
    finishTrains();
}

void customWave::addWaveTrain(double direction, const std::vector<double>& amplitudes,
                              std::vector<double>& frequencies, std::vector<double>& phases,
                              bool useRadians) {
    if (frequencies.size() != amplitudes.size() || phases.size() != amplitudes.size()) {
        sorvik::endWithLine(
            "Fatal error: customWave component arrays must have the same size: Found " +
                std::to_string(amplitudes.size()) + " amplitudes, " +
                std::to_string(frequencies.size()) + " frequencies, and " +
                std::to_string(phases.size()) + " phases.",
            -1);
    }
    const auto n = static_cast<int>(amplitudes.size());
    if (!useRadians) {
        direction *= sorvik::radiansPerDegree;
        matrixOp::scale(n, 2 * sorvik::pi, frequencies.data());
        matrixOp::scale(n, sorvik::radiansPerDegree, phases.data());
    }
    addTrain(direction).setFrom_w(n, amplitudes.data(), frequencies.data(), phases.data());
}

void customWave::readFile(const std::string& name, bool useRadians) {
    std::ifstream in = sorvik::files::open(name);
    if (!in.is_open()) {
        printer::fatalError("Cannot read the wave file " + name + " of " + prefix + "file");
    }
    sorvik::waveBlock block;
    while (sorvik::readWaveBlock(in, name, block)) {
        addBlock(*this, block, useRadians,
                 "A frequency in the wave file " + name + " of " + prefix + "file");
    }
    if (in.bad()) {
        // uncovered: the disk reports an error; the torture covers it
        printer::fatalError("Cannot read the wave file " + name + " to its end");
    }
    if (trains().empty()) {
        printer::fatalError("The wave file " + name + " of " + prefix +
                            "file holds no block of components, expected a direction and below it "
                            "a row of amplitudes, of frequencies and of phases");
    }
}

// uncovered: no task calls it
void customWave::print(std::ostream& out) const {
    printFirstTrain(out, "customWave spectrum wave components:");
}
