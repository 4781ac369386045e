#include "check/finding.hpp"
#include "guard.hpp"

#include <cmath>
#include <sstream>

namespace sorvik::python {
namespace {

[[noreturn]] void refuse(const char* name, double value, const char* expected) {
    std::ostringstream text;
    text << name << " is " << value << ", expected " << expected;
    throw py::value_error(text.str());
}

/// Makes `sorvik.Error`, which lives as long as the process.
PyObject* makeError(py::module_& module) {
    PyObject* const error = PyErr_NewExceptionWithDoc(
        "sorvik.Error", "A fatal line of the library. Its text is that of the programs.", nullptr,
        nullptr);
    module.add_object("Error", error);
    return error;
}

PyObject* errorType = nullptr;

void setError(const std::exception& error) {
    PyErr_SetObject(errorType, textOf(error.what()).ptr());
}

void translate(std::exception_ptr thrown) {
    try {
        std::rethrow_exception(std::move(thrown));
    } catch (const libraryError& error) {
        setError(error);
    } catch (const cannotCheck& error) {
        setError(error);
    }
}

} // namespace

py::str textOf(const std::string& text) {
    PyObject* const decoded =
        PyUnicode_DecodeUTF8(text.data(), static_cast<Py_ssize_t>(text.size()), "surrogateescape");
    if (decoded == nullptr) {
        throw py::error_already_set();
    }
    return py::reinterpret_steal<py::str>(decoded);
}

void showIfVerbose(const std::string& text) {
    if (!text.empty() && py::bool_(py::module_::import("sorvik").attr("verbose"))) {
        py::module_::import("sys").attr("stdout").attr("write")(textOf(text));
    }
}

void requireFinite(double value, const char* name) {
    if (!std::isfinite(value)) {
        refuse(name, value, "a finite number");
    }
}

void requireFinite(const std::array<double, 3>& values, const char* name) {
    for (const double value : values) {
        requireFinite(value, name);
    }
}

void requirePositive(const std::optional<double>& value, const char* name) {
    if (value && !(*value > 0 && std::isfinite(*value))) {
        refuse(name, *value, "a number greater than 0");
    }
}

} // namespace sorvik::python

PYBIND11_MODULE(_sorvik, module) {
    using namespace sorvik::python;
    module.doc() = "The C++ part of the package sorvik.";
    errorType = makeError(module);
    py::register_exception_translator(translate);
    addMesh(module);
    addCase(module);
    addSea(module);
    addTables(module);
    addResults(module);
    module.attr("__version__") = SORVIK_VERSION;
}
