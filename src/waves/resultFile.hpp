#pragma once

#include "base/rewrite.hpp"
#include "io/printer.hpp"
#include "io/reader.hpp"

#include <string>

namespace sorvik {

/// Makes the folder, writes its file `name` through `write`, which is given the stream, and returns
/// the path. An earlier file is replaced once the new one is whole. A file that cannot be opened or
/// written to its end is a fatal error.
template <class Write>
std::string writeResult(const std::string& folder, const std::string& name, Write write) {
    reader::makeFolder(folder);
    std::string path = folder + "/" + name;
    if (!replace(path, write)) {
        printer::fatalError("Cannot write the file " + path +
                            ", expected a place that can be written to, and room on the disk");
    }
    return path;
}

} // namespace sorvik
