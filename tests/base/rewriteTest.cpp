#include "base/rewrite.hpp"

#include "support/files.hpp"
#include "support/program.hpp"

#include <filesystem>

#ifndef _WIN32
#include <csignal>
#include <sys/resource.h>
#endif

using namespace sorvik;
namespace fs = std::filesystem;

namespace {

std::ptrdiff_t filesIn(const temporaryFolder& folder) {
    return std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator());
}

TEST(replace, keepsTheOldFileUntilTheNewOneIsWhole) {
    const temporaryFolder folder;
    const std::string path = writeFile(folder.path("table"), "old");
    const std::string taken = writeFile(path + ".new", "mine");
    const std::string alsoTaken = writeFile(path + ".new1", "mine too");
    const auto mode = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read;
    fs::permissions(path, mode);
    EXPECT_FALSE(replace(path, [](std::ostream& out) {
        out << "half" << std::flush;
        out.setstate(std::ios::badbit);
    }));
    EXPECT_EQ(readFile(path), "old");
    EXPECT_TRUE(replace(path, [&](std::ostream& out) {
        out << "whole" << std::flush;
        EXPECT_EQ(readFile(path), "old");
    }));
    EXPECT_EQ(readFile(path) + readFile(taken) + readFile(alsoTaken), "wholeminemine too");
    EXPECT_EQ(filesIn(folder), 3);
#ifndef _WIN32
    EXPECT_EQ(fs::status(path).permissions(), mode);
#endif
}

#ifndef _WIN32
const auto writeWord = [](std::ostream& out) { out << "word"; };

TEST(replace, writesLinksAndDevicesAsTheyAre) {
    const temporaryFolder folder;
    const std::string link = folder.path("link");
    fs::create_symlink("target", link); // first to nothing, then to a file
    for (int i = 0; i < 2; ++i) {
        EXPECT_TRUE(replace(link, writeWord));
        EXPECT_TRUE(fs::is_symlink(link));
        EXPECT_EQ(readFile(folder.path("target")), "word");
    }
    EXPECT_EQ(filesIn(folder), 2);
    EXPECT_TRUE(replace("/dev/null", writeWord));
    EXPECT_FALSE(replace("/dev/full", writeWord));
    EXPECT_FALSE(replace(folder.path(), writeWord));
    EXPECT_FALSE(replace(folder.path("none/file"), writeWord));
}

TEST(rewrite, replacesTheSourceThatALinkLeadsTo) {
    const temporaryFolder folder;
    const std::string source = writeFile(folder.path("source"), "old");
    fs::create_symlink("source", folder.path("link"));
    EXPECT_TRUE(rewrite(source, folder.path("link"), [&](std::ostream& out) {
        out << "new" << std::flush;
        EXPECT_EQ(readFile(source), "old");
    }));
    EXPECT_EQ(readFile(source), "new");
    EXPECT_TRUE(fs::is_symlink(folder.path("link")));
    EXPECT_EQ(filesIn(folder), 2);
}

TEST(waveElevation, leavesTheOldTableWhenItIsKilled) {
    const temporaryFolder folder;
    writeFile(folder.path("case.m"), "simulation.time.end = 1e4\n");
    fs::create_directory(folder.path("case"));
    const std::string table = writeFile(folder.path("case/waveElevation.dat"), "old");
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit low{1 << 19, before.rlim_max}; // a file beyond it kills its writer
    setrlimit(RLIMIT_FSIZE, &low);
    const programRun run = runProgram({"-waveElevation", "-f", "case.m"}, folder.path());
    setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_EQ(run.status, 128 + SIGXFSZ);
    EXPECT_EQ(readFile(table), "old");
}
#endif

} // namespace
