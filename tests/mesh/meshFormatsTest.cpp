#include "mesh/bodyMesh.hpp"
#include "support/files.hpp"
#include "support/meshes.hpp"
#include "support/program.hpp"

#include <cstring>
#include <string>
#include <vector>

namespace {

/// Corners and normals of all panels, for comparison.
std::vector<float> numbersOf(bodyMesh const& mesh) {
    std::vector<float> numbers;
    for (triangle const& t : mesh.faces) {
        for (v3<float> const& v : {t.normal, t.vertexA, t.vertexB, t.vertexC}) {
            numbers.insert(numbers.end(), {v.x, v.y, v.z});
        }
    }
    return numbers;
}

bodyMesh wetPanel() {
    bodyMesh mesh;
    fillMesh(mesh, {triangle({0, 0, -1}, {2, 0, -1}, {0, 0.5F, -1.25F})});
    return mesh;
}

const std::string asciiFacet =
    "\tfacet normal -0 0.447214 0.894427\n\t\touter loop\n"
    "\t\t\tvertex 0 0 -1\n\t\t\tvertex 2 0 -1\n\t\t\tvertex 0 0.5 -1.25\n"
    "\t\tendloop\n\tendfacet\n";
const std::string asciiFile = "solid OBJECT\n" + asciiFacet + "endsolid OBJECT\n";
const std::string gdfFile =
    " WAMIT FILE FORMAT FROM TRIANGULAR STL-STYLE MESH \n1 9.81\t ULEN GRAV\n"
    "0 0\t ISX ISY\n1\n0 0 -1 2 0 -1 0 0.5 -1.25 0 0 -1\n";
const std::string nemohFile =
    "2 0\n1 0 0 -1\n2 2 0 -1\n3 0 0.5 -1.25\n0 0. 0. 0.\n1 2 3 1\n0 0 0 0\n";

TEST(meshFormats, writeKnownFiles) {
    const temporaryFolder folder;
    const bodyMesh mesh = wetPanel();
    mesh.stl_print_ascii(folder.path("a.stl"), false);
    EXPECT_EQ(readFile(folder.path("a.stl")), asciiFile);
    mesh.gdf_print(folder.path("a.gdf"), true, 1, 9.81);
    EXPECT_EQ(readFile(folder.path("a.gdf")), gdfFile);
    EXPECT_EQ(mesh.nemoh_print(folder.path("a.dat"), true), 3);
    EXPECT_EQ(readFile(folder.path("a.dat")), nemohFile);
    EXPECT_EQ(outputOf([&] { mesh.nemoh_print(folder.path("b.dat"), false); }),
              " Warning: Nemoh mesh only supports wetFaces to be printed.\n");
    EXPECT_EQ(readFile(folder.path("b.dat")), nemohFile);

    mesh.stl_print(folder.path("b.stl"), true);
    const std::string binary = readFile(folder.path("b.stl"));
    ASSERT_EQ(binary.size(), 134U);
    EXPECT_EQ(binary.substr(80, 4), std::string("\1\0\0\0", 4));
    // B.x = 2 is 0x40000000; the attribute is 48.
    EXPECT_EQ(binary.substr(84 + 24, 4), std::string("\0\0\0\x40", 4));
    EXPECT_EQ(binary.substr(132), std::string("0\0", 2));
}

TEST(meshFormats, readBackWhatTheyWrite) {
    const temporaryFolder folder;
    bodyMesh hull;
    fillMesh(hull, ellipsoid(12, 7));
    hull.stl_print(folder.path("b.stl"), false);
    bodyMesh binary;
    EXPECT_TRUE(binary.read(folder.path("b.stl")));
    EXPECT_EQ(binary.nFaces, 144);
    EXPECT_EQ(numbersOf(binary), numbersOf(hull));

    hull.stl_print_ascii(folder.path("a.stl"), false);
    bodyMesh ascii;
    std::string output = outputOf([&] { EXPECT_TRUE(ascii.read(folder.path("a.stl"))); });
    EXPECT_EQ(output, "mesh format is: .stl\n READING STL FILE " + folder.path("a.stl") +
                          " IN ASCII FORMAT \n Read 144 triangles in mesh\n");
    ascii.stl_print_ascii(folder.path("a2.stl"), false);
    EXPECT_EQ(readFile(folder.path("a2.stl")), readFile(folder.path("a.stl")));

    // Wholly submerged, so that the file holds the hull; its closing line is one panel more.
    hull.updateWetSurface(10);
    EXPECT_EQ(hull.nemoh_print(folder.path("n.dat"), true), 12 * 6 + 2);
    bodyMesh nemoh;
    EXPECT_EQ(nemoh.nemoh_read(folder.path("n.dat")), 145);
    EXPECT_EQ(nemoh.faces.back().area, 0);
    EXPECT_NEAR(nemoh.surfaceArea(), hull.surfaceArea(), 1e-3);
    int nodes = 1;
    int panels = 2;
    EXPECT_EQ(bodyMesh::nemoh_readMeshInfo(folder.path("n.dat"), nodes, panels), 0);
    EXPECT_EQ(nodes, 1 + 74);
    EXPECT_EQ(panels, 2 + 144);
}

TEST(meshFormats, shareNodesWithinTheTolerance) {
    bodyMesh mesh;
    fillMesh(mesh, {triangle({0, 0, -1}, {1, 0, -1}, {0, 1, -1}),
                    triangle({1, 0.000009F, -1}, {1, 1, -1}, {0, 1.00002F, -1})});
    std::ostringstream out;
    EXPECT_EQ(mesh.nemoh_write(out), 5);
    EXPECT_NE(out.str().find("\n1 2 3 1\n2 4 5 2\n0 0 0 0\n"), std::string::npos);
}

struct fileCase {
    const char* what;
    std::string content;
    bool good;
    int faces;
    const char* said; ///< some of what is printed
};

void expectReads(const char* name, std::vector<fileCase> const& cases) {
    const temporaryFolder folder;
    for (fileCase const& c : cases) {
        SCOPED_TRACE(c.what);
        const std::string file = writeFile(folder.path(name), c.content);
        bodyMesh mesh;
        bool good = !c.good;
        const std::string output = outputOf([&] { good = mesh.read(file); });
        EXPECT_EQ(good, c.good);
        EXPECT_EQ(mesh.nFaces, c.faces);
        EXPECT_EQ(mesh.faces.size(), static_cast<std::size_t>(c.faces));
        EXPECT_NE(output.find(c.said), std::string::npos) << output;
    }
}

std::string replaced(std::string text, const std::string& from, const std::string& to) {
    for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size()) {
        text.replace(at, from.size(), to);
    }
    return text;
}

