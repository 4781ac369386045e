#include "nemoh/nemohIO.hpp"

#include "base/classicText.hpp"
#include "base/files.hpp"
#include "base/processEnd.hpp"
#include "nemoh/fatalLine.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

// Results are Tecplot text: a head with the names of the columns, then zones of equal shape.
//
//     VARIABLES="w (rad/s)"
//     "A   1   1" "B   1   1"               one line per force, of body 1, then of body 2, ...
//     Zone t="Motion of body    1 in DoF   1",I=   128,F=POINT
//       0.2500000E-01  0.3149986E+08  0.3708163E-02 ...   frequency, then a pair per force
//
// A line that begins with a quote names columns, also between zones. Blank lines are skipped.

namespace {

/// The shape of a result file: zones of `lines` lines, each a frequency and `pairs` pairs.
struct zoneShape {
    std::int64_t zones;
    std::int64_t lines;
    std::int64_t pairs;
};

/// The pairs of all lines in file order, first and second values apart.
struct columnPairs {
    std::vector<double> first;
    std::vector<double> second;
};

/// The motions and forces of some bodies together.
struct dofCount {
    std::int64_t motions = 0;
    std::int64_t forces = 0;
};

/// Adds up the bodies from 1 to `bodies`, and body 1 in any case.
dofCount countDofs(const nemohIO& project, int bodies) {
    dofCount all;
    std::vector<double> refPoint(3);
    for (int body = 1; body == 1 || body <= bodies; ++body) {
        int motions = 0;
        int forces = 0;
        if (project.readBody(body, motions, forces, refPoint) != 0) {
            sorvik::endWithError("Can not find Body " + std::to_string(body) +
                                 " in Nemoh.cal file");
        }
        all.motions += motions;
        all.forces += forces;
    }
    return all;
}

/// A result file, line by line without the blank ones.
class resultLines {
public:
    /// Opens `name` in `Results` or `results` of the project.
    resultLines(const std::string& project, const std::string& name) {
        for (const char* folder : {"/Results/", "/results/"}) {
            file_ = (project + folder).append(name);
            in_ = sorvik::files::open(file_);
            if (in_.is_open()) {
                return;
            }
        }
        sorvik::endWithError("Could not open file " + file_ + ". Exiting.");
    }

    bool next() {
        while (std::getline(in_, text_)) {
            ++number_;
            start_ = text_.find_first_not_of(" \t\r");
            if (start_ != std::string::npos) {
                return true;
            }
        }
        text_.clear();
        return false;
    }

    const std::string& line() const { return text_; }
    /// The first character that is not blank.
    char mark() const { return text_[start_]; }

    [[noreturn]] void fatal(const std::string& expected) const {
        sorvik::fatalLine(file_, std::max(number_, 1), expected, text_);
    }

private:
    std::string file_;
    std::ifstream in_;
    std::string text_;
    std::size_t start_ = 0;
    int number_ = 0;
};

/// Appends the pairs of a line. Its frequency is known from the case.
void readPairs(const resultLines& lines, std::int64_t expected, columnPairs& pairs) {
    sorvik::classicText in(lines.line());
    double frequency = 0;
    in >> frequency;
    std::int64_t count = 0;
    while (in.good() && (in >> std::ws).good()) {
        double first = 0;
        double second = 0;
        in >> first >> second;
        pairs.first.push_back(first);
        pairs.second.push_back(second);
        ++count;
    }
    if (in.fail() || count != expected) {
        lines.fatal("a frequency and " + std::to_string(expected) + " pairs of numbers");
    }
}

/// Reads all zones after a head of at most `headLines` lines, which ends with a zone line. Stores
/// only what has been read, so that no count asks for memory.
columnPairs readZones(resultLines& lines, std::int64_t headLines, const zoneShape& shape) {
    bool inHead = true;
    for (std::int64_t line = 0; inHead && line < headLines; ++line) {
        inHead = lines.next() && lines.mark() != 'Z';
    }

    columnPairs pairs;
    std::int64_t zone = 0;
    std::int64_t line = 0;
    while (lines.next()) {
        if (lines.mark() == '"') {
            continue;
        }
        if (lines.mark() == 'Z') {
            if (line != 0 && line != shape.lines) {
                lines.fatal(std::to_string(shape.lines) + " frequencies before the next zone");
            }
            line = 0;
            continue;
        }
        if (line == shape.lines) {
            lines.fatal("a zone after " + std::to_string(shape.lines) + " frequencies");
        }
        if (line == 0 && zone++ == shape.zones) {
            lines.fatal("no more than " + std::to_string(shape.zones) + " zones");
        }
        readPairs(lines, shape.pairs, pairs);
        ++line;
    }
    if (zone != shape.zones || (zone > 0 && line != shape.lines)) {
        lines.fatal(std::to_string(shape.zones) + " zones of " + std::to_string(shape.lines) +
                    " frequencies up to here");
    }
    return pairs;
}

/// Turns (zone, line, pair) into (zone, pair, line).
void storeByZone(const zoneShape& shape, const std::vector<double>& gathered,
                 std::vector<double>& stored) {
    stored.resize(gathered.size());
    const auto zoneSize = static_cast<std::size_t>(shape.lines * shape.pairs);
    for (std::size_t start = 0; start < gathered.size(); start += zoneSize) {
        nemohIO::transposeTo(static_cast<int>(shape.lines), static_cast<int>(shape.pairs),
                             &gathered[start], &stored[start]);
    }
}

void readResults(const std::string& project, const std::string& name, std::int64_t headLines,
                 const zoneShape& shape, std::vector<double>& first, std::vector<double>& second) {
    resultLines lines(project, name);
    const columnPairs pairs = readZones(lines, headLines, shape);
    storeByZone(shape, pairs.first, first);
    storeByZone(shape, pairs.second, second);
}

} // namespace

void nemohIO::readCoeffs(int freqs, int bodies, std::vector<double>& addedMass,
                         std::vector<double>& damping) const {
    std::cout << "Reading nemoh case for: " << freqs << " frequencies and bodies: " << bodies
              << std::endl;
    const dofCount dofs = countDofs(*this, bodies);
    readResults(folder_, "RadiationCoefficients.tec", dofs.motions + 2,
                {dofs.motions, freqs, dofs.forces}, addedMass, damping);
}

void nemohIO::readExcitation(int freqs, int directions, int bodies, std::vector<double>& amplitudes,
                             std::vector<double>& phases) const {
    const dofCount dofs = countDofs(*this, bodies);
    readResults(folder_, "ExcitationForce.tec", dofs.forces + 2, {directions, freqs, dofs.forces},
                amplitudes, phases);
}

void nemohIO::readForce(const std::string& ending, int freqs, int directions, int bodies,
                        int forces, std::vector<std::complex<double>>& values) const {
    const std::int64_t headLines = countDofs(*this, 1).forces + 2;
    std::vector<double> amplitudes;
    std::vector<double> phases;
    readResults(folder_, ending, headLines,
                {directions, freqs, static_cast<std::int64_t>(bodies) * forces}, amplitudes,
                phases);
    values.resize(amplitudes.size());
    for (std::size_t i = 0; i < values.size(); ++i) {
        values[i] = {amplitudes[i] * std::cos(phases[i]), amplitudes[i] * std::sin(phases[i])};
    }
}

void nemohIO::transposeTo(int rows, int cols, const double* source, double* target) {
    for (std::ptrdiff_t i = 0; i < rows; ++i) {
        for (std::ptrdiff_t j = 0; j < cols; ++j) {
            target[j * rows + i] = source[i * cols + j];
        }
    }
}
