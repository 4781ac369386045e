#pragma once

#include <cstddef>

/// Whether `count` items of `bytes` each can be had: asked before a count that some file announces
/// is believed.
bool memoryCanHold(std::size_t count, std::size_t bytes);
