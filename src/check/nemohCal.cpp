#include "check/nemohCal.hpp"

#include "base/classicText.hpp"
#include "base/excerpt.hpp"
#include "base/files.hpp"
#include "base/numberText.hpp"
#include "nemoh/nemohIO.hpp"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <string_view>

namespace sorvik {
namespace {

constexpr std::string_view separators = " \t\r,";

constexpr double largest = 2147483648.0; // what integers of 32 bits stay below

/// Whether Fortran reads the word as an integer.
bool isInteger(std::string_view word) {
    word.remove_prefix(word.front() == '-' || word.front() == '+' ? 1 : 0);
    return !word.empty() && std::all_of(word.begin(), word.end(), isDigit);
}

/// Reads a number as Fortran does, which knows an exponent by d too.
bool readNumber(std::string word, double& value) {
    std::replace_if(
        word.begin(), word.end(), [](char c) { return c == 'd' || c == 'D'; }, 'e');
    classicText in(word);
    return (in >> value) && in.peek() == std::istream::traits_type::eof();
}

/// The records of a file. After the first failure every value is 0 and nothing more is read.
class calRecords {
public:
    explicit calRecords(std::istream& in) : in_(in) {}

    int line() const { return line_; }
    const std::string& failure() const { return failure_; }

    /// The next line, whatever it holds.
    std::string next(const char* what) {
        text_.clear();
        if (failure_.empty() && std::getline(in_, text_)) {
            ++line_;
        } else {
            fail(what, "the end of the file");
        }
        return text_;
    }

    /// As many numbers, from as many lines as they take, the first `integers` of them integers.
    std::vector<double> numbers(std::size_t count, std::size_t integers, const char* what) {
        std::vector<double> values;
        while (values.size() < count && failure_.empty()) {
            const std::string text = next(what);
            appendNumbers(text, count, integers, what, values);
        }
        values.resize(count);
        return values;
    }

    calNumber number(const char* what) { return withLine(numbers(1, 0, what)[0]); }
    calNumber integer(const char* what) { return withLine(numbers(1, 1, what)[0]); }
    /// A number without a line was not read.
    calNumber withLine(double value) const { return {value, failure_.empty() ? line_ : 0}; }

private:
    void fail(const char* what, const std::string& found) {
        if (failure_.empty()) {
            failure_ = "expected " + std::string(what) + ", found " + found + ".";
        }
    }

    void appendNumbers(const std::string& text, std::size_t count, std::size_t integers,
                       const char* what, std::vector<double>& values) {
        std::size_t begin = text.find_first_not_of(separators);
        while (begin != text.npos && values.size() < count && failure_.empty()) {
            const std::size_t end = std::min(text.find_first_of(separators, begin), text.size());
            const std::string word = text.substr(begin, end - begin);
            double value = 0;
            if (!readNumber(word, value) ||
                (values.size() < integers && !(isInteger(word) && std::abs(value) < largest))) {
                fail(what, "\"" + excerpt(text) + "\"");
            }
            values.push_back(value);
            begin = text.find_first_not_of(separators, end);
        }
    }

