#include "base/rewrite.hpp"

#include <filesystem>

namespace fs = std::filesystem;

namespace sorvik {

std::string rewriting::placeBeside(const std::string& source, const std::string& target) {
    std::error_code failed;
    // A pipe or device keeps nothing that could be lost.
    if (!fs::equivalent(source, target, failed) || !fs::is_regular_file(target, failed)) {
        return {};
    }
    // A link stays a link to the file that is replaced.
    const std::string path = fs::canonical(target, failed).string() + ".new";
    const bool isFree =
        !failed && fs::symlink_status(path, failed).type() == fs::file_type::not_found;
    return isFree && files::create(path).is_open() ? path : std::string();
}

bool rewriting::settle(const std::string& written, const std::string& target, bool isWhole) {
    std::error_code failed;
    if (isWhole) {
        fs::permissions(written, fs::status(target, failed).permissions(), failed);
        fs::rename(written, fs::canonical(target, failed), failed);
    }
    if (isWhole && !failed) {
        return true;
    }
    fs::remove(written, failed);
    return false;
}

} // namespace sorvik
