#include "check/finding.hpp"
#include "support/program.hpp"

#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

// Update the table of docs/check.md from what this test shows.
TEST(manual, describesEveryFinding) {
    std::string table;
    std::set<std::string_view> names;
    for (const sorvik::findingKind& kind : sorvik::findingKinds()) {
        EXPECT_TRUE(names.insert(kind.name).second) << kind.name << " is there twice";
        for (const std::string_view part :
             {std::string_view("| `"), kind.name, std::string_view("` | "), nameOf(kind.level),
              std::string_view(" | "), kind.cause, std::string_view(" | "), kind.cure}) {
            table += part;
        }
        table += " |\n";
    }
    const std::string manual = readFile(SORVIK_TEST_DATA "/../../docs/check.md");
    const std::string heading = "## ALL FINDINGS";
    const std::size_t begin = manual.find("|\n| `", manual.find(heading));
    ASSERT_NE(begin, manual.npos);
    EXPECT_EQ("|\n" + table, manual.substr(begin));
}

} // namespace
