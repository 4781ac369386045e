#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

namespace sorvik {

/// What differs between the systems that the program runs on.
namespace platform {

/// The source of random seeds, under its name for the standard random device.
extern const char* const randomSource;

/// Whether the machine has more than `bytes` of memory, as far as that is known.
bool hasMemory(std::size_t bytes);

/// Asks for large pages for the `bytes` from `begin` on, where there are such.
void useLargePages(const void* begin, std::size_t bytes);

/// Keeps the numbers of closed standard streams from being given to files, and makes standard
/// output pass on its bytes unchanged, with a line feed alone for an end of line.
void holdStandardStreams();

/// Whether standard output is a terminal.
bool isTerminal();

/// The path that `name` means, which is text in UTF-8 on Windows and bytes elsewhere. What is not
/// UTF-8 there gives a path that no file has.
std::filesystem::path pathOf(const std::string& name);

/// The name of `path` as `pathOf` takes it.
std::string nameOf(const std::filesystem::path& path);

/// Creates the empty file `path`, which must not be there. Returns 0, or errno.
int createNew(const std::string& path);

/// Gives the file `path` the owner and the group of the file `like`, or the group alone, where the
/// system lets it.
void copyOwner(const std::string& like, const std::string& path);

/// std::strtod in the classic locale, without the end of the number.
double strtodClassic(const char* text);

} // namespace platform

} // namespace sorvik
