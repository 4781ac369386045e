#include "waves/waveFile.hpp"

#include "io/printer.hpp"
#include "io/sorvikIO.hpp"

#include <istream>

namespace sorvik {

namespace {

std::vector<double> readRow(std::istream& in, const std::string& name, const char* content) {
    std::string line;
    if (!std::getline(in, line)) {
        printer::fatalError("The wave file " + name + " ends within a block, expected a row of " +
                            content +
                            ": each direction is followed by a row of amplitudes, of "
                            "frequencies and of phases");
    }
    std::vector<double> row;
    sorvikIO::readLine<double>(line, row);
    return row;
}

} // namespace

bool readWaveBlock(std::istream& in, const std::string& name, waveBlock& block) {
    if (!(in >> block.direction >> std::ws)) {
        return false;
    }
    block.amplitudes = readRow(in, name, "amplitudes");
    block.frequencies = readRow(in, name, "frequencies");
    block.phases = readRow(in, name, "phases");
    return true;
}

} // namespace sorvik
