#include "check/seaCheck.hpp"
#include "check/elevationStatistics.hpp"
#include "support/program.hpp"
#include "waves/globals.hpp"

#include <cmath>
#include <filesystem>
#include <sstream>

using namespace sorvik;

namespace {

/// A sound sea of 2 m and 0.1 Hz for 600 s. A key that is given before wins.
const std::string soundSea = "environment.wave.type = JONSWAP\n"
                             "environment.wave.f0 = 0.05\n"
                             "environment.wave.f1 = 0.5\n"
                             "environment.wave.components = 271\n"
                             "environment.wave.Hs = 0.204665\n"
                             "environment.wave.seed = 1\n"
                             "simulation.time.end = 600\n";
const std::string oneWave = "environment.wave.type = regular\n"
                            "environment.wave.amplitude = 2\n"
                            "environment.wave.period = 8\n";

/// Keys of waves, as `name = value` divided by blanks, before `rest`.
std::string wave(const std::string& keys, const std::string& rest) {
    std::istringstream in(keys);
    std::ostringstream text;
    for (std::string key, sign, value; in >> key >> sign >> value;) {
        text << "environment.wave." << key << " = " << value << '\n';
    }
    return text.str() + rest;
}

struct seaTest : testing::Test {
    temporaryFolder folder;

