#include "base/platform.hpp"

#include <cstdint>
#include <initializer_list>

#ifdef _WIN32

#include <cstdio>

#include <fcntl.h>
#include <io.h>
#include <locale.h>

const char* const sorvik::platform::randomSource = "default";

bool sorvik::platform::hasMemory(std::size_t /*bytes*/) {
    return true; // The system promises only what it has.
}

void sorvik::platform::useLargePages(const void* /*begin*/, std::size_t /*bytes*/) {}

void sorvik::platform::holdStandardStreams() {
    _setmode(_fileno(stdout), _O_BINARY);
}

double sorvik::platform::strtodClassic(const char* text) {
    static const _locale_t classic = _create_locale(LC_ALL, "C");
    return _strtod_l(text, nullptr, classic);
}

#else

#include <fcntl.h>
#include <locale.h>
#include <stdlib.h>
#include <sys/mman.h>
#include <unistd.h>

const char* const sorvik::platform::randomSource = "/dev/urandom";

bool sorvik::platform::hasMemory(std::size_t bytes) {
    const long pages = sysconf(_SC_PHYS_PAGES);
    const long pageSize = sysconf(_SC_PAGESIZE);
    return pages <= 0 || pageSize <= 0 ||
           bytes / static_cast<std::size_t>(pageSize) < static_cast<std::size_t>(pages);
}

void sorvik::platform::useLargePages(const void* begin, std::size_t bytes) {
#ifdef MADV_HUGEPAGE
    const long pageSize = sysconf(_SC_PAGESIZE);
    if (pageSize <= 0 || bytes < static_cast<std::size_t>(pageSize)) {
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

void sorvik::platform::holdStandardStreams() {
    for (const int stream : {0, 1, 2}) {
        // A file that is opened gets the lowest free number.
        if (fcntl(stream, F_GETFD) == -1) {
            open("/dev/null", O_RDWR);
        }
    }
}

double sorvik::platform::strtodClassic(const char* text) {
    static const locale_t classic = newlocale(LC_ALL_MASK, "C", nullptr);
    return strtod_l(text, nullptr, classic);
}

#endif
