#pragma once

#include "check/quietly.hpp"

#include <pybind11/pybind11.h>

#include <array>
#include <optional>
#include <stdexcept>
#include <string>

/// What all classes of the Python module share: how the library is run, and checks of arguments.
namespace sorvik::python {

namespace py = pybind11;

/// A fatal line of the library. In Python it is `sorvik.Error`.
struct libraryError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// `text` in Python; bytes that are no UTF-8 stay as surrogates, as in Python's names of files.
py::str textOf(const std::string& text);

/// Writes `text` to Python's standard output where `sorvik.verbose` is set.
void showIfVerbose(const std::string& text);

/// Runs an action of the library, which prints nothing and does not end the process. Throws
/// `libraryError` where it was to end it. The action and the console belong to the process, so the
/// caller holds the interpreter's lock.
template <class Action>
void run(Action action) {
    const quietOutcome outcome = quietly(action);
    showIfVerbose(outcome.text);
    if (outcome.hasEnded) {
        throw libraryError(outcome.message());
    }
}

/// Each is a ValueError that names the argument and the value found.
void requireFinite(double value, const char* name);
void requireFinite(const std::array<double, 3>& values, const char* name);
void requirePositive(const std::optional<double>& value, const char* name);

// The classes, each in a file of its own.
void addMesh(py::module_& module);
void addCase(py::module_& module);
void addSea(py::module_& module);
void addTables(py::module_& module);
void addResults(py::module_& module);

} // namespace sorvik::python
