#pragma once

#include <cstdint>

/// Numbers from and to bytes, the lowest first, on any machine. Written out, since compilers make
/// one load or store of these but not of a loop.
namespace littleEndian {

inline std::uint32_t load32(const char* bytes) {
    const auto at = [bytes](int i) {
        return static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[i]));
    };
    return at(0) | at(1) << 8 | at(2) << 16 | at(3) << 24;
}

inline std::uint64_t load64(const char* bytes) {
    const auto at = [bytes](int i) {
        return static_cast<std::uint64_t>(static_cast<unsigned char>(bytes[i]));
    };
    return at(0) | at(1) << 8 | at(2) << 16 | at(3) << 24 | at(4) << 32 | at(5) << 40 |
           at(6) << 48 | at(7) << 56;
}

inline void store32(char* bytes, std::uint32_t number) {
    const auto part = [number](int shift) {
        return static_cast<char>(static_cast<unsigned char>(number >> shift));
    };
    bytes[0] = part(0);
    bytes[1] = part(8);
    bytes[2] = part(16);
    bytes[3] = part(24);
}

inline void store64(char* bytes, std::uint64_t number) {
    const auto part = [number](int shift) {
        return static_cast<char>(static_cast<unsigned char>(number >> shift));
    };
    bytes[0] = part(0);
    bytes[1] = part(8);
    bytes[2] = part(16);
    bytes[3] = part(24);
    bytes[4] = part(32);
    bytes[5] = part(40);
    bytes[6] = part(48);
    bytes[7] = part(56);
}

} // namespace littleEndian
