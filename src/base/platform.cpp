#include "base/platform.hpp"

#include <cerrno>
#include <cstdint>
#include <initializer_list>

#ifdef _WIN32

#include <cstdio>

#include <fcntl.h>
#include <io.h>
#include <locale.h>
#include <sys/stat.h>

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

const char* const sorvik::platform::randomSource = "default";

bool sorvik::platform::hasMemory(std::size_t /*bytes*/) {
    return true; // The system promises only what it has.
}

void sorvik::platform::useLargePages(const void* /*begin*/, std::size_t /*bytes*/) {}

void sorvik::platform::holdStandardStreams() {
    _setmode(_fileno(stdout), _O_BINARY);
}

bool sorvik::platform::isTerminal() {
    return _isatty(_fileno(stdout)) != 0;
}

// std::filesystem::path takes text in the encoding of the locale, which is never UTF-8 here.
std::filesystem::path sorvik::platform::pathOf(const std::string& name) {
    const auto bytes = static_cast<int>(name.size());
    std::wstring wide(name.size(), L'\0'); // No character takes more units than bytes.
    const int units = MultiByteToWideChar(CP_UTF8, 0, name.data(), bytes, wide.data(), bytes);
    wide.resize(static_cast<std::size_t>(units));
    return std::filesystem::path(wide);
}

std::string sorvik::platform::nameOf(const std::filesystem::path& path) {
    return path.u8string();
}

int sorvik::platform::createNew(const std::string& path) {
    const int file =
        _wopen(pathOf(path).c_str(), _O_CREAT | _O_EXCL | _O_WRONLY, _S_IREAD | _S_IWRITE);
    return file == -1 ? errno : _close(file);
}

void sorvik::platform::copyOwner(const std::string& /*like*/, const std::string& /*path*/) {}

double sorvik::platform::strtodClassic(const char* text) {
    static const _locale_t classic = _create_locale(LC_ALL, "C");
    return _strtod_l(text, nullptr, classic);
}

#else

#include <fcntl.h>
#include <locale.h>
#include <stdlib.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

const char* const sorvik::platform::randomSource = "/dev/urandom";

bool sorvik::platform::hasMemory(std::size_t bytes) {
    const long pages = sysconf(_SC_PHYS_PAGES);
    const long pageSize = sysconf(_SC_PAGESIZE);
    return pages <= 0 || pageSize <= 0 ||
           bytes / static_cast<std::size_t>(pageSize) < static_cast<std::size_t>(pages);
}

// uncovered: arrays of 4 MiB and more; the limits and benchmarks cover it
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
            // uncovered: a standard stream is closed; the torture covers it
            open("/dev/null", O_RDWR);
        }
    }
}

bool sorvik::platform::isTerminal() {
    return isatty(STDOUT_FILENO) == 1;
}

std::filesystem::path sorvik::platform::pathOf(const std::string& name) {
    return name;
}

std::string sorvik::platform::nameOf(const std::filesystem::path& path) {
    return path.string();
}

int sorvik::platform::createNew(const std::string& path) {
    constexpr mode_t anyone = 0666; // less the umask
    const int file = open(path.c_str(), O_CREAT | O_EXCL | O_WRONLY, anyone);
    return file == -1 ? errno : close(file);
}

void sorvik::platform::copyOwner(const std::string& like, const std::string& path) {
    struct stat of {};
    constexpr auto same = static_cast<uid_t>(-1);
    if (stat(like.c_str(), &of) == 0 && chown(path.c_str(), of.st_uid, of.st_gid) != 0) {
        static_cast<void>(chown(path.c_str(), same, of.st_gid) != 0);
    }
}

double sorvik::platform::strtodClassic(const char* text) {
    static const locale_t classic = newlocale(LC_ALL_MASK, "C", nullptr);
    return strtod_l(text, nullptr, classic);
}

#endif
