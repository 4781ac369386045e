#pragma once

#include <cstdint>
#include <utility>
#include <vector>

class reader;

namespace sorvik {

/// The instants [s] of a run: evenly spaced, computed as they are asked for, or listed.
class timeInstants {
public:
    /// `count` instants i * step + start; none for a count below 1.
    timeInstants(double start, double step, std::int64_t count)
        : first(start), spacing(step), evenCount(count > 0 ? count : 0) {}
    /// The instants of a list.
    explicit timeInstants(std::vector<double> instants) : even(false), list(std::move(instants)) {}

    std::int64_t count() const { return even ? evenCount : static_cast<std::int64_t>(list.size()); }
    /// The instant `i`, from 0 to `count` - 1.
    double operator[](std::int64_t i) const {
        return even ? static_cast<double>(i) * spacing + first : list[static_cast<std::size_t>(i)];
    }

    bool isEven() const { return even; }
    /// First instant and distance of evenly spaced instants; 0 for listed ones.
    double start() const { return first; }
    double step() const { return spacing; }

private:
    bool even = true;
    double first = 0.0;
    double spacing = 0.0;
    std::int64_t evenCount = 0;
    std::vector<double> list;
};

/// The instants of the run: the first column of the file "time.dat" in the output folder where
/// there is one, otherwise those of the input's start, end and step. None where the end lies before
/// the start; a step or a span that cannot be used is fatal.
timeInstants readInstants(const reader& config);

} // namespace sorvik
