#pragma once

#include "base/platform.hpp"

#include <cstdio>
#include <exception>
#include <new>

namespace sorvik {

/// The end of a program that cannot do what it is asked for.
constexpr int cannotRun = 2;

/// Runs a program for `main` and returns its exit status. What is thrown ends with `cannotRun` and
/// a message on standard error that begins with the program's name.
template <class Run>
int runProgram(const char* name, Run run) {
    platform::holdStandardStreams();
    try {
        return run();
    } catch (const std::bad_alloc&) {
        std::fprintf(stderr, "%s: There is not enough memory for this.\n", name);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s: %s\n", name, error.what());
    }
    return cannotRun;
}

} // namespace sorvik
