#include "check/resultsCheck.hpp"
#include "nemoh/nemohIO.hpp"
#include "support/program.hpp"

#include <array>
#include <cmath>
#include <filesystem>
#include <functional>
#include <locale>
#include <set>
#include <sstream>

namespace {

using namespace sorvik;
using names = std::set<std::string>;
constexpr std::size_t freqs = 9;

/// Added mass and damping of heave and pitch: (motion, force, frequency, A or B).
using matrices = std::array<std::array<std::array<std::array<double, 2>, freqs>, 2>, 2>;

matrices soundMatrices() {
    matrices m;
    for (std::size_t f = 0; f < freqs; ++f) {
        const double w = 0.5 + 0.25 * static_cast<double>(f);
        const double fade = std::exp(-w);
        m[0][0][f] = {1000 + 500 * fade, 300 * w * fade};
        m[1][1][f] = {4000 + 900 * fade, 800 * w * w * fade};
        m[0][1][f] = {-200 * fade, -90 * w * fade};
        m[1][0][f] = {-200 * fade + 5, -90 * w * fade};
    }
    return m;
}

std::string radiationText(const matrices& m) {
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << "VARIABLES=\"w (rad/s)\"\n\"A   1   3\" \"B   1   3\"\n\"A   1   5\" \"B   1   5\"\n";
    for (const auto& motion : m) {
        text << "Zone t=\"Motion of body    1 in DoF   1\",I=     9,F=POINT\n";
        for (std::size_t f = 0; f < freqs; ++f) {
            text << 0.5 + 0.25 * static_cast<double>(f);
            for (const auto& force : motion) {
                text << ' ' << force[f][0] << ' ' << force[f][1];
            }
            text << '\n';
        }
    }
    return text.str();
}

struct nemohRun : testing::Test {
    nemohRun() {
        nemohIO nemoh(folder.path());
        nemoh.setEnv(1000, 9.81, 60, 0, 0, 1);
        nemoh.addBody("box.dat", 8, 5, {3, 5}, {0, 0, -0.5}, {});
        nemoh.addLoadCases(freqs, 0.5, 2.5, 1, 30, 30);
        nemoh.addPostProc(0, 20);
        nemoh.finish();
        std::string force = "VARIABLES=\n\"F\" \"F\"\n\"F\" \"F\"\nZone t=\"30\",I=  9,F=POINT\n";
        for (std::size_t f = 0; f < freqs; ++f) {
            force += "1 " + std::to_string(f) + ".125 0.5 7 -0.25\n";
        }
        writeFile(folder.path("results/ExcitationForce.tec"), force);
        std::string stiffness;
        for (int i = 0; i < 36; ++i) {
            stiffness += std::to_string(i) + " ";
        }
        writeFile(folder.path("mesh/KH.dat"), stiffness);
        writeFile(folder.path("mesh/Hydrostatics.dat"), "X\nY\nZ\nDisplacement = 4.\n");
    }

    resultsReport check(const std::string& radiation) {
        writeFile(folder.path("results/RadiationCoefficients.tec"), radiation);
        return checkResults(folder.path());
    }

    const temporaryFolder folder;
};

TEST_F(nemohRun, isSoundOrNamesTheFault) {
    const auto text = [](const std::function<void(matrices&)>& change) {
        matrices m = soundMatrices();
        change(m);
        return radiationText(m);
    };
    const auto replaced = [](const std::string& old, const std::string& by) {
        std::string sound = radiationText(soundMatrices());
        return sound.replace(sound.find(old), old.size(), by);
    };
    const std::tuple<std::string, names, const char*> cases[] = {
        {text([](matrices&) {}), {}, ""},
        {text([](matrices& m) { m[1][0][4][0] = 900; }), {"unsymmetric"}, "A35 at 1.5 rad/s"},
        {text([](matrices& m) { m[0][1][4][1] = 90; }), {"unsymmetric"}, "B35 at 1.5 rad/s"},
        {text([](matrices& m) { m[0][0][0][1] = -2; }), {"negative-damping"}, "B33 at 0.5 rad/s"},
        {text([](matrices& m) { m[0][0][0][1] = -1e-6; }), {}, ""}, // rounding
        {text([](matrices& m) { m[1][1][5][0] = 5500; }), {"spike"}, "A55 at 1.75 rad/s"},
        {replaced("  9,F", "  8,F"), {"counts-differ"}, "8 frequencies against 9"},
        {replaced("\"A   1   5\" \"B   1   5\"\n", ""), {"counts-differ"}, "1 forces against 2"},
        {replaced("\n1.25 ", "\n1.25 NaN "), {"not-finite"}, "line 8"},
        {replaced("\n1.25 ", "\n1.25 1 "), {"unread-results"}, "expected a frequency and 2 pairs"}};
    for (const auto& [radiation, expected, words] : cases) {
        const report result = check(radiation).result;
        names found;
        std::string said;
        for (const finding& each : result.findings) {
            found.insert(each.name);
            said += each.message;
            for (const location& place : each.where) {
                said += '\n' + place.key + " line " + std::to_string(place.line);
            }
        }
        EXPECT_EQ(found, expected) << said;
        EXPECT_THAT(said, testing::HasSubstr(words));
    }
}

TEST_F(nemohRun, writesTablesWithTheForceBeforeTheMotion) {
    matrices m = soundMatrices();
    m[0][1][0] = {12.345678, -0.5}; // the moment on pitch due to heave
    const nemohResults values = check(radiationText(m)).values;
    EXPECT_EQ(writeResultTables(folder.path("csv"), values), "");
    EXPECT_THAT(readFile(folder.path("csv/radiation.csv")),
                testing::StartsWith("omega,body_i,dof_i,body_j,dof_j,added_mass,damping\n"
                                    "0.5,1,3,1,3,"));
    EXPECT_THAT(readFile(folder.path("csv/radiation.csv")),
                testing::HasSubstr("\n0.5,1,5,1,3,12.3457,-0.5\n"));
    EXPECT_THAT(
        readFile(folder.path("csv/excitation.csv")),
        testing::StartsWith("omega,direction,body,dof,amplitude,phase\n"
                            "0.5,30,1,3,0.125,0.5\n0.5,30,1,5,7,-0.25\n0.75,30,1,3,1.125,"));
    EXPECT_THAT(readFile(folder.path("csv/hydrostatics.csv")),
                testing::HasSubstr("stiffness,2,1,6\n"));
    EXPECT_THAT(readFile(folder.path("csv/hydrostatics.csv")), testing::EndsWith("volume,,,4\n"));
    EXPECT_EQ(writeResultTables(folder.path("Nemoh.cal"), values), folder.path("Nemoh.cal"));
}

TEST_F(nemohRun, isLeftAsItIs) {
    std::filesystem::remove_all(folder.path("results"));
    std::filesystem::remove_all(folder.path("mesh"));
    const report result = checkResults(folder.path()).result;
    EXPECT_EQ(result.count(severity::error), 2U); // both files of results are missing
    EXPECT_NE(result.find("no-hydrostatics"), nullptr);
    EXPECT_FALSE(std::filesystem::exists(folder.path("results")));
}

} // namespace
