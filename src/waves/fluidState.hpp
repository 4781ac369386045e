#pragma once

#include <cstddef>
#include <vector>

/// The fluid at `n` points, as the simulation asks a wave model for it.
///
/// Positions, velocities and accelerations are blocks of 3n doubles: all x, all y, all z.
struct fluidState {
    /// Zeros at `points` points; none for a number below 1.
    explicit fluidState(int points)
        : n(points), positions(3 * size()), velocity(3 * size()), acceleration(3 * size()),
          density(size()), depthBelowSurface(size()) {}

    bool hasKinematics = false;            ///< velocities and accelerations are those of the model
    bool hasDensity = false;               ///< densities and depths are those of the model
    int n;                                 ///< number of points
    std::vector<double> positions;         ///< m
    std::vector<double> velocity;          ///< m/s
    std::vector<double> acceleration;      ///< m/s²
    std::vector<double> density;           ///< kg/m³
    std::vector<double> depthBelowSurface; ///< m, negative above the surface

private:
    std::size_t size() const { return n > 0 ? static_cast<std::size_t>(n) : 0; }
};
