#include "mesh/triangle.hpp"

#include "numerics/matrixOp.hpp"

#include <limits>

namespace {

/// A component of the normal. Without an area it is not a number, whose sign is written into files
/// but left to the machine by the language: here it is minus everywhere.
float normalised(float component, float norm) {
    const bool isUndefined = component == 0.0F && norm == 0.0F;
    return isUndefined ? -std::numeric_limits<float>::quiet_NaN() : component / norm;
}

v3<float> toV3(const float* p) {
    return {p[0], p[1], p[2]};
}

/// The product of three coefficients with p, rounded to float.
float product(double a, double b, double c, const v3<float>& p) {
    return static_cast<float>(a * static_cast<double>(p.x) + b * static_cast<double>(p.y) +
                              c * static_cast<double>(p.z));
}

} // namespace

triangle::triangle() : triangle({0, 0, 1}, {-1, 0, 0}, {1, 0, 0}, {0, 1, 0}) {}

triangle::triangle(const float* p) : triangle(toV3(p), toV3(p + 3), toV3(p + 6), toV3(p + 9)) {}

triangle::triangle(const v3<float>& n, const v3<float>& A, const v3<float>& B, const v3<float>& C)
    : normal(n), vertexA(A), vertexB(B), vertexC(C) {
    update();
}

triangle::triangle(const v3<float>& A, const v3<float>& B, const v3<float>& C)
    : vertexA(A), vertexB(B), vertexC(C) {
    areaVector = cross(B - A, 0.5F * (C - A));
    const float norm = length(areaVector);
    area = static_cast<double>(norm);
    normal = {normalised(areaVector.x, norm), normalised(areaVector.y, norm),
              normalised(areaVector.z, norm)};
    setCentroid();
    computeOP();
}

double triangle::computeArea() const {
    return 0.5 * static_cast<double>(length(cross(vertexB - vertexA, vertexC - vertexA)));
}

void triangle::computeOP() {
    constexpr double twelfth = 1.0 / 12.0;
    op.resize(9);
    const v3<float> a = vertexA - centroid;
    const v3<float> b = vertexB - centroid;
    const v3<float> c = vertexC - centroid;
    a.OP(a, op, false);
    b.OP(b, op, true);
    c.OP(c, op, true);
    matrixOp::scale(9, twelfth, op.data());
}

void triangle::update() {
    setCentroid();
    setArea();
    computeOP();
}

void triangle::shift(v3<float> d) {
    vertexA = vertexA - d;
    vertexB = vertexB - d;
    vertexC = vertexC - d;
    centroid = centroid - d;
}

void triangle::rotate(const double* R) {
    rotate(R, normal);
    rotate(R, vertexA);
    rotate(R, vertexB);
    rotate(R, vertexC);
    update();
}

void triangle::rotate(const double* R, v3<float>& p) {
    p = {product(R[0], R[1], R[2], p), product(R[3], R[4], R[5], p), product(R[6], R[7], R[8], p)};
}

void triangle::rotateT(const double* R, v3<float>& p) {
    p = {product(R[0], R[3], R[6], p), product(R[1], R[4], R[7], p), product(R[2], R[5], R[8], p)};
}

void triangle::setCentroid() {
    centroid = (vertexA + vertexB + vertexC) / 3.0F;
}

void triangle::setArea() {
    area = computeArea();
    areaVector = static_cast<float>(area) * normal;
}
