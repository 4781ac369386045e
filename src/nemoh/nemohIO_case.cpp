#include "nemoh/nemohIO.hpp"

#include "base/files.hpp"
#include "base/processEnd.hpp"
#include "nemoh/fatalLine.hpp"

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <iostream>
#include <string>

// Values are picked out of lines by their place: a section is found by its header, lines are
// counted from there, and what follows the values of a line is a comment.

namespace {

constexpr const char* countAfterMode =
    "the frequency mode, which Nemoh 2 leaves out, and the number of frequencies";

/// Ends the process with an error that shows the line where reading `in` stopped.
[[noreturn]] void fatalHere(std::istream& in, const std::string& file,
                            const std::string& expected) {
    in.clear();
    const std::streamoff place = in.tellg();
    in.seekg(0);
    std::string text;
    int number = 0;
    do {
        text.clear();
        std::getline(in, text);
        ++number;
    } while (in.good() && in.tellg() <= place);
    sorvik::fatalLine(file, number, expected, text);
}

template <class T>
T readNumber(std::istream& in, const std::string& file, const char* what) {
    T value{};
    if (!(in >> value)) {
        fatalHere(in, file, what);
    }
    return value;
}

int readCount(std::istream& in, const std::string& file, const char* what) {
    const int count = readNumber<int>(in, file, what);
    if (count < 0 || count > nemohIO::maxCases) {
        fatalHere(in, file, what + std::string(" from 0 to ") + std::to_string(nemohIO::maxCases));
    }
    return count;
}

void findSection(std::istream& in, const std::string& file, const char* key) {
    if (nemohIO::skipToKey(in, key) < 0) {
        fatalHere(in, file, std::string("the section \"") + key + "\" before it");
    }
}

auto openCal(const std::string& file) {
    std::ifstream in = sorvik::files::open(file);
    if (!in.is_open()) {
        sorvik::endWithError("Could not open file " + file + ". Exiting.");
    }
    return in;
}

/// Fills `values`, two or more, evenly from `first` to `last`.
void spread(double first, double last, std::vector<double>& values) {
    const double steps = static_cast<double>(values.size() - 1);
    for (std::size_t i = 0; i < values.size(); ++i) {
        values[i] = first + static_cast<double>(i) * (last - first) / steps;
    }
}

void warnMissing(const std::string& file, const char* lost) {
    std::cout << "WARNING: " << file << " was not found. " << lost << std::endl;
}

} // namespace

int nemohIO::skipToKey(std::istream& in, const std::string& key) {
    std::string line = "hello" + key;
    int lines = 0;
    while (line.compare(0, key.size(), key) != 0) {
        if (!in.good()) {
            return -1;
        }
        std::getline(in, line);
        in >> std::ws;
        ++lines;
    }
    return in.good() ? lines : -1;
}

void nemohIO::skipLines(std::istream& in, int count) {
    std::string line;
    for (int i = 0; i < count && in; ++i) {
        std::getline(in, line);
        in >> std::ws;
    }
}

int nemohIO::readCase(int& freqs, std::vector<double>& frequencies, int& directions,
                      std::vector<double>& angles) const {
    const std::string file = folder_ + "/Nemoh.cal";
    std::ifstream in = openCal(file);
    findSection(in, file, "--- Description");
    const int bodies = readCount(in, file, "the number of bodies");

    findSection(in, file, "--- Load cases");
    readNumber<int>(in, file, "the frequency mode");
    freqs = readCount(in, file, countAfterMode);
    if (std::isspace(in.peek()) == 0) {
        fatalHere(in, file, countAfterMode); // "525 0.04 21.0" would be no frequencies
    }
    const auto w0 = readNumber<double>(in, file, "the lowest frequency");
    const auto w1 = readNumber<double>(in, file, "the highest frequency as fourth number");
    skipLines(in, 1);
    directions = readCount(in, file, "the number of directions");
    const auto dir0 = readNumber<double>(in, file, "the first direction");
    const auto dir1 = readNumber<double>(in, file, "the last direction");

    frequencies.resize(static_cast<std::size_t>(freqs));
    if (freqs >= 2) {
        spread(w0, w1, frequencies);
    }
    angles.resize(static_cast<std::size_t>(directions));
    if (directions >= 2) {
        spread(dir0, dir1, angles);
    } else if (directions == 1) {
        angles[0] = dir0;
    }
    return bodies;
}

int nemohIO::readBody(int body, int& motions, int& forces, std::vector<double>& refPoint) const {
    std::ifstream in = openCal(folder_ + "/Nemoh.cal");
    motions = -1;
    forces = -1;
    if (skipToKey(in, "--- Body " + std::to_string(body)) < 0) {
        std::cout << "Warning: ndofs for body " << body << " were not found" << std::endl;
        return -1;
    }
    // The mesh file, then its points and panels.
    skipLines(in, 2);
    int count = 0;
    if (!(in >> count)) {
        return -1; // uncovered: a file that is cut off
    }
    motions = count;
    // The rest of the count line and all motions but the last: type, axis, point.
    skipLines(in, motions);
    refPoint.resize(std::max<std::size_t>(refPoint.size(), 3));
    double skipped = 0;
    in >> skipped >> skipped >> skipped >> skipped >> refPoint[0] >> refPoint[1] >> refPoint[2];
    skipLines(in, 1);
    if (in >> count) {
        forces = count;
    }
    return motions < 0 || forces < 0 ? -1 : 0;
}

double nemohIO::readC(const std::string& folder, std::vector<double>& stiffness) {
    std::ifstream matrix = sorvik::files::open(folder + "/KH.dat");
    if (!matrix.is_open()) {
        warnMissing(folder + "/KH.dat", "No hydrostatic stiffness read.");
    }
    for (double value = 0; matrix >> value;) {
        stiffness.push_back(value);
    }

    const std::string file = folder + "/Hydrostatics.dat";
    std::ifstream in = sorvik::files::open(file);
    if (!in.is_open()) {
        warnMissing(file, "No volume read from Nemoh results.");
        return -1.0;
    }
    skipLines(in, 3);
    std::string word;
    char equals = 0;
    in >> word >> equals;
    return readNumber<double>(in, file, "the displacement as a word, '=' and a volume");
}
