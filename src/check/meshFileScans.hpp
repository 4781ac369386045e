#pragma once

#include "check/meshFile.hpp"

#include <iosfwd>

/// One pass over a mesh file of a text format, for what its reader does not use. Each sets the
/// numbers of records, and adds `unread-records` with the lines that are the cause.
namespace sorvik {

/// `panels` is the number of facets that the reader got.
void scanAsciiStl(std::istream& in, long long panels, meshFileFacts& facts, report& result);

/// Compares the areas of all panels and of those used.
void scanGdf(std::istream& in, meshFileFacts& facts, report& result);

void scanNemohMesh(std::istream& in, meshFileFacts& facts, report& result);

/// Adds `unread-records` for a file that is cut off or damaged.
void addCutOff(const std::string& message, report& result);

} // namespace sorvik
