#pragma once

#include "io/classicText.hpp"
#include "io/reader.hpp"
#include "waves/globals.hpp"

#include <string>

/// The configuration that an input file of this text gives.
inline reader configOf(const std::string& text) {
    reader config;
    classicText in(text);
    config.inputs = inputMap(in, '=', '.');
    return config;
}

/// Gives a test the environment of a new process, and takes it away again.
struct freshGlobals {
    freshGlobals() { reset(); }
    ~freshGlobals() { reset(); }
    static void reset() {
        globals::m_isSet = false;
        globals::set(3, {0.0, 0.0, -9.81}, 1000.0, 1.0, 0.0);
        globals::m_isSet = false;
    }
};
