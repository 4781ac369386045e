#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>

namespace sorvik {

/// Numbers from and to bytes, the lowest first, on any machine.
namespace littleEndian {

/// The steps are spelled out: compilers turn them into one load or store, but not a loop.
template <class Number, std::size_t... byte>
Number loadBytes(const char* bytes, std::index_sequence<byte...> /*places*/) {
    return ((static_cast<Number>(static_cast<unsigned char>(bytes[byte])) << (8 * byte)) | ...);
}

template <class Number, std::size_t... byte>
void storeBytes(char* bytes, Number number, std::index_sequence<byte...> /*places*/) {
    ((bytes[byte] = static_cast<char>(static_cast<unsigned char>(number >> (8 * byte)))), ...);
}

/// Reads an unsigned number from its first byte on.
template <class Number>
Number load(const char* bytes) {
    return loadBytes<Number>(bytes, std::make_index_sequence<sizeof(Number)>());
}

/// Writes all bytes of an unsigned number.
template <class Number>
void store(char* bytes, Number number) {
    storeBytes(bytes, number, std::make_index_sequence<sizeof(Number)>());
}

} // namespace littleEndian

} // namespace sorvik
