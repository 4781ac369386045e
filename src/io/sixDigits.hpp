#pragma once

#include <cstddef>

/// Numbers as the default stream format writes them (general notation, six significant digits), a
/// page of integer arithmetic where the stream takes a general formatter.
namespace sixDigits {

/// The longest text, "-1.23456e-308".
constexpr std::size_t maxLength = 13;

/// Writes `value` to `out`, which has room for `maxLength` characters, without a terminator, and
/// returns the end of the text. The text is the stream's for every double, NaN and infinities too.
char* write(char* out, double value);

/// Writes `value` if every number within `bound` of it has the same text; otherwise, and for
/// magnitudes below 1e-4 or from 999999 on, returns nullptr, and what `out` holds means nothing.
/// `bound` is not negative.
char* writeIfCertain(char* out, double value, double bound);

} // namespace sixDigits
