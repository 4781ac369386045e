#include "waves/memory.hpp"

#include <unistd.h>

bool fitsMemory(std::int64_t count, std::size_t bytes) {
    const double needed = static_cast<double>(count) * static_cast<double>(bytes);
    const double present =
        static_cast<double>(sysconf(_SC_PHYS_PAGES)) * static_cast<double>(sysconf(_SC_PAGESIZE));
    return needed <= 0.0 || needed < present;
}
