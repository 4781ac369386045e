#include "mesh/triangle.hpp"
#include "support/program.hpp"

#include <cmath>
#include <vector>

namespace {

/// A panel without symmetry, corners counter-clockwise seen from +z.
const v3<float> A = {1, 2, 3};
const v3<float> B = {4, 2.5F, 3.25F};
const v3<float> C = {1.5F, 7, 5};

void expectNear(v3<float> const& found, double x, double y, double z, double tolerance = 1e-6) {
    EXPECT_NEAR(static_cast<double>(found.x), x, tolerance);
    EXPECT_NEAR(static_cast<double>(found.y), y, tolerance);
    EXPECT_NEAR(static_cast<double>(found.z), z, tolerance);
}

TEST(triangle, isTheUnitPanelByDefault) {
    const triangle t;
    EXPECT_EQ(t.area, 1.0);
    expectNear(t.centroid, 0, 1.0 / 3, 0, 1e-7);
    expectNear(t.areaVector, 0, 0, 1, 0);
    // Second moments about the centroid, per area: b²/24 across, h²/18 upwards.
    const std::vector<double> op = {4.0 / 24, 0, 0, 0, 1.0 / 18, 0, 0, 0, 0};
    for (std::size_t i = 0; i < 9; ++i) {
        EXPECT_NEAR(t.op[i], op[i], 1e-7) << i;
    }
}

TEST(triangle, takesItsNormalFromTheOrderOfCorners) {
    const triangle t(A, B, C);
    // (B - A) x (C - A) = (-0.25, -5.875, 14.75)
    const double twiceArea = std::sqrt(0.25 * 0.25 + 5.875 * 5.875 + 14.75 * 14.75);
    EXPECT_NEAR(t.area, twiceArea / 2, 1e-6);
    expectNear(t.normal, -0.25 / twiceArea, -5.875 / twiceArea, 14.75 / twiceArea);
    expectNear(t.areaVector, -0.125, -2.9375, 7.375);
    EXPECT_LT(triangle(A, C, B).normal.z, 0);
    EXPECT_FALSE(std::isfinite(triangle(A, A, B).normal.x));

    const float facet[] = {0, 0, -1, A.x, A.y, A.z, B.x, B.y, B.z, C.x, C.y, C.z};
    const triangle given(facet);
    expectNear(given.normal, 0, 0, -1, 0);
    expectNear(given.vertexC, 1.5, 7, 5, 0);
    EXPECT_NEAR(static_cast<double>(given.areaVector.z), -twiceArea / 2, 1e-6);
}

TEST(triangle, movesAndTurns) {
    triangle t(A, B, C);
    const triangle before = t;
    t.shift({1, 2, 3});
    expectNear(t.vertexB, 3, 0.5, 0.25, 0);
    expectNear(t.centroid, 6.5 / 3 - 1, 11.5 / 3 - 2, 11.25 / 3 - 3);
    EXPECT_EQ(t.area, before.area);
    EXPECT_EQ(t.op, before.op);

    // A quarter turn about z takes x to y.
    const double R[] = {0, -1, 0, 1, 0, 0, 0, 0, 1};
    t = before;
    t.rotate(R);
    expectNear(t.vertexA, -2, 1, 3, 0);
    expectNear(t.normal, -static_cast<double>(before.normal.y),
               static_cast<double>(before.normal.x), static_cast<double>(before.normal.z));
    expectNear(t.areaVector, 2.9375, -0.125, 7.375);
    EXPECT_NEAR(t.op[0], before.op[4], 1e-6);
    EXPECT_NEAR(t.op[5], before.op[2], 1e-6);

    const double skew[] = {0.36, 0.48, -0.8, -0.8, 0.6, 0, 0.48, 0.64, 0.6};
    v3<float> p = A;
    triangle::rotate(skew, p);
    expectNear(p, 0.36 + 0.96 - 2.4, -0.8 + 1.2, 0.48 + 1.28 + 1.8);
    triangle::rotateT(skew, p);
    expectNear(p, 1, 2, 3);

    t = before;
    t.vertexC = {1, 2, 9};
    t.update();
    expectNear(t.normal, static_cast<double>(before.normal.x), static_cast<double>(before.normal.y),
               static_cast<double>(before.normal.z), 0);
    EXPECT_NEAR(t.area, 0.5 * 6 * std::sqrt(9.25), 1e-5);
    expectNear(t.centroid, 2, 6.5 / 3, 15.25 / 3);
}

TEST(v3, addsOuterProducts) {
    std::vector<double> M(9, 1.0);
    v3<float>{1, 2, 3}.OP({4, 5, 6}, M, true);
    EXPECT_EQ(M, (std::vector<double>{5, 6, 7, 9, 11, 13, 13, 16, 19}));
    // Formed in single precision: 16777217 does not exist there.
    v3<float>{16777216, 0, 0}.OP({1.0000001F, 0, 0}, M, false);
    EXPECT_EQ(M[0], 16777218.0);
    std::vector<double> small(8);
    EXPECT_EXIT_SAYING((v3<float>().OP({}, small, false)), 255,
                       "Fatal error. Size of v3 open product target is not 9. Exit. \n");
}

} // namespace
