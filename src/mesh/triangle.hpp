#pragma once

#include "mesh/v3.hpp"

#include <vector>

/// A flat triangular panel. The order of its corners fixes its orientation: counter-clockwise seen
/// from the side that the normal points to.
///
/// Geometry is single precision [m], area and open product are double. All derived fields agree
/// with corners and normal after every constructor, `update`, `shift` and `rotate`.
class triangle {
public:
    v3<float> normal;     ///< unit, outward; not finite for a panel without area
    v3<float> vertexA;    ///< first corner
    v3<float> vertexB;    ///< second corner
    v3<float> vertexC;    ///< third corner
    v3<float> centroid;   ///< mean of the corners
    double area = 0;      ///< m²
    v3<float> areaVector; ///< area times normal
    /// Row-major 3 x 3: the mean of d dᵀ over the panel, d being the distance from the centroid
    /// [m²]. Times the area it is the panel's second moment of area.
    std::vector<double> op;

    /// The panel (-1, 0, 0), (1, 0, 0), (0, 1, 0) with its normal along z and an area of 1.
    triangle();
    /// From p[0..11]: normal, A, B, C, as in an STL facet. The normal is taken as given.
    explicit triangle(const float* p);
    /// From its corners [m]; the normal follows from their order (right-hand rule).
    triangle(const v3<float>& A, const v3<float>& B, const v3<float>& C);
    /// From its corners, with the normal taken as given.
    triangle(const v3<float>& n, const v3<float>& A, const v3<float>& B, const v3<float>& C);

    /// The area [m²] of the corners as they are; stores nothing.
    double computeArea() const;
    /// Rebuilds `op` from corners and centroid.
    void computeOP();
    /// Rebuilds all but the normal after the corners were moved; the normal stays the caller's.
    void update();
    /// Moves the panel by minus `d` [m], which may be one of its own corners.
    void shift(v3<float> d);
    /// Applies the rotation R (9 doubles, row-major, x' = R x) to corners and normal.
    void rotate(const double* R);
    /// Replaces p by R p, in double, rounded to float.
    static void rotate(const double* R, v3<float>& p);
    /// Replaces p by the transpose of R times p, in double, rounded to float.
    static void rotateT(const double* R, v3<float>& p);

private:
    void setCentroid();
    void setArea();
};
