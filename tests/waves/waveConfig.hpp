#pragma once

#include "base/classicText.hpp"
#include "io/reader.hpp"
#include "waves/globals.hpp"

#include <string>

/// The configuration that an input file of this text gives, in the environment of a new run.
inline reader configOf(const std::string& text) {
    globals::m_isSet = false;
    globals::set(3, {0.0, 0.0, -9.81}, 1000.0, 1.0, 0.0);
    globals::m_isSet = false;
    reader config;
    sorvik::classicText in(text);
    config.inputs = inputMap(in, '=', '.');
    return config;
}
