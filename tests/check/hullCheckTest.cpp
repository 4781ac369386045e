#include "check/hullCheck.hpp"
#include "base/files.hpp"
#include "base/littleEndian.hpp"
#include "check/hullSurface.hpp"
#include "check/quietly.hpp"
#include "mesh/stlFormat.hpp"
#include "nemoh/nemohIO.hpp"
#include "support/findings.hpp"
#include "support/program.hpp"

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace sorvik;
using testing::DoubleNear;
using testing::ElementsAreArray;

using panelList = std::vector<triangle>;

v3<float> corner(double x, double y, double z) {
    return {static_cast<float>(x), static_cast<float>(y), static_cast<float>(z)};
}

/// A closed prism with vertical sides over a regular polygon, in `layers` of equal height.
panelList prism(int sides, double radius, double low, double high, int layers) {
    const double pi = std::acos(-1.0);
    const auto at = [&](int side, double z) {
        const double angle = 2 * pi * (side % sides + 0.5) / sides;
        return corner(radius * std::cos(angle), radius * std::sin(angle), z);
    };
    panelList panels;
    for (int i = 0; i < sides; ++i) {
        panels.emplace_back(at(i + 1, low), at(i, low), corner(0, 0, low));
        panels.emplace_back(at(i, high), at(i + 1, high), corner(0, 0, high));
        for (int j = 0; j < layers; ++j) {
            const double z0 = low + (high - low) * j / layers;
            const double z1 = low + (high - low) * (j + 1) / layers;
            panels.emplace_back(at(i, z0), at(i + 1, z0), at(i + 1, z1));
            panels.emplace_back(at(i, z0), at(i + 1, z1), at(i, z1));
        }
    }
    return panels;
}

/// Applies `map` to all corners.
template <class Map>
panelList mapped(const panelList& panels, Map map) {
    panelList moved;
    for (const triangle& p : panels) {
        moved.emplace_back(map(p.vertexA), map(p.vertexB), map(p.vertexC));
    }
    return moved;
}

/// 8 m long, 4 m wide, from z = -2 to 1 m.
panelList box(int layers = 3) {
    return mapped(prism(4, std::sqrt(0.5), -2, 1, layers), [](const v3<float>& p) {
        return v3<float>{8 * p.x, 4 * p.y, p.z};
    });
}

class hullCheck : public testing::Test {
public:
    hullReport check(const panelList& panels, const std::string& name = "hull.stl") {
        files::write(folder_.path(name), [&](std::ostream& out) {
            stl::write(out, panelView(panels, static_cast<int>(panels.size())));
        });
        return checkHull(folder_.path(name), options_);
    }

    hullReport checkText(const std::string& name, const std::string& text) {
        return checkHull(writeFile(folder_.path(name), text), options_);
    }

    temporaryFolder folder_;
    hullOptions options_;
};

TEST_F(hullCheck, hydrostaticsOfABoxAreExact) {
    options_.level = -0.5;
    options_.cog = {1, 0.5, -0.25};
    const hydrostatics h = check(box()).values;
    const double rhoG = 1025 * 9.81;
    EXPECT_THAT(h.volume, testing::Each(DoubleNear(48, 1e-5)));
    EXPECT_THAT(h.buoyancy, testing::Pointwise(DoubleNear(1e-6), {0.0, 0.0, -1.25}));
    EXPECT_NEAR(h.wettedArea, 8 * 4 + 2 * (8 + 4) * 1.5, 1e-5);
    EXPECT_NEAR(h.waterplane, 32, 1e-5);
    EXPECT_NEAR(h.draught, 1.5, 1e-6);
    EXPECT_NEAR(h.GMt, -1 + 8 * 64.0 / 12 / 48, 1e-6);
    EXPECT_NEAR(h.GMl, -1 + 4 * 512.0 / 12 / 48, 1e-6);
    const double roll = 8 * 64.0 / 12 + 32 * 0.25 - 48;
    const double pitch = 4 * 512.0 / 12 + 32 - 48;
    const std::vector<double> K = {32, -16, 32, 0, -16, roll, -16, 48, 32, -16, pitch, 24};
    for (std::size_t i = 0; i < K.size(); ++i) { // rows 3 to 5, columns 3 to 6
        EXPECT_NEAR(h.stiffness[6 * (i / 4 + 2) + i % 4 + 2] / rhoG, K[i], 1e-4) << i;
    }
}

