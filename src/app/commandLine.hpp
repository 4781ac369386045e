#pragma once

#include "app/programEntry.hpp"

#include <CLI/CLI.hpp>

#include <iostream>
#include <optional>
#include <string>
#include <vector>

/// What the command lines of the programs with commands share.
namespace sorvik {

/// A command in the help.
struct commandText {
    std::string name;
    std::string description;
    std::string example; ///< arguments after the command
};

/// Adds a command to a program. Its help ends with the example.
inline CLI::App& addCommand(CLI::App& program, const commandText& text) {
    CLI::App& command = *program.add_subcommand(text.name, text.description);
    command.footer("Example: " + program.get_name() + " " + text.name + " " + text.example);
    return command;
}

/// What is wrong with a command line without a command: the word found, and the commands there are.
inline std::string missingCommandText(const CLI::App& program) {
    const std::vector<std::string> found = program.remaining();
    std::string text = found.empty() ? "Expected a command: "
                                     : "Found " + found.front() + ", expected a command: ";
    const auto commands = program.get_subcommands([](const CLI::App* /*any*/) { return true; });
    for (std::size_t i = 0; i < commands.size(); ++i) {
        text += i == 0 ? "" : i + 1 < commands.size() ? ", " : " or ";
        text += commands[i]->get_name();
    }
    return text + ".";
}

inline void showFault(const std::string& message) {
    std::cerr << message << "\nRun with --help for more information.\n";
}

/// Reads the command line of a program that needs one of its commands. Returns the status where the
/// program is to end: 0 after its help or version, `cannotRun` after a message on standard error.
inline std::optional<int> readCommandLine(CLI::App& program, int argc, const char** argv) {
    program.set_version_flag("--version", program.get_name() + " " SORVIK_VERSION);
    program.require_subcommand(1);
    try {
        program.parse(argc, argv);
    } catch (const CLI::CallForHelp&) {
        std::cout << program.help();
        return 0;
    } catch (const CLI::CallForVersion& version) {
        std::cout << version.what() << '\n';
        return 0;
    } catch (const CLI::RequiredError& error) {
        const bool hasCommand = !program.get_subcommands().empty();
        showFault(hasCommand ? error.what() : missingCommandText(program));
        return cannotRun;
    } catch (const CLI::ParseError& error) {
        showFault(error.what());
        return cannotRun;
    }
    return std::nullopt;
}

} // namespace sorvik
