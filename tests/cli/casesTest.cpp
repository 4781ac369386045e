#include "support/files.hpp"
#include "support/program.hpp"

#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <sstream>

// Runs of the program, as the files of data/cli describe them. Each paragraph is a test of its own,
// cli/FILE.TITLE, and runs in a new folder. Its parts are
//     == TITLE        the beginning
//     < FILE          an input file
//     @ FILE          a file on a full disk
//     $ ARGUMENTS     a run that ends with status 0 and leaves standard error empty
//     $1 ARGUMENTS    the same with status 1
//     > FILE          all that the file now holds; "output" is what the last run printed
//     ~ FILE          text that the file holds somewhere
//     # TEXT          a comment
// The content of a file is given in lines that begin with |, or with \ if the line has no end.
// Short ones follow the name of the file: "> FILE |first |second". A line {FILE} is replaced by
// what FILE holds in the folder of the run or else in data. Parts above the first title belong to
// all cases.

namespace {

struct paragraph {
    std::string title;
    int line; // the number of the line before the text, as if all of it stood below the title
    std::string text;
};

class cliCase : public testing::Test {
public:
    cliCase(std::string fileName, paragraph parts)
        : file_(std::move(fileName)), told_(std::move(parts)) {}

private:
    void TestBody() override {
        std::istringstream in(told_.text);
        int number = told_.line;
        for (std::string head, line; std::getline(in, head);) {
            const testing::ScopedTrace trace(file_.c_str(), ++number, head);
            std::istringstream words(head);
            std::string mark, name, content;
            words >> mark;
            if (mark[0] != '$' && std::getline(words >> name >> std::ws, line)) {
                for (size_t end = 0; end != line.npos; line.erase(0, end + 1)) {
                    end = line.find(" |");
                    content += contentOf(line.substr(0, end));
                }
            }
            for (; (in.peek() == '|' || in.peek() == '\\') && std::getline(in, line); ++number) {
                content += contentOf(line);
            }
            if (mark[0] == '$') {
                checkRun(std::atoi(mark.c_str() + 1), words);
            } else {
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

    void checkRun(int status, std::istream& arguments) const {
        const programRun run =
            runProgram({std::istream_iterator<std::string>(arguments), {}}, folder_.path());
        EXPECT_EQ(run.status, status);
        EXPECT_EQ(run.errors, "");
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

    const std::string file_;
    const paragraph told_;
    const temporaryFolder folder_;
};

std::vector<paragraph> readParagraphs(std::istream& in) {
    std::vector<paragraph> all(1); // the first holds the shared parts
    int number = 0, sharedLines = 0;
    for (std::string line; std::getline(in, line);) {
        ++number;
        if (line.rfind("== ", 0) == 0) {
            all.push_back({line.substr(3), number - sharedLines, all.front().text});
        } else {
            all.back().text += line + '\n';
            sharedLines += all.size() == 1;
        }
    }
    all.erase(all.begin());
    return all;
}

const bool isRegistered = [] {
    for (const auto& entry : std::filesystem::directory_iterator(SORVIK_TEST_DATA "/cli")) {
        const std::string file = entry.path().generic_string();
        const std::string suite = "cli/" + entry.path().stem().string();
        std::istringstream in(readFile(file));
        for (const paragraph& each : readParagraphs(in)) {
            testing::RegisterTest(suite.c_str(), each.title.c_str(), nullptr, nullptr, file.c_str(),
                                  each.line, [=]() -> cliCase* { return new cliCase(file, each); });
        }
    }
    return true;
}();

TEST(program, endsWithTheLibrarysMessageForShortMeshNames) {
    EXPECT_EQ(runProgram({"-meshConvert", "a", "-toJSON"}).status, 128 + 6);
}

} // namespace
