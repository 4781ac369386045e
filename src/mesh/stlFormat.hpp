#pragma once

#include "mesh/panels.hpp"

#include <cstdint>
#include <iosfwd>
#include <string>

/// Triangles as STL files, ASCII and binary. Lengths are those of the mesh [m]: STL has no unit.
namespace sorvik::stl {

/// Whether a stream is to be read as binary: all but "solid" in its first and "facet" in its second
/// line, each in small letters or capitals. The stream is then where it was before.
bool isBinary(std::istream& in);

/// Appends the facets of an ASCII file and prints how many there are; `name` is that of the file,
/// for messages. Normals are taken as given, numbers that are missing are 0.
///
/// Returns false where the text breaks off or the stream cannot be read. A mesh of 500,000 panels
/// or more is not read into.
bool readAscii(std::istream& in, const std::string& name, panelStore panels);

/// Whether memory can hold the panels of a binary file that announces `count` facets.
bool canHold(std::uint32_t count);

/// Replaces the panels by those of a binary file; `name` is that of the file, for messages.
///
/// Returns false where the file is shorter than it announces: the records that are missing repeat
/// the last. A count that memory cannot hold is fatal.
bool readBinary(std::istream& in, const std::string& name, panelStore panels);

/// Reads either kind of file with `readAscii` or `readBinary`. Of a stream that cannot be rewound,
/// such as a pipe, the first 2^20 characters show whether it is binary.
bool read(std::istream& in, const std::string& name, panelStore panels);

/// Writes an ASCII file of one solid.
void writeAscii(std::ostream& stream, const panelView& panels);

/// Writes a binary file: a header of zeros, and an attribute of 48 for every facet.
void write(std::ostream& stream, const panelView& panels);

} // namespace sorvik::stl
