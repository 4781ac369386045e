#include "io/memory.hpp"

#include <cstdint>
#include <cstdlib>
#include <limits>

#include <unistd.h>
#ifdef __linux__
#include <sys/mman.h>
#endif

bool memory::canHold(std::size_t count, std::size_t bytes) {
    if (bytes != 0 && count > std::numeric_limits<std::size_t>::max() / bytes) {
        return false;
    }
    const std::size_t total = count * bytes;
    // The system may promise more than it has: what exceeds the machine is refused here.
    const long pages = sysconf(_SC_PHYS_PAGES);
    const long pageSize = sysconf(_SC_PAGESIZE);
    if (pages > 0 && pageSize > 0 &&
        total / static_cast<std::size_t>(pageSize) >= static_cast<std::size_t>(pages)) {
        return false;
    }
    // Not through operator new, which may be set to end the process. The pointer is volatile for
    // the call not to be optimised away.
    void* volatile trial = std::malloc(total + 1);
    std::free(trial);
    return trial != nullptr;
}

void memory::willUse(const void* begin, std::size_t bytes) {
#ifdef MADV_HUGEPAGE
    constexpr std::size_t smallest = std::size_t(4) << 20;
    const long pageSize = sysconf(_SC_PAGESIZE);
    if (bytes < smallest || pageSize <= 0) {
        return;
    }
    // The system asks for a whole number of pages.
    const auto page = static_cast<std::size_t>(pageSize);
    const std::size_t lead = page - reinterpret_cast<std::uintptr_t>(begin) % page;
    char* first = const_cast<char*>(static_cast<const char*>(begin)) + lead;
    madvise(first, (bytes - lead) / page * page, MADV_HUGEPAGE);
#else
    static_cast<void>(begin);
    static_cast<void>(bytes);
#endif
}
