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
        : first_(start), spacing_(step), evenCount_(count > 0 ? count : 0) {}
    /// The instants of a list.
    explicit timeInstants(std::vector<double> instants)
        : even_(false), list_(std::move(instants)) {}

    /// The number of instants.
    std::int64_t count() const {
        return even_ ? evenCount_ : static_cast<std::int64_t>(list_.size());
    }
    /// The instant `i`, from 0 to `count` - 1.
    double operator[](std::int64_t i) const {
        return even_ ? static_cast<double>(i) * spacing_ + first_
                     : list_[static_cast<std::size_t>(i)];
    }

    /// Whether the instants are evenly spaced, not listed.
    bool isEven() const { return even_; }
    /// First instant and distance of evenly spaced instants; 0 for listed ones.
    double start() const { return first_; }
    double step() const { return spacing_; }

private:
    bool even_ = true;
    double first_ = 0.0;
    double spacing_ = 0.0;
    std::int64_t evenCount_ = 0;
    std::vector<double> list_;
};

/// The instants of the run: the first column of the file "time.dat" in the output folder if there
/// is one, otherwise those of the input's start, end and step. Empty if the end lies before the
/// start. A step or a span that cannot be used is fatal.
timeInstants readInstants(const reader& config);

} // namespace sorvik
