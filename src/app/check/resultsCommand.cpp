#include "app/check/commands.hpp"
#include "check/resultsCheck.hpp"

#include <memory>
#include <utility>

namespace sorvik {
namespace {

report runResults(const std::string& folder, const std::string& tables) {
    resultsReport checked = checkResults(folder);
    if (!tables.empty()) {
        const std::string failed = writeResultTables(tables, checked.values);
        if (!failed.empty()) {
            throw cannotCheck("Cannot write " + failed + ". Give a folder that can be written.");
        }
    }
    return std::move(checked.result);
}

} // namespace

void addResultsCommand(CLI::App& app, request& asked) {
    const auto tables = std::make_shared<std::string>();
    CLI::App& command =
        addCheck(app, asked, {"results", "Check the results of Nemoh", "nemohProject --csv tables"},
                 {"FOLDER", "Folder of the project, with results"},
                 [&asked, tables] { return runResults(asked.subject, *tables); });
    command
        .add_option("--csv", *tables,
                    "Write radiation.csv, excitation.csv and hydrostatics.csv into this folder")
        ->type_name("FOLDER");
}

} // namespace sorvik
