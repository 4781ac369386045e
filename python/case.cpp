#include "case.hpp"

#include "base/classicText.hpp"
#include "check/inputFileCheck.hpp"
#include "guard.hpp"
#include "io/sorvikIO.hpp"
#include "reports.hpp"

#include <pybind11/stl.h>
#include <pybind11/stl/filesystem.h>

#include <filesystem>

namespace sorvik::python {
namespace {

inputCase readCase(const std::filesystem::path& path) {
    inputCase read{path.string(), {}};
    bool isRead = false;
    run([&] { isRead = read.inputs.readFile(read.file); });
    if (!isRead) {
        throw libraryError("Cannot find input file " + read.file);
    }
    return read;
}

const std::string& valueOf(const inputCase& self, const std::string& key) {
    const auto entry = self.inputs.map.find(key);
    if (entry == self.inputs.map.end()) {
        throw py::key_error(key);
    }
    return entry->second;
}

[[noreturn]] void refuseText(const std::string& key, const std::string& text,
                             const char* expected) {
    throw py::value_error(key + " is \"" + text + "\", expected " + expected);
}

bool isNumber(const std::string& word) {
    classicText text(word);
    double value = 0;
    // Beyond the range of a double reading fails too, but gives the nearest limit.
    return ((text >> value) || value != 0) && (text.clear(), text.peek() == EOF);
}

/// A ValueError unless the first `most` words of `text` are numbers: the tasks would read 0, or a
/// part of a word.
void requireNumbers(const std::string& key, const std::string& text, std::size_t most,
                    const char* expected) {
    classicText words(text);
    std::string word;
    for (std::size_t i = 0; i < most && words >> word; ++i) {
        if (!isNumber(word)) {
            refuseText(key, text, expected);
        }
    }
}

double numberOf(const inputCase& self, const std::string& key,
                const std::optional<double>& fallback) {
    if (fallback && self.inputs.map.count(key) == 0) {
        return *fallback;
    }
    requireNumbers(key, valueOf(self, key), 1, "a number");
    return self.inputs.read<double>(key, 0);
}

py::list numbersOf(const inputCase& self, const std::string& key) {
    requireNumbers(key, valueOf(self, key), std::string::npos, "numbers separated by blanks");
    return py::cast(self.inputs.read<std::vector<double>>(key, {}));
}

py::str jsonOf(const inputCase& self) {
    std::string text;
    run([&] { text = sorvikIO::toJSON(self.inputs.map, 0); });
    return textOf(text);
}

inputTask taskOf(const std::string& name) {
    if (name == "nemoh") {
        return inputTask::nemoh;
    }
    if (name == "wave") {
        return inputTask::wave;
    }
    if (name != "both") {
        throw py::value_error("task is " + name + ", expected both, nemoh or wave");
    }
    return inputTask::both;
}

py::dict checkCaseOf(const inputCase& self, const std::string& task,
                     const std::optional<std::filesystem::path>& output, double probes) {
    requirePositive(probes, "probes");
    inputOptions options;
    options.task = taskOf(task);
    options.probes = probes;
    if (output) {
        options.outputFolder = output->string();
    }
    return dictOf(checkInput(self.file, options));
}

py::list keysOf(const inputCase& self) {
    py::list keys;
    for (const auto& entry : self.inputs.map) {
        keys.append(textOf(entry.first));
    }
    return keys;
}

constexpr const char* caseText =
    R"(An input file: a mapping from dotted keys to the texts of their values, aliases resolved.

Case(path) reads `=` between keys and values, `:` where the name contains .json. A file that cannot
be read is a sorvik.Error. Keys are in alphabetic order.

>>> case = sorvik.Case("4-jonswap/jonswapSea.m")
>>> case["environment.wave.type"], case.number("environment.wave.fp"), len(case)
('JONSWAP', 0.1, 13)
>>> case.get("environment.wave.file") is None
True
)";

constexpr const char* numberText =
    R"(The first number of the value of `key`.

A missing key gives `default`, or is a KeyError without one. Other text is a ValueError, though the
tasks read it as 0, and of a word such as 8s the number that it begins with.
)";

constexpr const char* caseCheckText =
    R"(What `sorvikCheck input` finds in the file, which is read again, as a dictionary.

`task`, "both", "nemoh" or "wave", is the one whose keys are required; `output` the folder and
`probes` the number of probes of the wave task. The names are those of `sorvikCheck input --json`.

>>> [finding["name"] for finding in sorvik.Case("4-jonswap/jonswapSea.m").check()["findings"]]
[]
)";

} // namespace

void addCase(py::module_& module) {
    using namespace py::literals;
    py::class_<inputCase>(module, "Case", caseText)
        .def(py::init(&readCase), "path"_a)
        .def(
            "__getitem__",
            [](const inputCase& self, const std::string& key) {
                return textOf(valueOf(self, key));
            },
            "key"_a)
        .def("__iter__", [](const inputCase& self) { return py::iter(keysOf(self)); })
        .def("__len__", [](const inputCase& self) { return self.inputs.map.size(); })
        .def_property_readonly(
            "path", [](const inputCase& self) { return textOf(self.file); }, "As it was given.")
        .def("number", numberOf, numberText, "key"_a, "default"_a = py::none())
        .def("numbers", numbersOf, "key"_a,
             "The numbers of the value of `key`, a list. Text among them is a ValueError.")
        .def("to_json", jsonOf, "The text that `sorvikPre -toJSON` writes.")
        .def("check", checkCaseOf, caseCheckText, "task"_a = "both", "output"_a = py::none(),
             "probes"_a = 1.0);
}

} // namespace sorvik::python
