#include "view/surfaceTable.hpp"

#include "base/numberText.hpp"
#include "check/finding.hpp"

#include <algorithm>
#include <cmath>
#include <istream>
#include <utility>

namespace sorvik {

void refuseSurface(const std::string& file, std::size_t line, const std::string& fault,
                   const std::string& cure) {
    throw cannotCheck(file + ", line " + std::to_string(line) + ": found " + fault + ". " + cure);
}

surfaceTableShape lookAtSurface(std::istream& in, const std::string& file) {
    std::vector<char> block(std::size_t(1) << 18);
    surfaceTableShape shape;
    bool isWord = false;
    char last = '\n';
    while (in.read(block.data(), static_cast<std::streamsize>(block.size())), in.gcount() > 0) {
        const auto end = block.begin() + in.gcount();
        for (auto c = block.begin(); shape.lines == 0 && c != end && *c != '\n'; ++c) {
            const bool isSpace = *c == '\t' || *c == ' ' || *c == '\r';
            shape.words += !isSpace && !isWord ? 1 : 0;
            isWord = !isSpace;
        }
        shape.lines += static_cast<std::size_t>(std::count(block.begin(), end, '\n'));
        last = *(end - 1);
    }
    if (in.bad()) {
        throw cannotCheck("Cannot read " + file + " to its end. Copy it again.");
    }
    shape.lines += last == '\n' ? 0 : 1;
    return shape;
}

surfaceTable::surfaceTable(std::istream& in, std::string file, std::size_t nodes)
    : scanner_(in, longestSurfaceNumber), file_(std::move(file)), row_(nodes) {}

bool surfaceTable::next() {
    if (!isLine()) {
        return false;
    }
    const double former = time_;
    time_ = number<double>(1);
    if (time_ < former) {
        fail("the time " + numberText(time_) + " s after " + numberText(former) +
                 " s, expected times that ascend",
             "Sort the instants of time.dat or use a positive simulation.print.dt, and run "
             "sorvikPre -waveElevation again.");
    }
    for (std::size_t i = 0; i < row_.size(); ++i) {
        if (isLineEnd()) {
            failLength(std::to_string(i));
        }
        row_[i] = number<float>(i + 2);
    }
    endLine();
    return true;
}

void surfaceTable::fail(const std::string& fault, const std::string& cure) const {
    refuseSurface(file_, line_, fault, cure);
}

void surfaceTable::failLength(const std::string& found) const {
    fail(found + " elevations, expected " + std::to_string(row_.size()), makeSurfaceAgain);
}

/// Whether nothing but blanks is left of the line.
bool surfaceTable::isLineEnd() {
    scanner_.skipBlanks();
    const int c = scanner_.good() ? scanner_.peek() : -1;
    return c == '\n' || c == '\r' || c == -1;
}

/// Whether a line with numbers follows.
bool surfaceTable::isLine() {
    ++line_;
    if (!isLineEnd()) {
        return true;
    }
    if (scanner_.good()) {
        scanner_.skipSpace();
    }
    if (scanner_.good()) {
        fail("an empty line, expected the next instant", "Remove the line.");
    }
    return false;
}

template <class T>
T surfaceTable::number(std::size_t column) {
    T value(0);
    if (!scanner_.read(value) || !isSingle(static_cast<double>(value))) {
        fail("text in column " + std::to_string(column) +
                 " that is not a finite number of single precision, expected the " +
                 (column == 1 ? "time" : "elevation"),
             makeSurfaceAgain);
    }
    return value;
}

void surfaceTable::endLine() {
    if (!isLineEnd()) {
        failLength("more than " + std::to_string(row_.size()));
    }
    if (!scanner_.good()) {
        return;
    }
    const std::size_t before = scanner_.position();
    scanner_.skipLine();
    constexpr std::size_t longestEnd = 2;
    if (scanner_.position() - before > longestEnd) {
        fail("text after a carriage return, expected a line feed",
             "End the lines with a line feed.");
    }
}

} // namespace sorvik
