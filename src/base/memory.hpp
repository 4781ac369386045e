#pragma once

#include <cstddef>
#include <vector>

namespace sorvik {

/// Questions about, and hints to, the system's memory.
namespace memory {

/// Whether memory can hold `count` items of `bytes` each. To be asked before a count that stands in
/// a file is trusted.
bool canHold(std::size_t count, std::size_t bytes);

/// Hints that the `bytes` from `begin` on will all be used, so that the system may map them in
/// large pages: their first use takes a good part of the time to read a large file.
void willUse(const void* begin, std::size_t bytes);

/// Reserves room for `count` items that will be used.
template <class T>
void reserve(std::vector<T>& items, std::size_t count) {
    items.reserve(count);
    willUse(items.data(), items.capacity() * sizeof(T));
}

} // namespace memory

} // namespace sorvik
