#include "mesh/meshFormats.hpp"
#include "base/files.hpp"
#include "mesh/gdfFormat.hpp"
#include "mesh/stlFormat.hpp"
#include "support/meshes.hpp"
#include "support/program.hpp"

#include <thread>

#ifndef _WIN32
#include <sys/stat.h>
#endif

using namespace sorvik;

namespace {

const std::string asciiFile = "solid OBJECT\n\tfacet normal -0 0.447214 0.894427\n\t\touter loop\n"
                              "\t\t\tvertex 0 0 -1\n\t\t\tvertex 2 0 -1\n\t\t\tvertex 0 0.5 -1.25\n"
                              "\t\tendloop\n\tendfacet\nendsolid OBJECT\n";

// What the program converts is checked by text cases: these are the other members.
TEST(meshFormats, writeKnownFiles) {
    const temporaryFolder folder;
    const std::string file = folder.path("file");
    bodyMesh mesh, again;
    fillMesh(mesh, {triangle({0, 0, -1}, {2, 0, -1}, {0, 0.5F, -1.25F})});
    mesh.stl_print_ascii(file, false);
    EXPECT_EQ(readFile(file), asciiFile);
    EXPECT_TRUE(!bodyMesh::stl_isbinary(file) && again.stl_read_ascii(file));
    EXPECT_EQ(outputOf([&] { EXPECT_EQ(mesh.nemoh_print(file, false), 3); }),
              " Warning: Nemoh mesh only supports wetFaces to be printed.\n");
    int nodes = 1, panels = 2;
    EXPECT_EQ(bodyMesh::nemoh_readMeshInfo(file, nodes, panels), 0);
    EXPECT_EQ(std::pair(nodes, panels), std::pair(1 + 3, 2 + 1));
    EXPECT_EQ(again.nemoh_read(file), 1 + 2);
    mesh.gdf_print(file, true, 2, 9.81);
    EXPECT_THAT(readFile(file), testing::HasSubstr("\n2 9.81\t ULEN GRAV\n"));
    EXPECT_TRUE(again.gdf_read(file));
    EXPECT_EQ(std::pair(again.nFaces, again.faces.size()), std::pair(1, std::size_t(4)));
    mesh.stl_print(file, true);
    EXPECT_TRUE(bodyMesh::stl_isbinary(file) && again.stl_read(file));
    EXPECT_EQ(again.faces.size(), 1U);
    const std::string binary = readFile(file);
    ASSERT_EQ(binary.size(), 134U);
    // The count, B.x = 2, which is 0x40000000, and the attribute 48.
    EXPECT_EQ(binary.substr(80, 4) + binary.substr(84 + 24, 4) + binary.substr(132),
              std::string("\1\0\0\0\0\0\0\x40\x30\0", 10));
}

// Whole files, and what is read and written again, are checked by the corpus.
TEST(meshFormats, returnWhetherAFileIsWhole) {
    const auto isWhole = [](auto read, const std::string& text) {
        bodyMesh mesh;
        return readText(mesh, read, text);
    };
    const auto readNemoh = meshFormats()[2].read;
    EXPECT_TRUE(isWhole(readNemoh, "2 0\n1 0 0 -1\n0 0. 0. 0.\n1 1 1 1\n"));
    EXPECT_FALSE(isWhole(stl::read, asciiFile.substr(0, 90)) || isWhole(readNemoh, "") ||
                 isWhole(gdf::read, "head\n1 9.81\n0 0\n1\n0 0 -1 2 0 -1 0 0.5 -1.25 0 0 ") ||
                 isWhole(gdf::read, ""));
}

#ifndef _WIN32
TEST(meshFormats, comeThroughPipes) {
    const temporaryFolder folder;
    const std::string pipe = folder.path("pipe.stl");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    bodyMesh known;
    ASSERT_TRUE(readText(known, stl::read, asciiFile));
    const std::string binaryFile = textOf(known, stl::write);
    for (const std::string& content : {asciiFile, binaryFile}) {
        EXPECT_TRUE(files::canOpen(pipe));
        std::thread writer([&] { writeFile(pipe, content); });
        bodyMesh mesh;
        EXPECT_TRUE(mesh.read(pipe));
        writer.join();
        EXPECT_EQ(textOf(mesh, stl::write), binaryFile) << content;
    }
}
#endif

} // namespace
