#include "support/files.hpp"

#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>

#include <gtest/gtest.h>

temporaryFolder::temporaryFolder() {
    const std::string name = "sorvikTest." + std::to_string(std::random_device()());
    folder_ = (std::filesystem::temp_directory_path() / name).generic_string();
    if (!std::filesystem::create_directory(folder_)) {
        ADD_FAILURE() << "cannot make " << folder_;
    }
}

temporaryFolder::~temporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
}

std::string temporaryFolder::path(const std::string& name) const {
    return name.empty() ? folder_ : folder_ + "/" + name;
}

std::string writeFile(const std::string& path, const std::string& content) {
    std::ofstream out(path, std::ios::binary);
    out << content << std::flush;
    EXPECT_TRUE(out.good()) << "cannot write " << path;
    return path;
}

std::string readFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    EXPECT_TRUE(in.is_open()) << "cannot read " << path;
    std::ostringstream content;
    content << in.rdbuf();
    return content.str();
}
