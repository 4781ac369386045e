#pragma once

#include "base/textScanner.hpp"

#include <cmath>
#include <cstddef>
#include <iosfwd>
#include <limits>
#include <string>
#include <vector>

namespace sorvik {

/// The cure of most faults.
constexpr const char* makeSurfaceAgain = "Run sorvikPre -waveElevation again.";

/// Throws `cannotCheck` for a line of a file of a surface: what was found there and expected, and a
/// sentence with the cure.
[[noreturn]] void refuseSurface(const std::string& file, std::size_t line, const std::string& fault,
                                const std::string& cure);

/// Characters of a number in the files of a surface; far more than any program writes.
constexpr std::size_t longestSurfaceNumber = 1000;

/// Whether single precision, in which pages and files hold numbers, has room for `value`.
inline bool isSingle(double value) {
    return std::fabs(value) <= double(std::numeric_limits<float>::max());
}

/// What a first look at a table shows.
struct surfaceTableShape {
    std::size_t lines = 0;
    std::size_t words = 0; ///< in the first line
};

/// Counts the lines of a stream, of which `file` is the name, and the words of the first, which
/// takes a small part of the time to read its numbers. One that breaks off throws `cannotCheck`.
surfaceTableShape lookAtSurface(std::istream& in, const std::string& file);

/// Reads a table of elevations line by line: the time [s] and the elevation [m] at each node, by
/// blanks or tabs, as single precision can hold them. A damaged line throws `cannotCheck`.
class surfaceTable {
public:
    /// The stream, of which `file` is the name, must outlive the table.
    surfaceTable(std::istream& in, std::string file, std::size_t nodes);

    /// Reads the next line; false where only blank ones are left.
    bool next();
    /// Of the line that was read last [s].
    double time() const { return time_; }
    /// Its elevations [m].
    const std::vector<float>& row() const { return row_; }

private:
    [[noreturn]] void fail(const std::string& fault, const std::string& cure) const;
    [[noreturn]] void failLength(const std::string& found) const;
    bool isLineEnd();
    bool isLine();
    template <class T>
    T number(std::size_t column);
    void endLine();

    textScanner scanner_;
    std::string file_;
    std::vector<float> row_;
    std::size_t line_ = 0;
    double time_ = -std::numeric_limits<double>::infinity();
};

} // namespace sorvik
