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
// A line ends after 80 numbers, from 7 bodies of 6 degrees of freedom on in the middle of a pair,
// and goes on in the next.
// A line that begins with a quote names columns, also between zones. Blank lines are skipped.

namespace {

/// How many numbers Nemoh writes into a line before it breaks it, in the middle of a pair.
constexpr std::int64_t fullLine = 80;

/// How many of something a result file must hold, and where that number comes from.
struct expectedNumber {
    std::int64_t value;
    std::string source;

    std::string text(const char* what) const {
        return std::to_string(value) + ' ' + what + " (" + source + ')';
    }
};

constexpr const char* askedFor = "the number asked for";
constexpr const char* askedForDirections = "the number of directions asked for";

std::string ofBodies(const char* what, int bodies) {
    return std::string("the ") + what + " of " +
           (bodies > 1 ? std::to_string(bodies) + " bodies" : "body 1") + " in Nemoh.cal";
}

/// The shape of a result file: zones of `lines` frequencies, each with its pairs.
struct zoneShape {
    expectedNumber zones;
    expectedNumber lines;
    expectedNumber pairs;
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
            const std::string asked =
                body > 1 ? "; asked for " + std::to_string(bodies) + " bodies" : "";
            sorvik::endWithError("Can not find Body " + std::to_string(body) +
                                 " in Nemoh.cal file" + asked);
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

    /// Goes to the next line; false after the last.
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

    /// Goes to the next line; false if it does not go on with the numbers of a zone.
    bool nextOfZone() { return next() && mark() != 'Z' && mark() != '"'; }

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

/// Appends the numbers of a line to the pairs and returns how many there are, -1 with other text.
/// `before` numbers of the frequency are in earlier lines; the first of all is the frequency
/// itself.
std::int64_t appendLine(const resultLines& lines, std::int64_t before, columnPairs& pairs) {
    sorvik::classicText in(lines.line());
    std::int64_t place = before;
    for (double value = 0; (in >> std::ws).good(); ++place) {
        if (!(in >> value)) {
            return -1;
        }
        if (place > 0) {
            (place % 2 == 1 ? pairs.first : pairs.second).push_back(value);
        }
    }
    return place - before;
}

/// Reads a frequency and its pairs from the line at hand, and from the next where a full line ends
/// before the last pair.
void readFrequency(resultLines& lines, const expectedNumber& expected, columnPairs& pairs) {
    const std::int64_t wanted = 1 + 2 * expected.value;
    std::int64_t found = 0;
    std::int64_t inLine = fullLine;
    while (found < wanted && inLine == fullLine && (found == 0 || lines.nextOfZone())) {
        inLine = appendLine(lines, found, pairs);
        found += inLine;
    }
    if (found != wanted) {
        lines.fatal("a frequency and " + expected.text("pairs of numbers"));
    }
}

/// Skips a head of at most `headLines` lines, which ends with a zone line.
void skipHead(resultLines& lines, std::int64_t headLines) {
    bool inHead = true;
    for (std::int64_t line = 0; inHead && line < headLines; ++line) {
        inHead = lines.next() && lines.mark() != 'Z';
    }
}

/// Reads all zones. Stores only what has been read, so that no count asks for memory.
columnPairs readZones(resultLines& lines, const zoneShape& shape) {
    columnPairs pairs;
    std::int64_t zone = 0;
    std::int64_t line = 0;
    while (lines.next()) {
        if (lines.mark() == '"') {
            continue;
        }
        if (lines.mark() == 'Z') {
            if (line != 0 && line != shape.lines.value) {
                lines.fatal(shape.lines.text("frequencies") + " before the next zone");
            }
            line = 0;
            continue;
        }
        if (line == shape.lines.value) {
            lines.fatal("a zone after " + shape.lines.text("frequencies"));
        }
        if (line == 0 && zone++ == shape.zones.value) {
            lines.fatal("no more than " + shape.zones.text("zones"));
        }
        readFrequency(lines, shape.pairs, pairs);
        ++line;
    }
    if (zone != shape.zones.value || (zone > 0 && line != shape.lines.value)) {
        lines.fatal(shape.zones.text("zones") + " of " + shape.lines.text("frequencies") +
                    " up to here");
    }
    return pairs;
}

/// Turns (zone, line, pair) into (zone, pair, line).
void storeByZone(const zoneShape& shape, const std::vector<double>& gathered,
                 std::vector<double>& stored) {
    stored.resize(gathered.size());
    const auto lines = static_cast<int>(shape.lines.value);
    const auto pairs = static_cast<int>(shape.pairs.value);
    const std::size_t zoneSize = static_cast<std::size_t>(lines) * static_cast<std::size_t>(pairs);
    for (std::size_t start = 0; start < gathered.size(); start += zoneSize) {
        nemohIO::transposeTo(lines, pairs, &gathered[start], &stored[start]);
    }
}

void readResults(const std::string& project, const std::string& name, std::int64_t headLines,
                 const zoneShape& shape, std::vector<double>& first, std::vector<double>& second) {
    resultLines lines(project, name);
    skipHead(lines, headLines);
    const columnPairs pairs = readZones(lines, shape);
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
                {{dofs.motions, ofBodies("motions", bodies)},
                 {freqs, askedFor},
                 {dofs.forces, ofBodies("forces", bodies)}},
                addedMass, damping);
}

void nemohIO::readExcitation(int freqs, int directions, int bodies, std::vector<double>& amplitudes,
                             std::vector<double>& phases) const {
    const dofCount dofs = countDofs(*this, bodies);
    readResults(folder_, "ExcitationForce.tec", dofs.forces + 2,
                {{directions, askedForDirections},
                 {freqs, askedFor},
                 {dofs.forces, ofBodies("forces", bodies)}},
                amplitudes, phases);
}

void nemohIO::readForce(const std::string& ending, int freqs, int directions, int bodies,
                        int forces, std::vector<std::complex<double>>& values) const {
    const std::int64_t headLines = countDofs(*this, 1).forces + 2;
    std::vector<double> amplitudes;
    std::vector<double> phases;
    // uncovered: GCC counts the first line of a statement separately
    readResults(folder_, ending, headLines,
                {{directions, askedForDirections},
                 {freqs, askedFor},
                 {static_cast<std::int64_t>(bodies) * forces, askedFor}},
                amplitudes, phases);
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
