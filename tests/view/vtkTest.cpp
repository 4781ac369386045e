#include "base/littleEndian.hpp"
#include "support/program.hpp"
#include "view/vtkHull.hpp"
#include "view/vtkSurface.hpp"

#include <cmath>
#include <filesystem>
#include <map>
#include <regex>

namespace {

using namespace sorvik;
using testing::ElementsAre;
using testing::HasSubstr;

/// The bytes of the arrays of a file by type and name. They must lie one after the other.
std::map<std::string, std::string> arraysOf(const std::string& file) {
    const std::string text = readFile(file);
    const std::string head = text.substr(0, text.find("\n_") + 2);
    const std::regex pattern("type=\"(\\w+)\" Name=\"([^\"]+)\".* offset=\"(\\d+)\"");
    std::map<std::string, std::string> arrays;
    std::size_t end = head.size();
    for (std::sregex_iterator i(head.begin(), head.end(), pattern), none; i != none; ++i) {
        EXPECT_EQ(head.size() + std::stoull((*i)[3]), end) << (*i)[2];
        const auto bytes = littleEndian::load<std::uint64_t>(text.substr(end, 8).data());
        const auto size = static_cast<std::size_t>(bytes);
        arrays[(*i)[1].str() + " " + (*i)[2].str()] = text.substr(end + 8, size);
        end += 8 + size;
    }
    EXPECT_EQ(text.substr(end), "\n</AppendedData>\n</VTKFile>\n");
    return arrays;
}

template <class Number>
std::vector<Number> numbersIn(const std::string& bytes) {
    std::vector<Number> values;
    for (std::size_t i = 0; i < bytes.size(); i += sizeof(Number)) {
        values.push_back(littleEndian::load<Number>(bytes.data() + i));
    }
    return values;
}

TEST(writeVtkHull, writesPanelsWithTheirData) {
    // A wet panel with a corner at the level and a wrong normal, a cut one, a dry one, and one
    // without area.
    const std::string stl = std::regex_replace(
        std::string("solid a\n0 0 -2,1 0 -2,0 1 0,\n1 0 -2,0 0 -2,0 -1 1,\n"
                    "5 0 1,6 0 1,5 1 2,\n0 0 -2,0 0 -2,1 0 -2,\nendsolid a\n"),
        std::regex("(.*),(.*),(.*),"),
        "facet normal 0 0 1\nouter loop\nvertex $1\nvertex $2\nvertex $3\nendloop\nendfacet");
    const temporaryFolder folder;
    const hullReport hull = checkHull(writeFile(folder.path("a.stl"), stl), {});
    ASSERT_EQ(writeVtkHull(folder.path("new"), "a", hull, 0), "");
    auto whole = arraysOf(folder.path("new/a.vtp"));
    EXPECT_EQ(whole["Float32 Points"].size(), 7 * 3 * 4);
    EXPECT_THAT(numbersIn<std::int64_t>(whole["Int64 connectivity"]),
                ElementsAre(0, 1, 2, 1, 0, 3, 4, 5, 6, 0, 0, 1));
    EXPECT_THAT(numbersIn<std::int64_t>(whole["Int64 offsets"]), ElementsAre(3, 6, 9, 12));
    EXPECT_THAT(numbersIn<std::int32_t>(whole["Int32 panel"]), ElementsAre(1, 2, 3, 4));
    EXPECT_THAT(numbersIn<char>(whole["UInt8 wet"]), ElementsAre(1, 2, 0, 1));
    EXPECT_THAT(numbersIn<char>(whole["UInt8 open-edges"]), ElementsAre(1, 1, 0, 0));
    EXPECT_THAT(numbersIn<char>(whole["UInt8 panel-without-area"]), ElementsAre(0, 0, 0, 1));
    const auto normals = numbersIn<float>(whole["Float32 Normals"]);
    EXPECT_FLOAT_EQ(normals.at(1), -2 / std::sqrt(5.0F));
    EXPECT_THAT(std::vector<float>(normals.end() - 3, normals.end()), ElementsAre(0, 0, 0));
    EXPECT_NEAR(numbersIn<double>(whole["Float64 area"]).at(0), std::sqrt(5) / 2, 1e-7);
    EXPECT_EQ(arraysOf(folder.path("new/a-wet.vtp"))["Int64 offsets"].size(), 4 * 8);

    // Nothing is written through a link.
    std::filesystem::remove(folder.path("new/a.vtp"));
#ifndef _WIN32
    std::filesystem::create_symlink(folder.path("a.stl"), folder.path("new/a.vtp"));
    EXPECT_EQ(writeVtkHull(folder.path("new"), "a", hull, 0), folder.path("new/a.vtp"));
#endif
    EXPECT_EQ(writeVtkHull(folder.path("a.stl"), "a", hull, 0), folder.path("a.stl"));
    EXPECT_EQ(readFile(folder.path("a.stl")), stl);
}

TEST(vtkStems, writesNoFileTwice) {
    EXPECT_THAT(vtkStems({"a/barge.stl", "b/Barge.dat", "barge-wet.gdf", "barge.stl"}),
                ElementsAre("barge", "Barge-2", "barge-wet-2", "barge-3"));
}

TEST(writeVtkSurface, writesFramesAndTheirTimes) {
    const temporaryFolder folder;
    const surfaceRun run = {
        3,  2,  {0, 1, 2}, {-5, 5}, {0.1, 10800.0625}, {0, 0, 0, 0, 0, 0, 1, 2, 3, 4, 5, 6},
        {}, {}, 1,         1};
    ASSERT_EQ(writeVtkSurface(folder.path(), run), "");
    auto last = arraysOf(folder.path("surface0001.vts"));
    EXPECT_THAT(numbersIn<float>(last["Float32 elevation"]), ElementsAre(1, 2, 3, 4, 5, 6));
    EXPECT_THAT(numbersIn<float>(last["Float32 Points"]),
                ElementsAre(0, -5, 1, 1, -5, 2, 2, -5, 3, 0, 5, 4, 1, 5, 5, 2, 5, 6));
    EXPECT_THAT(readFile(folder.path("surface.pvd")),
                HasSubstr("<DataSet timestep=\"0.1\" part=\"0\" file=\"surface0000.vts\"/>\n"
                          "<DataSet timestep=\"10800.0625\" part=\"0\" file=\"surface0001.vts\""));
}

} // namespace
