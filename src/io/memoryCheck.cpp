#include "io/memoryCheck.hpp"

#include <limits>
#include <memory>
#include <new>

#include <unistd.h>

bool memoryCanHold(std::size_t count, std::size_t bytes) {
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
    const std::unique_ptr<char[]> trial(new (std::nothrow) char[total]);
    return trial != nullptr;
}
