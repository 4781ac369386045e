#include "view/hullPage.hpp"
#include "base/files.hpp"
#include "base/littleEndian.hpp"
#include "mesh/stlFormat.hpp"
#include "support/program.hpp"

#include <cmath>
#include <sstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace sorvik;
using testing::HasSubstr;
using testing::Not;

/// A tetrahedron with its tip 1 m above the water and its base 1 m below it. Its waterline is a
/// triangle with legs of 1 m.
std::vector<triangle> tetrahedron() {
    const v3<float> o{0, 0, -1};
    const v3<float> x{2, 0, -1};
    const v3<float> y{0, 2, -1};
    const v3<float> z{0, 0, 1};
    return {triangle(o, y, x), triangle(o, x, z), triangle(o, z, y), triangle(x, y, z)};
}

viewedHull viewed(const std::vector<triangle>& panels, const std::string& name) {
    const temporaryFolder folder;
    files::write(folder.path("hull.stl"), [&](std::ostream& out) {
        stl::write(out, panelView(panels, static_cast<int>(panels.size())));
    });
    return {name, checkHull(folder.path("hull.stl"), {})};
}

template <class... Hulls>
pageContent pageOf(Hulls... shown) {
    std::vector<viewedHull> hulls;
    (hulls.push_back(std::move(shown)), ...);
    return hullPage(hulls, 0);
}

/// The numbers of a block.
template <class Number>
std::vector<Number> numbersOf(const pageContent& page, const std::string& id) {
    std::vector<Number> numbers;
    for (const pageNumbers& block : page.numbers) {
        for (std::size_t i = 0; block.id == id && i < block.bytes.size(); i += sizeof(Number)) {
            numbers.push_back(littleEndian::load<Number>(block.bytes.data() + i));
        }
    }
    return numbers;
}

TEST(hullPage, holdsPanelsCutAndPlacesOfFindings) {
    const pageContent whole = pageOf(viewed(tetrahedron(), "whole"));
    EXPECT_EQ(numbersOf<float>(whole, "hull0-nodes").size(), 3U * 4) << "shared by panels";
    EXPECT_EQ(numbersOf<unsigned>(whole, "hull0-faces").size(), 3U * 4);
    EXPECT_TRUE(numbersOf<unsigned>(whole, "hull0-open").empty());
    const auto line = numbersOf<float>(whole, "hull0-waterline");
    float length = 0;
    for (std::size_t i = 0; i < line.size(); i += 6) {
        EXPECT_EQ(line[i + 2], 0);
        length += std::hypot(line[i + 3] - line[i], line[i + 4] - line[i + 1]);
    }
    EXPECT_FLOAT_EQ(length, 2 + std::sqrt(2.0F));

    const std::vector<triangle> panels = tetrahedron();
    const pageContent open = pageOf(viewed({panels.begin() + 1, panels.end()}, "open"));
    EXPECT_EQ(numbersOf<unsigned>(open, "hull0-open").size(), 3U) << "of the base";
    EXPECT_EQ(numbersOf<unsigned>(open, "hull0-finding0Panels"), (std::vector<unsigned>{1, 2, 3}));
    EXPECT_THAT(open.body, HasSubstr("open-edges"));
}

TEST(hullPage, leavesOutWhatCannotBeDrawn) {
    for (const float odd : {std::nanf(""), INFINITY, -1e35F}) {
        viewedHull hull = viewed(tetrahedron(), "odd");
        hull.hull.mesh.faces[0].vertexB.y = odd;
        const pageContent page = pageOf(std::move(hull));
        EXPECT_EQ(numbersOf<unsigned>(page, "hull0-faces").size(), 3U * 4) << "keep their numbers";
        for (const float coordinate : numbersOf<float>(page, "hull0-nodes")) {
            EXPECT_LE(std::fabs(coordinate), 2);
        }
    }
}

TEST(hullPage, keepsAllDigitsOfPlaces) {
    std::vector<triangle> panels = tetrahedron();
    for (triangle& panel : panels) {
        for (v3<float>* corner : {&panel.vertexA, &panel.vertexB, &panel.vertexC}) {
            corner->x += 1e6F;
        }
    }
    EXPECT_THAT(pageOf(viewed(panels, "far")).body, HasSubstr("data-high=\"1000002 2 1\""));
}

TEST(hullPage, showsNamesAsTheyAre) {
    const pageContent page =
        pageOf(viewed(tetrahedron(), "a/<script>&\"'\x01"), viewed(tetrahedron(), "b"));
    std::ostringstream text;
    writePage(text, page, {"library", "licence", "style", "script"});
    EXPECT_THAT(text.str(), HasSubstr("<title>&lt;script&gt;&amp;&quot;&#39; , b</title>"));
    EXPECT_THAT(text.str(), Not(HasSubstr("<script>&")));
    EXPECT_THAT(text.str(), HasSubstr("id=\"hull1-nodes\""));
}

TEST(page, writesBase64) {
    // The test vectors of RFC 4648, made of the bytes of little-endian numbers.
    const auto textOf = [](const std::vector<short>& values) {
        std::ostringstream out;
        writePage(out, {"", "", "", {{"n", values}}}, {});
        const std::string text = out.str();
        const std::size_t begin = text.find("id=\"n\">") + 7;
        return text.substr(begin, text.find('<', begin) - begin);
    };
    EXPECT_EQ(textOf({}), "");
    EXPECT_EQ(textOf({0x6f66}), "Zm8=");
    EXPECT_EQ(textOf({0x6f66, 0x626f}), "Zm9vYg==");
    EXPECT_EQ(textOf({0x6f66, 0x626f, 0x7261}), "Zm9vYmFy");
}

} // namespace
