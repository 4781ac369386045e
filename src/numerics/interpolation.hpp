#pragma once

/// Linear interpolation in tables and spherical interpolation of vectors in space.
namespace matrixOp {

/// Interpolates linearly, at the abscissa `at`, in n rows Y of m columns (n x m) that belong to the
/// ascending abscissae x, and gives the m values y.
///
/// Outside x the first and the last row hold. If an abscissa occurs more than once, its last row is
/// used. A NaN in `at` gives NaN.
void interpolateLinear(int n, int m, const double& at, const double* x, const double* Y, double* y);

/// The same for one column. NaN for n below 1.
double interpolateLinear(int n, const double& at, const double* x, const double* y);

/// Weight table for m abscissae `at` in the n ascending abscissae x, by the rules above: the value
/// at at[p] is w[2p] * y[lower[p]] + w[2p+1] * y[lower[p] + 1]. The weights of a pair lie in 0 to 1
/// and add up to 1. Does nothing for n below 2.
void lerpFactors(int n, int m, const double* x, const double* at, int* lower, double* w);

/// Unit vectors within this angle [rad] of one line are taken as equal or opposite: the plane that
/// they span is lost in rounding.
constexpr double parallelTolerance = 1e-15;

/// Unit vector c at the share t of the way from a to b, two unit vectors of three components, along
/// the shorter arc of the great circle and at constant speed (Shoemake's slerp, from the angle and
/// the tangent at a, which keep it unit-length for nearly equal and nearly opposite vectors).
///
/// Opposite vectors have no shorter arc: theirs starts from a towards a × e, where e is the axis of
/// the smallest component of a, the first of equal ones. t outside 0 to 1 goes on along the circle.
/// c may be a or b.
void slerp(const double& t, const double* a, const double* b, double* c);

/// Weight table of slerp for m shares t: the vector at t[p] is w[2p] * a + w[2p+1] * b, with the
/// weights sin((1-t) angle) / sin(angle) and sin(t angle) / sin(angle).
///
/// For equal vectors they are those of linear interpolation. Towards opposite ones they grow and
/// lose digits as 1 / sin(angle); for opposite ones the nearer end gets the weight 1, at t = 0.5
/// this is b.
void slerpFactors(int m, const double* t, const double* a, const double* b, double* w);

/// Interpolates n interleaved vectors of any length: the direction by slerp, the length linearly. A
/// pair with a vector of length zero (or subnormal) is interpolated linearly. c may be a or b.
void slerpVector(int n, const double& t, const double* a, const double* b, double* c);

} // namespace matrixOp
