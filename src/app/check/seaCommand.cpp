#include "app/check/commands.hpp"
#include "check/seaCheck.hpp"

#include <memory>

namespace sorvik {

void addSeaCommand(CLI::App& app, request& asked) {
    const auto options = std::make_shared<seaOptions>();
    CLI::App& command =
        addCheck(app, asked,
                 {"sea", "Check the sea of an input file, as -waveElevation makes it",
                  "sea.m --table sea/waveElevation.dat"},
                 {"CASE", "Input file, such as sea.m or sea.json"},
                 [&asked, options] { return checkSea(asked.subject, *options); });
    command.add_option("--components", options->components, "Write all components as a table")
        ->type_name("FILE");
    command
        .add_option("--table", options->table, "Compare a waveElevation.dat with the components")
        ->type_name("FILE");
}

} // namespace sorvik
