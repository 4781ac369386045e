#include "io/reader.hpp"
#include "support/files.hpp"
#include "support/program.hpp"

#include <map>
#include <string>
#include <vector>

namespace {

using words = std::vector<const char*>;

TEST(reader, findsFlagsExactly) {
    words line = {"prog", "-a", "-5", "-b", "value", "-c"};
    const int argc = static_cast<int>(line.size());
    int position = argc;
    EXPECT_TRUE(reader::findFlag("prog", argc, line.data(), position));
    EXPECT_EQ(position, 0);
    EXPECT_FALSE(reader::findFlag("-B", argc, line.data(), position = 9));
    EXPECT_FALSE(reader::findFlag("-", argc, line.data(), position));
    EXPECT_FALSE(reader::findFlag("-a", 0, line.data(), position));
    EXPECT_EQ(position, 9);

    const std::map<std::string, std::pair<int, std::string>> cases = {
        {"-a", {1, "FOUND"}}, {"-b", {3, "value"}}, {"-c", {5, "FOUND"}}, {"-d", {-1, "before"}}};
    for (const auto& [flag, expected] : cases) {
        std::string value = "before";
        EXPECT_EQ(reader::getFlag(flag, argc, line.data(), value), expected.first) << flag;
        EXPECT_EQ(value, expected.second) << flag;
    }
}

TEST(reader, removesOnlyTheExtension) {
    const std::map<std::string, std::string> cases = {
        {"cases/a.m", "cases/a"}, {"a.b.m", "a.b"},       {"x.y/a", "x.y/a"}, {"x.y\\a", "x.y\\a"},
        {"x\\a.m", "x\\a"},       {"a/b\\c.d", "a/b\\c"}, {"a", "a"}};
    for (const auto& [name, expected] : cases) {
        EXPECT_EQ(reader::removeExtension(name), expected);
    }
}

reader configured(words arguments) {
    arguments.insert(arguments.begin(), "prog");
    reader config;
    config.setupReadOnly(static_cast<int>(arguments.size()), arguments.data());
    return config;
}

TEST(reader, settlesNamesFromFlags) {
    const temporaryFolder folder;
    const std::string input =
        writeFile(folder.path("case.m"), "simulation.API.output = api\nlist = [1, 2]\nname = x\n");
    const char* file = input.c_str();

    EXPECT_EQ(configured({"-f", file}).outputFolder, folder.path("case"));
    EXPECT_EQ(configured({"-i", file, "-o", "out"}).outputFolder, "out");
    EXPECT_EQ(configured({"-f", file, "-o", "out", "-API"}).outputFolder, "api");
    const reader config = configured({"-f", file, "-output", "out", "-o", "no"});
    EXPECT_EQ(config.outputFolder, "out");
    EXPECT_EQ(config.oldResultsFolder, "out");
    EXPECT_EQ(config.mustRead<std::string>("name"), "x");
    EXPECT_EQ(config.mustRead<std::string>("other", "name"), "x");
    EXPECT_EQ(config.mustRead<std::vector<double>>("list"), (std::vector<double>{1, 2}));
    EXPECT_EXIT_SAYING(config.mustRead<std::string>("a.b"), 1, "Cannot find value of a.b in input");

    EXPECT_EXIT_SAYING(configured({"-f", "-o"}), 1,
                       "Filename flag -f | -i was found but it is not");
    EXPECT_EXIT_SAYING(configured({"-f", file, "-o"}), 1, "Output flag -output | -o  was found");
    EXPECT_EXIT_SAYING(configured({"-o", "x"}), 1, "No input file or old results were found.");
}

TEST(reader, takesOldResultsWhereTheyAre) {
    const temporaryFolder folder;
    const std::string old = folder.path();
    writeFile(folder.path("setup.json"), "{\n\t\"a\" : 1\n}");
    const std::string input = writeFile(folder.path("case.m"), "a = 2\n");
    std::string output = outputOf([&] { configured({"-f", input.c_str(), "-r", old.c_str()}); });
    EXPECT_EQ(output, " WARNING: OLD RESULTS " + old + " WERE NOT FOUND OR COULD NOT BE OPENED.\n");

    writeFile(folder.path("setup.txt"), "");
    const reader restarted = configured({"-startState", old.c_str()});
    EXPECT_TRUE(restarted.oldResultsFound);
    EXPECT_EQ(restarted.inputFile, folder.path("setup.json"));
    EXPECT_EQ(restarted.mustRead<std::string>("a"), "1");
    EXPECT_EQ(configured({"-f", input.c_str(), "-r", old.c_str()}).mustRead<std::string>("a"), "2");
}

TEST(reader, provesFoldersWithoutHarm) {
    const temporaryFolder folder;
    reader::makeFolder(folder.path("new"));
    EXPECT_TRUE(fileExists(folder.path("new")));
    EXPECT_FALSE(fileExists(folder.path("new/test.txt")));
    writeFile(folder.path("new/test.txt"), "the user's");
    reader::makeFolder(folder.path("new"));
    EXPECT_EQ(readFile(folder.path("new/test.txt")), "the user's");
    EXPECT_EXIT_SAYING(reader::makeFolder(folder.path("no/parent")), 1,
                       "no/parent was not created properly. \n\t Sorvik only creates the final");
    EXPECT_FALSE(reader::fileExist(folder.path("missing"), false));
    EXPECT_FALSE(reader::fileExist(folder.path("new"), false));
    EXPECT_EXIT_SAYING(reader::fileExist("missing", true), 1, "Cannot find or open file: missing");
}

} // namespace
