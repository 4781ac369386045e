#include "check/resultsCheck.hpp"
#include "support/findings.hpp"
#include "support/nemohRun.hpp"

#include <filesystem>
#include <functional>
#include <set>

namespace {

using namespace sorvik;
using names = std::vector<std::string>;

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
        std::string said;
        for (const finding& each : result.findings) {
            said += each.message;
            for (const location& place : each.where) {
                said += '\n' + place.key + " line " + std::to_string(place.line);
            }
        }
        EXPECT_EQ(namesOf(result), expected) << said;
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
