#include "mesh/bodyMesh.hpp"
#include "support/files.hpp"
#include "support/meshes.hpp"
#include "support/program.hpp"

namespace {

const std::string asciiFacet =
    "\tfacet normal -0 0.447214 0.894427\n\t\touter loop\n"
    "\t\t\tvertex 0 0 -1\n\t\t\tvertex 2 0 -1\n\t\t\tvertex 0 0.5 -1.25\n"
    "\t\tendloop\n\tendfacet\n";
const std::string asciiFile = "solid OBJECT\n" + asciiFacet + "endsolid OBJECT\n";

TEST(meshFormats, writeKnownFiles) {
    const temporaryFolder folder;
    bodyMesh mesh;
    fillMesh(mesh, {triangle({0, 0, -1}, {2, 0, -1}, {0, 0.5F, -1.25F})});
    mesh.stl_print_ascii(folder.path("a.stl"), false);
    EXPECT_EQ(readFile(folder.path("a.stl")), asciiFile);
    EXPECT_EQ(outputOf([&] { EXPECT_EQ(mesh.nemoh_print(folder.path("a.dat"), false), 3); }),
              " Warning: Nemoh mesh only supports wetFaces to be printed.\n");
    int nodes = 1, panels = 2;
    EXPECT_EQ(bodyMesh::nemoh_readMeshInfo(folder.path("a.dat"), nodes, panels), 0);
    EXPECT_EQ(std::pair(nodes, panels), std::pair(1 + 3, 2 + 1));
    mesh.gdf_print(folder.path("a.gdf"), true, 2, 9.81);
    EXPECT_THAT(readFile(folder.path("a.gdf")), testing::HasSubstr("\n2 9.81\t ULEN GRAV\n"));
    mesh.stl_print(folder.path("b.stl"), true);
    const std::string binary = readFile(folder.path("b.stl"));
    ASSERT_EQ(binary.size(), 134U);
    EXPECT_EQ(binary.substr(80, 4), std::string("\1\0\0\0", 4));
    // B.x = 2 is 0x40000000; the attribute is 48.
    EXPECT_EQ(binary.substr(84 + 24, 4), std::string("\0\0\0\x40", 4));
    EXPECT_EQ(binary.substr(132), std::string("0\0", 2));
}

// What is read of files and written again is checked by the corpus.
TEST(meshFormats, tellBrokenTextFiles) {
    const temporaryFolder folder;
    const auto good = [&](const std::string& name, const std::string& content) {
        return bodyMesh().read(writeFile(folder.path(name), content));
    };
    const std::string gdf = "head\n1 9.81\n0 0\n1\n0 0 -1 2 0 -1 0 0.5 -1.25 0 0 ";
    const std::string nem = "2 0\n1 0 0 -1\n0 0. 0. 0.\n1 1 1 1\n";
    EXPECT_TRUE(good("a.stl", asciiFile) && good("a.gdf", gdf + "-1") && good("a.nem", nem));
    EXPECT_FALSE(good("a.stl", asciiFile.substr(0, 90)));
    EXPECT_EQ(bodyMesh::chooseFrmt("a.nem"), 2);
    EXPECT_FALSE(good("a.gdf", gdf) || good("a.gdf", "") || good("a.nem", ""));
}

} // namespace
