#include "target.hpp"

/// Gives every file of a folder to the target.
int main(int, const char** argv) {
    for (const auto& entry : std::filesystem::directory_iterator(argv[1])) {
        std::ifstream in(entry.path(), std::ios::binary);
        const std::string text(std::istreambuf_iterator<char>(in), {});
        std::cerr << entry.path() << std::endl;
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(text.data()), text.size());
    }
}