TEST_F(hullCheck, hydrostaticsOfPrismsWedgesAndSpheresAreTheirs) {
    const double pi = std::acos(-1.0);
    const double angle = pi / 24; // a cylinder of 24 sides
    const hydrostatics cylinder = check(prism(24, 3, -10, 2, 5)).values;
    const double area = 24 * 9 * std::sin(angle) * std::cos(angle);
    EXPECT_NEAR(cylinder.volume[2], 10 * area, 1e-4);
    EXPECT_NEAR(cylinder.Ixx, area * 9 * (2 + std::cos(2 * angle)) / 12, 1e-3);
    // A wedge with its keel at z = -3 on the x axis, and vertical ends.
    const hydrostatics wedge = check(mapped(box(1), [](const v3<float>& p) {
                                   return p.z < 0 ? v3<float>{p.x, 0, -3} : v3<float>{p.x, p.y, 0};
                               })).values;
    EXPECT_NEAR(wedge.volume[0], 8 * 4 * 3 / 2.0, 1e-5);
    EXPECT_NEAR(wedge.buoyancy[2], -1, 1e-6);
    // A sphere of radius 2, from the layers of a prism; half a percent is what 48 sides cost.
    const hydrostatics sphere =
        check(mapped(prism(48, 1, -1, 1, 48), [&](const v3<float>& p) {
            const auto r = static_cast<float>(2 * std::cos(pi / 2 * static_cast<double>(p.z)));
            const auto z = static_cast<float>(2 * std::sin(pi / 2 * static_cast<double>(p.z)));
            return v3<float>{r * p.x, r * p.y, z};
        })).values;
    EXPECT_NEAR(sphere.volume[0] / (16 * pi / 3), 1, 5e-3);
    EXPECT_NEAR(sphere.buoyancy[2], -0.75, 5e-3);
}

TEST_F(hullCheck, hydrostaticsDependNeitherOnPanelsNorOnHeading) {
    options_.level = -0.3; // between the layers
    const hydrostatics coarse = check(box(1)).values;
    const hydrostatics fine = check(box(7)).values;
    EXPECT_NEAR(coarse.volume[0], fine.volume[2], 1e-5);
    EXPECT_NEAR(coarse.Iyy, fine.Iyy, 1e-4);
    const hydrostatics turned =
        check(mapped(box(7), [](const v3<float>& p) {
            return v3<float>{p.x * 0.6F - p.y * 0.8F, p.x * 0.8F + p.y * 0.6F, p.z};
        })).values;
    EXPECT_NEAR(turned.Ixx, 0.36 * fine.Ixx + 0.64 * fine.Iyy, 1e-3);
    EXPECT_NEAR(turned.Ixy, 0.48 * (fine.Iyy - fine.Ixx), 1e-3);
    EXPECT_NEAR(turned.GMt * turned.volume[2] - turned.Ixx, fine.GMt * fine.volume[2] - fine.Ixx,
                1e-3);
}

TEST_F(hullCheck, findsEachFaultAndNothingInASoundHull) {
    const auto moved = [](float dz) {
        return mapped(box(), [=](const v3<float>& p) { return v3<float>{p.x, p.y, p.z + dz}; });
    };
    const auto edited = [](const std::function<void(panelList&)>& edit) {
        panelList panels = box();
        edit(panels);
        return panels;
    };
    const triangle low = box()[2]; // a side's lowest
    const std::vector<std::pair<std::vector<std::string>, panelList>> cases = {
        {{}, box()},
        {{"open-edges", "unequal-volumes"}, edited([](panelList& p) { p.erase(p.begin() + 2); })},
        {{"half-hull", "unequal-volumes"}, edited([](panelList& p) {
             p.erase(p.begin() + 2, p.begin() + 8); // the whole side
         })},
        {{"turned-edges", "unequal-volumes"},
         edited([](panelList& p) { p[2] = triangle(p[2].vertexB, p[2].vertexA, p[2].vertexC); })},
        {{"branched-edges", "coincident-panels", "unequal-volumes"},
         edited([&](panelList& p) { p.push_back(low); })},
        {{"inward-normals"},
         mapped(box(),
                [](const v3<float>& p) {
                    return v3<float>{-p.x, p.y, p.z};
                })},
        {{"panel-without-area"},
         edited([&](panelList& p) { p.emplace_back(low.vertexA, low.vertexA, low.vertexB); })},
        {{"not-finite"}, edited([&](panelList& p) {
             p.emplace_back(low.vertexA, low.vertexB, corner(std::nan(""), 0, 0));
         })},
        {{"open-edges", "tiny-panel"}, edited([&](panelList& p) {
             p.emplace_back(low.vertexA, low.vertexA + corner(2e-4, 0, 0),
                            low.vertexA + corner(0, 0, 2e-4));
         })},
        {{"dropped-panels"}, moved(-5e-5F)},
        {{"nodes-near-level"}, moved(5e-5F)},
        {{"dry"}, moved(3)},
        {{"submerged"}, moved(-3)},
        {{"lid"}, moved(-1)},
        {{"millimetres"}, mapped(box(), [](const v3<float>& p) { return 1000.0F * p; })},
    };
    for (const auto& [expected, panels] : cases) {
        EXPECT_THAT(namesOf(check(panels).result), ElementsAreArray(expected));
    }
}

