#include "app/processGuards.hpp"

#include "base/platform.hpp"
#include "io/printer.hpp"

#include <iostream>
#include <new>

namespace sorvik {

namespace {

// uncovered: memory runs out; the torture covers it
[[noreturn]] void endForMemory() {
    // Static initialisation may not have come to the streams yet.
    const std::ios_base::Init streams;
    printer::fatalError("There is not enough memory for this task.");
}

} // namespace

processGuards::processGuards() {
    std::set_new_handler(endForMemory);
    platform::holdStandardStreams();
}

} // namespace sorvik
