#include "arrays.hpp"
#include "base/files.hpp"
#include "guard.hpp"
#include "waves/numericTable.hpp"

#include <pybind11/stl/filesystem.h>

#include <filesystem>

namespace sorvik::python {
namespace {

constexpr const char* tableText =
    R"(Reads a file of numbers separated by blanks or tabs: rows x columns float64.

For waveElevation.dat the first column is the time [s], the others are elevations [m]. A file that
cannot be read, or whose rows differ in length, is a sorvik.Error. Holds the interpreter's lock.

>>> sorvik.read_table("3-regular-wave/regularWave.xy").shape
(3, 2)
)";

py::array readTable(const std::filesystem::path& path) {
    const std::string file = path.string();
    if (!files::canOpen(file)) {
        throw libraryError("Cannot find or open file: " + file);
    }
    std::vector<double> values;
    int columns = 0;
    run([&] { columns = readNumericTable(file, values); });
    if (columns < 1 || values.empty()) {
        throw libraryError("The file " + file +
                           " is no table of numbers, expected rows of one length, separated by "
                           "blanks");
    }
    const auto rows = static_cast<py::ssize_t>(values.size()) / columns;
    return arrayOf(std::move(values), {rows, columns});
}

} // namespace

void addTables(py::module_& module) {
    module.def("read_table", readTable, tableText, py::arg("path"));
}

} // namespace sorvik::python
