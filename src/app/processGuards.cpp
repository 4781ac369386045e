#include "app/processGuards.hpp"

#include "io/printer.hpp"

#include <iostream>
#include <new>

#ifndef _WIN32
#include <fcntl.h>
#endif

namespace {

[[noreturn]] void endForMemory() {
    // Static initialisation may not have come to the streams yet.
    const std::ios_base::Init streams;
    printer::fatalError("There is not enough memory for this task.");
}

void holdStandardStreams() {
#ifndef _WIN32
    for (const int stream : {0, 1, 2}) {
        // A file that is opened gets the lowest free number.
        if (fcntl(stream, F_GETFD) == -1) {
            open("/dev/null", O_RDWR);
        }
    }
#endif
}

} // namespace

processGuards::processGuards() {
    std::set_new_handler(endForMemory);
    holdStandardStreams();
}
