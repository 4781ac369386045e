#include "support/files.hpp"
#include "support/program.hpp"

#include <string>
#include <vector>

namespace {

const std::string usage = readFile(SORVIK_TEST_DATA "/help.txt");

struct taskCase {
    std::vector<std::string> arguments;
    int status;
    std::string output;
};

TEST(tasks, endAsTheirFlagsSay) {
    const std::string tooFew =
        "* * * Fatal error: Not enough input arguments to -meshConvert task. Expected 2. * * * \n";
    const std::string noOrigin =
        " Warning: -origin flag requires 3 following x y z coordinates. Not enough input\n";
    const std::string noLevel =
        " Warning: -wet flag requires 1 following z coordinate. Not enough input\n";
    const std::string project = " Creating Nemoh project \n";
    const std::string noInput =
        "FATAL ERROR: No input file specified. Please provide an input file "
        "name with the -f <file> syntax.\n";
    const taskCase cases[] = {
        {{}, 0, usage},
        {{"-help"}, 0, usage},
        {{"-MESHCONVERT", "a.stl", "b.stl"}, 0, usage},
        {{"-meshConvert", "a.stl"}, 0, tooFew + usage + usage},
        {{"-meshConvert", "a.stl", "b.stl", "-origin", "1", "2"}, 0, noOrigin + usage},
        {{"-meshConvert", "a.stl", "b.stl", "-wet"}, 0, noLevel + usage},
        {{"-nemoh"}, 255, project + "Cannot find input file \n"},
        {{"-f", "-toJSON", "-nemoh"}, 255, project + noInput + usage},
        {{"-toJSON", "-f", "missing.m"}, 255, "Cannot find input file missing.m\n"},
        {{"-toJSON", "-f"}, 255, "Cannot find input file FOUND\n"},
        {{"-toJSON"}, 255, "Cannot find input file \n"},
        {{"-toJSON", "-f", "."}, 255, "Cannot find input file .\n"},
        {{"-meshConvert", "a", "-toJSON"}, 134, "Body mesh generation... \n"},
    };
    const temporaryFolder folder;
    for (const taskCase& c : cases) {
        const programRun run = runProgram(c.arguments, folder.path());
        SCOPED_TRACE(testing::PrintToString(c.arguments));
        EXPECT_EQ(run.status, c.status);
        EXPECT_EQ(run.output, c.output);
    }
}

TEST(tasks, exportAnInputFileBesideIt) {
    const temporaryFolder folder;
    writeFile(folder.path("case.a.m"), "a.source = b\nb.x = 1 2\nc = {d = word}\n");
    const programRun run = runProgram({"-toJSON", "-f", "case.a.m"}, folder.path());
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.output + run.errors, "");
    EXPECT_EQ(readFile(folder.path("case.a.json")),
              "{\n\t\"a\" : {\n\t\t\"source\" : \"b\",\n\t\t\"x\" : [1 , 2]\n\t},\n"
              "\t\"b\" : {\n\t\t\"x\" : [1 , 2]\n\t},\n\t\"c\" : {\n\t\t\"d\" : \"word\"\n\t}\n}");

    // The export of an export is itself, through the name ending.
    EXPECT_EQ(runProgram({"-toJSON", "-f", "case.a.json"}, folder.path()).status, 1);
    EXPECT_NE(readFile(folder.path("case.a.json")).find("\t\t\"x\" : [1 , 2]\n"),
              std::string::npos);
}

} // namespace