TEST_F(hullCheck, findsWhatTheReadersLeaveOut) {
    const std::string facet = "facet normal 0 0 1\nouter loop\nvertex 0 0 0\nvertex 1 0 0\n"
                              "vertex 0 1 0\nendloop\nendfacet\n";
    const std::string solid = "solid a\n" + facet + "endsolid a\n";
    const std::string noNormal = "facet normal nan nan nan" + facet.substr(18);
    const std::string gdf = "box\n1 9.81\n0 0\n2\n";
    const std::string quadrilateral = "0 0 -1 1 0 -1 1 1 -1 0 1 -1\n";
    const std::string three = "0 0 -1 1 0 -1 1 1 -1 0 0 -1\n";
    const std::string none = "0 0 0 0 0 0 0 0 0 0 0 0\n";
    const std::string nodes = "2 0\n1 0 0 -1\n2 1 0 -1\n3 1 1 -1\n";
    struct fileCase {
        std::string name, text, found, message;
    };
    const std::vector<fileCase> cases = {
        {"sound.stl", solid, "", ""},
        {"second.stl", solid + solid, "unread-records", "1 of 2 facets of the file are used"},
        {"normal.stl", "solid a\n" + facet + noNormal + facet, "unread-records", "of 3 facets"},
        {"cutOff.stl", solid.substr(0, 60), "unread-records", "0 lines endfacet"},
        {"noise.stl", std::string(500, 'x'), "unread-records", "announces 2021161080 facets"},
        {"sound.gdf", gdf + three + none, "", ""},
        {"half.gdf", gdf + quadrilateral + three, "unread-records", "1 of 2 panels"},
        {"short.gdf", gdf + three, "unread-records", "announces 2 panels and holds 1"},
        {"sound.dat", nodes + "0 0. 0. 0.\n1 2 3 1\n0 0 0 0\n", "", ""},
        {"zeros.dat", nodes + "0 0 0 0 0\n1 2 3 1\n0 0 0 0\n", "unread-records", "5 numbers"},
        {"indented.dat", nodes + "0 0 0 0\n1 2 3 1\n 0 0 0 0\n", "unread-records", "indented"},
        {"corner.dat", nodes + "0 0 0 0\n1 2 4 1\n0 0 0 0\n", "unread-records", "nodes that"},
        {"solid.dat", solid, "wrong-ending", "the content is STL, ASCII"},
        {"empty.stl", "", "unread-file", "gives no panels"},
        {"empty.dat", nodes + "0 0 0 0\n0 0 0 0\n", "unread-file", "gives no panels"},
        {"mesh.obj", "v 0 0 0\n", "unread-file", "SUPPLY A .gdf"},
    };
    for (const fileCase& each : cases) {
        const report result = checkText(each.name, each.text).result;
        const std::vector<std::string> fileFindings = {"unread-records", "wrong-ending",
                                                       "unread-file"};
        std::string found;
        std::string message;
        for (const finding& any : result.findings) {
            if (std::count(fileFindings.begin(), fileFindings.end(), any.name) > 0) {
                found += any.name;
                message += any.message;
            }
        }
        EXPECT_EQ(found, each.found) << each.name << ": " << message;
        EXPECT_THAT(message, testing::HasSubstr(each.message)) << each.name;
    }
    EXPECT_THROW(checkHull(folder_.path(), options_), cannotCheck);
}

TEST_F(hullCheck, comparesTheCutWithTheHull) {
    options_.level = 0.4;
    const report exact = check(box()).result;
    options_.level = 5e-5; // the panels above z = 0 are dropped
    const report dropped = check(box()).result;
    const auto fact = [](const report& result, const std::string& name) {
        const auto& facts = result.facts;
        return std::get<double>(std::find_if(facts.begin(), facts.end(), [&](const auto& each) {
                                    return each.name == name;
                                })->value);
    };
    EXPECT_NEAR(fact(exact, "cut.volume"), fact(exact, "volume.z"), 1e-4);
    EXPECT_NEAR(fact(exact, "cut.area"), fact(exact, "wettedArea"), 1e-4);
    EXPECT_NEAR(fact(dropped, "wettedArea") - fact(dropped, "cut.area"), 24 * 5e-5, 1e-5);
}

