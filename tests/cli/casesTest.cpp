#include "support/files.hpp"
#include "support/program.hpp"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <numeric>
#include <set>
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

/// The lines from the first to the last one that differ; "" where the texts are the same.
std::string difference(const std::string& expected, const std::string& found) {
    std::vector<std::string> lines[2];
    for (const bool isFound : {false, true}) {
        std::istringstream in((isFound ? found : expected) + '\n');
        for (std::string line; std::getline(in, line);) {
            lines[isFound].push_back((isFound ? "\n+ " : "\n- ") + line);
        }
    }
    const auto& [a, b] = lines;
    const auto isSame = [](auto& x, auto& y) { return x.substr(3) == y.substr(3); };
    const auto first = std::mismatch(a.begin(), a.end(), b.begin(), b.end(), isSame);
    const auto last = std::mismatch(a.rbegin(), std::make_reverse_iterator(first.first), b.rbegin(),
                                    std::make_reverse_iterator(first.second), isSame);
    return (std::accumulate(first.first, last.first.base(), std::string()) +
            std::accumulate(first.second, last.second.base(), std::string()))
        .substr(0, 1500);
}

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
            const int headNumber = ++number;
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
            const std::string fault =
                mark[0] == '$' ? faultOfRun(mark, words) : faultOfFile(mark, name, content);
            if (!fault.empty()) {
                ADD_FAILURE_AT(file_.c_str(), headNumber)
                    << head << " (- expected, + found)" << fault;
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

    std::string faultOfRun(const std::string& mark, std::istream& words) const {
        const std::string status = mark == "$" ? "0" : mark.substr(1);
        const programRun run =
            runProgram({std::istream_iterator<std::string>(words), {}}, folder_.path());
        writeFile(folder_.path("output"), run.output);
        return difference("status " + status + '\n',
                          "status " + std::to_string(run.status) + '\n' + run.errors);
    }

    std::string faultOfFile(const std::string& mark, const std::string& name,
                            const std::string& content) const {
        const std::string path = folder_.path(name);
        if (mark == ">" || mark == "~") {
            const std::string found = readFile(path);
            const bool isHeld =
                mark == "~" && !content.empty() && found.find(content) != std::string::npos;
            return isHeld ? "" : difference(content, found);
        }
        if (mark == "<") {
            writeFile(path, content);
        } else if (mark == "@") {
            std::filesystem::remove(path);
            std::filesystem::create_symlink("/dev/full", path);
        } else if (!mark.empty() && mark[0] != '#') {
            return "\n- a known mark";
        }
        return "";
    }

    const std::string file_;
    const paragraph told_;
    const temporaryFolder folder_;
};

std::vector<paragraph> readParagraphs(std::istream& in) {
    std::vector<paragraph> all(1); // the first holds the shared parts
    std::set<std::string> titles;
    int number = 0;
    int sharedLines = 0;
    for (std::string line; std::getline(in, line);) {
        ++number;
        if (line.rfind("== ", 0) != 0) {
            all.back().text += line + '\n';
            sharedLines += titles.empty();
        } else if (titles.insert(line).second) {
            all.push_back({line.substr(3), number - sharedLines, all.front().text});
        } else {
            all.back().text += "a title used above\n";
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