TEST(meshFormats, readStlDialects) {
    const std::string capitals = replaced(
        replaced(replaced(asciiFile, "solid", "SOLID"), "facet", "FACET"), "vertex", "VERTEX");
    const std::string two = "solid x\n" + asciiFacet + asciiFacet + "endsolid\n";
    expectReads("a.stl",
                {{"as written", asciiFile, true, 1, " Read 1 triangles"},
                 {"capitals", capitals, true, 1, " Read 1 triangles"},
                 {"carriage returns", replaced(two, "\n", "\r\n"), true, 2, " Read 2 triangles"},
                 {"blank lines and leading blanks", replaced(two, "endfacet\n", "endfacet\n\n  \n"),
                  true, 2, " Read 2 triangles"},
                 {"no end", "solid\n" + asciiFacet, false, 1, " Read 1 triangles"},
                 {"cut off", two.substr(0, two.size() - 60), false, 2, " Read 2 triangles"}});
    const temporaryFolder folder;
    const std::string other = writeFile(folder.path("o.stl"), "Solid\n" + asciiFacet);
    EXPECT_TRUE(bodyMesh::stl_isbinary(other));
    EXPECT_EXIT_SAYING(bodyMesh().read(other), 1, "o.stl announces");
}

std::string binaryStl(const std::string& count, std::size_t records) {
    std::string record(50, '\0');
    record[15] = 0x3f; // A.x = 0.5
    std::string file = "solid in the head" + std::string(63, ' ') + count;
    for (; records > 0; --records) {
        file += record;
    }
    return file;
}

TEST(meshFormats, readBinaryStlAsFarAsItGoes) {
    const std::string three("\3\0\0\0", 4);
    const std::string none("\0\0\0\0", 4);
    expectReads("b.stl", {{"no facets", binaryStl(none, 0), true, 0, ""},
                          {"three", binaryStl(three, 3), true, 3, ""},
                          {"one too many", binaryStl(three, 4), true, 3, ""},
                          {"one missing", binaryStl(three, 2), false, 3, ""},
                          {"no file at all", "", false, 0, ""}});
    const temporaryFolder folder;
    bodyMesh mesh;
    mesh.stl_read(writeFile(folder.path("c.stl"), binaryStl(three, 1)));
    EXPECT_EQ(mesh.faces[2].vertexA.x, 0.5F);
    for (const char* count : {"\xff\xff\xff\xff", "\xff\xff\xff\x7f"}) {
        writeFile(folder.path("huge.stl"), binaryStl(std::string(count, 4), 1));
        EXPECT_EXIT_SAYING(mesh.stl_read(folder.path("huge.stl")), 1,
                           "facets, more than memory can hold");
    }
}

