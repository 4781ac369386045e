#include "waves/waveFile.hpp"

#include "io/printer.hpp"
#include "io/sorvikIO.hpp"

#include <algorithm>
#include <istream>

namespace sorvik {

namespace {

/// Reads white space and what the input language takes for a blank.
void skipBlanks(std::istream& in) {
    while (in.good() && (in >> std::ws).good() &&
           sorvikIO::checkUnwanted(static_cast<char>(in.peek()))) {
        in.get();
    }
}

std::vector<double> readRow(std::istream& in, const std::string& name, const char* content) {
    std::string line;
    if (!std::getline(in, line)) {
        printer::fatalError("The wave file " + name + " ends within a block, expected a row of " +
                            content +
                            ": each direction is followed by a row of amplitudes, of "
                            "frequencies and of phases");
    }
    std::replace_if(line.begin(), line.end(), sorvikIO::checkUnwanted, ' ');
    std::vector<double> row;
    sorvikIO::readLine<double>(line, row);
    return row;
}

} // namespace

bool readWaveBlock(std::istream& in, const std::string& name, waveBlock& block) {
    skipBlanks(in);
    if (!(in >> block.direction)) {
        return false;
    }
    skipBlanks(in);
    block.amplitudes = readRow(in, name, "amplitudes");
    block.frequencies = readRow(in, name, "frequencies");
    block.phases = readRow(in, name, "phases");
    return true;
}

} // namespace sorvik
