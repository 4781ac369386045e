#include "support/program.hpp"

#include "support/files.hpp"

#include <cstdlib>
#include <filesystem>

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
