#include "view/projectPage.hpp"

#include "check/projectBody.hpp"
#include "check/projectCheck.hpp"
#include "check/resultFiles.hpp"
#include "check/resultsCheck.hpp"
#include "view/evenly.hpp"
#include "view/reportHtml.hpp"
#include "view/resultFigures.hpp"

#include <algorithm>
#include <cmath>

namespace sorvik {
namespace {

constexpr std::size_t headingsDrawn = 36;

std::vector<double> headingsOf(const nemohCal& cal) {
    const std::vector<double> angles = cal.angles();
    std::vector<double> headings;
    for (const std::size_t i : chooseEvenly(angles.size(), headingsDrawn)) {
        if (std::isfinite(angles[i])) {
            headings.push_back(angles[i]);
        }
    }
    return headings;
}

/// Takes the facts and findings from the report of a project that stand beside its hulls.
void leaveToHulls(const std::vector<viewedHull>& hulls, report& project) {
    const auto isOfHull = [&](const finding& each) {
        return std::any_of(hulls.begin(), hulls.end(), [&](const viewedHull& shown) {
            return !each.where.empty() && each.where.front().file == shown.name &&
                   shown.hull.result.find(each.name) != nullptr;
        });
    };
    const auto isFactOfHull = [&](const fact& each) {
        const std::size_t point = each.name.find('.');
        const bool isOfBody = each.name.compare(0, 4, "body") == 0 && point != each.name.npos;
        return isOfBody && !hulls.empty() &&
               std::any_of(hulls[0].hull.result.facts.begin(), hulls[0].hull.result.facts.end(),
                           [&](const fact& own) {
                               return each.name.compare(point + 1, each.name.npos, own.name) == 0;
                           });
    };
    auto& findings = project.findings;
    findings.erase(std::remove_if(findings.begin(), findings.end(), isOfHull), findings.end());
    auto& facts = project.facts;
    facts.erase(std::remove_if(facts.begin(), facts.end(), isFactOfHull), facts.end());
}

std::string projectHtml(const std::string& folder, const nemohCal& cal,
                        const std::vector<viewedHull>& hulls) {
    report project = checkProject(folder);
    leaveToHulls(hulls, project);
    std::string html =
        "<section class=\"project\" id=\"project\">\n<h2>Load cases</h2>\n" + factsHtml(project);
    if (cal.directions.value > static_cast<double>(headingsDrawn)) {
        html += "<p>" + std::to_string(headingsDrawn) +
                " of the directions are drawn around the hull.</p>\n";
    }
    return html + "<h3>Findings</h3>\n" + findingsHtml(project, "project-") + "</section>\n";
}

/// Whether the findings of the project have it too.
bool isOfProject(const finding& ofResults) {
    return ofResults.name == "no-hydrostatics" || ofResults.name == "unread-project";
}

std::string resultsHtml(const std::string& folder, const nemohCal& cal) {
    const std::string start = "<section class=\"results\" id=\"results\">\n<h2>Results</h2>\n";
    if (resultFiles(folder).empty()) {
        return start + "<p>There are no results yet. Run Nemoh's preprocessor, solver and "
                       "postprocessor in the project's folder, then make this page "
                       "again.</p>\n</section>\n";
    }
    resultsReport checked = checkResults(folder);
    auto& findings = checked.result.findings;
    findings.erase(std::remove_if(findings.begin(), findings.end(), isOfProject), findings.end());
    std::vector<std::string> meshes;
    for (const calBody& body : cal.bodies) {
        meshes.push_back(body.mesh);
    }
    return start + factsHtml(checked.result) + "<h3>Findings</h3>\n" +
           findingsHtml(checked.result, "results-") + resultFiguresHtml(checked.values, meshes) +
           "</section>\n";
}

} // namespace

std::vector<viewedHull> projectHulls(const std::string& folder) {
    const nemohCal cal = openNemohCal(folder);
    const std::string inside = folder + "/";
    std::vector<viewedHull> hulls;
    for (const calBody& body : cal.bodies) {
        const std::string mesh = findBodyMesh(folder, body);
        if (!mesh.empty()) {
            hulls.push_back({mesh, checkBodyHull(inside + mesh, cal, body)});
        }
    }
    return hulls;
}

pageContent projectPage(const std::string& folder, const std::vector<viewedHull>& hulls) {
    const nemohCal cal = openNemohCal(folder);
    pageContent page;
    page.kind = "project";
    page.title = "Nemoh project " + folder;
    page.body = hullBody(hulls, 0, headingsOf(cal), page.numbers) +
                projectHtml(folder, cal, hulls) + resultsHtml(folder, cal);
    return page;
}

std::vector<std::string> projectFiles(const std::string& folder) {
    const std::string inside = folder + "/";
    std::vector<std::string> all = {inside + "Nemoh.cal"};
    for (const calBody& body : openNemohCal(folder).bodies) {
        all.push_back(inside + findBodyMesh(folder, body));
    }
    for (const std::string& file : resultFiles(folder)) {
        all.push_back(inside + file);
    }
    return all;
}

} // namespace sorvik
