#include "io/inputMap.hpp"
#include "io/sorvikIO.hpp"

#include <limits>
#include <sstream>
#include <string>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

namespace {

TEST(parse, takesTheFirstNumber) {
    inputMap map;
    map.map = {{"unit", "2.5 m"},      {"cut", "3.7"}, {"word", "abc"},
               {"big", "99999999999"}, {"exp", "1e3"}, {"list", "1 2"}};
    EXPECT_EQ(map.read<double>("unit", 0), 2.5);
    EXPECT_EQ(map.read<int>("cut", 0), 3);
    EXPECT_EQ(map.read<double>("word", 7), 0);
    EXPECT_EQ(map.read<int>("big", 0), std::numeric_limits<int>::max());
    EXPECT_EQ(map.read<double>("exp", 0), 1000);
    EXPECT_EQ(map.read<double>("missing", 7), 7);
    EXPECT_EQ(map.read<std::vector<double>>("list", {}), (std::vector<double>{1, 2}));
    EXPECT_EQ(map.read<std::vector<double>>("missing", {7}), (std::vector<double>{7}));
}

TEST(parse, endsAListAtTheFirstWord) {
    const std::pair<const char*, std::vector<double>> cases[] = {
        {"1 2 3", {1, 2, 3}}, {" 1\t2  ", {1, 2}}, {"1 2 abc 4", {1, 2, 0}},
        {"abc", {0}},         {"", {0}},           {"-.5 1e2", {-0.5, 100}}};
    for (const auto& [text, numbers] : cases) {
        std::vector<double> list;
        std::vector<double> row;
        sorvikIO::parse<double>(text, list);
        EXPECT_EQ(sorvikIO::readLine<double>(text, row), static_cast<int>(numbers.size())) << text;
        EXPECT_EQ(list, numbers) << text;
        EXPECT_EQ(row, numbers) << text;
    }
}

TEST(readData, readsRowsOfOneLength) {
    const std::tuple<const char*, const char*, int, int, std::vector<double>> cases[] = {
        {"two columns", "1 2\n3 4\n", 0, 2, {1, 2, 3, 4}},
        {"no end of line", "1 2\n3 4", 0, 2, {1, 2, 3, 4}},
        {"one row", "1 2 3", 0, 3, {1, 2, 3}},
        {"head lines", "# x y\nm m\n1 2\n", 2, 2, {1, 2}},
        {"a longer row ends it", "1 2\n3 4 5\n6 7\n", 0, 3, {1, 2, 3, 4, 5}},
        {"a blank line ends it", "1 2\n\n3 4\n", 0, 1, {1, 2, 0}},
        {"a word ends its row", "1 2\n3 x\n5 6\n", 0, 2, {1, 2, 3, 0, 5, 6}},
        {"delimited values are counted, not kept", "1,2\n3 , 4\n", 0, 2, {}},
        {"another delimiter", "1; 2; 3\n", 0, 3, {}},
        {"nothing at all", "", 0, 1, {0}},
    };
    for (const auto& [what, text, skip, columns, expected] : cases) {
        std::istringstream in(text);
        std::vector<double> data;
        EXPECT_EQ(sorvikIO::readData<double>(in, data, skip), columns) << what;
        EXPECT_EQ(data, expected) << what;
    }
}

} // namespace
