#include "mesh/bodyMesh.hpp"
#include "mesh/triangle.hpp"
#include "support/meshes.hpp"
#include "support/program.hpp"

#include <cmath>

namespace {

using numbers = std::vector<double>;

const double quarterTurn[] = {0, -1, 0, 1, 0, 0, 0, 0, 1}; ///< about z, takes x to y

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
    // (B - A) x (C - A) = (-0.25, -5.875, 14.75)
    const double twiceArea = std::sqrt(0.25 * 0.25 + 5.875 * 5.875 + 14.75 * 14.75);
    EXPECT_NEAR(t.area, twiceArea / 2, 1e-6);
    expectNear(of(t.normal), {-0.25 / twiceArea, -5.875 / twiceArea, 14.75 / twiceArea});
    expectNear(of(t.areaVector), {-0.125, -2.9375, 7.375});
    EXPECT_FALSE(std::isfinite(triangle(A, A, B).normal.x));

    const float facet[] = {0, 0, -1, A.x, A.y, A.z, B.x, B.y, B.z, C.x, C.y, C.z};
    const triangle given(facet);
    EXPECT_EQ(of(given.normal), numbers({0, 0, -1}));
    EXPECT_EQ(of(given.vertexC), of(C));
    expectNear(of(given.areaVector), {0, 0, -twiceArea / 2});
}

TEST(triangle, movesAndTurns) {
    const triangle before(A, B, C);
    const numbers n = of(before.normal);
    triangle t = before;
    t.shift({1, 2, 3});
    EXPECT_EQ(of(t.vertexB), numbers({3, 0.5, 0.25}));
    expectNear(of(t.centroid), {6.5 / 3 - 1, 11.5 / 3 - 2, 11.25 / 3 - 3});
    EXPECT_TRUE(t.area == before.area && t.op == before.op);

    t = before;
    t.rotate(quarterTurn);
    EXPECT_EQ(of(t.vertexA), numbers({-2, 1, 3}));
    expectNear(of(t.normal), {-n[1], n[0], n[2]});
    expectNear(of(t.areaVector), {2.9375, -0.125, 7.375});
    EXPECT_NEAR(t.op[0], before.op[4], 1e-6);
    EXPECT_NEAR(t.op[5], before.op[2], 1e-6);

    const double skew[] = {0.36, 0.48, -0.8, -0.8, 0.6, 0, 0.48, 0.64, 0.6};
    v3<float> p = A;
    triangle::rotate(skew, p);
    expectNear(of(p), {0.36 + 0.96 - 2.4, -0.8 + 1.2, 0.48 + 1.28 + 1.8});
    triangle::rotateT(skew, p);
    expectNear(of(p), of(A));

    t = before;
    t.vertexC = {1, 2, 9};
    t.update();
    EXPECT_EQ(of(t.normal), n);
    EXPECT_NEAR(t.area, 0.5 * 6 * std::sqrt(9.25), 1e-5);
    expectNear(of(t.centroid), {2, 6.5 / 3, 15.25 / 3});
}

TEST(v3, addsOuterProducts) {
    std::vector<double> M(9, 1.0);
    v3<float>{1, 2, 3}.OP({4, 5, 6}, M, true);
    EXPECT_EQ(M, (std::vector<double>{5, 6, 7, 9, 11, 13, 13, 16, 19}));
    // Formed in single precision: 16777217 does not exist there.
    v3<float>{16777216, 0, 0}.OP({1.0000001F, 0, 0}, M, false);
    EXPECT_EQ(M[0], 16777218.0);
    std::vector<double> small(8);
    EXPECT_END_SAYING((v3<float>().OP({}, small, false)), -1,
                      "Fatal error. Size of v3 open product target is not 9. Exit. \n");
}

double wetArea(const bodyMesh& mesh) {
    double sum = 0;
    for (const triangle* panel : mesh.wetFaces) {
        sum += panel->area;
    }
    return sum;
}

