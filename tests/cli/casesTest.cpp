#include "support/files.hpp"
#include "support/program.hpp"

#include <filesystem>
#include <iterator>
#include <sstream>

// Runs of the program, told by text files in data/cli and data/fullDisk: a case a paragraph, its
// parts begun by
//     == WHAT           a new case in a new folder
//     < FILE            an input file that holds the lines below
//     @ FILE            a file on a disk that is full
//     $ ARGUMENTS       a run of the program
//     > FILE            what the file holds then; "output" is what the run printed
//     ~ FILE            lines that the file holds somewhere
//     ! N               the status it ended with
// A line {usage} stands for the usage text, and a file whose last line ends with a backslash has no
// line end there.

namespace {

std::string contentUntilMark(std::istream& in) {
    static const std::string usage = readFile(SORVIK_TEST_DATA "/help.txt");
    std::string content;
    std::string line;
    while (std::string("=<@$>~!").find(static_cast<char>(in.peek())) == std::string::npos &&
           std::getline(in, line)) {
        content += line == "{usage}" ? usage : line + "\n";
    }
    const bool isOpen = content.size() > 1 && content[content.size() - 2] == '\\';
    return isOpen ? content.substr(0, content.size() - 2) : content;
}

void runCase(std::istream& in) {
    const temporaryFolder folder;
    programRun run{};
    for (std::string mark, name; in.good() && in.peek() != '='; in >> std::ws) {
        in >> mark;
        std::getline(in, name);
        name.erase(0, 1);
        if (mark == "!") {
            EXPECT_EQ(run.status, std::stoi(name));
        } else if (mark == "$") {
            std::istringstream words(name);
            run = runProgram({std::istream_iterator<std::string>(words), {}}, folder.path());
        } else if (mark == "@") {
            std::filesystem::remove(folder.path(name));
            std::filesystem::create_symlink("/dev/full", folder.path(name));
        } else if (mark == "<") {
            writeFile(folder.path(name), contentUntilMark(in));
        } else {
            const std::string found = name == "output" ? run.output : readFile(folder.path(name));
            const std::string expected = contentUntilMark(in);
            EXPECT_TRUE(mark == ">" ? found == expected : found.find(expected) != found.npos)
                << name << " holds:\n"
                << found << "expected:\n"
                << expected;
        }
    }
    EXPECT_EQ(run.errors, "");
}

void runCases(const std::string& files) {
    for (const auto& file : std::filesystem::directory_iterator(SORVIK_TEST_DATA + files)) {
        std::istringstream in(readFile(file.path().string()));
        for (std::string what; std::getline(in, what);) {
            SCOPED_TRACE(file.path().filename().string() + " " + what);
            runCase(in);
        }
    }
}

TEST(program, runsAsTold) {
    runCases("/cli");
}

TEST(program, endsAsToldOnFullDisks) {
    runCases("/fullDisk");
}

TEST(program, endsWithTheLibrarysMessageForShortMeshNames) {
    EXPECT_EQ(runProgram({"-meshConvert", "a", "-toJSON"}).status, 128 + 6);
}

} // namespace
