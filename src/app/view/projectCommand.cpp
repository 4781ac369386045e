#include "app/view/commands.hpp"
#include "view/projectPage.hpp"

#include <memory>

namespace sorvik {

void addProjectView(CLI::App& app, viewRequest& asked) {
    const auto folder = std::make_shared<std::string>();
    CLI::App& command =
        addView(app, asked,
                {"project", "Show a Nemoh project: hulls, load cases, and curves of results",
                 "nemohProject -o project.html"},
                [&asked, folder] {
                    const std::vector<viewedHull> hulls = projectHulls(*folder);
                    writeHullFiles(asked.vtkFolder, hulls, 0);
                    return projectPage(*folder, hulls);
                });
    command.add_option("FOLDER", *folder, "The project's folder, with Nemoh.cal")
        ->required()
        ->each([&asked](const std::string& given) { asked.sources = projectFiles(given); });
}

} // namespace sorvik
