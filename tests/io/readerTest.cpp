#include "io/reader.hpp"
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

TEST(reader, readsWhatItMust) {
    reader config;
    config.inputs.map = {{"list", "1 2"}, {"name", "x"}};
    EXPECT_EQ(config.mustRead<std::string>("other", "name"), "x");
    EXPECT_EQ(config.mustRead<std::vector<double>>("list"), (std::vector<double>{1, 2}));
    EXPECT_EXIT_SAYING(config.mustRead<std::string>("a.b"), 1, "Cannot find value of a.b in input");
}

} // namespace
