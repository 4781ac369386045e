#pragma once

#include "check/finding.hpp"

#include <array>
#include <optional>
#include <string>

namespace sorvik {

/// What `checkHull` goes by. Lengths in m, z up.
struct hullOptions {
    /// The point of the mesh that becomes (0, 0, 0), as for `-meshConvert`.
    std::array<double, 3> origin = {};
    double level = 0; ///< height of the water plane in the moved mesh
    /// Centre of gravity in the moved mesh.
    std::array<double, 3> cog = {};
    std::optional<double> mass; ///< kg; the displaced mass without it
    double density = 1025;      ///< of the water, kg/m³
    double gravity = 9.81;      ///< m/s²
    std::optional<double> w1;   ///< highest wave frequency, rad/s
};

/// Checks a mesh file: what was read of it, its shape, its hydrostatics at the level, and its
/// fitness for Nemoh. Throws `cannotCheck` where the file cannot be opened.
report checkHull(const std::string& file, const hullOptions& options);

} // namespace sorvik
