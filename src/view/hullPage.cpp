#include "view/hullPage.hpp"

#include "base/numberText.hpp"
#include "base/platform.hpp"
#include "check/hullSurface.hpp"
#include "view/hullScene.hpp"
#include "view/reportHtml.hpp"

#include <algorithm>
#include <cmath>

namespace sorvik {
namespace {

/// With all digits: the scripts compare coordinates with it, which may lie far from the origin.
template <class List>
std::string listText(const List& values) {
    std::string text;
    for (const double value : values) {
        text += (text.empty() ? "" : " ") + exactText(value);
    }
    return text;
}

/// Around all hulls as far as they are drawn; a box of 2 m around the origin where there is no
/// panel.
box boxAroundAll(const std::vector<viewedHull>& hulls) {
    box all = {{-1, -1, -1}, {1, 1, 1}};
    bool isFirst = true;
    for (const viewedHull& each : hulls) {
        const box own = boxAround(each.hull.mesh.faces);
        if (!(own.low[0] <= own.high[0])) {
            continue;
        }
        for (std::size_t i = 0; i < 3; ++i) {
            all.low[i] = isFirst ? own.low[i] : std::min(all.low[i], own.low[i]);
            all.high[i] = isFirst ? own.high[i] : std::max(all.high[i], own.high[i]);
        }
        isFirst = false;
    }
    for (std::size_t i = 0; i < 3; ++i) {
        all.low[i] = std::clamp(all.low[i], -farthestDrawn, farthestDrawn);
        all.high[i] = std::clamp(all.high[i], -farthestDrawn, farthestDrawn);
    }
    return all;
}

std::string stageHtml(const std::vector<viewedHull>& hulls, double level,
                      const std::vector<double>& headings) {
    const box all = boxAroundAll(hulls);
    return "<section class=\"stage\" aria-label=\"Hulls in three dimensions\" data-low=\"" +
           listText(all.low) + "\" data-high=\"" + listText(all.high) + "\" data-level=\"" +
           exactText(level) + "\" data-headings=\"" + listText(headings) +
           "\">\n<noscript><p>The picture needs JavaScript; all else on this page does not."
           "</p></noscript>\n</section>\n";
}

std::string hullHtml(const viewedHull& shown, const std::string& prefix) {
    const hydrostatics& values = shown.hull.values;
    const bool floats = shown.hull.hasPanels && std::isfinite(values.buoyancy[0]);
    return "<section class=\"hull\" data-prefix=\"" + prefix + "\" data-buoyancy=\"" +
           (floats ? listText(values.buoyancy) : "") + "\">\n<h2>" + escapeHtml(shown.name) +
           "</h2>\n<h3>Facts</h3>\n" + factsHtml(shown.hull.result) + "<h3>Findings</h3>\n" +
           findingsHtml(shown.hull.result, prefix) + "</section>\n";
}

} // namespace

std::string hullBody(const std::vector<viewedHull>& hulls, double level,
                     const std::vector<double>& headings, std::vector<pageNumbers>& numbers) {
    std::string html = "<main>\n" + stageHtml(hulls, level, headings) + "<div class=\"beside\">\n";
    for (std::size_t i = 0; i < hulls.size(); ++i) {
        const std::string prefix = "hull" + std::to_string(i) + "-";
        html += hullHtml(hulls[i], prefix);
        addHullNumbers(hulls[i].hull, level, prefix, numbers);
    }
    return html + "</div>\n</main>\n";
}

pageContent hullPage(const std::vector<viewedHull>& hulls, double level) {
    pageContent page;
    page.kind = "hull";
    for (const viewedHull& each : hulls) {
        page.title += (page.title.empty() ? "" : ", ") +
                      platform::nameOf(platform::pathOf(each.name).filename());
    }
    page.body = hullBody(hulls, level, {}, page.numbers);
    return page;
}

} // namespace sorvik
