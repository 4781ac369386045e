#pragma once

#include <cstddef>

namespace sorvik {

/// The inner loops of the elevation table: products of panels of eight columns.
///
/// A panel holds `count` rows of `width` doubles, row after row; a row belongs to one wave
/// component, a column to one probe or one instant.
namespace elevationKernel {

constexpr std::size_t width = 8;
/// Products of one pair of panels.
constexpr std::size_t tileSize = width * width;

/// For each of the `panels` panels of instants, the sums over the components c of
/// instants[c][i] * probes[c][j] go to tile[i][j] of `tiles`, panel after panel. Zero for no
/// component.
///
/// The order of a sum is that of the components, its operations are plain ones, and no result
/// depends on the processor.
void multiply(std::size_t count, std::size_t panels, const double* instants, const double* probes,
              double* tiles);

} // namespace elevationKernel

} // namespace sorvik
