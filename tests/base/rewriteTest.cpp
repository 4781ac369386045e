#include "base/rewrite.hpp"
#include "base/files.hpp"
#include "support/program.hpp"

#include <cstdlib>
#include <filesystem>

#ifndef _WIN32
#include <sys/stat.h>
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
    for (const auto state : {std::ios::badbit, std::ios::goodbit}) {
        const bool isReplaced = replace(path, [&](std::ostream& out) {
            out << "whole" << std::flush;
            EXPECT_EQ(readFile(path), "old");
            out.setstate(state);
        });
        EXPECT_EQ(isReplaced, state == std::ios::goodbit);
    }
    EXPECT_EQ(readFile(path) + readFile(taken) + readFile(alsoTaken), "wholeminemine too");
    EXPECT_EQ(filesIn(folder), 3);
#ifndef _WIN32
    EXPECT_EQ(fs::status(path).permissions(), mode);
#endif
}

#ifndef _WIN32
const auto writeWord = [](std::ostream& out) { out << "word"; };

TEST(makeFolder, opensNoPipeAndNoLinkToNothing) {
    const temporaryFolder folder;
    fs::create_symlink(folder.path("target"), folder.path("test.txt"));
    ASSERT_EQ(mkfifo(folder.path("test1.txt").c_str(), 0600), 0);
    EXPECT_TRUE(files::makeFolder(folder.path()));
    EXPECT_EQ(filesIn(folder), 2);
}

TEST(replace, writesLinksAndDevicesAsTheyAre) {
    const temporaryFolder folder;
    const std::string link = folder.path("link"), target = folder.path("target");
    fs::create_symlink("target", link); // first to nothing, then to a file
    for (int i = 0; i < 2; ++i) {
        EXPECT_TRUE(replace(link, writeWord));
        EXPECT_TRUE(fs::is_symlink(link));
        EXPECT_EQ(readFile(target), "word");
    }
    EXPECT_TRUE(rewrite(target, link, [&](std::ostream& out) {
        out << "new" << std::flush;
        EXPECT_EQ(readFile(target), "word");
    }));
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(readFile(target), "new");
    EXPECT_EQ(filesIn(folder), 2);
    EXPECT_TRUE(replace("/dev/null", writeWord));
    EXPECT_FALSE(replace("/dev/full", writeWord));
    EXPECT_FALSE(replace(folder.path(), writeWord));
    EXPECT_FALSE(replace(folder.path("none/file"), writeWord));
}

TEST(waveElevation, leavesTheOldTableWhenItIsKilled) {
    const temporaryFolder folder;
    writeFile(folder.path("case.m"), "simulation.time.end = 1e4\n");
    fs::create_directory(folder.path("case"));
    const std::string table = writeFile(folder.path("case/waveElevation.dat"), "old");
    // A file beyond the limit kills its writer.
    const std::string limited = "cd " + folder.path() + " && ulimit -f 1024 && exec ";
    EXPECT_NE(std::system((limited + SORVIK_PROGRAM " -waveElevation -f case.m").c_str()), 0);
    EXPECT_TRUE(fs::exists(table + ".new"));
    EXPECT_EQ(readFile(table), "old");
}
#endif

} // namespace
