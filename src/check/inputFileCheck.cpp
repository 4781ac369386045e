#include "check/inputFileCheck.hpp"

#include "base/affixes.hpp"
#include "base/classicText.hpp"
#include "base/files.hpp"
#include "base/numberText.hpp"
#include "check/inputCase.hpp"
#include "check/quietly.hpp"
#include "io/sorvikIO.hpp"

#include <algorithm>
#include <iterator>

namespace sorvik {
namespace {

/// Reads text and aliases as the tasks do. Returns whether the tasks get that far.
bool read(inputCase& input, report& result) {
    const quietOutcome reading = quietly([&] {
        classicText in(input.content);
        input.given = sorvikIO::readInputStream(in, input.assign, sorvikIO::memberDLM);
    });
    if (reading.hasEnded) {
        result.add("refused-input", reading.message());
        return false;
    }
    const quietOutcome resolving = quietly([&] {
        input.inputs.map = input.given;
        input.inputs.assignSources();
    });
    if (resolving.hasEnded) {
        result.add("endless-alias", resolving.message());
        return false;
    }
    input.text = scanInput(input.content, input.assign);
    return true;
}

bool hasKeysOf(const inputCase& input, const std::string& group) {
    const auto first = input.inputs.map.lower_bound(group);
    return first != input.inputs.map.end() && startsWith(first->first, group);
}

/// Whether a key of the waves is given besides the depth, which Nemoh reads too.
bool hasWaveKeys(const inputCase& input) {
    const std::string group = "environment.wave.";
    const auto first = input.inputs.map.lower_bound(group);
    return std::any_of(first, input.inputs.map.end(), [&](const auto& entry) {
        return startsWith(entry.first, group) && entry.first != group + "depth";
    });
}

/// Settles whose keys are demanded.
void settleTasks(inputCase& input, report& result) {
    const inputTask task = input.options.task;
    input.hasNemoh =
        task == inputTask::nemoh || (task == inputTask::both && hasKeysOf(input, "bem."));
    input.hasWave = task == inputTask::wave || (task == inputTask::both && hasWaveKeys(input));
    const std::string names = std::string(input.hasNemoh ? "nemoh" : "") +
                              (input.hasNemoh && input.hasWave ? ", " : "") +
                              (input.hasWave ? "wave" : "");
    result.addFact("tasks", "Tasks", names.empty() ? "none" : names);
    result.addFact("entries", "Entries", static_cast<long long>(input.inputs.map.size()));
}

/// The depth, which both tasks read the same way.
void checkDepth(const inputCase& input, report& result) {
    const std::string depthKey = "environment.wave.depth";
    const std::string groundKey = "environment.ground.level";
    const double depth = depthOf(input);
    result.addFact("depth", "Water depth", depth, "m");
    const double fromLevels = input.number("environment.waterLevel") - input.number(groundKey);
    if (input.has(depthKey)) {
        if (input.has(groundKey) && numberText(depth) != numberText(fromLevels)) {
            addOfKey(result, "unread-key", input, groundKey,
                     groundKey + " gives a depth of " + numberText(fromLevels) + " m, but " +
                         depthKey + " wins with " + numberText(depth) + " m.");
        }
    } else if (!(depth > 0)) {
        addOfKey(result, "out-of-range", input, groundKey,
                 "The water depth, environment.waterLevel less " + groundKey + ", is " +
                     numberText(depth) + " m, expected a depth above 0.");
    }
}

} // namespace

report checkInputText(const std::string& name, const std::string& text,
                      const inputOptions& options) {
    report result;
    inputCase input;
    input.file = name;
    input.content = text;
    input.assign = inputMap::assignmentOf(name);
    input.options = options;
    if (!read(input, result)) {
        return result;
    }
    checkInputEncoding(input, result);
    if (result.find("utf-16") != nullptr) {
        return result;
    }
    settleTasks(input, result);
    checkInputEntries(input, result);
    checkInputAliases(input, result);
    checkInputKeys(input, result);
    checkInputValues(input, result);
    if (input.hasNemoh || input.hasWave) {
        checkDepth(input, result);
    }
    if (input.hasNemoh) {
        checkNemohInput(input, result);
    }
    if (input.hasWave) {
        checkWaveInput(input, result);
        checkTimeInput(input, result);
    }
    return result;
}

report checkInput(const std::string& file, const inputOptions& options) {
    std::ifstream in = files::open(file);
    if (!in.is_open()) {
        throw cannotCheck("Cannot read " + file + ". Check the name of the input file.");
    }
    const std::string text{std::istreambuf_iterator<char>(in), {}};
    if (in.bad()) {
        throw cannotCheck("Cannot read " + file + " to its end.");
    }
    return checkInputText(file, text, options);
}

} // namespace sorvik
