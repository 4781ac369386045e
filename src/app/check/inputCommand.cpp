#include "app/check/commands.hpp"
#include "check/inputFileCheck.hpp"

#include <map>
#include <memory>

namespace sorvik {

void addInputCommand(CLI::App& app, request& asked) {
    const auto options = std::make_shared<inputOptions>();
    CLI::App& command = addCheck(
        app, asked, {"input", "Check an input file: keys, values, files", "mySea.m --task wave"},
        {"CASE", "Input file, such as case.m or case.json"},
        [&asked, options] { return checkInput(asked.subject, *options); });
    const std::map<std::string, inputTask> tasks = {{"nemoh", inputTask::nemoh},
                                                    {"wave", inputTask::wave}};
    command
        .add_option_function<std::string>(
            "--task", [options, tasks](const std::string& name) { options->task = tasks.at(name); },
            "Demand the keys of this task; else of those that the file has keys of")
        ->check(CLI::IsMember({"nemoh", "wave"}));
    command
        .add_option("--output", options->outputFolder,
                    "Output folder of the wave task; else named after the input")
        ->type_name("FOLDER");
    command.add_option("--probes", options->probes, "Number of probes of the wave task")
        ->capture_default_str()
        ->check(CLI::PositiveNumber);
}

} // namespace sorvik
