#include "support/files.hpp"
#include "support/program.hpp"

#include <filesystem>
#include <iterator>
#include <sstream>

namespace {

const std::string began =
    " Running wave elevation post-processing routine to print elevation to file.\n";
const std::string ended = "Wave elevation computed and printed to out/waveElevation.dat\n";
const std::string times = "simulation.time.end = 1\nsimulation.print.dt = 0.5\n";
/// A wave of 10 m length and, under its gravity, 1 s period.
const std::string regular = times +
                            "environment.gravity = -62.83185307179586\nenvironment.wave = "
                            "{\ntype = regular\namplitude = 1\nlength = 10\nphase = 360\n}\n";

class waveElevation : public testing::Test {
protected:
    /// Runs the task on the input, with blank-separated `arguments`.
    programRun run(const std::string& input, const std::string& arguments) {
        writeFile(folder.path("case.m"), input);
        std::istringstream words("-waveElevation -o out " + arguments + " -f case.m");
        return runProgram({std::istream_iterator<std::string>(words), {}}, folder.path());
    }
    std::string table() const { return readFile(folder.path("out/waveElevation.dat")); }

    const temporaryFolder folder;
};

TEST_F(waveElevation, writesOneColumnPerProbe) {
    writeFile(folder.path("probes"), "0 1\n5.0 2\n");
    writeFile(folder.path("commas"), "0, 1\n5.0, 2\n");
    const std::string beginning =
        began + "Regular wave model parameters: \n\tDirection (deg): 0\n\tWave components :1 \n\t"
                "First component: Wave height (m): 2, Period (s): 1, Wave length (m): 10, Phase "
                "(deg): 360\n";
    const std::string half(25, '#');
    const std::string ending =
        "\r[" + half + std::string(25, ' ') + "]   50 %\r[" + half + half + "]   100 %\n" + ended;
    const std::string twoProbes = "0\t0\t-0\n0.5\t-1\t1\n1\t1\t-1\n";
    const std::string noProbes =
        "Warning: No wave probes specified. Values will be printed for position (X,Y)=(0,0).\n";
    const struct {
        const char* arguments;
        std::string says, table;
    } cases[] = {
        {"", noProbes, "0\t0\n0.5\t-1\n1\t1\n"},
        {"-xyFile probes", "", twoProbes},
        {"-xyFile commas", "", "0\n0.5\n1\n"},
        {"-positions 0 -5 5 0 9 -x", "", twoProbes},
        {"-positions 7", "", "0\n0.5\n1\n"},
        {"-positions 5 0 -domain 10 2 2 1", "Wave probes imported \n",
         "0\t-0\t0\t-0\t-0\t0\t-0\n0.5\t1\t-1\t1\t1\t-1\t1\n1\t-1\t1\t-1\t-1\t1\t-1\n"},
    };
    for (const auto& c : cases) {
        const programRun result = run(regular, c.arguments);
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.output, beginning + c.says + ending);
        EXPECT_EQ(table(), c.table);
    }
    EXPECT_EQ(readFile(folder.path("out/waveDomain.dat")), "10\t2\t2\t1\n");
}

TEST_F(waveElevation, reproducesASeaFromItsSeed) {
    run(times + "environment.wave = {\ntype = JONSWAP\nHs = 2\nseed = 42\ncomponents = 5\n}\n",
        "-positions -50 0 0 0");
    EXPECT_EQ(table(), "0\t0\t0\n0.5\t-0.124\t0.154416\n1\t-0.109897\t-0.0696885\n");
}

TEST_F(waveElevation, takesTheInstantsOfATimeFile) {
    const programRun empty = run("simulation.time.start = 101\n", "-positions 0 0");
    EXPECT_EQ(empty.output, began + ended);
    EXPECT_EQ(table(), "");
    writeFile(folder.path("out/time.dat"), "2.5 9\n3 9");
    run(regular, "");
    for (const char* damaged : {"1 2\n3\n", "1;2\n"}) {
        writeFile(folder.path("out/time.dat"), damaged);
        EXPECT_THAT(run(regular, "").output, testing::HasSubstr("file out/time.dat is no table"));
    }
    EXPECT_EQ(table(), "2.5\t-1\n3\t1\n");
}

TEST_F(waveElevation, refusesProbesBeforeItTouchesTheFolder) {
    writeFile(folder.path("three"), "1 2 3\n4 5\n");
    const programRun noFile = run("", "-xyFile none");
    EXPECT_EQ(noFile.status, 255);
    EXPECT_EQ(noFile.output, began + "FATAL ERROR: -xyFile file none cannot be found or does not "
                                     "have 2 columns. Exiting.\n");
    EXPECT_EQ(run("", "-xyFile three").status, 255);
    for (const auto& [grid, text] : {std::pair("1 1 2 0", "ny of -domain is 0, expected"),
                                     std::pair("nan 1 2 2", "Xsize of -domain is nan, expected"),
                                     std::pair("1 1 1e3 99999999999", "is 4294967296, expected")}) {
        const programRun result = run("", std::string("-domain ") + grid);
        EXPECT_EQ(result.status, 1);
        EXPECT_THAT(result.output, testing::HasSubstr(text));
    }
    EXPECT_FALSE(fileExists(folder.path("out")));
}

TEST_F(waveElevation, doesNotClaimWhatItCouldNotWrite) {
    std::filesystem::create_directory(folder.path("out"));
    for (const std::string name : {"waveDomain.dat", "waveElevation.dat"}) {
        const std::string path = folder.path("out/" + name);
        std::filesystem::create_symlink("/dev/full", path);
        const programRun result = run(regular, "-domain 1 1 1 1");
        EXPECT_EQ(result.status, 1);
        EXPECT_THAT(result.output, testing::HasSubstr("Cannot write the file out/" + name));
        EXPECT_THAT(result.output, testing::Not(testing::HasSubstr(ended)));
        std::filesystem::remove(path);
    }
    EXPECT_THAT(run("", "-f none.m").output, testing::HasSubstr("find or open file: none.m"));
}

} // namespace
