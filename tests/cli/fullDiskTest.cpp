#include "support/files.hpp"
#include "support/program.hpp"

#include <filesystem>

namespace {

/// Runs the task on case.m, one of its files being on a disk that is full.
void expectFailure(const temporaryFolder& folder, const std::string& full,
                   std::vector<std::string> task, const std::string& message) {
    std::filesystem::create_directories(folder.path("out"));
    std::filesystem::remove(folder.path(full));
    std::filesystem::create_symlink("/dev/full", folder.path(full));
    task.insert(task.end(), {"-f", "case.m", "-o", "out"});
    const programRun run = runProgram(task, folder.path());
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.output, testing::HasSubstr(message));
    EXPECT_THAT(run.output, testing::Not(testing::HasSubstr("printed to")));
    std::filesystem::remove(folder.path(full));
}

TEST(nemohTask, saysWhatItCouldNotWrite) {
    const temporaryFolder folder;
    writeFile(folder.path("a.dat"), "2 0\n0 0. 0. 0.\n0 0 0 0\n");
    writeFile(folder.path("case.m"),
              "bem.body = 1\nbem.output = out\nhydroBody1.bemInput.meshName = a.dat\n");
    expectFailure(folder, "out/Nemoh.cal", {"-nemoh"}, "or open out/Nemoh.cal for some reason.\n");
}

TEST(waveElevation, claimsOnlyWhatItCouldWrite) {
    const temporaryFolder folder;
    writeFile(folder.path("case.m"), "simulation.time.end = 0\n");
    for (const std::string name : {"out/waveDomain.dat", "out/waveElevation.dat"}) {
        expectFailure(folder, name, {"-waveElevation", "-domain", "1", "1", "1", "1"},
                      "Cannot write the file " + name);
    }
}

} // namespace