    std::istream& in_;
    std::string text_;
    int line_ = 0;
    std::string failure_;
};

/// The name of a mesh: in quotes, or else up to a blank, comma, slash or semicolon.
void readMeshName(calRecords& records, calBody& body) {
    std::string text = records.next("the name of the mesh file");
    text.erase(0, std::min(text.find_first_not_of(" \t"), text.size()));
    body.meshLine = records.line();
    if (!text.empty() && (text[0] == '"' || text[0] == '\'')) {
        body.mesh = text.substr(1, text.find(text[0], 1) - 1);
        body.meshText = body.mesh;
        return;
    }
    body.mesh = text.substr(0, text.find_first_of(" \t\r,/;"));
    body.meshText = text.substr(0, text.find_first_of("\t\r!"));
    body.meshText.erase(body.meshText.find_last_not_of(' ') + 1);
}

std::vector<calDof> readDofs(calRecords& records, const char* number, const char* each) {
    std::vector<calDof> dofs;
    const double count = records.integer(number).value;
    for (double i = 0; i < count && records.failure().empty(); ++i) {
        const std::vector<double> v = records.numbers(7, 1, each);
        dofs.push_back({v[0] == 2 ? 2 : 1, {v[1], v[2], v[3]}, {v[4], v[5], v[6]}});
    }
    return dofs;
}

calBody readBody(calRecords& records) {
    calBody body;
    records.next("the header of a body");
    readMeshName(records, body);
    const std::vector<double> counts =
        records.numbers(2, 2, "the numbers of nodes and panels of the mesh");
    body.nodes = wholeNumber(counts[0]);
    body.panels = wholeNumber(counts[1]);
    body.countsLine = records.line();
    body.motions = readDofs(records, "the number of motions",
                            "type, direction and point of a motion as seven numbers");
    body.forces = readDofs(records, "the number of forces",
                           "type, direction and point of a force as seven numbers");
    const double lines = records.integer("the number of additional lines").value;
    for (double i = 0; i < lines && records.failure().empty(); ++i) {
        records.next("an additional line");
    }
    return body;
}

void readLoadCases(calRecords& records, nemohCal& cal) {
    records.next("the header of the load cases");
    const std::vector<double> f =
        records.numbers(4, 2, "frequency mode, number, lowest and highest frequency");
    cal.mode = records.withLine(f[0]);
    cal.frequencies = records.withLine(f[1]);
    cal.low = f[2];
    cal.high = f[3];
    const std::vector<double> d = records.numbers(3, 1, "number, first and last of the directions");
    cal.directions = records.withLine(d[0]);
    cal.firstDirection = d[1];
    cal.lastDirection = d[2];
}

void readPostProcessing(calRecords& records, nemohCal& cal) {
    records.next("the header of the post-processing");
    records.numbers(3, 0, "switch, step and duration of the impulse response");
    records.numbers(1, 0, "the switch of the pressure");
    records.numbers(3, 0, "number, first and last direction of the Kochin function");
    records.numbers(4, 0, "the four numbers of the free surface");
    cal.wantsMotions = records.number("the switch of the motions (RAO)").value == 1;
    records.numbers(1, 0, "the type of frequency of the results");
}

std::vector<double> spread(double count, double first, double last) {
    const bool isUsable = count >= 0 && count <= nemohIO::maxCases;
    std::vector<double> values(isUsable ? static_cast<std::size_t>(count) : 0, first);
    for (std::size_t i = 1; i < values.size(); ++i) {
        const bool isLast = i + 1 == values.size();
        values[i] = isLast ? last : first + static_cast<double>(i) * (last - first) / (count - 1);
    }
    return values;
}

} // namespace

int calDof::number() const {
    const auto isShorter = [](double a, double b) { return std::abs(a) < std::abs(b); };
    const auto longest = std::max_element(axis.begin(), axis.end(), isShorter);
    return static_cast<int>(longest - axis.begin()) + (type == 2 ? 4 : 1);
}

point3 calBody::centreOfRotation() const {
    const auto isRotation = [](const calDof& dof) { return dof.type == 2; };
    const auto last = std::find_if(motions.rbegin(), motions.rend(), isRotation);
    return last != motions.rend() ? last->point : motions.empty() ? point3{} : motions.back().point;
}

std::vector<double> nemohCal::omegas() const {
    const double turn = 2 * std::acos(-1.0);
    std::vector<double> values = spread(frequencies.value, low, high);
    for (double& value : values) {
        value = mode.value == 2 ? turn * value : mode.value == 3 ? turn / value : value;
    }
    return values;
}

std::vector<double> nemohCal::angles() const {
    return spread(directions.value, firstDirection, lastDirection);
}

nemohCal readNemohCal(std::istream& in) {
    calRecords records(in);
    nemohCal cal;
    records.next("the header of the environment");
    cal.density = records.number("the density of the water");
    cal.gravity = records.number("gravity");
    cal.depth = records.number("the depth of the water");
    records.numbers(2, 0, "x and y of the point of zero phase");
    records.next("the header of the bodies");
    cal.bodyCount = records.integer("the number of bodies");
    for (double i = 0; i < cal.bodyCount.value && records.failure().empty(); ++i) {
        cal.bodies.push_back(readBody(records));
    }
    readLoadCases(records, cal);
    readPostProcessing(records, cal);
    cal.failure = records.failure();
    cal.failureLine = records.line();
    return cal;
}

nemohCal openNemohCal(const std::string& folder) {
    const std::string file = folder + "/Nemoh.cal";
    std::ifstream in = files::open(file);
    if (!in.is_open()) {
        throw cannotCheck("Cannot read " + file +
                          ". Give the folder of a Nemoh project, as bem.output names it.");
    }
    return readNemohCal(in);
}

location ofCal(int line) {
    location place;
    place.file = "Nemoh.cal";
    place.line = line;
    return place;
}

void addCalFailure(const nemohCal& cal, report& result) {
    if (!cal.failure.empty()) {
        result.add("unread-project", "Nemoh.cal: " + cal.failure, {ofCal(cal.failureLine)});
    }
}

} // namespace sorvik
