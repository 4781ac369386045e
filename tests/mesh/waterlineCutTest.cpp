#include "mesh/bodyMesh.hpp"
#include "support/meshes.hpp"
#include "support/program.hpp"

#include <cmath>
#include <string>
#include <vector>

namespace {

/// A panel over the corners (0, 0), (2, 0), (0, 3) of the plane with these heights.
triangle panelAt(const float (&z)[3]) {
    return {{0, 0, z[0]}, {2, 0, z[1]}, {0, 3, z[2]}};
}

struct cutCase {
    const char* what;
    float z[3];       ///< corner heights [m]
    double share;     ///< wet area as a share of the panel's
    const char* line; ///< wet, dry, split as printed
};

const cutCase cutCases[] = {
    {"wholly wet", {-1, -2, -1}, 1.0, "1 wet faces, 0 dry faces, and 0"},
    {"a corner at the level is wet", {0, -2, 0}, 1.0, "1 wet faces, 0 dry faces, and 0"},
    {"wholly dry", {1, 2, 1}, 0.0, "0 wet faces, 1 dry faces, and 0"},
    {"A wet", {-1, 1, 1}, 0.25, "1 wet faces, 0 dry faces, and 1"},
    {"B wet", {1, -1, 3}, 0.125, "1 wet faces, 0 dry faces, and 1"},
    {"C wet", {3, 1, -1}, 0.125, "1 wet faces, 0 dry faces, and 1"},
    {"A dry", {1, -1, -3}, 0.875, "2 wet faces, 0 dry faces, and 1"},
    {"B dry", {-3, 1, -1}, 0.875, "2 wet faces, 0 dry faces, and 1"},
    {"C dry", {-1, -1, 1}, 0.75, "2 wet faces, 0 dry faces, and 1"},
    {"a sliver is dropped", {-0.00005F, 1, 1}, 0.0, "0 wet faces, 0 dry faces, and 0"},
    {"so is a panel with one shallow wet corner",
     {-0.00005F, -1, 1},
     0.0,
     "0 wet faces, 0 dry faces, and 0"},
    {"just deeper than the tolerance",
     {-0.0001001F, -1, 1},
     0.5,
     "2 wet faces, 0 dry faces, and 1"},
    {"no number is dry", {NAN, NAN, NAN}, 0.0, "0 wet faces, 1 dry faces, and 0"},
};

TEST(updateWetSurface, keepsTheShareBelowTheLevel) {
    for (const cutCase& c : cutCases) {
        SCOPED_TRACE(c.what);
        bodyMesh mesh;
        const triangle panel = panelAt(c.z);
        const std::string output = outputOf([&] { fillMesh(mesh, {panel}); });
        EXPECT_EQ(output, "Set submergence level with:" + std::string(c.line) +
                              " split faces close to waterline\n");
        double wet = 0;
        for (const triangle* sub : mesh.wetFaces) {
            wet += sub->area;
            EXPECT_GT(sub->normal.z, 0);
            // The corners go round as the parent's do.
            const triangle again(sub->vertexA, sub->vertexB, sub->vertexC);
            EXPECT_NEAR(static_cast<double>(again.normal.z), static_cast<double>(panel.normal.z),
                        1e-3);
            EXPECT_LE(std::fmax(sub->vertexA.z, std::fmax(sub->vertexB.z, sub->vertexC.z)), 1e-6F);
        }
        if (!std::isnan(panel.area)) {
            EXPECT_NEAR(wet / panel.area, c.share, 1e-4);
        }
    }
}

void expectCorners(triangle const& t, const float (&expected)[9]) {
    const float found[] = {t.vertexA.x, t.vertexA.y, t.vertexA.z, t.vertexB.x, t.vertexB.y,
                           t.vertexB.z, t.vertexC.x, t.vertexC.y, t.vertexC.z};
    for (int i = 0; i < 9; ++i) {
        EXPECT_EQ(found[i], expected[i]) << i;
    }
}

TEST(updateWetSurface, keepsTheOrderOfCorners) {
    bodyMesh mesh;
    fillMesh(mesh, {panelAt({1, -1, 1}), panelAt({1, -1, -1}), panelAt({-1, -1, -1})});
    ASSERT_EQ(mesh.wetFaces.size(), 4U);
    EXPECT_EQ(mesh.wetFaces[0], &mesh.faces[2]);
    // The submerged corner, then the cut points towards its successor and its predecessor.
    expectCorners(*mesh.wetFaces[1], {2, 0, -1, 1, 1.5F, 0, 1, 0, 0});
    // Successor and predecessor of the dry corner, then the cut points of these.
    expectCorners(*mesh.wetFaces[2], {2, 0, -1, 0, 3, -1, 0, 1.5F, 0});
    expectCorners(*mesh.wetFaces[3], {2, 0, -1, 0, 1.5F, 0, 1, 0, 0});
}

TEST(updateWetSurface, closesAHullWithItsWaterPlane) {
    bodyMesh mesh;
    fillMesh(mesh, ellipsoid(60, 30));
    mesh.updateWetSurface(1.0 / 3);
    // The area vectors of a closed surface add up to zero: what is missing is the water plane,
    // pi a b (1 - (z/c)²).
    double x = 0;
    double y = 0;
    double z = 0;
    for (const triangle* panel : mesh.wetFaces) {
        x += static_cast<double>(panel->areaVector.x);
        y += static_cast<double>(panel->areaVector.y);
        z += static_cast<double>(panel->areaVector.z);
    }
    EXPECT_NEAR(x, 0, 1e-3);
    EXPECT_NEAR(y, 0, 1e-3);
    EXPECT_NEAR(z, -std::acos(-1.0) * 20 * 5 * (1 - 1.0 / 144), 2.0);
}

} // namespace
