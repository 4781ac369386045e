#include "support/files.hpp"
#include "support/meshes.hpp"
#include "support/program.hpp"

#include <filesystem>

namespace {

using testing::EndsWith;
using testing::HasSubstr;

const std::string entries = "bem.output = proj\nbem.body = 1\n";
const std::string placed = entries + "hydroBody1.bemInput.meshName = box.stl\n";
const std::string kept = entries + "hydroBody1.bemInput = { meshName = a.dat\n keepMesh = 1 }\n";
const std::string panel = "2 0\n1 0 0 -1\n2 1 0 -1\n3 0 1 -1\n0 0. 0. 0.\n1 2 3 1\n0 0 0 0\n";

/// A folder with a box of 8 x 4 x 3 m about the origin in box.stl, and one panel in a.dat.
struct nemohTask : testing::Test {
    nemohTask() {
        bodyMesh mesh;
        outputOf([&] { fillMesh(mesh, box({-4, -2, -1.5F}, {4, 2, 1.5F})); });
        mesh.stl_print(work.path("box.stl"), false);
        writeFile(work.path("a.dat"), panel);
    }
    programRun runCase(const std::string& input) const {
        writeFile(work.path("case.m"), input);
        return runProgram({"-nemoh", "-f", "case.m"}, work.path());
    }
    std::string projectFile(const std::string& name) const {
        return readFile(work.path("proj/" + name));
    }
    const temporaryFolder work;
};

TEST_F(nemohTask, placesTheMesh) {
    const programRun run = runCase(placed);
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.output, HasSubstr(" Creating Nemoh project \n1\nManipulating mesh to move into "
                                      "position, and cut at the waterline.\nBody mesh"));
    EXPECT_THAT(run.output, EndsWith("close to waterline\nAdding load cases\n"));
    EXPECT_EQ(projectFile("Nemoh.cal"), readFile(SORVIK_TEST_DATA "/Nemoh.cal"));
    EXPECT_EQ(projectFile("input_solver.txt"), readFile(SORVIK_TEST_DATA "/input_solver.txt"));
    EXPECT_THAT(projectFile("box_wetted.dat"), HasSubstr("\n12 4 0 0\n0 0. 0. 0.\n1 2 3 1\n"));
}

TEST_F(nemohTask, takesTheSettings) {
    runCase(placed + "environment = { waterDensity = 1025.5\n gravity = 9.81\n waterLevel = 5\n"
                     "ground.level = -50 }\nbem.w1 = 2\nbem.nFreqs = 19.5\nbem.dir0 = -45\n"
                     "hydroBody1.bemInput = { cogInMesh = 0 0 -0.5\n position = 10 0 -2.5 9 }");
    for (const char* line : {"\n1025.5 \t ! rho", "\n-9.81 \t ! grav", "\n55. \t ! water depth",
                             "\n1 19 0.01 2. \t ! mode", "\n2 -45. 90. \t ! Number",
                             " 10. 0. -2.5 \t ! force in dof 5"}) {
        EXPECT_THAT(projectFile("Nemoh.cal"), HasSubstr(line));
    }
    // The centre of gravity lies 2.5 m below the water and 1 m above the keel.
    EXPECT_THAT(projectFile("box_wetted.dat"), HasSubstr("\n1 6 -2 -3.5\n"));
    runCase(placed + "environment = { waterLevel = 5\n wave.depth = 70 }");
    EXPECT_THAT(projectFile("Nemoh.cal"), HasSubstr("\n70. \t ! water depth"));
}

TEST_F(nemohTask, keepsTheMesh) {
    EXPECT_EQ(runCase(kept).output,
              " Creating Nemoh project \n1\nMesh manipulation turned off (with keepMesh switch). "
              "cogInMesh input will be ignored.\nmesh only name is: a.dat\nAdding load cases\n");
    EXPECT_THAT(projectFile("Nemoh.cal"), HasSubstr("\na.dat\t ! mesh file name \n3 1\t ! numb"));
    EXPECT_EQ(projectFile("a.dat"), panel);
    runCase("hydroBody1.bemInput.meshName = proj/a.dat\n" + kept);
    EXPECT_EQ(projectFile("a.dat"), panel) << "a mesh in the project folder is its own copy";
    writeFile(work.path("a.dat"), "");
    EXPECT_EQ(runCase(kept).status, 1);
}

TEST_F(nemohTask, saysWhatIsWrong) {
    std::filesystem::create_directories(work.path("busy/box_wetted.dat"));
    std::filesystem::create_directories(work.path("full"));
    std::filesystem::create_symlink("/dev/full", work.path("full/Nemoh.cal"));
    const std::string body = "hydroBody1.bemInput.";
    const std::tuple<std::string, int, std::string> cases[] = {
        {"a = 1", 255, "output folder as bem.nemoh.output= <myNemohResults>\n"},
        {"bem.output = proj", 255, "Please specify a hydrodynamic body name in bem.body\n"},
        {entries + body + "keepMesh = 1", 255, "Cannot find meshfile KEY_NOT_FOUND\n"},
        {placed + body + "position = 1 2", 255, "3 numbers for " + body + "position, found 2\n"},
        {placed + body + "cogInMesh = x", 255, "3 numbers for " + body + "cogInMesh, found 1\n"},
        {entries + body + "meshName = x.m", 255, "extension such as .stl for meshfile x.m\n"},
        {"bem.output = busy\n" + placed, 255, "Cannot write meshfile busy/box_wetted.dat\n"},
        {"bem.output = full\n" + kept, 1, "or open full/Nemoh.cal for some reason.\n"},
        {entries + body + "meshName = x.obj", 1, ".gdf or .stl or a .dat nemoh mesh file.\n"}};
    for (const auto& [input, status, lastLine] : cases) {
        const programRun run = runCase(input);
        EXPECT_EQ(run.status, status);
        EXPECT_THAT(run.output, EndsWith(lastLine));
    }
    EXPECT_THAT(projectFile("Nemoh.cal"), EndsWith("1\t ! number of bodies\n"));
}

} // namespace
