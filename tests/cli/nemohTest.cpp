#include "support/files.hpp"
#include "support/program.hpp"

#include <filesystem>

namespace {

TEST(nemohTask, saysWhatItCouldNotWrite) {
    const temporaryFolder work;
    writeFile(work.path("a.dat"), "2 0\n0 0. 0. 0.\n0 0 0 0\n");
    std::filesystem::create_directories(work.path("busy/a_wetted.dat"));
    std::filesystem::create_directories(work.path("full"));
    std::filesystem::create_symlink("/dev/full", work.path("full/Nemoh.cal"));
    const std::tuple<std::string, int, std::string> cases[] = {
        {"busy", 255, "Cannot write meshfile busy/a_wetted.dat\n"},
        {"full", 1, "or open full/Nemoh.cal for some reason.\n"}};
    for (const auto& [folder, status, lastLine] : cases) {
        writeFile(work.path("case.m"), "bem.body = 1\nbem.output = " + folder +
                                           "\nhydroBody1.bemInput.meshName = a.dat\n");
        const programRun run = runProgram({"-nemoh", "-f", "case.m"}, work.path());
        EXPECT_EQ(run.status, status);
        EXPECT_THAT(run.output, testing::EndsWith(lastLine));
    }
}

} // namespace
