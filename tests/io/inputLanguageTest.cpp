#include "base/classicText.hpp"
#include "io/inputMap.hpp"
#include "io/sorvikIO.hpp"
#include "support/program.hpp"

#include <algorithm>
#include <map>
#include <sstream>

using namespace sorvik;

namespace {

using entries = std::map<std::string, std::string>;

entries read(const std::string& text, char assign = '=') {
    classicText in(text);
    return sorvikIO::readInputStream(in, assign, '.');
}

/// The entries as data/language.txt lists them, "-> key [value]" with '|' for line ends.
std::string listed(const entries& map) {
    std::string list;
    for (auto [key, value] : map) {
        std::replace(value.begin(), value.end(), '\n', '|');
        list.append("-> ").append(key).append(" [").append(value).append("]\n");
    }
    return list;
}

// A case begins with "==", or "=:" for ':' between key and value, or "=@" for aliases resolved.
TEST(readInputStream, readsTheLanguage) {
    std::istringstream in(readFile(SORVIK_TEST_DATA "/language.txt"));
    for (std::string what; std::getline(in, what);) {
        std::string text;
        std::string expected;
        for (std::string line; in.good() && in.peek() != '=' && std::getline(in, line);) {
            const std::size_t mark = line.find("\\r");
            line = mark == std::string::npos ? line : line.substr(0, mark) + "\r";
            (line.compare(0, 2, "->") == 0 ? expected : text) += line + "\n";
        }
        classicText source(text);
        EXPECT_EQ(listed(what[1] == '@' ? inputMap(source, '=', '.').map : read(text, what[1])),
                  expected)
            << what;
    }
    EXPECT_EQ(read("a = 1\nb = 2"), (entries{{"a", "1"}, {"b", "2"}})) << "without a line end";
}

TEST(readInputStream, limitsBlocksAndTheNamesTheyAdd) {
    const auto nested = [](std::size_t depth) {
        std::string text = "\n";
        for (std::size_t i = 0; i < depth; ++i) {
            text += "a = {\n";
        }
        return text + "x = 1" + std::string(depth, '}');
    };
    EXPECT_THAT(sorvikIO::toJSON(read(nested(sorvikIO::maxNesting)), 0), testing::HasSubstr("1"));
    EXPECT_END_SAYING(read(nested(100'000)), 1, "Line 102 of the input opens block number 101");
    EXPECT_EQ(read("a = " + std::string(100'000, '[') + "1" + std::string(100'000, ']')),
              (entries{{"a", "1"}}));
    std::string text = std::string(500'000, 'k') + " = {";
    for (int i = 0; i < 200; ++i) {
        text += "\na" + std::to_string(i) + " = 1";
    }
    EXPECT_END_SAYING(read(text), 1, "kkkk..., add more than 67108864 characters");
}

// Every pass resolves one link: 10000 takes from 10001, and so on.
TEST(inputMap, reportsExactlyFiveHundredPasses) {
    for (const int links : {499, 500, 501, 502, 503}) {
        inputMap chain;
        for (int i = 10000; i < 10000 + links; ++i) {
            chain.map[std::to_string(i) + ".source"] = std::to_string(i + 1);
        }
        chain.map[std::to_string(10000 + links) + ".x"] = "1";
        EXPECT_EQ(outputOf([&] { chain.assignSources(); }),
                  links != 500 ? ""
                               : "Warning: 500 iterations of assignAlternatives in sorvikIO. "
                                 "Something is off...\n");
        EXPECT_EQ(chain.map.count("10000.x"), links <= 502 ? 1U : 0U) << links;
    }
}

TEST(inputMap, namesTheAliasThatAddsMost) {
    inputMap map;
    for (int i = 0; i < 500'000; ++i) {
        map.map[(i < 350'000 ? "big." : "small.") + std::to_string(i)] = "1";
    }
    map.map.insert({{"o.source", "big.77"}, {"p.source", "big"}, {"q.source", "small"}});
    EXPECT_END_SAYING(map.assignSources(), 1,
                      "more than 1000000 entries. p.source = big adds most entries, 350000. Exp");
}

/// A text that cannot be read twice.
struct pipeText : std::stringbuf {
    using std::stringbuf::stringbuf;
    pos_type seekoff(off_type, std::ios::seekdir, std::ios::openmode) override { return -1; }
};

TEST(readNextEntry, readsOnlyTheLinesItNeeds) {
    pipeText pipe("a = 1\n\nno entry\nb = 2\nc = 3\n");
    std::istream in(&pipe);
    std::string key, value;
    for (const char* entry : {"a1", "b2"}) {
        EXPECT_EQ(sorvikIO::readNextEntry(in, key, value, '='), 1);
        EXPECT_EQ(key + value, entry);
    }
    EXPECT_EQ(in.peek(), 'c');
    EXPECT_EQ(sorvikIO::readNextEntry(in, key, value, '='), 1);
    EXPECT_EQ(sorvikIO::readNextEntry(in, key, value, '='), 0);
    EXPECT_TRUE(in.fail());
}

TEST(addAlternativeKey, isEndlessOnlyWhereAKeyMakesItSo) {
    entries map = {{"a.b.source", "a"}, {"body.x", "1"}, {"body.z", "2"}, {"c.source", "body"}};
    EXPECT_TRUE(sorvikIO::addAlternativeKey(map, "c", "body"));
    EXPECT_FALSE(sorvikIO::addAlternativeKey(map, "c", "body"));
    EXPECT_EQ(map["c.x"] + map["c.z"], "12");
    // The copy of a later key comes before it.
    EXPECT_TRUE(sorvikIO::addAlternativeKey(map, "body.a", "body"));
    EXPECT_EQ(map.count("body.a.x") + map.count("body.a.a.x"), 1U);
    EXPECT_END_SAYING(sorvikIO::addAlternativeKey(map, "body.y", "body"), 1,
                      "The alias body.y.source = body feeds on itself");
    map = {{"a.source", "c"}, {"b.source", "a"}, {"c.x", "1"}};
    EXPECT_TRUE(sorvikIO::assignAlternatives(map));
    EXPECT_EQ(map["b.x"], "1");
    EXPECT_FALSE(sorvikIO::assignAlternatives(map));
}

TEST(inputMap, setsTextAndTakesKeysApart) {
    using words = std::vector<std::string>;
    EXPECT_EQ(sorvikIO::splitKey(".a.."), (words{"", "a", ""}));
    inputMap map;
    for (const char* key : {"b", "bo1.x.c", "boType", "c.bo2.bo1", "c.d.bo", "c.d.boTypes"}) {
        map.set(key, "1");
    }
    EXPECT_EQ(map.getKeys("bo"), (words{"bo1", "bo2", "bo", "boTypes"}));
    map.map = {{"a", "1"}};
    map.set("a", "2");
    map.set("b", "c = 3\nd = {e = 4}");
    EXPECT_EQ(map.map, (entries{{"a", "2"}, {"b.c", "3"}, {"b.d.e", "4"}}));
}

TEST(lookupKey, findsKeysInAStream) {
    const std::string text = "x = 1\n wave.Hs = 2 % m\nlist = [1\n2]\nin.front = 7\n"
                             "body.source = in\nlonger.than.its.line = 1\nempty = ;\na.source = c\n"
                             "a.b.source = d\nc.b.e = 3\nc.f.g = 4\nd.e = 5\nb=9";
    const entries expected = {
        {"x", "1"}, {"wave.Hs", "2"}, {"list", "1\n2"}, {"body.front", "7"},
        {"b", "9"}, {"a.b.e", "5"},   {"a.f.g", "4"},   {"Hs", "KEY_NOT_FOUND"}};
    for (const auto& [key, value] : expected) {
        std::istringstream in(text);
        EXPECT_EQ(sorvikIO::lookupKey(in, key), value) << key;
    }
    std::istringstream in(text);
    EXPECT_END_SAYING(sorvikIO::findKey(in, "empty"), 1,
                      "Key empty has no value in the input file!");
}

} // namespace
