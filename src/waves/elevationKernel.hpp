#pragma once

#include <cstddef>
#include <vector>

namespace sorvik {

/// The inner loops of the elevation table: products of strips.
///
/// A strip is a matrix of eight columns: `count` rows of `width` doubles, row after row. A row
/// belongs to a wave component, a column to a probe or to an instant.
namespace elevationKernel {

constexpr std::size_t width = 8;
/// Doubles in a tile: the products of the columns of two strips.
constexpr std::size_t tileSize = width * width;

/// For each of the `strips` strips of instants, the sums over the components c of
/// instants[c][i] * probes[c][j] go to tile[i][j] of `tiles`, strip after strip. Zero for no
/// component.
///
/// The terms of a sum are added in the order of the components, by plain operations, so that no
/// result depends on the processor.
void multiply(std::size_t count, std::size_t strips, const double* instants, const double* probes,
              double* tiles);

/// A way to `multiply`, for processors with one kind of vectors.
struct variant {
    const char* name;
    void (*run)(std::size_t count, std::size_t strips, const double* instants, const double* probes,
                double* tiles);
};

/// The ways that this processor supports, the fastest first. All give the same bytes.
std::vector<variant> variants();

} // namespace elevationKernel

} // namespace sorvik
