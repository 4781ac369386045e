#pragma once

#include "base/files.hpp"

#include <string>

namespace sorvik {

/// A new file beside another, whose place it takes once it is whole: NAME.new in the same folder,
/// or NAME.new1, NAME.new2, ... where that name is taken. It is removed if it takes no place.
class replacement {
public:
    /// Makes the new file, with owner, group and mode of the file `path` where that is there and
    /// the system lets it.
    explicit replacement(const std::string& path);
    replacement(const replacement&) = delete;
    replacement& operator=(const replacement&) = delete;
    ~replacement();

    /// The file to write: the new one; the old one where that may not be written, is a folder,
    /// link, device or pipe, or lies in a folder that takes no files; "" where there is no room.
    const std::string& path() const { return path_; }
    /// Puts the new file, which is closed and whole, in the place of the old one. Returns whether
    /// it is there.
    bool settle();

private:
    std::string place_;
    std::string path_;
};

/// Writes the file `path` through `write`, which is given the stream, and returns whether all of it
/// was written; `write` is not called where the file cannot be opened.
///
/// A file that is there is replaced only once the new one is whole, so that a killed run or a full
/// disk leaves the old one. Links, devices and pipes are written as they are.
template <class Write>
bool replace(const std::string& path, Write write) {
    replacement next(path);
    return files::write(next.path(), write) && next.settle();
}

/// The file that `target` is or links to where that is the file `source`; otherwise "".
std::string sharedFile(const std::string& source, const std::string& target);

/// As `replace` where `target` is the file `source`, which the content was read from, and the links
/// to it stay; otherwise as `files::write`.
template <class Write>
bool rewrite(const std::string& source, const std::string& target, Write write) {
    const std::string shared = sharedFile(source, target);
    return shared.empty() ? files::write(target, write) : replace(shared, write);
}

} // namespace sorvik
