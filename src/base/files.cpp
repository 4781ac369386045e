#include "base/files.hpp"

#include "base/platform.hpp"

#include <filesystem>
#include <locale>

namespace fs = std::filesystem;

namespace sorvik {

namespace {

/// Whether opening `path` for writing could do harm: a link to nothing would get its target, a pipe
/// would wait for a reader, and a device could act on it.
bool isSpecial(const fs::path& path) {
    std::error_code ignored;
    const fs::file_type type = fs::status(path, ignored).type();
    const bool isThere = fs::exists(fs::symlink_status(path, ignored));
    return isThere && type != fs::file_type::regular && type != fs::file_type::directory;
}

/// The name of the file that shows whether a folder can be written into.
fs::path findProbe(const std::string& folder) {
    fs::path probe = platform::pathOf(folder + "/test.txt");
    for (int i = 1; isSpecial(probe); ++i) {
        probe = platform::pathOf(folder + "/test" + std::to_string(i) + ".txt");
    }
    return probe;
}

} // namespace

std::ifstream files::open(const std::string& path) {
    std::ifstream in;
    in.imbue(std::locale::classic());
    // A folder opens like a file but cannot be read like one.
    std::error_code ignored;
    const fs::path place = platform::pathOf(path);
    if (fs::is_directory(place, ignored)) {
        in.setstate(std::ios::failbit);
    } else {
        in.open(place, std::ios::binary);
    }
    return in;
}

bool files::canOpen(const std::string& path) {
    // Opening a named pipe waits for its writer, and closing it again breaks what is written.
    std::error_code ignored;
    return fs::is_fifo(platform::pathOf(path), ignored) || open(path).is_open();
}

std::ofstream files::create(const std::string& path) {
    std::ofstream out;
    out.imbue(std::locale::classic());
    out.open(platform::pathOf(path), std::ios::binary);
    return out;
}

bool files::makeFolder(const std::string& path) {
    std::error_code ignored;
    fs::create_directory(platform::pathOf(path), ignored);

    // A file of the probe's name may be the user's: it is opened without changing it.
    const fs::path probe = findProbe(path);
    const bool wasThere = fs::exists(fs::symlink_status(probe, ignored));
    const bool isWritable = std::ofstream(probe, std::ios::app).is_open();
    if (isWritable && !wasThere) {
        fs::remove(probe, ignored);
    }
    return isWritable;
}

std::string files::withoutExtension(const std::string& path) {
    const bool hasSlash = path.find('/') != std::string::npos;
    const std::size_t separator = path.rfind(hasSlash ? '/' : '\\');
    const std::size_t dot = path.rfind('.');
    const bool isExtension =
        dot != std::string::npos && (separator == std::string::npos || dot > separator);
    return isExtension ? path.substr(0, dot) : path;
}

} // namespace sorvik
