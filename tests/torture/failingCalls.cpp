// Preloaded into the program, lets calls of one kind fail:
//     FAIL="KIND N ERRNO"      the N-th call; "KIND N+ ERRNO" all from the N-th on
// KIND is memory, open, read, write, folder or close; a byte on descriptor 9 tells that one failed.

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <dlfcn.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

namespace {

bool fails(char kind) {
    const char* wanted = std::getenv("FAIL");
    if (wanted == nullptr || *wanted != kind) {
        return false;
    }
    static long calls = 0;
    char* end = nullptr;
    const long first = std::strtol(std::strchr(wanted, ' '), &end, 10);
    if (++calls != first && (*end != '+' || calls < first)) {
        return false;
    }
    syscall(SYS_write, 9, "!", 1);
    errno = std::atoi(end + 1);
    return true;
}

template <class Function>
Function* original(Function*, const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

} // namespace

extern "C" {

// NOLINTNEXTLINE(bugprone-reserved-identifier): the name is the C library's
void* __libc_malloc(std::size_t size);

void* malloc(std::size_t size) {
    return fails('m') ? nullptr : __libc_malloc(size);
}

FILE* fopen64(const char* name, const char* mode) {
    return fails('o') ? nullptr : original(&fopen64, "fopen64")(name, mode);
}

ssize_t read(int file, void* bytes, std::size_t count) {
    return fails('r') ? -1 : syscall(SYS_read, file, bytes, count);
}

ssize_t write(int file, const void* bytes, std::size_t count) {
    return fails('w') ? -1 : syscall(SYS_write, file, bytes, count);
}

ssize_t writev(int file, const iovec* parts, int count) {
    return fails('w') ? -1 : syscall(SYS_writev, file, parts, count);
}

int mkdir(const char* path, mode_t mode) noexcept {
    return fails('f') ? -1 : static_cast<int>(syscall(SYS_mkdir, path, mode));
}

int fclose(FILE* file) {
    const int closed = original(&fclose, "fclose")(file);
    return fails('c') ? EOF : closed;
}

} // extern "C"
