#include "mesh/bodyMesh.hpp"
#include "mesh/triangle.hpp"
#include "support/meshes.hpp"
#include "support/program.hpp"

#include <cmath>

namespace {

using numbers = std::vector<double>;

const double quarterTurn[] = {0, -1, 0, 1, 0, 0, 0, 0, 1}; ///< about z, takes x to y
const double skewTurn[] = {0.36, 0.48, -0.8, -0.8, 0.6, 0, 0.48, 0.64, 0.6};

/// A panel without symmetry, corners counter-clockwise seen from +z.
const v3<float> A = {1, 2, 3};
const v3<float> B = {4, 2.5F, 3.25F};
const v3<float> C = {1.5F, 7, 5};

numbers of(const v3<float>& p) {
    return numbers(&p.x, &p.x + 3);
}

void expectNear(const numbers& found, const numbers& expected, double tolerance = 1e-6) {
    EXPECT_THAT(found, testing::Pointwise(testing::DoubleNear(tolerance), expected));
}

void expectSame(const triangle& found, const triangle& expected) {
    for (auto vector : {&triangle::normal, &triangle::vertexA, &triangle::vertexB,
                        &triangle::vertexC, &triangle::centroid, &triangle::areaVector}) {
        expectNear(of(found.*vector), of(expected.*vector), 1e-5);
    }
    EXPECT_NEAR(found.area, expected.area, 1e-5);
    expectNear(found.op, expected.op, 1e-5);
}

TEST(triangle, isTheUnitPanelByDefault) {
    const triangle t;
    EXPECT_EQ(t.area, 1.0);
    expectNear(of(t.centroid), {0, 1.0 / 3, 0}, 1e-7);
    EXPECT_EQ(of(t.areaVector), numbers({0, 0, 1}));
    // Second moments about the centroid, per area: b²/24 across, h²/18 upwards.
    expectNear(t.op, {4.0 / 24, 0, 0, 0, 1.0 / 18, 0, 0, 0, 0}, 1e-7);
}

TEST(triangle, takesItsNormalFromTheOrderOfCorners) {
    const triangle t(A, B, C);
    expectNear(of(t.areaVector), {-0.125, -2.9375, 7.375}); // (B - A) x (C - A) / 2
    expectSame(t, triangle(static_cast<float>(1 / t.area) * t.areaVector, A, B, C));
    const v3<float> noNormal = triangle(A, A, B).normal;
    EXPECT_TRUE(std::isnan(noNormal.x) && std::signbit(noNormal.x));
    const float facet[] = {0, 0, -1, A.x, A.y, A.z, B.x, B.y, B.z, C.x, C.y, C.z};
    expectSame(triangle(facet), triangle({0, 0, -1}, A, B, C));
}

TEST(triangle, movesAndTurns) {
    triangle t(A, B, C);
    t.shift(t.vertexA);
    expectSame(t, triangle({0, 0, 0}, {3, 0.5F, 0.25F}, {0.5F, 5, 2}));
    t = triangle(A, B, C);
    t.rotate(skewTurn);
    expectSame(t, triangle({-1.08F, 0.4F, 3.56F}, {0.04F, -1.7F, 5.47F}, {-0.1F, 3, 8.2F}));
    triangle::rotateT(skewTurn, t.vertexC);
    expectNear(of(t.vertexC), of(C));
}

TEST(v3, addsOuterProducts) {
    numbers M(9, 1.0), small(8);
    v3<float>{1, 2, 3}.OP({4, 5, 6}, M, true);
    EXPECT_EQ(M, (numbers{5, 6, 7, 9, 11, 13, 13, 16, 19}));
    // Formed in single precision: 16777217 does not exist there.
    v3<float>{16777216, 0, 0}.OP({1.0000001F, 0, 0}, M, false);
    EXPECT_EQ(M[0], 16777218.0);
    EXPECT_END_SAYING((v3<float>().OP({}, small, false)), -1,
                      "Fatal error. Size of v3 open product target is not 9. Exit. \n");
}

TEST(bodyMesh, movesAndTurns) {
    bodyMesh mesh("missing.stl", {0, 0, 0}, {10, 20, -0.5}, 0);
    fillMesh(mesh, {triangle({-2, -1, -1}, {2, 1, -1}, {2, 1, 2})});
    mesh.translate();
    mesh.translate(); // changes nothing
    const std::vector<triangle> moved = mesh.splitFaces;
    mesh.updateWetSurface(0);
    ASSERT_EQ(mesh.splitFaces.size(), 2U);
    expectSame(moved[0], mesh.splitFaces[0]);
    expectSame(moved[1], *mesh.wetFaces.back());
    EXPECT_EQ(of(mesh.faces[0].vertexA), numbers({8, 19, -1.5}));
    for (const double* turn : {skewTurn, quarterTurn}) {
        mesh.setRotation(turn);
        mesh.rotate();
    }
    expectNear(of(mesh.faces[0].vertexA), {-19, 8, -1.5}, 1e-5);
}

TEST(bodyMesh, dropsAPanelWhoseDepthIsNoNumber) {
    const float none = std::nanf("");
    bodyMesh mesh;
    fillMesh(mesh, {triangle({0, 0, HUGE_VALF}, {1, 0, none}, {0, 1, none})});
    mesh.updateWetSurface(HUGE_VAL);
    EXPECT_TRUE(mesh.wetFaces.empty());
}

TEST(bodyMesh, mirrorsThePanelsThatItCounts) {
    bodyMesh mesh;
    fillMesh(mesh, {triangle(A, B, C), triangle()});
    const numbers n = of(mesh.faces[0].normal);
    mesh.nFaces = 1;
    mesh.mirrorY();
    EXPECT_EQ(mesh.faces.size(), 2U);
    mesh.nFaces = 3;
    mesh.mirrorX();
    EXPECT_EQ(std::pair(mesh.nFaces, mesh.faces.size()), std::pair(6, std::size_t(6)));
    EXPECT_EQ(of(mesh.faces[1].normal), (numbers{n[0], -n[1], n[2]}));
    EXPECT_EQ(of(mesh.faces.at(3 + 1).normal), (numbers{-n[0], -n[1], n[2]}));
    EXPECT_EQ(of(mesh.faces.at(3 + 2).vertexB), (numbers{0, 1, 0}));
}

TEST(bodyMesh, floatsByArchimedes) {
    bodyMesh mesh("missing.stl", {0, 0, 0}, {0, 0, -0.5}, 0);
    // Twice an area of (0, 4.5, 4.5) about (1, 1, -2), under 1.5 m of water.
    const triangle panel({0, 0, -1}, {3, 0, -1}, {0, 3, -4});
    fillMesh(mesh, {panel, panel, triangle({0, 0, 1}, {1, 0, 1}, {0, 1, 1})});
    numbers F;
    mesh.FroudeKrylovForces(-1, 2, F);
    expectNear(F, {0, -27, -27, -81, 27, -27}, 1e-5);
}

TEST(bodyMesh, lumpsMassAtItsPanels) {
    bodyMesh mesh; // 2 kg at (1, 2, 2) and 1 kg at (1, 1, 3)
    fillMesh(mesh, {triangle({0, 0, 2}, {3, 0, 2}, {0, 6, 2}),
                    triangle({0, 0, 3}, {3, 0, 3}, {0, 3, 3})});
    mesh.totalArea = mesh.surfaceArea();
    numbers inertia;
    EXPECT_EQ(outputOf([&] { inertia = mesh.volumeInertia(3); }),
              "WARNING: THIS FEATURE IS NOT YET IMPLEMENTED. Returning the shell inertia.\n");
    expectNear(inertia, {26, -5, -7, -5, 20, -11, -7, -11, 12}, 1e-5);
}

TEST(bodyMesh, givesGlobalCentres) {
    bodyMesh mesh("missing.stl", {0, 0, 0}, {10, 20, 30}, 0);
    fillMesh(mesh, {triangle({0, 0, 0}, {3, 0, 0}, {0, 3, 0}),
                    triangle({3, 3, 3}, {6, 3, 3}, {3, 6, 6})});
    mesh.setRotation(quarterTurn);
    numbers centres;
    mesh.faceCentresGlobal(centres, false);
    EXPECT_EQ(centres, (numbers{9, 21, 30, 6, 24, 34}));
    mesh.faceCentresGlobal(centres, true);
    EXPECT_EQ(centres, (numbers{9, 6, 21, 24, 30, 34}));
}

} // namespace
