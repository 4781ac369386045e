#include "io/inputMap.hpp"
#include "io/reader.hpp"
#include "io/sorvikIO.hpp"
#include "support/program.hpp"

#include <filesystem>
#include <limits>
#include <map>
#include <sstream>

namespace {

TEST(paths, endWithANameAndItsExtension) {
    const char* const cases[][3] = {
        {"cases/a.m", "cases/a", "a.m"}, {"a.b.m", "a.b", "a.b.m"},     {"x.y/a", "x.y/a", "a"},
        {"x.y\\a", "x.y\\a", "a"},       {"x\\a.m", "x\\a", "a.m"},     {"dir/", "dir/", ""},
        {"a/b\\c.d", "a/b\\c", "c.d"},   {"x\\y/z.m", "x\\y/z", "z.m"}, {"a", "a", "a"}};
    for (const auto& [path, stem, name] : cases) {
        EXPECT_EQ(reader::removeExtension(path), stem);
        EXPECT_EQ(sorvikIO::fileNameFromPath(path), name);
    }
}

TEST(reader, readsWhatItMust) {
    reader config;
    config.inputs.map = {{"list", "1 2"}, {"name", "x"}};
    EXPECT_EQ(config.mustRead<std::string>("other", "name"), "x");
    EXPECT_EQ(config.mustRead<std::vector<double>>("list"), (std::vector<double>{1, 2}));
    EXPECT_END_SAYING(config.mustRead<std::string>("a.b"), 1, "Cannot find value of a.b in input");
}

TEST(toJSON, writesWordsAsTextAndLimitsIt) {
    EXPECT_EQ(sorvikIO::frmtJSONvalue("a ~b c -1 Z"), R"(["a" , ~b , "c" , -1 , "Z"])");
    EXPECT_EQ(sorvikIO::toJSON({{"a.b", ""}}, 1), "{\n\t\t\"a\" : {\n\t\t\t\"b\" : {}\n\t\t}\n\t}");
    const std::string deep = std::string(300'000, '.') + "a";
    EXPECT_END_SAYING(sorvikIO::toJSON({{deep, "1"}}, 0), 1, "has 300001 components");
    const std::string wide(sorvikIO::maxJsonText, 'a');
    EXPECT_END_SAYING(sorvikIO::toJSON({{wide, "1"}}, 0), 1, "more than 134217728 characters");
}

TEST(inputMap, writesNothingButJson) {
    const temporaryFolder folder;
    const inputMap map(writeFile(folder.path("case.m"), "d = 1\n"));
    map.print(folder.path("out.txt"));
    EXPECT_FALSE(std::filesystem::exists(folder.path("out.txt")));
    map.print(".json");
    EXPECT_EQ(readFile(folder.path("case.json")), "{\n\t\"d\" : 1\n}");
    EXPECT_TRUE(inputMap(folder.path("missing.m")).map.empty());
    EXPECT_END_SAYING(map.print(folder.path("no/case.json")), 1, "no/case.json");
}

TEST(inputMap, readsLeadingNumbers) {
    const std::tuple<const char*, double, int, std::vector<double>> cases[] = {
        {"2.5 m", 2.5, 2, {2.5, 0}},
        {"1e3", 1000, 1, {1000}},
        {"abc", 0, 0, {0}},
        {"", 0, 0, {0}},
        {"99999999999 ", 99999999999, std::numeric_limits<int>::max(), {99999999999}},
        {" 1\t2 abc 4", 1, 1, {1, 2, 0}},
        {"-.5 1e2", -0.5, 0, {-0.5, 100}}};
    inputMap map;
    for (const auto& [text, number, integer, list] : cases) {
        map.map["key"] = text;
        EXPECT_EQ(map.read("key", 7.0), number) << text;
        EXPECT_EQ(map.read("key", 7), integer) << text;
        EXPECT_EQ(map.read("key", std::vector<double>{7}), list) << text;
    }
    EXPECT_EQ(map.read("missing", std::vector<double>{7}), (std::vector<double>{7}));
}

TEST(readData, readsWhatBlanksSeparate) {
    const std::tuple<const char*, int, int, std::vector<double>> cases[] = {
        {"# x y\nm m\n1.5 2\n", 2, 2, {1.5, 2}},
        {"1 2\n3 4 5\n6 7\n", 0, 3, {1, 2, 3, 4, 5}},
        {"1.5=2, 3;4 : 5 6\n1 2 3 4 5 6", 0, 6, {}},
        {"1 ;2\n3, 4\n", 0, 2, {1, 0, 3, 0}}};
    for (const auto& [text, head, columns, values] : cases) {
        std::istringstream in(text);
        std::vector<double> data;
        EXPECT_EQ(sorvikIO::readData<double>(in, data, head), columns) << text;
        EXPECT_EQ(data, values) << text;
    }
}

} // namespace
