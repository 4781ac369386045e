#include "io/rewrite.hpp"

namespace fs = std::filesystem;

fs::path rewriting::placeBeside(const std::string& source, const std::string& target) {
    std::error_code failed;
    if (!fs::equivalent(source, target, failed)) {
        return {};
    }
    // A link stays a link to the file that is replaced.
    fs::path path = fs::canonical(target, failed);
    path += ".new";
    const bool isFree =
        !failed && fs::symlink_status(path, failed).type() == fs::file_type::not_found;
    return isFree && std::ofstream(path).is_open() ? path : fs::path();
}

bool rewriting::settle(const fs::path& written, const std::string& target, bool isWhole) {
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
