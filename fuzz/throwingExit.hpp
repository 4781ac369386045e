#pragma once

// Comes first in all files of a fuzz build: what would end the process throws.

#include <cstdlib>

struct programEnd {};

namespace std {
[[noreturn]] inline void throwProgramEnd(int) {
    throw programEnd();
}
} // namespace std

#define exit throwProgramEnd
