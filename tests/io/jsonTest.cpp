#include "io/inputMap.hpp"
#include "io/sorvikIO.hpp"
#include "support/files.hpp"
#include "support/program.hpp"

#include <map>
#include <string>

namespace {

TEST(toJSON, limitsTheTextItWrites) {
    EXPECT_EQ(sorvikIO::toJSON({{"a.b", ""}}, 1), "{\n\t\t\"a\" : {\n\t\t\t\"b\" : {}\n\t\t}\n\t}");
    const std::string deep = std::string(300'000, '.') + "a";
    EXPECT_EXIT_SAYING(sorvikIO::toJSON({{deep, "1"}}, 0), 1, "has 300001 components");
    const std::string wide(sorvikIO::maxJsonText, 'a');
    EXPECT_EXIT_SAYING(sorvikIO::toJSON({{wide, "1"}}, 0), 1, "more than 134217728 characters");
}

TEST(fileNameFromPath, takesWhatFollowsTheLastSeparator) {
    const std::map<std::string, std::string> cases = {
        {"dir/a.b", "a.b"}, {"dir\\a", "a"}, {"x/y\\z", "z"}, {"a", "a"}, {"dir/", ""}};
    for (const auto& [path, name] : cases) {
        EXPECT_EQ(sorvikIO::fileNameFromPath(path), name);
    }
}

TEST(inputMap, writesNothingButJson) {
    const temporaryFolder folder;
    const inputMap map(writeFile(folder.path("case.m"), "d = \"../e f\"\n"));
    map.print(folder.path("out.txt"));
    EXPECT_FALSE(fileExists(folder.path("out.txt")));
    map.print(".json");
    EXPECT_EQ(readFile(folder.path("case.json")), "{\n\t\"d\" : \"../e f\"\n}");
    EXPECT_TRUE(inputMap(folder.path("missing.m")).map.empty());
    EXPECT_EXIT_SAYING(map.print(folder.path("no/case.json")), 1, "no/case.json");
}

} // namespace
