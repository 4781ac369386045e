#include "view/figure.hpp"

#include <gmock/gmock.h>

#include <limits>
#include <regex>
#include <set>

namespace sorvik {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

std::string curve(std::vector<double> x, std::vector<double> y) {
    return svgOf({"title", "x [s]", "y [kg]", {{"label", std::move(x), std::move(y)}}});
}

/// The first groups of all matches.
std::vector<std::string> all(const std::string& svg, const std::string& pattern) {
    const std::regex wanted(pattern);
    std::vector<std::string> found;
    for (std::sregex_iterator i(svg.begin(), svg.end(), wanted), end; i != end; ++i) {
        found.push_back((*i)[1]);
    }
    return found;
}

TEST(svgOf, hasTicksAtRoundNumbers) {
    const std::string svg = curve({0.3, 3.1}, {-130000, 250000});
    EXPECT_THAT(all(svg, "xTick[^>]*>([^<]*)"),
                ElementsAre("0.5", "1.0", "1.5", "2.0", "2.5", "3.0"));
    EXPECT_THAT(all(svg, "yTick[^>]*>([^<]*)"),
                ElementsAre("-200", "-100", "0", "100", "200", "300"));
    EXPECT_THAT(svg, HasSubstr("y [10³ kg]"));
    EXPECT_THAT(svg, HasSubstr("data-x0=\"0.3\" data-x1=\"3.1\""));
    EXPECT_THAT(all(curve({1, 2}, {0.0001, 0.0003}), "yTick[^>]*>([^<]*)"),
                ElementsAre("100", "150", "200", "250", "300"));
}

TEST(svgOf, escapesTexts) {
    const std::string bad = "<script>\"&";
    const std::string svg = svgOf({bad, bad, bad, {{bad, {0, 1}, {2, 3}}}});
    EXPECT_THAT(svg, Not(HasSubstr("<script")));
    EXPECT_THAT(svg, HasSubstr("&lt;script&gt;&quot;&amp;</text>"));
}

TEST(svgOf, drawsAnyValuesWithinThePicture) {
    const double inf = std::numeric_limits<double>::infinity();
    const double big = std::numeric_limits<double>::max();
    const std::vector<std::vector<double>> values = {
        {},
        {5},
        {nan, nan},
        {0, 0, 0},
        {7, 7, 7},
        {-big, big},
        {0, 5e-324},
        {inf, 1, -inf},
        {1e300, -1e300, 0},
        {1e16, 1e16 + 2},
        {1e-300, 2e-300},
    };
    for (const auto& x : values) {
        for (const auto& y : values) {
            const std::string svg = curve(x, y);
            SCOPED_TRACE(testing::PrintToString(x) + testing::PrintToString(y) + svg);
            EXPECT_LT(svg.size(), 6000U);
            EXPECT_LE(all(svg, "([xy]Tick)").size(), 17U);
            EXPECT_GE(all(svg, "([xy]Tick)").size(), 4U);
            for (const std::string& number : all(svg, "[ML\"h ](-?[0-9]+\\.[0-9])[L\" ]")) {
                EXPECT_GE(std::stod(number), 0);
                EXPECT_LE(std::stod(number), 640);
            }
            EXPECT_THAT(svg, Not(testing::ContainsRegex("nan|inf[^\"]")));
        }
    }
    EXPECT_THAT(curve({}, {}), HasSubstr("no values"));
}

TEST(svgOf, breaksTheLineWhereAValueIsMissing) {
    const std::string svg = curve({0, 1, 2, 3, 4, 5}, {1, 2, nan, 4, nan, 7});
    EXPECT_THAT(all(svg, "(<path class=\"line1)"), testing::SizeIs(1 + 1));
    EXPECT_THAT(all(svg, "(<circle)"), testing::SizeIs(2));
}

TEST(svgOf, keepsASpikeOfALongLine) {
    std::vector<double> x(1000000);
    std::vector<double> y(x.size());
    for (std::size_t i = 0; i < x.size(); ++i) {
        x[i] = static_cast<double>(i);
    }
    y[543210] = 10;
    const std::string svg = curve(x, y);
    EXPECT_LT(svg.size(), 60000U);
    EXPECT_THAT(all(svg, "L[0-9.]+ (52\\.0)L"), testing::SizeIs(1)); // at the top
}

TEST(svgOf, distinguishesLinesByColourAndDashes) {
    figure wanted = {"title", "x", "y", {}};
    for (int i = 0; i < 8; ++i) {
        wanted.lines.push_back({std::to_string(i), {0, 1}, {0., 1. + i}});
    }
    const std::string svg = svgOf(wanted);
    const auto styles = all(svg, "<path (class=\"line[^d]*(dasharray=[^d]*)?)d=\"M[^L]*L");
    EXPECT_EQ(std::set<std::string>(styles.begin(), styles.end()).size(), 8U);
}

} // namespace
} // namespace sorvik
