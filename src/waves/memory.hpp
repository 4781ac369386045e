#pragma once

#include <cstddef>
#include <cstdint>

/// Whether `count` things of `bytes` each fit into the machine's main memory; true below 1.
///
/// Asked before an input's own count is believed: the allocator may promise more than there is.
bool fitsMemory(std::int64_t count, std::size_t bytes);
