#include "app/check/commands.hpp"
#include "check/projectCheck.hpp"

namespace sorvik {

void addProjectCommand(CLI::App& app, request& asked) {
    addCommand(app, asked,
               {"project", "Check a Nemoh project before the solver runs", "FOLDER",
                "Folder of the project, with Nemoh.cal", "nemohProject"},
               [&asked] { return checkProject(asked.subject); });
}

} // namespace sorvik