    report check(const std::string& input, const std::string& table = "") const {
        return checkSea(writeFile(folder.path("sea.m"), input), {"", table});
    }
};

std::string levelsAndNamesOf(const report& result) {
    std::string names;
    for (const finding& each : result.findings) {
        names += std::string(nameOf(each.level)) + " " + each.name + "\n";
    }
    return names;
}

double value(const report& result, const std::string& name) {
    for (const fact& each : result.facts) {
        if (each.name == name) {
            const auto* whole = std::get_if<long long>(&each.value);
            const auto* list = std::get_if<std::vector<double>>(&each.value);
            return whole  ? static_cast<double>(*whole)
                   : list ? list->front()
                          : std::get<double>(each.value);
        }
    }
    return std::nan("");
}

TEST_F(seaTest, findsWhatIsWrong) {
    struct {
        std::string input;
        const char* findings;
    } const cases[] = {
        {soundSea, ""},
        {wave("useRadians = 1 fp = 0.628319 f0 = 0.314159 f1 = 3.14159", soundSea), ""},
        {wave("alpha = 1.35e-05 Hs = -1", soundSea), ""}, // 0.0081 / 600 s
        {wave("alpha = 0.0081 Hs = -1", soundSea), "warning height-differs\nwarning steep\n"},
        {wave("Hs = 2", soundSea), "warning height-differs\nwarning steep\n"},
        {wave("Hs = 0.2", soundSea), "warning height-differs\n"},
        {wave("components = 14 Hs = 2", soundSea),
         "warning few-components\nwarning unresolved-peak\nwarning height-differs\n"},
        {wave("f0 = 0.11 components = 235", soundSea), "error cut-off-energy\n"},
        {wave("f1 = 0.15 components = 61", soundSea), "warning cut-off-energy\n"},
        {"simulation.time.end = 1200\n" + soundSea, "warning repeats\n"},
        {wave("f0 = 0.0507 f1 = 0.5007", "simulation.time.end = 650\n" + soundSea),
         "warning repeats\n"},
        {wave("rampTime = 600", "simulation.time.end = 1200\n" + soundSea), ""},
        {"simulation.print.dt = 1\n" + soundSea, "warning coarse-step\n"},
        {wave("fp = 0", soundSea), "error no-sea\n"},
        {"simulation.print.dt = 0\n" + oneWave, "error no-sea\n"},
        {wave("type = Regular", ""), "error no-sea\n"},
        {wave("tpye = regular", ""), "warning still-water\n"},
        {wave("type = regular period = 8", ""), "warning still-water\n"},
        {oneWave, ""},
        {wave("amplitude = 7.2", oneWave), "warning steep\n"}, // 14.4 m, 99.9 m long
        {wave("amplitude = 7", oneWave), ""},
        {wave("amplitude = 1.7 depth = 4", oneWave), "warning steep\n"},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(levelsAndNamesOf(check(each.input)), each.findings) << each.input;
    }
}

TEST_F(seaTest, namesKeysThatCureTheDefaultGrid) {
    for (const char* level : {"Hs = 2", "fp = 0.05 Hs = 2", "fp = 0.05", "useRadians = 1 Hs = 2"}) {
        SCOPED_TRACE(level);
        const std::string seed = wave("seed = 1", "simulation.time.end = 3000\n");
        const report before = check(wave(std::string(level) + " type = JONSWAP", seed));
        ASSERT_NE(before.find("unresolved-peak"), nullptr);
        EXPECT_EQ(before.find("unresolved-peak")->level, severity::error);
        const std::string cure = before.find("unresolved-peak")->cure;
        std::istringstream words(cure);
        std::string keys;
        for (std::string key, word; words >> word; key = word) {
            if (word == "=" && words >> word) {
                keys += key.append(" = ") + word.substr(0, word.find(',')) + " ";
            }
        }
        const report after = check(wave(keys + level + " type = JONSWAP", seed));
        EXPECT_EQ(levelsAndNamesOf(after), "") << keys;
        EXPECT_NEAR(value(after, "Hs.table"), value(before, "Hs.wanted"),
                    0.005 * value(before, "Hs.wanted"));
    }
}

TEST_F(seaTest, addsUpComponents) {
    const std::string waves = writeFile(folder.path("waves"), "0\n3\n0.1\n0\n90\n4\n0.15\n30\n");
    const std::string input = wave("type = custom file = " + waves, "simulation.time.end = 10\n");
    const std::string table = folder.path("components");
    globals::m_g = {5};
    const report result = checkSea(writeFile(folder.path("sea.m"), input), {table, ""});
    EXPECT_EQ(levelsAndNamesOf(result), "warning steep\n");
    EXPECT_EQ(globals::m_g, std::vector<double>{5}); // of this process still
    globals::m_g = {0, 0, -9.81};
    const std::pair<const char*, double> facts[] = {
        {"components", 2},
        {"trains", 2},
        {"componentsOf90Percent", 2},
        {"Hs.table", 4 * std::sqrt(12.5)},
        {"Tp", 1 / 0.15},
        {"T01", 12.5 / (0.45 + 1.2)},
        {"T02", std::sqrt(12.5 / (0.045 + 0.18))},
        {"Te", (45 + 8 / 0.15) / 12.5},
        {"largestCrest", 7},
        {"steepness", 2 * M_PI * 4 * std::sqrt(12.5) * 0.15 * 0.15 / 9.81},
        {"kh", 0.2 * M_PI * 0.2 * M_PI / 9.81 * 1000},
        {"direction", std::atan2(8, 4.5) * 180 / M_PI},
        {"spread", std::sqrt(2 - 2 * std::hypot(8, 4.5) / 12.5) * 180 / M_PI},
        {"repeatPeriod", 20},
        {"groupPeriod", 20},
        {"shortestPeriod", 1 / 0.15},
        {"longestPeriod", 10},
    };
    for (const auto& [name, expected] : facts) {
        EXPECT_NEAR(value(result, name), expected, 1e-9 * expected) << name;
    }
    EXPECT_EQ(readFile(table), "train\tdirection [deg]\ta [m]\tf [Hz]\tT [s]\tL [m]\tphase [deg]\n"
                               "1\t0\t3\t0.1\t10\t156.131\t0\n"
                               "2\t90\t4\t0.15\t6.66667\t69.3916\t30\n");
    for (const std::string& own : {waves, folder.path("sea.m")}) {
        EXPECT_THROW(checkSea(folder.path("sea.m"), {own, ""}), cannotCheck);
    }
}

TEST_F(seaTest, seesWhereAWaveFileIsLost) {
    const std::string block = "0\n1\n0.1\n0\n";
    const std::pair<std::string, int> files[] = {{block + block, 0},
                                                 {block + "\n[" + block, 0},
                                                 {block + "end of 1\n", 0},
                                                 {block + "2nd\n" + block, -1},
                                                 {block + "\nsea of 90\n" + block, 6}};
    for (const auto& [text, line] : files) {
        const std::string file = writeFile(folder.path("waves"), text);
        const report result = check(wave("type = custom file = " + file, ""));
        const finding* lost = result.find("lost-trains");
        EXPECT_EQ(line == -1, result.find("no-sea") != nullptr) << text;
        EXPECT_EQ(lost == nullptr ? 0 : lost->where.front().line, std::max(line, 0)) << text;
    }
}

/// A table of a signal at 5000 instants, 0.1 s apart.
template <class Signal>
elevationStatistics statisticsOf(Signal signal) {
    std::ostringstream out;
    out.imbue(std::locale::classic());
    for (int i = 0; i < 5000; ++i) {
        out << 0.1 * i << '\t' << signal(0.1 * i) << "\t0\n";
    }
    std::istringstream in(out.str());
    return readElevations(in, 108);
}

TEST(elevations, haveTheStatisticsOfKnownSignals) {
    const auto sine = statisticsOf([](double t) { return 3 * std::sin(M_PI / 4 * t) + 0.25; });
    ASSERT_EQ(sine.probes.size(), 2U);
    const probeStatistics& probe = sine.probes.front();
    EXPECT_EQ(sine.instants, 3920);
    const double numbers[] = {probe.mean,         probe.significant,    probe.crossingPeriod,
                              probe.highestThird, probe.greatestHeight, probe.crest,
                              probe.trough,       probe.skewness,       probe.kurtosis};
    const double expected[] = {0.25, 4 * 3 / std::sqrt(2), 8, 6, 6, 3.25, -2.75, 0, 1.5};
    for (int i = 0; i < 9; ++i) {
        EXPECT_NEAR(numbers[i], expected[i], 1e-3) << i;
    }
    EXPECT_TRUE(std::isnan(sine.probes.back().crossingPeriod)); // of still water

    // Waves of 2, 4 and 6 m in turn: the highest third has 6 m.
    const auto growing = statisticsOf(
        [](double t) { return (1 + std::fmod(std::floor(t / 8), 3)) * std::sin(M_PI / 4 * t); });
    EXPECT_NEAR(growing.probes.front().highestThird, 6, 0.05);
    EXPECT_NEAR(growing.probes.front().kurtosis, 1.5 * 3 * (1 + 16 + 81) / (14.0 * 14), 0.02);
    const auto skewed = statisticsOf([](double t) { return std::exp(std::cos(t)) - 1.26607; });
    EXPECT_NEAR(skewed.probes.front().skewness, 0.50521, 0.01);
}

TEST_F(seaTest, comparesATableWithTheComponents) {
    const std::pair<const char*, const char*> tables[] = {
        {"", "error bad-table\n"},
        {"1\n2\n", "error bad-table\n"},
        {"1\t2\n2\t3\t4\n", "error bad-table\n"},
        {"1\t2\t3\n2\t3\n", "error bad-table\n"},
        {"1\t2\n2\tnan\n", "error bad-table\n"},
        {"1\t2\n2\tx\n", "error bad-table\n"},
        {"2\t2\n1\t2\n", "error bad-table\n"},
        {"-1\t1\n0\t0\n", "error bad-table\n"},
        {"1\t-2\n5\t2", ""},
        {"1 -2\r\n5 2\r\n", ""},
        {"1\t-1\n500\t1\n", "warning table-differs\n"},
        {"1\t-1.5\n500\t1.5\n", ""},
    };
    const std::string table = folder.path("table");
    for (const auto& [text, findings] : tables) {
        EXPECT_EQ(levelsAndNamesOf(check(oneWave, writeFile(table, text))), findings) << text;
    }
    EXPECT_THROW(check(oneWave, folder.path("none")), cannotCheck);

    // At full height over one period of the sea, the table has the height of the components.
    writeFile(folder.path("sea.m"), wave("rampTime = 20", "simulation.time.end = 620\n"
                                                          "simulation.print.dt = 0.5\n" +
                                                              soundSea));
    EXPECT_EQ(runProgram({"-waveElevation", "-f", "sea.m"}, folder.path()).status, 0);
    const report result =
        checkSea(folder.path("sea.m"), {"", folder.path("sea/waveElevation.dat")});
    EXPECT_EQ(levelsAndNamesOf(result), "");
    EXPECT_EQ(value(result, "table.instants"), 1201);
    EXPECT_NEAR(value(result, "table.Hm0"), 2, 0.01);
    EXPECT_NEAR(value(result, "table.Tz"), value(result, "T02"), 0.3);
}

TEST(examples, areSoundSeas) {
    const std::filesystem::path examples = SORVIK_TEST_DATA "/../../examples";
    const auto before = std::filesystem::current_path();
    for (const char* name : {"3-regular-wave/regularWave.m", "4-jonswap/jonswapSea.m",
                             "5-crossing-seas/crossingSea.m", "6-json/mooredBarge.m"}) {
        const std::filesystem::path file = examples / name;
        std::filesystem::current_path(file.parent_path());
        EXPECT_EQ(levelsAndNamesOf(checkSea(file.filename().string(), {})), "") << name;
    }
    std::filesystem::current_path(before);
}

} // namespace
