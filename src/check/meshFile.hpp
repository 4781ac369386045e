#pragma once

#include "check/finding.hpp"

#include <cstdint>
#include <optional>
#include <string>

namespace sorvik {

/// What a mesh file holds, beside what its reader takes from it.
struct meshFileFacts {
    std::string format = "unknown"; ///< by content: "STL, binary", "STL, ASCII", "GDF", "Nemoh"
    std::string ending;             ///< of the file's name, such as ".stl"
    long long announced = 0;        ///< facets, records or panel lines that the file states or has
    long long read = 0;             ///< those that the reader uses
    bool isMirroredX = false;       ///< completed by its image in the plane x = 0
    bool isMirroredY = false;
};

/// Reads a mesh file for what its reader keeps to itself: the format of the content, the numbers of
/// records, and `unread-records` and `wrong-ending`, which it adds to `result`. `panels` is the
/// number of panels that the reader makes of it. The file can be opened.
meshFileFacts inspectMeshFile(const std::string& file, long long panels, report& result);

/// The content of a binary STL file that announces more facets than it holds, with the number of
/// those that it holds in place of the other; nothing for other files, and for a number that its
/// reader refuses.
std::optional<std::string> shortenedStl(const std::string& file);

} // namespace sorvik
