#include "support/program.hpp"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <sstream>

// Runs of the program, as the files of data/cli describe them. Each paragraph is a test of its own,
// cli/FILE.TITLE, and runs in a new folder. Its parts are
//     == TITLE        the beginning
//     < FILE          an input file
//     @ FILE          a file on a full disk
//     $ ARGUMENTS     a run that ends with status 0, leaves standard error empty, and prints the
//                     content somewhere
//     $1 ARGUMENTS    the same with status 1
//     > FILE          all that the file now holds; "output" is what the last run printed
//     ~ FILE          text that the file holds somewhere
//     # TEXT          a comment
// Content is given in lines that begin with |, or with \ if the line has no end. Short ones follow
// on the line: "> FILE |first |second". A line {FILE} is replaced by what FILE holds in the folder
// of the run or else in data. Parts above the first title belong to all cases.

namespace {

class cliCase : public testing::Test {
public:
    explicit cliCase(std::string parts) : parts_(std::move(parts)) {}

private:
    void TestBody() override {
        std::istringstream in(parts_);
        for (std::string head, line; std::getline(in, head);) {
            SCOPED_TRACE(head);
            const std::size_t end = std::min(head.find(" |"), head.find(" \\"));
            std::string content;
            for (std::size_t at = end; at != head.npos;) {
                const std::size_t first = at + 1;
                at = head.find(" |", first);
                content += contentOf(head.substr(first, at - first));
            }
            while ((in.peek() == '|' || in.peek() == '\\') && std::getline(in, line)) {
                content += contentOf(line);
            }
            std::istringstream words(head.substr(0, end));
            std::string mark, name;
            words >> mark;
            if (mark[0] == '$') {
                checkRun(std::atoi(mark.c_str() + 1), words, content);
            } else {
                words >> name;
                useFile(mark, folder_.path(name), content);
            }
        }
    }

    std::string contentOf(const std::string& line) const {
        if (line.size() < 4 || line[1] != '{' || line.back() != '}') {
            return line.substr(1) + (line[0] == '|' ? "\n" : "");
        }
        const std::string name = line.substr(2, line.size() - 3);
        const bool isOwn = std::filesystem::exists(folder_.path(name));
        return readFile(isOwn ? folder_.path(name) : SORVIK_TEST_DATA "/" + name);
    }

    void checkRun(int status, std::istream& arguments, const std::string& content) const {
        const programRun run =
            runProgram({std::istream_iterator<std::string>(arguments), {}}, folder_.path());
        EXPECT_EQ(run.status, status);
        EXPECT_EQ(run.errors, "");
        EXPECT_THAT(run.output, testing::HasSubstr(content));
        writeFile(folder_.path("output"), run.output);
    }

    static void useFile(const std::string& mark, const std::string& path,
                        const std::string& content) {
        if (mark == ">") {
            EXPECT_EQ(content, readFile(path)); // shown as - and +
        } else if (mark == "~") {
            EXPECT_NE(content, "");
            EXPECT_THAT(readFile(path), testing::HasSubstr(content));
        } else if (mark == "<") {
            writeFile(path, content);
        } else if (mark == "@") {
            std::filesystem::remove(path);
            std::filesystem::create_symlink("/dev/full", path);
        } else {
            EXPECT_TRUE(mark.empty() || mark[0] == '#') << "an unknown mark";
        }
    }

    const std::string parts_;
    const temporaryFolder folder_;
};

const bool isRegistered = [] {
    for (const auto& entry : std::filesystem::directory_iterator(SORVIK_TEST_DATA "/cli")) {
        const std::string suite = "cli/" + entry.path().stem().string();
        const std::string text = "\n" + readFile(entry.path().string());
        std::size_t at = text.find("\n== ");
        const std::string shared = text.substr(1, at);
        while (at != text.npos) {
            const std::size_t title = at + 4, end = text.find('\n', title);
            at = text.find("\n== ", end);
            const std::string parts = shared + text.substr(end + 1, at - end);
            testing::RegisterTest(suite.c_str(), text.substr(title, end - title).c_str(), nullptr,
                                  nullptr, suite.c_str(), 0,
                                  [=]() -> cliCase* { return new cliCase(parts); });
        }
    }
    return true;
}();

TEST(program, endsWithTheLibrarysMessageForShortMeshNames) {
    EXPECT_EQ(runProgram({"-meshConvert", "a", "-toJSON"}).status, 128 + 6);
}

} // namespace
