#include "view/projectPage.hpp"

#include "check/openedProject.hpp"
#include "check/resultFiles.hpp"
#include "view/evenly.hpp"
#include "view/reportHtml.hpp"
#include "view/resultFigures.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

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

std::string projectHtml(const viewedProject& project) {
    std::string html = "<section class=\"project\" id=\"project\">\n<h2>Load cases</h2>\n" +
                       factsHtml(project.result);
    if (project.cal.directions.value > static_cast<double>(headingsDrawn)) {
        html += "<p>" + std::to_string(headingsDrawn) +
                " of the directions are drawn around the hull.</p>\n";
    }
    return html + "<h3>Findings</h3>\n" + findingsHtml(project.result, "project-") + "</section>\n";
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
    resultsReport checked = checkResults(folder, cal);
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

viewedProject viewProject(const std::string& folder, const nemohCal& cal) {
    viewedProject project = {folder, cal, {}, {}};
    project.result = checkProject(folder, cal, [&](const std::string& mesh, hullReport hull) {
        project.hulls.push_back({mesh, std::move(hull)});
    });
    return project;
}

pageContent projectPage(const viewedProject& project) {
    pageContent page;
    page.kind = "project";
    page.title = "Nemoh project " + project.folder;
    page.body = hullBody(project.hulls, 0, headingsOf(project.cal), page.numbers) +
                projectHtml(project) + resultsHtml(project.folder, project.cal);
    return page;
}

std::vector<std::string> projectFiles(const std::string& folder, const nemohCal& cal) {
    const std::string inside = folder + "/";
    std::vector<std::string> all = {inside + "Nemoh.cal"};
    for (const calBody& body : cal.bodies) {
        all.push_back(inside + findBodyMesh(folder, body));
    }
    for (const std::string& file : resultFiles(folder)) {
        all.push_back(inside + file);
    }
    return all;
}

} // namespace sorvik
