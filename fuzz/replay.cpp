#include "target.hpp"

#include <sys/wait.h>
#include <unistd.h>

/// Gives every file of a folder to the target, each in a process of its own, which a fatal error
/// may end.
int main(int, const char** argv) {
    for (const auto& entry : std::filesystem::directory_iterator(argv[1])) {
        const std::string text = contentOf(entry.path().string());
        const pid_t child = fork();
        if (child == 0) {
            return LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(text.data()),
                                          text.size());
        }
        int status = 0;
        check(waitpid(child, &status, 0) == child);
        const int code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        if (code != 0 && code != 1 && code != 255) {
            std::cout << entry.path() << " ends with status " << status << std::endl;
            return 1;
        }
    }
    return 0;
}
