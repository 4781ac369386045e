#pragma once

#include "check/point3.hpp"
#include "mesh/triangle.hpp"

#include <array>
#include <vector>

/// Panels in double precision, and integrals over them.
namespace sorvik {

/// The corners of a flat triangle in the order of its orientation.
using corners3 = std::array<point3, 3>;

/// The corners of a panel.
corners3 cornersOf(const triangle& panel);

point3 difference(const point3& a, const point3& b);
point3 crossProduct(const point3& a, const point3& b);
double norm(const point3& a);
/// The mean of the corners.
point3 centreOf(const corners3& t);
/// Below it a panel has no area that single precision could tell from none [m²].
constexpr double noArea = 1e-10;
/// Area times normal, by the right-hand rule [m²].
point3 areaVector(const corners3& t);
double longestEdge(const corners3& t);
/// The box around the panels whose corners are finite; low is above high where there are none.
struct box {
    point3 low;
    point3 high;
};
box boxAround(const std::vector<triangle>& panels);
/// Whether all coordinates are numbers.
bool isFinite(const corners3& t);

/// Whether a panel lies in the water plane: it closes the hull, and belongs to no sum.
bool isLid(const corners3& panel, double level);

/// The part of a triangle at or below z = `level`, as none to two triangles of its orientation.
struct clippedTriangle {
    std::array<corners3, 2> parts;
    int count = 0;
};
clippedTriangle clipBelow(const corners3& t, double level);

/// Integrals of area vectors over an oriented surface, from which volume and waterplane of the body
/// that it encloses follow by Gauss's theorem. A closing plane z = 0 adds nothing to the volumes
/// and moments, and is what the waterplane sums stand for.
struct surfaceSums {
    double area = 0;
    point3 volume = {};       ///< from the x, y and z components of the normals [m³]
    point3 volumeMoment = {}; ///< the integral of (x, y, z) over the volume [m⁴]
    // Integrals over the waterplane.
    double waterplane = 0; ///< m²
    double x = 0;          ///< m³
    double y = 0;
    double xx = 0; ///< m⁴
    double yy = 0;
    double xy = 0;

    void add(const corners3& t);
};

} // namespace sorvik
