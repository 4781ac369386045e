#include "io/inputMap.hpp"
#include "io/sorvikIO.hpp"
#include "support/files.hpp"
#include "support/program.hpp"

#include <map>
#include <string>

namespace {

TEST(toJSON, putsMembersBeforeObjects) {
    EXPECT_EQ(
        sorvikIO::toJSON({{"bodies", "1  2  3"},
                          {"environment.waterDepth", "50"},
                          {"environment.wave.height", "2.0"},
                          {"environment.wave.type", "regular"},
                          {"mesh", "../hull.stl"},
                          {"name", "my case"}},
                         0),
        "{\n\t\"bodies\" : [1 , 2 , 3],\n\t\"mesh\" : \"../hull.stl\",\n"
        "\t\"name\" : [\"my\" , \"case\"],\n\t\"environment\" : {\n\t\t\"waterDepth\" : 50,\n"
        "\t\t\"wave\" : {\n\t\t\t\"height\" : 2.0,\n\t\t\t\"type\" : \"regular\"\n\t\t}\n\t}\n}");
    EXPECT_EQ(sorvikIO::toJSON({{"a.b", ""}}, 1), "{\n\t\t\"a\" : {\n\t\t\t\"b\" : {}\n\t\t}\n\t}");
    EXPECT_EQ(sorvikIO::toJSON({{"a-b.x", "1"}, {"a.x", "2"}}, 0),
              "{\n\t\"a\" : {\n\t\t\"x\" : 2\n\t},\n\t\"a-b\" : {\n\t\t\"x\" : 1\n\t}\n}");
    EXPECT_EQ(sorvikIO::toJSON({}, 0), "\n}");
    const std::string deep = std::string(300'000, '.') + "a";
    EXPECT_EXIT_SAYING(sorvikIO::toJSON({{deep, "1"}}, 0), 1, "has 300001 components");
    const std::string wide(sorvikIO::maxJsonText, 'a');
    EXPECT_EXIT_SAYING(sorvikIO::toJSON({{wide, "1"}}, 0), 1, "more than 134217728 characters");
}

TEST(frmtJSONvalue, quotesWordsAndPaths) {
    const std::map<std::string, std::string> cases = {{"1 2", "[1 , 2]"},
                                                      {"x", "\"x\""},
                                                      {".5", ".5"},
                                                      {"true", "\"true\""},
                                                      {"-2", "-2"},
                                                      {"1e-3", "1e-3"},
                                                      {"3x", "3x"},
                                                      {"a 1", "[\"a\" , 1]"},
                                                      {"C:\\data\\run", "\"C:\\data\\run\""},
                                                      {"my dir/a  b", "\"my dir/a b\""},
                                                      {"1..2", "\"1..2\""}};
    for (const auto& [value, json] : cases) {
        EXPECT_EQ(sorvikIO::frmtJSONvalue(value), json);
    }
}

TEST(fileNameFromPath, takesWhatFollowsTheLastSeparator) {
    const std::map<std::string, std::string> cases = {
        {"dir/a.b", "a.b"}, {"dir\\a", "a"}, {"x/y\\z", "z"}, {"a", "a"}, {"dir/", ""}};
    for (const auto& [path, name] : cases) {
        EXPECT_EQ(sorvikIO::fileNameFromPath(path), name);
    }
}

TEST(inputMap, writesItsJsonAndReadsItBack) {
    const temporaryFolder folder;
    const std::string input =
        writeFile(folder.path("case.m"), "a = { b = 1\n c = [x, 2] }\nd = \"../e f\"\n");
    const inputMap map(input);
    map.print(folder.path("out.txt"));
    EXPECT_FALSE(fileExists(folder.path("out.txt")));
    map.print(".json");
    EXPECT_EQ(
        readFile(folder.path("case.json")),
        "{\n\t\"d\" : \"../e f\",\n\t\"a\" : {\n\t\t\"b\" : 1,\n\t\t\"c\" : [\"x\" , 2]\n\t}\n}");
    const std::map<std::string, std::string> again = {
        {"a.b", "1"}, {"a.c", "x    2"}, {"d", "../e f"}};
    EXPECT_EQ(inputMap(folder.path("case.json")).map, again);
    EXPECT_TRUE(inputMap(folder.path("missing.m")).map.empty());
    EXPECT_EXIT_SAYING(map.print(folder.path("no/case.json")), 1, "no/case.json");
}

} // namespace
