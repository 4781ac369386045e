#include "app/check/commands.hpp"
#include "check/projectCheck.hpp"

namespace sorvik {

void addProjectCommand(CLI::App& app, request& asked) {
    addCheck(app, asked,
             {"project", "Check a Nemoh project before the solver runs", "nemohProject"},
             {"FOLDER", "Folder of the project, with Nemoh.cal"},
             [&asked] { return checkProject(asked.subject); });
}

} // namespace sorvik
