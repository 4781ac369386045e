#pragma once

#include <fstream>
#include <string>

/// The one way to files: bytes as they are, numbers in the classic locale.
namespace sorvik::files {

/// Opens a file for reading. A file that is missing, that may not be read or that is a folder gives
/// a stream that is not open.
std::ifstream open(const std::string& path);

/// Whether `open` opens the file. A named pipe counts as one that it opens, and is not opened.
bool canOpen(const std::string& path);

/// Opens a file for writing and empties it. One that cannot be written gives a stream that is not
/// open.
std::ofstream create(const std::string& path);

/// Creates the file `path`, overwriting, and writes it through `write`, which is given the stream.
/// Returns whether all of it was written; `write` is not called where the file cannot be opened.
template <class Write>
bool write(const std::string& path, Write write) {
    std::ofstream out = create(path);
    if (out.is_open()) {
        write(out);
        out.close();
    }
    return out.good();
}

/// Makes the last folder of `path` unless it is there, and returns whether files can be written
/// into it. Trying that leaves no file and changes none.
bool makeFolder(const std::string& path);

/// The path without its last extension: what follows the last dot of the file's name.
std::string withoutExtension(const std::string& path);

} // namespace sorvik::files
