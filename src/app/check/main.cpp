#include "app/check/commands.hpp"
#include "app/check/jsonReport.hpp"
#include "base/files.hpp"
#include "base/platform.hpp"
#include "check/textReport.hpp"

#include <cstdlib>
#include <filesystem>
#include <iostream>

namespace sorvik {

CLI::App& addCheck(CLI::App& app, request& asked, const commandText& text,
                   const subjectText& subject, std::function<report()> check) {
    CLI::App& command = addCommand(app, text);
    command.add_option(subject.name, asked.subject, subject.description)->required();
    command
        .add_option("--json", asked.jsonFile, "Write all as JSON; - for standard output, no text")
        ->type_name("FILE");
    command.add_flag("--strict", asked.isStrict, "End with status 1 for a warning too");
    command.callback([&asked, name = text.name, check = std::move(check)] {
        asked.command = name;
        asked.check = check;
    });
    return command;
}

namespace {

enum status { isFine = 0, hasErrors = 1 };

bool wantsColour() {
    return platform::isTerminal() && std::getenv("NO_COLOR") == nullptr;
}

void show(const request& asked, const report& result) {
    if (asked.jsonFile == "-") {
        writeJson(std::cout, asked.command, result);
    } else {
        writeText(std::cout, asked.command + " " + asked.subject, result, wantsColour());
        const auto write = [&](std::ostream& out) { writeJson(out, asked.command, result); };
        if (!asked.jsonFile.empty() && !files::write(asked.jsonFile, write)) {
            throw cannotCheck("Cannot write " + asked.jsonFile +
                              ". Give a file in a folder that can be written.");
        }
    }
    std::cout.flush();
    if (!std::cout) {
        throw cannotCheck("Cannot write the report to standard output.");
    }
}

int run(const request& asked) {
    std::error_code ignored;
    if (std::filesystem::equivalent(platform::pathOf(asked.subject),
                                    platform::pathOf(asked.jsonFile), ignored)) {
        throw cannotCheck("--json names " + asked.subject + " itself. Give another file.");
    }
    const report result = asked.check();
    show(asked, result);
    const bool isBad = result.count(severity::error) > 0 ||
                       (asked.isStrict && result.count(severity::warning) > 0);
    return isBad ? hasErrors : isFine;
}

int runCommandLine(int argc, const char** argv) {
    request asked;
    CLI::App app("Checks meshes, input files, sea states and Nemoh projects before they are paid "
                 "for.\nEnds with status 0 without an error, 1 with one, 2 if it cannot check.",
                 "sorvikCheck");
    addHullCommand(app, asked);
    addInputCommand(app, asked);
    addSeaCommand(app, asked);
    addProjectCommand(app, asked);
    addResultsCommand(app, asked);
    const std::optional<int> end = readCommandLine(app, argc, argv);
    return end ? *end : run(asked);
}

} // namespace
} // namespace sorvik

int main(int argc, const char** argv) {
    return sorvik::runProgram("sorvikCheck", [&] { return sorvik::runCommandLine(argc, argv); });
}
