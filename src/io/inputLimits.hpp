#pragma once

#include <cstddef>

/// What an input may hold and produce at most; more is a fatal error.
namespace sorvikIO {

/// Blocks within blocks.
constexpr int maxNesting = 100;
/// Entries of a map while its aliases are resolved.
constexpr std::size_t maxMapEntries = 1'000'000;
/// Characters that aliases may add to a map, and as many that blocks may add to its keys.
constexpr std::size_t maxAddedText = 64 << 20;
/// Characters of a JSON text.
constexpr std::size_t maxJsonText = 128 << 20;

/// Separates the components of a key.
constexpr char memberDLM = '.';

} // namespace sorvikIO
