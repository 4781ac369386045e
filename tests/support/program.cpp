#include "support/program.hpp"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>

#ifndef _WIN32
#include <sys/wait.h>
#endif

namespace {

std::string quoted(const std::string& word) {
    return '"' + word + '"';
}

/// The status of a process that ended with `result`, as the system gives it: 128 + n for signal n.
int statusOf(int result) {
#ifdef _WIN32
    return result & 0xFF;
#else
    return WIFEXITED(result) ? WEXITSTATUS(result) : 128 + WTERMSIG(result);
#endif
}

} // namespace

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

programRun runProgram(const std::vector<std::string>& arguments, const std::string& folder) {
    const temporaryFolder streams;
    std::string command = SORVIK_PROGRAM;
    for (const std::string& argument : arguments) {
        command += " " + quoted(argument);
    }
    command += " >" + quoted(streams.path("out")) + " 2>" + quoted(streams.path("err"));
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(folder.empty() ? before : std::filesystem::path(folder));
    const int status = statusOf(std::system(command.c_str()));
    std::filesystem::current_path(before);
    return {status, readFile(streams.path("out")), readFile(streams.path("err"))};
}
