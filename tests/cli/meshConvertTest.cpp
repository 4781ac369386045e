#include "mesh/bodyMesh.hpp"
#include "support/files.hpp"
#include "support/meshes.hpp"
#include "support/program.hpp"

#include <string>
#include <vector>

namespace {

const std::string usage = readFile(SORVIK_TEST_DATA "/help.txt");

/// A box of 2 x 2 x 2 m about the origin in a folder of its own.
struct boxFolder {
    temporaryFolder folder;
    boxFolder() {
        bodyMesh mesh;
        fillMesh(mesh, box({-1, -1, -1}, {1, 1, 1}));
        mesh.stl_print(folder.path("a.STL"), false);
    }
    programRun convert(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), "-meshConvert");
        return runProgram(arguments, folder.path());
    }
};

std::string generated(const std::string& format, const std::string& counts) {
    return "Body mesh generation... \nmesh format is: " + format +
           "\nSet submergence level with:" + counts +
           " split faces close to waterline\nBody mesh generation done \n";
}

TEST(meshConvert, convertsBetweenFormats) {
    const boxFolder files;
    const std::string cut = "14 wet faces, 2 dry faces, and 8";
    EXPECT_EQ(files.convert({"a.STL", "b.gdf"}).output,
              generated(".STL", cut) + "mesh format is: .gdf\n" +
                  "Successfully converted mesh a.STL to b.gdf\n" + usage);
    EXPECT_EQ(readFile(files.folder.path("b.gdf")).substr(51, 36),
              "1 9.81\t ULEN GRAV\n0 0\t ISX ISY\n12\n-1");

    const programRun wet =
        files.convert({"a.STL", "c.nem", "-wet", "0", "-origin", "0", "0", "-1"});
    EXPECT_EQ(wet.status, 0);
    EXPECT_NE(wet.output.find("2 wet faces, 2 dry faces, and 0"), std::string::npos) << wet.output;
    EXPECT_EQ(
        readFile(files.folder.path("c.nem")),
        "2 0\n1 -1 -1 0\n2 -1 1 0\n3 1 1 0\n4 1 -1 0\n0 0. 0. 0.\n1 2 3 1\n1 3 4 1\n0 0 0 0\n");

    // A Nemoh file holds the wetted part at level 0, whatever is asked for.
    EXPECT_EQ(files.convert({"b.gdf", "d.dat"}).status, 0);
    const std::string half = readFile(files.folder.path("d.dat"));
    EXPECT_EQ(half.substr(0, half.find("0 0. 0. 0.")).find(" 1\n"), std::string::npos);

    // STL to STL is the same file, but for what no reader looks at.
    files.convert({"a.STL", "e.stl"});
    EXPECT_EQ(readFile(files.folder.path("e.stl")), readFile(files.folder.path("a.STL")));
    files.convert({"a.STL", "f.stl", "-wet", "0.5"});
    EXPECT_EQ(readFile(files.folder.path("f.stl")).size(), 84U + 50 * (2 + 3 * 4));
}

TEST(meshConvert, saysWhatIsWrong) {
    const boxFolder files;
    const std::string cut = "14 wet faces, 2 dry faces, and 8";
    EXPECT_EQ(
        files.convert({"a.STL", "b.obj"}).output,
        generated(".STL", cut) +
            "mesh format is: .obj\nWarning: Output format not supported. Please choose among: "
            ".gdf, .stl and .dat formats\n Warning: Something went wrong in the mesh "
            "conversion. \n" +
            usage + usage);
    const programRun text = files.convert({"a.txt", "b.stl"});
    EXPECT_EQ(text.status, 1);
    EXPECT_EQ(text.output,
              "Body mesh generation... \nmesh format is: .txt\nWARNING. MESH FILE FORMAT "
              "-1 IS NOT SUPPPORTED. PLEASE SUPPLY A .gdf or .stl or a .dat nemoh mesh "
              "file.\n");
    EXPECT_EQ(files.convert({"missing.stl", "c.gdf"}).output,
              generated(".stl", "0 wet faces, 0 dry faces, and 0") + "mesh format is: .gdf\n" +
                  "Successfully converted mesh missing.stl to c.gdf\n" + usage);
    // Values of flags may begin with a minus, and be no number.
    const programRun odd =
        files.convert({"a.STL", "d.dat", "-wet", "-0.5", "-origin", "x", "-1", "-toJSON"});
    EXPECT_NE(odd.output.find("14 wet faces"), std::string::npos);
    EXPECT_EQ(odd.status, 255);
}

} // namespace
