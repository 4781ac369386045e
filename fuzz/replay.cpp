#include "target.hpp"

/// Gives every file of a folder to the target.
int main(int, const char** argv) {
    for (const auto& entry : std::filesystem::directory_iterator(argv[1])) {
        const std::string text = contentOf(entry.path().string());
        std::cerr << entry.path() << std::endl;
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(text.data()), text.size());
    }
}
