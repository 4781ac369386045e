#pragma once

#include "app/commandLine.hpp"
#include "check/finding.hpp"

#include <functional>
#include <string>

namespace sorvik {

/// What the command line asks for. The command that was given fills it.
struct request {
    std::string command;           ///< such as "hull"
    std::string subject;           ///< the file or folder
    std::string jsonFile;          ///< where the JSON report goes, "-" for standard output
    bool isStrict = false;         ///< whether a warning ends with status 1 too
    std::function<report()> check; ///< runs it; may throw `cannotCheck`
};

// Each adds its command with its options to the application; `asked` must outlive that.
void addHullCommand(CLI::App& app, request& asked);
void addInputCommand(CLI::App& app, request& asked);
void addSeaCommand(CLI::App& app, request& asked);
void addProjectCommand(CLI::App& app, request& asked);
void addResultsCommand(CLI::App& app, request& asked);

/// What a command checks, in its help.
struct subjectText {
    std::string name;
    std::string description;
};

/// Adds a command with its subject and the options that all commands have. Where it is given, it
/// sets `asked`, which is then to run `check`.
CLI::App& addCheck(CLI::App& app, request& asked, const commandText& text,
                   const subjectText& subject, std::function<report()> check);

} // namespace sorvik