TEST_F(hullCheck, comparesWithOptions) {
    options_.mass = 70000;
    options_.w1 = 3;
    options_.origin = {0, 0, 0.5};
    const report result = check(box()).result;
    EXPECT_THAT(result.find("mass-differs")->message, testing::HasSubstr("82000 kg"));
    EXPECT_EQ(result.find("long-edges")->level, severity::error);
    options_.w1 = 1.0;
    EXPECT_EQ(check(box()).result.find("long-edges")->level, severity::warning);
    options_.w1 = 0.5;
    EXPECT_EQ(check(box()).result.find("long-edges"), nullptr);
    options_.density = 0;
    EXPECT_THROW(check(box()), cannotCheck);
}

TEST_F(hullCheck, takesTheFacetsThatACutOffStlFileHolds) {
    const std::string barge = readFile(SORVIK_TEST_DATA "/../../examples/1-hull/spar.stl");
    options_.origin = {1, 2, 3};
    const hullReport whole = checkText("whole.stl", barge);
    std::string cut = barge.substr(0, 84 + 50 * 300 + 49);
    littleEndian::store(cut.data() + 80, std::uint32_t{4'000'000});
    const hullReport checked = checkText("cut.stl", cut);
    EXPECT_THAT(
        checked.result.findings.at(0).message,
        testing::HasSubstr("announces 4000000 facets, and its length of 15133 bytes holds 300"));
    EXPECT_EQ(checked.result.find("coincident-panels"), nullptr);
    ASSERT_EQ(checked.mesh.faces.size(), 300U);
    EXPECT_EQ(cornersOf(checked.mesh.faces[299]), cornersOf(whole.mesh.faces[299]));
    EXPECT_EQ(checked.mesh.rotation, whole.mesh.rotation);
    EXPECT_FALSE(checkText("head.stl", cut.substr(0, 84)).hasPanels);
}

TEST_F(hullCheck, leavesOutTheLineThatEndsANemohMesh) {
    const std::string nodes = "2 1\n1 0 1 -1\n2 1 1 -1\n3 1 2 -1\n4 0 0 0\n0 0 0 0\n1 2 3 1\n";
    EXPECT_THAT(namesOf(checkText("hull.dat", nodes + "0 0 0 0\n").result),
                testing::Not(testing::Contains("panel-without-area")));
    const report two = checkText("twice.dat", nodes + "4 4 4 4\n0 0 0 0\n").result;
    EXPECT_EQ(two.find("panel-without-area")->count, 2U);
}

TEST_F(hullCheck, findsPanelsInThePlaneOfSymmetry) {
    const std::string text = "half\n1 9.81\n0 1\n2\n0 0 -1 1 0 -1 1 0 -2 0 0 -1\n"
                             "0 0 0 0 0 0 0 0 0 0 0 0\n";
    EXPECT_EQ(checkText("half.gdf", text).result.find("panel-in-symmetry-plane")->count, 2U);
}

TEST_F(hullCheck, writesWhatNemohsProgramsAndTheReaderRead) {
    const hullReport checked = check(box());
    ASSERT_EQ(writeHydrostatics(folder_.path("out"), checked.values,
                                {{0, 0, -1}, "hull.dat", 44, point3{1, 2, 3}}),
              "");
    std::vector<double> stiffness;
    double volume = 0;
    quietly([&] { volume = nemohIO::readC(folder_.path("out"), stiffness); });
    EXPECT_NEAR(volume, 64, 1e-4);
    ASSERT_EQ(stiffness.size(), 36U);
    for (std::size_t i = 0; i < 36; ++i) {
        EXPECT_NEAR(stiffness[i], checked.values.stiffness[i], 0.5) << i;
    }
    EXPECT_EQ(readFile(folder_.path("out/Mesh.cal")), "hull.dat\n0\n0. 0.\n0 0 -1\n44\n");
    EXPECT_EQ(readFile(folder_.path("out/Hydrostatics.dat")),
              " XF =   0.000 - XG =   0.000\n YF =   0.000 - YG =   0.000\n"
              " ZF =  -1.000 - ZG =  -1.000\n Displacement =  0.6400000E+02\n"
              " Waterplane area =  0.3200000E+02\n Mass = 0.6560000E+05\n");
    EXPECT_THAT(readFile(folder_.path("out/Mechanics/Inertia.dat")),
                testing::EndsWith("  0.5904000E+06\n"));
    EXPECT_NE(writeHydrostatics(folder_.path("hull.stl"), checked.values, {}), "");
}

} // namespace
