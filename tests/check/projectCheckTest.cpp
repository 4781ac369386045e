#include "check/projectCheck.hpp"
#include "check/irregularFrequency.hpp"
#include "support/findings.hpp"
#include "support/nemohRun.hpp"

#include <cmath>
#include <set>

namespace {

using namespace sorvik;
using names = std::vector<std::string>;
using replacements = std::vector<std::pair<std::string, std::string>>;

const std::string longName = std::string(77, 'n') + ".dat";

/// The box in 60 m of water at frequencies that suit it, sound but for what is replaced in
/// Nemoh.cal.
report checkBox(const temporaryFolder& folder, const replacements& changes = {}) {
    nemohIO nemoh(folder.path());
    nemoh.setEnv(1000, 9.81, 60, 0, 0, 1);
    nemoh.addBody("box.dat", 8, 5, {1, 2, 3, 4, 5, 6}, {0, 0, -0.5}, {});
    nemoh.addLoadCases(3, 0.25, 0.5, 2, 0, 90);
    nemoh.addPostProc(0, 20);
    nemoh.finish();
    std::string high = boxMesh;
    high.replace(high.find("-1 0\n"), 5, "-1 0.25\n");
    for (const std::string& name : {std::string("box.dat"), std::string("my box.dat"), longName}) {
        writeFile(folder.path(name), boxMesh + "0 0 0 0\n");
    }
    writeFile(folder.path("high.dat"), high + "0 0 0 0\n");
    writeFile(folder.path("lid.dat"), boxMesh + "5 6 7 8\n0 0 0 0\n");
    writeFile(folder.path("mesh/KH.dat"), "");
    std::string cal = readFile(folder.path("Nemoh.cal"));
    for (const auto& [old, by] : changes) {
        cal.replace(cal.find(old), old.size(), by);
    }
    writeFile(folder.path("Nemoh.cal"), cal);
    return checkProject(folder.path());
}

TEST(projectCheck, findsWhatStopsNemohAndNothingElse) {
    const temporaryFolder folder;
    const std::string name = "box.dat\t", range = "1 3 0.25 0.5 ";
    const names tooHigh = {"long-edges", "irregular-frequency"};
    const std::tuple<replacements, names, const char*> cases[] = {
        {{}, {}, ""},
        {{{name, "'my box.dat'\t"}, {"9.81", "9,"}}, {}, ""}, // as Fortran reads them
        {{{"9.81", "-9.81"}}, {"out-of-range"}, "Gravity is -9.81"},
        {{{"60. ", "0.9 "}}, {"out-of-range"}, "expected more than 1 m, the draught of box.dat"},
        {{{range, "1 0 0.5 1. "}}, {"out-of-range"}, "number of frequencies is 0"},
        {{{range, "1 3 0. 1. "}}, {"out-of-range"}, "lowest frequency is 0"},
        {{{range, "1 3 0.5 0.5 "}}, {"out-of-range"}, "highest frequency is 0.5"},
        {{{range, "1 3 0.5 5. "}}, tooHigh, "about 4.72"},
        {{{range, "2 3 0.5 1. "}}, tooHigh, "frequency 6.28"}, // Hz
        {{{range, "3 3 1. 9. "}}, tooHigh, "frequency 6.28"},  // s
        {{{range, "1 3 0.5 5. "}, {name, "lid.dat\t"}, {"8 5", "8 6"}}, {"lid", "long-edges"}, ""},
        {{{name, "my box.dat\t"}}, {"bad-file-name"}, "reads \"my\" of the name \"my box.dat\""},
        {{{name, "/box.dat\t"}}, {"bad-file-name"}, "reads \"\" of the name \"/box.dat\""},
        {{{name, longName + "\t"}}, {"bad-file-name"}, "has 81 characters"},
        {{{name, "none.dat\t"}}, {"missing-file"}, "no mesh \"none.dat\""},
        {{{name, "''\t"}}, {"missing-file"}, "no mesh \"\""},
        {{{"8 5", "8 6"}},
         {"counts-differ"},
         "gives 8 nodes and 6 panels, the mesh file holds 8 a"},
        {{{name, "high.dat\t"}}, {"above-water", "dropped-panels"}, "up to 0.25 m"},
        {{{"6 \t ! number of f", "6.\t"}}, {"unread-project"}, "expected the number of forces, f"},
        {{{"0 \t\t ! Response", "1"}}, {"missing-file"}, "Mechanics/Kh.dat"}};
    for (const auto& [changes, expected, words] : cases) {
        const report result = checkBox(folder, changes);
        std::string text;
        for (const finding& each : result.findings) {
            text += each.message + '\n';
        }
        EXPECT_EQ(namesOf(result), expected) << text;
        EXPECT_THAT(text, testing::HasSubstr(words));
    }
}

TEST(projectCheck, countsTheSolversWorkAndNamesEveryLine) {
    const temporaryFolder folder;
    const report sound = checkBox(folder);
    const auto value = [&](const std::string& name) {
        for (const fact& each : sound.facts) {
            if (each.name == name) {
                return std::get<double>(each.value);
            }
        }
        return std::nan("");
    };
    EXPECT_DOUBLE_EQ(value("memory"), 25 * 16e-6);
    EXPECT_NEAR(value("time"), 3 * (8.0 / 3 * 125 + 8 * 25 * 8) * 1e-9, 1e-15);
    EXPECT_NEAR(value("body1.GMt"), -0.5 + 0.5 + 4.0 / 3 / 4, 1e-6); // about the reference point
    EXPECT_EQ(checkBox(folder, {{"0.25 0.5", "0.25 x"}}).find("unread-project")->where[0].line, 27);
    EXPECT_THROW(checkProject(folder.path("none")), cannotCheck);
}

TEST(irregularFrequency, followsTheShapeOfTheWaterplane) {
    const double pi = std::acos(-1.0);
    hydrostatics h;
    h.draught = 100; // coth is 1: the square is g k
    const auto waveNumber = [&](double area, double xx, double yy, double xy) {
        h.waterplane = area;
        h.Ixx = xx;
        h.Iyy = yy;
        h.Ixy = xy;
        return std::pow(firstIrregularFrequency(h, 9.81).omega, 2) / 9.81;
    };
    EXPECT_NEAR(waveNumber(pi, pi / 4, pi / 4, 0), 2.404826, 1e-5);
    const double oblong = pi * std::hypot(1 / 4.0, 1 / 2.0);
    EXPECT_NEAR(waveNumber(8, 8 / 3.0, 32 / 3.0, 0), oblong, 1e-9);
    EXPECT_NEAR(waveNumber(8, 20 / 3.0, 20 / 3.0, 4), oblong, 1e-9); // turned by 45 degrees
    // Two squares of 1 m x 1 m, 10 m apart: a bound below the frequency of each.
    const double apart = waveNumber(2, 2 / 12.0 + 50, 2 / 12.0, 0);
    EXPECT_TRUE(apart > 0.6 * pi * std::sqrt(2.0) && apart < pi * std::sqrt(2.0)) << apart;
    EXPECT_EQ(waveNumber(0, 0, 0, 0), 0);
}

} // namespace
