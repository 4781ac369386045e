#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>
#include <utility>

namespace sorvik {

/// Numbers from and to bytes, the lowest first, on any machine.
namespace littleEndian {

/// The unsigned number that has as many bits as `Number`.
template <class Number>
using bitsOf = std::conditional_t<
    sizeof(Number) == 1, std::uint8_t,
    std::conditional_t<sizeof(Number) == 2, std::uint16_t,
                       std::conditional_t<sizeof(Number) == 4, std::uint32_t, std::uint64_t>>>;

/// The steps are spelled out: compilers turn them into one load or store, but not a loop.
template <class Bits, std::size_t... byte>
Bits loadBytes(const char* bytes, std::index_sequence<byte...> /*places*/) {
    return static_cast<Bits>(
        ((static_cast<Bits>(static_cast<unsigned char>(bytes[byte])) << (8 * byte)) | ...));
}

template <class Bits, std::size_t... byte>
void storeBytes(char* bytes, Bits bits, std::index_sequence<byte...> /*places*/) {
    ((bytes[byte] = static_cast<char>(static_cast<unsigned char>(bits >> (8 * byte)))), ...);
}

/// Reads a number of any arithmetic type of 1, 2, 4 or 8 bytes from its first byte on.
template <class Number>
Number load(const char* bytes) {
    using bits = bitsOf<Number>;
    static_assert(std::is_arithmetic_v<Number> && sizeof(bits) == sizeof(Number));
    const bits loaded = loadBytes<bits>(bytes, std::make_index_sequence<sizeof(bits)>());
    Number number{};
    std::memcpy(&number, &loaded, sizeof number);
    return number;
}

/// Writes all bytes of such a number.
template <class Number>
void store(char* bytes, Number number) {
    using bits = bitsOf<Number>;
    static_assert(std::is_arithmetic_v<Number> && sizeof(bits) == sizeof(Number));
    bits stored = 0;
    std::memcpy(&stored, &number, sizeof number);
    storeBytes(bytes, stored, std::make_index_sequence<sizeof(bits)>());
}

} // namespace littleEndian

} // namespace sorvik
