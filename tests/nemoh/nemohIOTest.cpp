#include "nemoh/nemohIO.hpp"
#include "io/printer.hpp"
#include "support/program.hpp"

#include <cmath>
#include <filesystem>
#include <numeric>
#include <sstream>

namespace {

using numbers = std::vector<double>;
using testing::HasSubstr;

struct nemohProject : testing::Test {
    /// Writes the complete Nemoh.cal with `old` replaced by `by`, or another file of data/.
    std::string change(const std::string& old, const std::string& by,
                       const std::string& from = "Nemoh.cal", const std::string& to = "Nemoh.cal") {
        std::string text = readFile(SORVIK_TEST_DATA "/" + from);
        return writeFile(project.path(to), text.replace(text.find(old), old.size(), by));
    }
    /// Describes two bodies with two degrees of freedom each, as data/RadiationCoefficients.tec has
    /// them.
    void describeTwoBodies() {
        nemoh.setEnv(1000, 9.81, 50, 0, 0, 2);
        nemoh.addBody("a.dat", 0, 0, {1, 5}, {0, 0, 0}, {});
        nemoh.addBody("b.dat", 0, 0, {3, 5}, {0, 0, 0}, {});
    }
    const temporaryFolder project;
    const std::string cal = project.path("Nemoh.cal");
    nemohIO nemoh{project.path()};
    int nFreqs = 0, nDirections = 0;
    numbers first, second, third;
};

TEST_F(nemohProject, writesTurnedAxesAndFullHeaders) {
    nemoh.setEnv(1000, 9.81, 50, 1.5, -2, 2);
    // Quarter turns: x to y to z to x.
    nemoh.addBody("a.dat", 8, 6, {1, 6}, {4, 0, -2.5}, {0, 0, 1, 1, 0, 0, 0, 1, 0});
    nemoh.printCalHdr("Body", 10);
    nemoh.printCalHdr(std::string(126, 'n'), nemohIO::noNumber);
    nemoh.addPostProc(0.1, 50);
    EXPECT_THAT(readFile(cal), HasSubstr("1 0. 1. 0. 4. 0. -2.5 \t ! force in dof 1 \n"
                                         "2 1. 0. 0. 4. 0. -2.5 \t ! force in dof 6 \n"
                                         "0\t\t ! number of additional lines\n--- Body 10 " +
                                         std::string(119, '-') + "\n--- " + std::string(126, 'n') +
                                         " \n--- Post processing " + std::string(110, '-') +
                                         "\n1 0.1 50. \t ! Impulse"));
    std::string text;
    for (const double value : {-0.0, 1e6, 1.0000001, 2147483647.0, 2147483648.0, -2147483648.0,
                               -2147483649.0, std::nan("")}) {
        text += nemohIO::printVal(value);
    }
    EXPECT_EQ(text, "-0. 1e+06. 1 2.14748e+09. 2.14748e+09 -2.14748e+09. -2.14748e+09 nan ");
}

TEST_F(nemohProject, searchesByLine) {
    for (const int skipped : {2, 3}) {
        std::istringstream in("a\n\n  key\n\n b c\n\n \n d\n");
        EXPECT_EQ(nemohIO::skipToKey(in, "key"), 2);
        nemohIO::skipLines(in, skipped);
        EXPECT_EQ(in.fail(), skipped == 3);
        EXPECT_EQ(nemohIO::skipToKey(in, "d"), -1);
    }
    std::istringstream in("key\na");
    EXPECT_EQ(nemohIO::skipToKey(in, "key"), 1);
}

TEST_F(nemohProject, readsTheCaseOrSaysWhatIsWrong) {
    const auto print = [](const numbers& list) {
        printer::printMatrix(std::cout, 1, static_cast<int>(list.size()), list);
    };
    const auto read = [&] {
        const int result = nemoh.readBody(1, nFreqs, nDirections, first);
        std::cout << result << ' ' << nFreqs << ' ' << nDirections;
        print(first);
        std::cout << nemoh.readCase(nFreqs, second, nDirections, third);
        print(second);
        print(third);
    };
    EXPECT_END_SAYING(read(), 1, "FATAL ERROR: Could not open file " + cal + ". Exiting.\n");
    const char* const cases[][3] = {
        {"0. \t ! body motion in dof 6", "-9.5 ", "0 6 6\t0\t0\t-9.5\n1\t0.01\t5\n\t0\t90\n"},
        {"1 2 0.01 5. ", "1 5 1. 3. ", "1\t1\t1.5\t2\t2.5\t3\n\t0\t90\n"},
        {"2 0. 90. ", "1 15. 90. ", "1\t0.01\t5\n\t15\n"},
        {"1 2 0.01 5. ", "1 1 0.7 3. ", "1\t0.01\n\t0\t90\n"}, // keeps what it was
        {"6 \t ! number of body", "2000000000 \t ! body", "-1 2000000000 -1\t"},
        {"6 \t ! number of forces", "-6", "-1 6 -6\t0\t0\t0\n"}, // the point is read first
        {"--- Body 1", "--- Body 2", "Warning: ndofs for body 1 were not found\n-1 -1 -1\t"},
        {"--- Desc", "---Desc", "/Nemoh.cal, line 39: expected the section \"--- Description\""},
        {"1\t ! number of b", "x\t !",
         "/Nemoh.cal, line 7: expected the number of bodies, found \"x"},
        {"\n1 2 0", "\n\n1 -2 0",
         ", line 28: expected the frequency mode, which Nemoh 2 leaves out, "
         "and the number of frequencies from 0 to 1000000, found \"1 -2 0"},
        {"1 2 0.01", "1 1000001 0", "number of frequencies from 0 to"},
        {"1 2 0.01", "525 0.04",
         ", line 27: expected the frequency mode, which Nemoh 2 leaves out"},
        {"1 2 0.01 5.", "41 1 5.",
         "expected the highest frequency as fourth number, found \"41 1 5"}};
    for (const auto& [old, by, expected] : cases) {
        change(old, by);
        EXPECT_THAT(endOf(read).output, HasSubstr(expected)) << by;
    }
}

TEST_F(nemohProject, readsHydrostatics) {
    const auto read = [&] { std::cout << nemohIO::readC(project.path(), first); };
    const std::string file = project.path("Hydrostatics.dat"), stiffness = project.path("KH.dat");
    EXPECT_EQ(outputOf(read),
              "WARNING: " + stiffness + " was not found. No hydrostatic stiffness read.\n" +
                  "WARNING: " + file + " was not found. No volume read from Nemoh results.\n-1");
    const std::string head = " XF = 0\n YF = 0\n ZF = 0\n Displacement = ";
    writeFile(file, head + " 0.2417605E+00\n");
    writeFile(stiffness, "  0.1000000E+01 -0.2500000E+01\n  0.3000000E-01  \n");
    EXPECT_EQ(outputOf(read), "0.24176");
    EXPECT_EQ(first, numbers({1, -2.5, 0.03}));
    writeFile(file, head + "****\n");
    EXPECT_END_SAYING(read(), 1, file + ", line 4: expected the displ");
}

// The first number of each pair is its place, the second one 100 more.
TEST_F(nemohProject, putsResultsInTheirPlaces) {
    describeTwoBodies();
    const std::string text = readFile(SORVIK_TEST_DATA "/RadiationCoefficients.tec");
    std::filesystem::create_directory(project.path("Results"));
    writeFile(project.path("results/RadiationCoefficients.tec"), "hidden by the other folder");
    writeFile(project.path("Results/RadiationCoefficients.tec"), text);
    writeFile(project.path("results/ExcitationForce.tec"), text.substr(0, text.rfind("Zone")));
    numbers places(32), others(32);
    std::iota(places.begin(), places.end(), 0.0);
    std::iota(others.begin(), others.end(), 100.0);
    nemoh.readCoeffs(2, 2, first, second);
    EXPECT_EQ(std::pair(first, second), std::pair(places, others));
    nemoh.readExcitation(2, 3, 2, first, second);
    places.resize(24);
    others.resize(24);
    EXPECT_EQ(std::pair(first, second), std::pair(places, others));
    std::vector<std::complex<double>> forces;
    nemoh.readForce("ExcitationForce.tec", 2, 3, 2, 2, forces);
    ASSERT_EQ(forces.size(), 24U);
    EXPECT_LT(std::abs(forces[5] - std::polar(5.0, 105.0)), 1e-12);
}

TEST_F(nemohProject, readsOnAfterEightyNumbers) {
    nemoh.setEnv(1000, 9.81, 50, 0, 0, 1);
    nemoh.addBody("a.dat", 0, 0, std::vector<int>(41, 1), {0, 0, 0}, {});
    std::string text = "Zone";
    for (int number = 0; number < 2 * 83; ++number) {
        text += (number % 83 % 80 == 0 ? '\n' : ' ') + std::to_string(number);
    }
    writeFile(project.path("results/ExcitationForce.tec"), text);
    nemoh.readExcitation(2, 1, 1, first, second);
    EXPECT_EQ(numbers({first.at(80), first.at(81), second.at(80), second.at(81)}),
              numbers({81, 164, 82, 165}));
}

TEST_F(nemohProject, endsTheRunAtDamagedResults) {
    describeTwoBodies();
    const std::string file = project.path("results/ExcitationForce.tec");
    EXPECT_END_SAYING(nemoh.readExcitation(2, 4, 2, first, second), 1,
                      "FATAL ERROR: Could not open file " + file + ". Exiting.\n");
    EXPECT_END_SAYING(nemoh.readCoeffs(2, 3, first, second), 1,
                      "bodies: 3\nWarning: ndofs for body 3 were not found\nFATAL ERROR: Can not "
                      "find Body 3 in Nemoh.cal file; asked for 3 bodies\n");
    // Lines 1 to 5 are the head; zones begin at 6, 9, 12 and 15, and 17 is the last line.
    const std::tuple<int, const char*, const char*, const char*> cases[] = {
        {4, "0.1310000E+03", "",
         "17: expected a frequency and 4 pairs of numbers (the forces of 2 "
         "bodies in Nemoh.cal), found \"  0.5"},
        {4, "0.1040000E+03", "\n0.1040000E+03", "7: expected a frequency and 4 pairs of numbers"},
        {4, "0.1150000E+03", "-", "11: expected a frequency and 4 pairs of numbers"},
        {4, "  0.5", "Zone", "8: expected 2 frequencies (the number asked for) before the next"},
        {4, "Zone t=\"Motion of body    2", "\"", "13: expected a zone after 2 frequencies"},
        {3, "", "", "16: expected no more than 3 zones (the number of directions asked for), f"},
        {5, "", "", "17: expected 5 zones (the number of directions asked for) of 2 frequencies"}};
    for (const auto& [zones, old, by, message] : cases) {
        const int directions = zones;
        change(old, by, "RadiationCoefficients.tec", "results/ExcitationForce.tec");
        EXPECT_END_SAYING(nemoh.readExcitation(2, directions, 2, first, second), 1,
                          file + ", line " + message);
    }
}

} // namespace
