#pragma once

#include "check/point3.hpp"
#include "mesh/triangle.hpp"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace sorvik {

/// What hydrostatics are computed for. Lengths in m, z up.
struct hydrostaticOptions {
    double level = 0;           ///< height of the water plane
    point3 cog = {};            ///< centre of gravity
    std::optional<double> mass; ///< kg; the displaced mass without it
    double density = 1025;      ///< of the water, kg/m³
    double gravity = 9.81;      ///< m/s²
};

/// The hydrostatics of the part of a hull below the level, cut exactly.
struct hydrostatics {
    double wettedArea = 0;   ///< m²
    point3 volume = {};      ///< from the x, y and z components of the normals [m³]
    point3 buoyancy = {};    ///< centre of buoyancy
    double waterplane = 0;   ///< area of the waterplane [m²]
    double waterplaneX = 0;  ///< its centre
    double waterplaneY = 0;  ///< its centre
    double Ixx = 0;          ///< integral of y² over the waterplane about its centre [m⁴]
    double Iyy = 0;          ///< of x²
    double Ixy = 0;          ///< of x y
    double draught = 0;      ///< depth of the lowest point [m]
    double displacement = 0; ///< kg
    double mass = 0;         ///< kg, as given or displaced
    double GMt = 0;          ///< transverse metacentric height [m]
    double GMl = 0;          ///< longitudinal metacentric height [m]
    /// 6 x 6 by rows, about the centre of gravity: surge, sway, heave, roll, pitch, yaw
    /// [N/m, N, N m].
    std::array<double, 36> stiffness = {};
};

/// Sums over the panels, whose normals point outwards. Panels with corners that are not finite are
/// left out; so are those of a lid.
hydrostatics computeHydrostatics(const std::vector<triangle>& panels,
                                 const hydrostaticOptions& options);

/// What `writeHydrostatics` writes beside the hydrostatics.
struct hydrostaticFiles {
    point3 cog = {};        ///< centre of gravity [m]
    std::string meshName;   ///< without its folder
    std::size_t panels = 0; ///< of the wetted surface
    /// Radii of gyration about the centre of gravity [m]; with them the folder Mechanics is
    /// written.
    std::optional<point3> gyration;
};

/// Writes into `folder`, which is made where it is missing, what Nemoh's own programs go on from:
/// KH.dat, Hydrostatics.dat, Mesh.cal and, for its motions, the folder Mechanics. Returns the file
/// that could not be written, or "".
std::string writeHydrostatics(const std::string& folder, const hydrostatics& h,
                              const hydrostaticFiles& wanted);

} // namespace sorvik
