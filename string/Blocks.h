#ifndef ZRSTRING_STRING_BLOCKS_H
#define ZRSTRING_STRING_BLOCKS_H

#include <cstdint>
#include <cstring>

// Eight units at a time, in the compiler's vectors. Whoever reads a block makes sure that all of
// its units belong to the text.

/// Whether the processor compares the units of a block at once. Others would take them one by one,
/// for which a loop is better.
#if defined(__SSE2__) || defined(__ARM_NEON) || defined(__VX__)
constexpr bool kHasBlocks = true;
#else
constexpr bool kHasBlocks = false;
#pragma GCC diagnostic ignored "-Wpsabi"  // blocks pass between inline functions only
#endif

using Block = std::uint16_t __attribute__((vector_size(16)));
using BlockWords = std::uint64_t __attribute__((vector_size(16)));

constexpr std::int32_t kBlock = sizeof(Block) / sizeof(char16_t);

inline Block LoadBlock(const char16_t* units) {
  Block block;
  std::memcpy(&block, units, sizeof block);
  return block;
}

/// A block of the same unit eight times.
inline Block BlockOf(char16_t unit) {
  const std::uint16_t each = unit;
  return Block{each, each, each, each, each, each, each, each};
}

/// Whether any unit of a block, or of the result of comparing blocks, is not 0.
template <typename Lanes>
bool Any(Lanes block) {
  const auto words = reinterpret_cast<BlockWords>(block);
  return (words[0] | words[1]) != 0;
}

/// The place of the first unit that is not 0, in a block that has one.
template <typename Lanes>
std::int32_t FirstOf(Lanes block) {
  const auto words = reinterpret_cast<BlockWords>(block);
  const std::uint64_t word = words[0] != 0 ? words[0] : words[1];
#if __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__
  const int bits = __builtin_ctzll(word);
#else
  const int bits = __builtin_clzll(word);
#endif
  return (words[0] != 0 ? 0 : kBlock / 2) + bits / 16;
}

#endif