TEST(meshFormats, readGdfDialects) {
    const std::string corners = "0 0 -1 2 0 -1 0 0.5 -1.25 0 0 -1\n";
    const auto gdf = [&](const std::string& symmetry, const std::string& count, int records) {
        std::string file = "head\n1.0 9.81 ! scale\n" + symmetry + " ! symmetry\n" + count + "\n";
        for (; records > 0; --records) {
            file += corners;
        }
        return file;
    };
    expectReads(
        "a.gdf",
        {{"three records, two panels", gdf("0 0", "3", 3), true, 2,
          " Read 3 panels, out of which 4 were triangles. Generated 2 triangles.\n"
          " GDF FILE READ COMPLETE. A total of  2 triangles generated \n"},
         {"one number a line", gdf("0\n0", "1", 0) + replaced(corners, " ", "\n"), true, 1,
          "Read 1 panels"},
         {"a corner a line", replaced(gdf("0 0", "2", 2), "-1 ", "-1\n"), true, 1, "Read 2 panels"},
         {"half hull", gdf("0 1", "1", 1), true, 2, "A total of  2 triangles"},
         {"quarter hull", gdf("1 1", "1", 1), true, 4, "A total of  4 triangles"},
         {"other flags mirror nothing", gdf("2 -1", "1", 1), true, 1, "A total of  1 triangles"},
         {"no panels", gdf("0 0", "0", 1), true, 0, " Read 0 panels, out of which 0 were"},
         {"a negative count", gdf("0 0", "-2", 1), false, 0, "Read 0 panels"},
         {"fewer than announced", gdf("0 0", "9", 3), false, 2, "Read 3 panels"},
         {"a broken last record", gdf("0 0", "3", 2) + "1 2 3", false, 1, "Read 2 panels"},
         {"a word for a number", gdf("0 0", "2", 0) + corners + "1 x", false, 1, "Read 1 panels"},
         {"no line end", gdf("0 0", "1", 0) + "0 0 -1 2 0 -1 0 0.5 -1.25 0 0 -1", true, 1, ""}});
}

TEST(meshFormats, readNemohDialects) {
    const std::string nodes = "7 0 0 -1\n2 1 0 -1\n3 1 1 -1\n4 0 1 -1\n0 0. 0. 0.\n";
    expectReads("a.nem",
                {{"a triangle and the end", nemohFile, true, 2, ".nem"},
                 {"a quadrilateral is split", "2 0\n" + nodes + "7 2 3 4\n0 0 0 0\n", true, 3, ""},
                 {"half hull", "2 1\n" + nodes + "7 2 3 7\n0 0 0 0\n", true, 4, ""},
                 {"no end", "2 0\n" + nodes + "7 2 3 7\n", true, 1, ""},
                 {"unknown nodes", "2 0\n" + nodes + "99 2 -3 99\n", true, 1, ""},
                 {"nothing", "", false, 0, ""}});
    const temporaryFolder folder;
    bodyMesh mesh;
    mesh.nemoh_read(writeFile(folder.path("q.dat"), "2 0\n" + nodes + "7 2 3 4"));
    EXPECT_EQ(numbersOf(mesh), (std::vector<float>{0, 0, 1, 0, 0, -1, 1, 0, -1, 1, 1, -1, //
                                                   0, 0, 1, 0, 0, -1, 1, 1, -1, 0, 1, -1}));
}

TEST(meshFormats, areChosenByExtension) {
    const std::vector<std::pair<std::string, int>> cases = {
        {"a.stl", 0}, {"a.STL", 0},  {"a.gdf", 1},  {"a.GDF", 1}, {"a.dat", 2}, {"a.DAT", 2},
        {"a.nem", 2}, {"a.NEM", -1}, {"a.Stl", -1}, {"stl.", -1}, {"a.obj", -1}};
    for (const auto& [name, code] : cases) {
        EXPECT_EQ(bodyMesh::chooseFrmt(name), code) << name;
    }
    EXPECT_THROW(bodyMesh::chooseFrmt("stl"), std::out_of_range);
}

} // namespace
