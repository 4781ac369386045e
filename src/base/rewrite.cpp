#include "base/rewrite.hpp"

#include "base/platform.hpp"

#include <cerrno>
#include <filesystem>

namespace fs = std::filesystem;

namespace sorvik {

namespace {

/// Makes an empty file beside `path`, under the first free name. Returns `path` where its folder
/// takes no files, "" where that fails for another reason.
std::string makeBeside(const std::string& path) {
    const std::string name = path + ".new";
    std::string next = name;
    int failed = platform::createNew(next);
    for (int i = 1; failed == EEXIST; ++i) {
        next = name + std::to_string(i);
        failed = platform::createNew(next);
    }
    const bool takesNone =
        failed == EACCES || failed == EPERM || failed == EROFS || failed == ENAMETOOLONG;
    return failed == 0 ? next : takesNone ? path : std::string();
}

bool mayBeWritten(const std::string& path) {
    return std::ofstream(platform::pathOf(path), std::ios::app).is_open();
}

} // namespace

replacement::replacement(const std::string& path) : place_(path), path_(path) {
    std::error_code ignored;
    const fs::file_type type = fs::symlink_status(platform::pathOf(path), ignored).type();
    const bool isThere = type == fs::file_type::regular;
    if (isThere ? mayBeWritten(path) : type == fs::file_type::not_found) {
        path_ = makeBeside(path);
    }
    if (isThere && path_ != place_) {
        platform::copyOwner(place_, path_);
        const fs::file_status like = fs::status(platform::pathOf(place_), ignored);
        fs::permissions(platform::pathOf(path_), like.permissions(), ignored);
    }
}

replacement::~replacement() {
    if (path_ != place_) {
        std::error_code ignored;
        fs::remove(platform::pathOf(path_), ignored);
    }
}

bool replacement::settle() {
    if (path_ == place_) {
        return true;
    }
    std::error_code failed;
    const fs::path made = platform::pathOf(path_);
    const fs::path place = platform::pathOf(place_);
    fs::rename(made, place, failed);
    if (!failed) {
        path_ = place_;
        return true;
    }
    // A file that is mounted, or another's in a shared folder, can be written but not replaced.
    fs::copy_file(made, place, fs::copy_options::overwrite_existing, failed);
    if (failed) {
        path_ = place_; // What is left of the old file is not whole: the new one stays.
    }
    return !failed;
}

std::string sharedFile(const std::string& source, const std::string& target) {
    std::error_code failed;
    const fs::path place = platform::pathOf(target);
    const bool isShared = fs::equivalent(platform::pathOf(source), place, failed);
    return isShared ? platform::nameOf(fs::canonical(place, failed)) : std::string();
}

} // namespace sorvik
