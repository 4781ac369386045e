#include "base/memory.hpp"

#include "base/platform.hpp"

#include <cstdlib>
#include <limits>

namespace sorvik {

bool memory::canHold(std::size_t count, std::size_t bytes) {
    if (bytes != 0 && count > std::numeric_limits<std::size_t>::max() / bytes) {
        return false; // uncovered: a size beyond the addresses of 32 bits
    }
    const std::size_t total = count * bytes;
    // The system may promise more than it has: what exceeds the machine is refused here.
    if (!platform::hasMemory(total)) {
        return false;
    }
    // Not through operator new, which may be set to end the process. The pointer is volatile to
    // keep the call from being optimised away.
    void* volatile trial = std::malloc(total + 1);
    std::free(trial);
    return trial != nullptr;
}

void memory::willUse(const void* begin, std::size_t bytes) {
    constexpr std::size_t smallest = std::size_t(4) << 20;
    if (bytes >= smallest) {
        // uncovered: arrays of 4 MiB and more; the limits and benchmarks cover it
        platform::useLargePages(begin, bytes);
    }
}

} // namespace sorvik
