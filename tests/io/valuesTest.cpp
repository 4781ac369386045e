#include "io/inputMap.hpp"
#include "io/sorvikIO.hpp"

#include <limits>
#include <sstream>
#include <string>
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

struct lineCase {
    const char* text;
    std::vector<double> asList; ///< as a value
    std::vector<double> asLine; ///< as a row of a table
};

TEST(parse, endsAListAtTheFirstWord) {
    const lineCase cases[] = {{"1 2 3", {1, 2, 3}, {1, 2, 3}},
                              {" 1\t2  ", {1, 2}, {1, 2}},
                              {"1 2 abc 4", {1, 2, 0}, {1, 2, 0}},
                              {"abc", {0}, {0}},
                              {"", {0}, {0}},
                              {"-.5 1e2", {-0.5, 100}, {-0.5, 100}}};
    for (const lineCase& c : cases) {
        SCOPED_TRACE(c.text);
        std::vector<double> list;
        sorvikIO::parse<double>(c.text, list);
        EXPECT_EQ(list, c.asList);
        std::vector<double> row;
        EXPECT_EQ(sorvikIO::readLine<double>(c.text, row), static_cast<int>(c.asLine.size()));
        EXPECT_EQ(row, c.asLine);
    }
}

struct tableCase {
    const char* what;
    const char* text;
    int skip;
    int cols;
    std::vector<double> data;
};

TEST(readData, readsRowsOfOneLength) {
    const tableCase cases[] = {
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
    for (const tableCase& c : cases) {
        SCOPED_TRACE(c.what);
        std::istringstream in(c.text);
        std::vector<double> data;
        EXPECT_EQ(sorvikIO::readData<double>(in, data, c.skip), c.cols);
        EXPECT_EQ(data, c.data);
    }
}

} // namespace
