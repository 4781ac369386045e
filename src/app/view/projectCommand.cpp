#include "app/view/commands.hpp"
#include "view/projectPage.hpp"

#include <memory>

namespace sorvik {
namespace {

struct projectViewRequest {
    std::string folder;
    nemohCal cal = {};
};

pageContent makeProjectView(const std::string& vtkFolder, const projectViewRequest& wanted) {
    const viewedProject project = viewProject(wanted.folder, wanted.cal);
    writeHullFiles(vtkFolder, project.hulls, 0);
    return projectPage(project);
}

} // namespace

void addProjectView(CLI::App& app, viewRequest& asked) {
    const auto wanted = std::make_shared<projectViewRequest>();
    CLI::App& command =
        addView(app, asked,
                {"project", "Show a Nemoh project: hulls, load cases, and curves of results",
                 "nemohProject -o project.html"},
                [&asked, wanted] { return makeProjectView(asked.vtkFolder, *wanted); });
    command.add_option("FOLDER", wanted->folder, "The project's folder, with Nemoh.cal")
        ->required()
        ->each([&asked, &cal = wanted->cal](const std::string& folder) {
            cal = openNemohCal(folder);
            asked.sources = projectFiles(folder, cal);
        });
}

} // namespace sorvik
