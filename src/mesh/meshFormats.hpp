#pragma once

#include "mesh/panels.hpp"

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace sorvik {

/// A format of mesh files.
struct meshFormat {
    /// The last four characters of its file names, case-sensitive.
    std::vector<std::string_view> endings;
    /// Reads a file and returns whether all is well with it; `name` is that of the file, for
    /// messages.
    bool (*read)(std::istream& in, const std::string& name, panelStore panels);
    /// Writes a file. What does not reach the stream shows in the stream's own state.
    void (*write)(std::ostream& out, const panelView& panels);
    /// Whether its files hold the wetted surface whatever was asked for.
    bool isAlwaysWet;
};

/// All formats: STL, GDF, Nemoh. A format is known by its place here, which callers count on.
const std::vector<meshFormat>& meshFormats();

} // namespace sorvik
