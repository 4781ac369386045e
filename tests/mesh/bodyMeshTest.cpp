#include "mesh/bodyMesh.hpp"
#include "support/meshes.hpp"
#include "support/program.hpp"

#include <cmath>
#include <vector>

namespace {

using numbers = std::vector<double>;

const double quarterTurn[] = {0, -1, 0, 1, 0, 0, 0, 0, 1}; ///< about z, takes x to y

void expectNear(numbers const& found, numbers const& expected, double tolerance) {
    ASSERT_EQ(found.size(), expected.size());
    for (std::size_t i = 0; i < found.size(); ++i) {
        EXPECT_NEAR(found[i], expected[i], tolerance) << i;
    }
}

double wetArea(bodyMesh const& mesh) {
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
        EXPECT_EQ(mesh.faces[0].vertexA.x, 8.0F);
        EXPECT_EQ(mesh.faces[0].vertexA.z, -1.5F);
        EXPECT_EQ(mesh.origin.y, 20.0F);
        EXPECT_EQ(mesh.wetFaces.back()->vertexA.x, mesh.splitFaces.back().vertexA.x);
    }
    mesh.updateWetSurface(0);
    EXPECT_NEAR(wetArea(mesh), before, 1e-5);

    // To a quarter, then on to a half: only the change is applied.
    const double halfTurn[] = {-1, 0, 0, 0, -1, 0, 0, 0, 1};
    const v3<float> corner = mesh.faces[0].vertexA;
    mesh.setRotation(quarterTurn);
    mesh.rotate();
    EXPECT_EQ(mesh.faces[0].vertexA.x, -corner.y);
    EXPECT_EQ(mesh.faces[0].vertexA.y, corner.x);
    mesh.setRotation(halfTurn);
    mesh.rotate();
    EXPECT_EQ(mesh.faces[0].vertexA.x, -corner.x);
    EXPECT_EQ(mesh.faces[0].vertexA.y, -corner.y);
}

TEST(bodyMesh, mirrorsNormals) {
    bodyMesh mesh;
    fillMesh(mesh, {triangle({0, 1, 0}, {0, 2, 0}, {3, 1, -1})});
    mesh.mirrorY();
    mesh.mirrorX();
    const v3<float> n = mesh.faces[0].normal;
    const float signs[][2] = {{1, 1}, {1, -1}, {-1, 1}, {-1, -1}};
    for (std::size_t i = 0; i < 4; ++i) {
        const v3<float> mirrored = mesh.faces.at(i).normal;
        EXPECT_EQ(mirrored.x, signs[i][0] * n.x) << i;
        EXPECT_EQ(mirrored.y, signs[i][1] * n.y) << i;
        EXPECT_EQ(mirrored.z, n.z) << i;
    }
}

TEST(bodyMesh, floatsByArchimedes) {
    bodyMesh mesh;
    fillMesh(mesh, ellipsoid(80, 40));
    mesh.position = {0, 0, -0.5};
    mesh.updateWetSurface(0.25);
    double volume = 0;
    for (const triangle* panel : mesh.wetFaces) {
        // Of the prism between panel and level, which is 0.75 above the mesh's own zero.
        volume -= (0.75 - static_cast<double>(panel->centroid.z)) *
                  static_cast<double>(panel->areaVector.z);
    }
    EXPECT_GT(volume, 900);
    numbers F;
    mesh.FroudeKrylovForces(0.25, 2, F);
    // The diagonals of the panels are not symmetric, which leaves some moment.
    expectNear(F, {0, 0, 2 * volume, 0, 0, 0}, 7e-3 * volume);

    fillMesh(mesh, {triangle({0, 0, -1}, {4, 1, -1}, {4, 2, -1}, {3, 3, -1})});
    mesh.FroudeKrylovForces(-0.5, 2, F);
    // 1/2 m² about (11/3, 2), pushed up.
    expectNear(F, {0, 0, 1, 2, -11.0 / 3, 0}, 1e-5);
}

TEST(updateWetSurface, closesAHullWithItsWaterPlane) {
    bodyMesh mesh;
    fillMesh(mesh, ellipsoid(60, 30));
    mesh.updateWetSurface(1.0 / 3);
    // The area vectors of a closed surface add up to zero: what is missing is the water plane,
    // pi a b (1 - (z/c)²).
    v3<float> sum = {0, 0, std::acos(-1.0F) * 20 * 5 * (1 - 1.0F / 144)};
    for (const triangle* panel : mesh.wetFaces) {
        sum = sum + panel->areaVector;
    }
    EXPECT_NEAR(std::hypot(sum.x, sum.y), 0, 1e-3);
    EXPECT_NEAR(std::fabs(sum.z), 0, 2.0);
}

TEST(updateWetSurface, takesNoNumberForDry) {
    bodyMesh mesh;
    fillMesh(mesh, {triangle({0, 0, NAN}, {2, 0, NAN}, {0, 3, NAN})});
    EXPECT_TRUE(mesh.wetFaces.empty() && mesh.splitFaces.empty());
}

TEST(bodyMesh, spreadsMassOverItsPanels) {
    bodyMesh mesh;
    fillMesh(mesh, ellipsoid(40, 20));
    for (triangle& panel : mesh.faces) {
        // A sphere of radius 2 about (1, 2, 3).
        for (auto corner : {&triangle::vertexA, &triangle::vertexB, &triangle::vertexC}) {
            v3<float>& p = panel.*corner;
            p = {p.x / 10 + 1, p.y * 0.4F + 2, p.z / 2 + 3};
        }
        panel.update();
    }
    mesh.totalArea = mesh.surfaceArea();
    numbers inertia;
    EXPECT_EQ(outputOf([&] { inertia = mesh.volumeInertia(30); }),
              "WARNING: THIS FEATURE IS NOT YET IMPLEMENTED. Returning the shell inertia.\n");
    EXPECT_EQ(inertia, mesh.shellInertia(30));
    // 2/3 m r² of the shell itself, and m times the squares of the distances.
    expectNear(inertia, {80 + 390, -60, -90, -60, 80 + 300, -180, -90, -180, 80 + 150}, 1.6);
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
