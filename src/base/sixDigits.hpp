#pragma once

#include <cstddef>

namespace sorvik {

/// Numbers as the default stream format writes them (general notation, six significant digits), by
/// integer arithmetic, which is faster than the stream.
namespace sixDigits {

/// What a text may take while it is written. The longest is 13 characters, "-1.23456e-308", but the
/// usual ones are stored eight characters at a time.
constexpr std::size_t room = 16;

/// Writes `value` to `out`, which has `room`, without a terminator, and returns the end of the
/// text. The text is the stream's for every double, NaN and infinities too.
char* write(char* out, double value);

/// Writes `value` if every number within `bound` of it has the same text; otherwise, and for
/// magnitudes below 1e-16 or from 999999.5 on, returns nullptr, and what `out` holds means nothing.
/// `bound` is not negative.
char* writeIfCertain(char* out, double value, double bound);

/// Writes a tab and factor * value for each of `count` values until one is not certain in the sense
/// of `writeIfCertain`: `out`, which has 1 + `room` per value, moves to the end of the text.
/// Returns how many values were written.
std::size_t writeColumns(char*& out, const double* values, std::size_t count, double factor,
                         double bound);

} // namespace sixDigits

} // namespace sorvik