TEST(bodyMesh, movesAndTurns) {
    bodyMesh mesh("missing.stl", {0, 0, 0}, {10, 20, -0.5}, 0);
    fillMesh(mesh, {triangle({-2, -1, -1}, {2, 1, -1}, {2, 1, 2})});
    mesh.updateWetSurface(0);
    const double before = wetArea(mesh);
    for (int again = 0; again < 2; ++again) {
        mesh.translate();
        EXPECT_EQ(of(mesh.faces[0].vertexA), numbers({8, 19, -1.5}));
        EXPECT_EQ(mesh.origin.y, 20.0F);
        EXPECT_EQ(mesh.wetFaces.back()->vertexA.x, mesh.splitFaces.back().vertexA.x);
    }
    mesh.updateWetSurface(0);
    EXPECT_NEAR(wetArea(mesh), before, 1e-5);

    // To a quarter, then on to a half: only the change is applied.
    const double halfTurn[] = {-1, 0, 0, 0, -1, 0, 0, 0, 1};
    mesh.setRotation(quarterTurn);
    mesh.rotate();
    EXPECT_EQ(of(mesh.faces[0].vertexA), numbers({-19, 8, -1.5}));
    mesh.setRotation(halfTurn);
    mesh.rotate();
    EXPECT_EQ(of(mesh.faces[0].vertexA), numbers({-8, -19, -1.5}));
}

TEST(bodyMesh, mirrorsThePanelsThatItCounts) {
    bodyMesh mesh;
    fillMesh(mesh, {triangle({0, 1, 0}, {0, 2, 0}, {3, 1, -1}), triangle()});
    mesh.nFaces = 1;
    mesh.mirrorY();
    mesh.mirrorX();
    const numbers n = of(mesh.faces[0].normal);
    const double signs[][2] = {{1, 1}, {1, -1}, {-1, 1}, {-1, -1}};
    EXPECT_EQ(std::pair(mesh.nFaces, mesh.faces.size()), std::pair(4, std::size_t(4)));
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(of(mesh.faces.at(i).normal),
                  numbers({signs[i][0] * n[0], signs[i][1] * n[1], n[2]}))
            << i;
    }
    mesh.nFaces = 6;
    mesh.mirrorX();
    EXPECT_EQ(mesh.faces.size(), 12U);
    EXPECT_EQ(of(mesh.faces.at(6 + 5).vertexB), numbers({-0.0, 1, 0}));
}

TEST(bodyMesh, floatsByArchimedes) {
    bodyMesh mesh;
    mesh.nemoh_read(SORVIK_TEST_DATA "/torture/input/box.dat");
    mesh.position = {0, 0, -0.5};
    mesh.updateWetSurface(-1.5);
    numbers F;
    mesh.FroudeKrylovForces(-1.5, 2, F); // 4 m by 2 m, 1 m deep
    F.resize(3);
    expectNear(F, {0, 0, 16}, 1e-5);
    // An area of (0, 4.5, 4.5) about (1, 1, -2), under 1.5 m of water.
    fillMesh(mesh, {triangle({0, 0, -1}, {3, 0, -1}, {0, 3, -4})});
    mesh.FroudeKrylovForces(-1, 2, F);
    expectNear(F, {0, -13.5, -13.5, -40.5, 13.5, -13.5}, 1e-5);
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
    bodyMesh mesh;
    fillMesh(mesh, {triangle({0, 0, 0}, {3, 0, 0}, {0, 3, 0}),
                    triangle({3, 3, 3}, {6, 3, 3}, {3, 6, 6})});
    const double position[] = {10, 20, 30};
    mesh.setRotation(quarterTurn);
    mesh.setPosition(position);
    numbers centres;
    mesh.faceCentresGlobal(centres, false);
    EXPECT_EQ(centres, (numbers{9, 21, 30, 6, 24, 34}));
    mesh.faceCentresGlobal(centres, true);
    EXPECT_EQ(centres, (numbers{9, 6, 21, 24, 30, 34}));
}

} // namespace
