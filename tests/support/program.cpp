#include "support/program.hpp"

#include "support/files.hpp"

#include <cstdlib>
#include <iostream>

#include <sys/wait.h>

namespace {

std::string quoted(const std::string& word) {
    std::string safe = "'";
    for (const char c : word) {
        safe += c == '\'' ? std::string("'\\''") : std::string(1, c);
    }
    return safe + "'";
}

} // namespace

programRun runProgram(const std::vector<std::string>& arguments, const std::string& folder) {
    const temporaryFolder streams;
    std::string command = folder.empty() ? "" : "cd " + quoted(folder) + " && ";
    command += quoted(SORVIK_PROGRAM);
    for (const std::string& argument : arguments) {
        command += " " + quoted(argument);
    }
    command += " >" + quoted(streams.path("out")) + " 2>" + quoted(streams.path("err"));
    const int result = std::system(command.c_str());
    const int status = WIFEXITED(result) ? WEXITSTATUS(result) : 128 + WTERMSIG(result);
    return {status, readFile(streams.path("out")), readFile(streams.path("err"))};
}

void showOutputAsError() {
    std::cout.rdbuf(std::cerr.rdbuf());
}
