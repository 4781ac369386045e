#include "view/projectPage.hpp"
#include "support/nemohRun.hpp"
#include "view/resultFigures.hpp"

#include <filesystem>

namespace sorvik {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

std::size_t count(const std::string& text, const std::string& part) {
    std::size_t found = 0;
    for (std::size_t at = text.find(part); at != text.npos; at = text.find(part, at + 1)) {
        ++found;
    }
    return found;
}

pageContent pageOf(const std::string& folder) {
    return projectPage(viewProject(folder, openNemohCal(folder)));
}

TEST_F(nemohRun, isShownWithHullHeadingsAndCurves) {
    writeFile(folder.path("box.dat"), boxMesh + "5 6 7 8\n0 0 0 0\n"); // with a lid
    check(radiationText(soundMatrices()));
    const pageContent page = pageOf(folder.path());
    EXPECT_EQ(page.kind, "project");
    EXPECT_THAT(page.body, HasSubstr("data-headings=\"30\""));
    EXPECT_THAT(page.body, HasSubstr("data-prefix=\"hull0-\""));
    EXPECT_EQ(count(page.body, "<svg"), 6U); // three of heave, three of pitch
    // The ticks, and so the values, of either.
    const std::size_t pitch = page.body.find("added mass [kg m²]");
    EXPECT_THAT(page.body.substr(0, pitch), AllOf(HasSubstr(">1300<"), Not(HasSubstr(">4500<"))));
    EXPECT_THAT(page.body.substr(pitch), AllOf(HasSubstr(">4500<"), HasSubstr("damping [kg/s]"),
                                               HasSubstr("[N/m]"), HasSubstr("[N m/m]")));
    EXPECT_THAT(page.body, HasSubstr(">30°<"));
    EXPECT_EQ(count(page.body, "class=\"name\">lid<"), 1U);           // beside its hull
    EXPECT_EQ(count(page.body, "class=\"name\">counts-differ<"), 1U); // of Nemoh.cal: 5 panels
    EXPECT_EQ(count(page.body, "Waterplane area"), 1U);
    EXPECT_THAT(projectFiles(folder.path(), openNemohCal(folder.path())),
                testing::ElementsAre(folder.path("Nemoh.cal"), folder.path("box.dat"),
                                     folder.path("results/RadiationCoefficients.tec"),
                                     folder.path("results/ExcitationForce.tec")));
}

TEST_F(nemohRun, isShownAsFarAsItIsThere) {
    std::filesystem::remove_all(folder.path("results"));
    std::string cal = readFile(folder.path("Nemoh.cal"));
    writeFile(folder.path("Nemoh.cal"), cal.replace(cal.find("box.dat"), 7, "<script>"));
    const std::string page = pageOf(folder.path()).body;
    EXPECT_THAT(page, AllOf(HasSubstr("There are no results yet"), HasSubstr("missing-file"),
                            HasSubstr("&lt;script&gt;"), Not(HasSubstr("<script"))));
    EXPECT_THAT(page, Not(HasSubstr("unread-results")));

    std::filesystem::create_directory(folder.path("results"));
    writeFile(folder.path("results/ExcitationForce.tec"), "");
    writeFile(folder.path("<script>"), "no mesh");
    const std::string broken = pageOf(folder.path()).body;
    EXPECT_THAT(broken, AllOf(HasSubstr("unread-results"), Not(HasSubstr("no results yet")),
                              HasSubstr("unread-file"), Not(HasSubstr("<script"))));

    std::filesystem::remove(folder.path("Nemoh.cal"));
    EXPECT_THROW(pageOf(folder.path()), cannotCheck);
}

TEST(resultFigures, drawsSomeOfManyDirectionsAndBodies) {
    nemohResults results;
    results.omegas = {0.5, 1};
    results.forces = {{41, 3}, {2, 1}};
    for (int i = 0; i < 37; ++i) {
        results.angles.push_back(10 * i);
        results.amplitudes.insert(results.amplitudes.end(), {0, 0, 1. * i, 1. * i});
    }
    const std::string html = resultFiguresHtml(results, std::vector<std::string>(45, "mesh"));
    EXPECT_EQ(count(html, "<svg"), 1U); // of body 2; body 41 is beyond what is drawn
    EXPECT_THAT(html, AllOf(HasSubstr(">0°<"), HasSubstr(">70°<"), HasSubstr(">360°<"),
                            HasSubstr("6 of 37 directions"), HasSubstr("40 of 45 bodies")));
    EXPECT_THAT(html, HasSubstr(">40<")); // the tick above the largest amplitude
}

} // namespace
} // namespace sorvik
