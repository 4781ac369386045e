#include "support/files.hpp"
#include "support/program.hpp"

#include <filesystem>

namespace {

TEST(waveElevation, claimsOnlyWhatItCouldWrite) {
    const temporaryFolder folder;
    const std::vector<std::string> run = {"-waveElevation", "-f", "case.m", "-o", "out",
                                          "-domain",        "1",  "1",      "1",  "1"};
    const std::string says =
        " Running wave elevation post-processing routine to print elevation to file.\n"
        "Wave probes imported \n";
    const std::string done = "\r[" + std::string(50, '#') +
                             "]   100 %\nWave elevation computed and printed to "
                             "out/waveElevation.dat\n";
    writeFile(folder.path("case.m"), "simulation.time.start = 1\nsimulation.time.end = 1\n");
    EXPECT_EQ(runProgram(run, folder.path()).output, says + done);
    for (const std::string name : {"waveDomain.dat", "waveElevation.dat"}) {
        const std::string path = folder.path("out/" + name);
        std::filesystem::remove(path);
        std::filesystem::create_symlink("/dev/full", path);
        const programRun result = runProgram(run, folder.path());
        EXPECT_EQ(result.status, 1);
        EXPECT_THAT(result.output, testing::HasSubstr("Cannot write the file out/" + name));
        EXPECT_THAT(result.output, testing::Not(testing::HasSubstr("printed to")));
        std::filesystem::remove(path);
    }
}

} // namespace
