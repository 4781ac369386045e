#include "io/classicText.hpp"
#include "io/inputMap.hpp"
#include "io/sorvikIO.hpp"
#include "support/program.hpp"

#include <map>
#include <sstream>
#include <string>

namespace {

using entries = std::map<std::string, std::string>;

entries read(const std::string& text, char assign = '=') {
    classicText in(text);
    return sorvikIO::readInputStream(in, assign, '.');
}

entries readWithAliases(const std::string& text) {
    classicText in(text);
    return inputMap(in, '=', '.').map;
}

struct textCase {
    const char* what;
    const char* text;
    entries expected;
};

TEST(readInputStream, readsEntriesAndBlocks) {
    const textCase cases[] = {
        {"nested blocks, comments, repeated key",
         "% environment of the case\nenvironment = {\n   waterDepth = 50 # metres\n"
         "   wave = { type = regular\n            height = 2.0 }\n}\nbodies = [1, 2, 3]\n"
         "name = \"my case\"\nname = other\n",
         {{"bodies", "1  2  3"},
          {"environment.waterDepth", "50"},
          {"environment.wave.height", "2.0"},
          {"environment.wave.type", "regular"},
          {"name", "my case"}}},
        {"only the first sign splits", "a = 1 = 2\n", {{"a", "1 = 2"}}},
        {"no value, no entry", "a =\nb = []\nc = ;\nd = 1", {{"d", "1"}}},
        {"an empty block is an entry without text", "a = { }", {{"a", ""}}},
        {"inner brackets become blanks", "list = [1 2 [3 4] 5]", {{"list", "1 2  3 4  5"}}},
        {"a comment cuts through quotes", "a = \"50 % of b\"\n", {{"a", "50"}}},
        {"a percent sign wins over an earlier hash", "a = 1 # 2 % 3", {{"a", "1 # 2"}}},
        {"comments in a block of several lines",
         "a = [1 // one\n2 % two\n3]",
         {{"a", "1 \n2 \n3"}}},
        {"carriage returns", "a = 1\r\nb = {\r\nc = 2\r\n}\r\n", {{"a", "1"}, {"b.c", "2"}}},
        {"what follows a block is a line of its own",
         "a = {x = 1} b = 2\nc = 3",
         {{"a.x", "1"}, {"b", "2"}, {"c", "3"}}},
        {"keys lose brackets too", "{a,b} = 1", {{"a b", "1"}}},
        {"an unclosed block takes the rest",
         "a = {b = {c = 1\nd = 2",
         {{"a.b.c", "1"}, {"a.b.d", "2"}}},
        {"first wins across blocks",
         "a.b = 1\na = { b = 2\n c = 3 }",
         {{"a.b", "1"}, {"a.c", "3"}}},
    };
    for (const textCase& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(read(c.text), c.expected);
    }
}

TEST(readInputStream, readsJsonWithColons) {
    EXPECT_EQ(
        read("{\n\t\"n\" : [1 , 2],\n\t\"e\" : {\n\t\t\"d\" : 5,\n\t\t\"t\" : \"x\"\n\t}\n}", ':'),
        (entries{{"n", "1   2"}, {"e.d", "5"}, {"e.t", "x"}}));
    EXPECT_EQ(read("path = \"C:\\data\"", '='), (entries{{"path", "C:\\data"}}));
    EXPECT_EQ(read("\"path\" : \"C:\\data\"", ':'), (entries{{"path", "C:\\data"}}));
}

TEST(readInputStream, nestsAHundredBlocks) {
    const auto nested = [](int depth) {
        std::string text = "\n";
        for (int i = 0; i < depth; ++i) {
            text += "a = {\n";
        }
        return text + "x = 1" + std::string(static_cast<std::size_t>(depth), '}');
    };
    EXPECT_EQ(read(nested(sorvikIO::maxNesting)).begin()->second, "1");
    EXPECT_EXIT_SAYING(read(nested(100'000)), 1, "Line 102 of the input opens block number 101");
    EXPECT_EQ(read("a = " + std::string(100'000, '[') + "1" + std::string(100'000, ']')),
              (entries{{"a", "1"}}));
}

TEST(inputMap, resolvesAliases) {
    const textCase cases[] = {
        {"missing entries come from the source, present ones stay",
         "wave = { type = regular\n height = 2 }\nbody1.wave = { source = wave\n height = 3 }",
         {{"body1.wave.height", "3"},
          {"body1.wave.source", "wave"},
          {"body1.wave.type", "regular"},
          {"wave.height", "2"},
          {"wave.type", "regular"}}},
        {"sources chain, whatever their order",
         "a.source = b\nb.source = c\nc.x = 1",
         {{"a.source", "b"}, {"a.x", "1"}, {"b.source", "c"}, {"b.x", "1"}, {"c.x", "1"}}},
        {"the match is plain text",
         "w.source = wave\nwave.Hs = 1\nwaves.n = 2\nwave = 3",
         {{"w", "3"},
          {"w.Hs", "1"},
          {"w.source", "wave"},
          {"wave", "3"},
          {"wave.Hs", "1"},
          {"waves.n", "2"},
          {"ws.n", "2"}}},
        {"source alone is no alias", "source = a\na.x = 1", {{"a.x", "1"}, {"source", "a"}}},
        {"an alias of itself adds nothing",
         "a.source = a\na.x = 1",
         {{"a.source", "a"}, {"a.x", "1"}}},
    };
    for (const textCase& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(readWithAliases(c.text), c.expected);
    }
    EXPECT_EXIT_SAYING(readWithAliases("body1.x = 2\nbody10 = { source = body1 }"), 1,
                       "The alias body10.source = body1 feeds on itself");
    EXPECT_EXIT_SAYING(readWithAliases("a.source = b\nb1.source = a\nb.x = 1"), 1,
                       "The alias a1.source = a feeds on itself");
}

/// A chain of aliases of which every pass resolves one link: 0000 takes from 0001, and so on.
int linesOfChain(int links) {
    inputMap chain;
    const auto name = [](int i) { return std::to_string(10000 + i); };
    for (int i = 0; i < links; ++i) {
        chain.map[name(i) + ".source"] = name(i + 1);
    }
    chain.map[name(links) + ".x"] = "1";
    const std::string output = outputOf([&] { chain.assignSources(); });
    EXPECT_EQ(chain.map.count(name(0) + ".x"), links <= 502 ? 1U : 0U);
    return output == "Warning: 500 iterations of assignAlternatives in sorvikIO. Something is "
                     "off...\n"
               ? 1
           : output.empty() ? 0
                            : -1;
}

TEST(inputMap, reportsExactlyFiveHundredPasses) {
    EXPECT_EQ(linesOfChain(499), 0);
    EXPECT_EQ(linesOfChain(500), 1);
    EXPECT_EQ(linesOfChain(501), 0);
    EXPECT_EQ(linesOfChain(502), 0);
    EXPECT_EQ(linesOfChain(503), 0);
}

TEST(inputMap, setsTextWithAssignmentsAsEntries) {
    inputMap map;
    map.set("a", "1");
    map.set("a", "2");
    map.set("b", "c = 3\nd = {e = 4}");
    EXPECT_EQ(map.map, (entries{{"a", "2"}, {"b.c", "3"}, {"b.d.e", "4"}}));
}

TEST(lookupKey, findsKeysInAStream) {
    const std::string text = "x = 1\n wave.Hs = 2 % m\nlist = [1\n2]\nbody.source = other\n"
                             "other.mass = 7\nlonger.than.its.line = 1\nempty = ;\nb=9";
    const entries expected = {{"x", "1"}, {"wave.Hs", "2"},   {"list", "1\n2"},
                              {"b", "9"}, {"body.mass", "7"}, {"Hs", "KEY_NOT_FOUND"}};
    for (const auto& [key, value] : expected) {
        std::istringstream in(text);
        EXPECT_EQ(sorvikIO::lookupKey(in, key), value) << key;
    }
    std::istringstream in(text);
    EXPECT_EXIT_SAYING(sorvikIO::findKey(in, "empty"), 1,
                       "Key empty has no value in the input file!");
}

} // namespace
