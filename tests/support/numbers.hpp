#pragma once

#include <string>
#include <vector>

/// A number as a stream writes it by default.
std::string streamText(double value);

/// Some numbers of note, then 6 times `count` of all magnitudes, those around 1 more often, with
/// rounding halves and their neighbours.
std::vector<double> manyNumbers(unsigned seed, int count);
