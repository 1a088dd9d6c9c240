#ifndef ZRSTRING_STRING_COMPARISON_H
#define ZRSTRING_STRING_COMPARISON_H

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "string/Blocks.h"
#include "string/CodeUnits.h"

// Comparisons that answer before ICU, where they can. What they decide, they decide as ICU does.
// Null units are left to ICU: of an open buffer, of a text in the error state, or of a null
// operand. What every comparison needs is always inlined: left to the compiler, it changes with
// unrelated code.

/// The result of a comparison that only ICU decides.
constexpr signed char kUndecided = 2;

constexpr bool IsLead(char16_t unit) { return (unit & 0xFC00) == 0xD800; }
constexpr bool IsTrail(char16_t unit) { return (unit & 0xFC00) == 0xDC00; }

/// Four units, for operations on all of them whose result does not depend on their order.
inline std::uint64_t FourUnits(const char16_t* units) {
  std::uint64_t word;
  std::memcpy(&word, units, sizeof word);
  return word;
}

inline Block Differences(const char16_t* left, const char16_t* right) {
  return LoadBlock(left) ^ LoadBlock(right);
}

constexpr std::int32_t kLong = 8 * kBlock;

/// Skips equal units at the beginning of texts of at least kLong units, and returns how many. What
/// it leaves is equal for less than kLong units. Out of line: few texts are so long.
[[gnu::noinline]] inline std::int32_t EqualRun(const char16_t* left, const char16_t* right,
                                               std::int32_t count) {
  constexpr std::int32_t kHalf = kLong / 2;
  const auto anyOfHalf = [&](std::int32_t at) {
    return (Differences(left + at, right + at) |
            Differences(left + at + kBlock, right + at + kBlock)) |
           (Differences(left + at + 2 * kBlock, right + at + 2 * kBlock) |
            Differences(left + at + 3 * kBlock, right + at + 3 * kBlock));
  };
  if (Any(Differences(left, right)))
    return 0;
  // ICU puts a number of 4 bytes before the units. From an aligned block on, no block of this text,
  // and usually none of the other, lies across two cache lines.
  auto i = static_cast<std::int32_t>(-reinterpret_cast<std::uintptr_t>(left) % sizeof(Block) / 2);
  for (; count - i >= kLong; i += kLong) {
    const Block low = anyOfHalf(i);
    if (Any(low | anyOfHalf(i + kHalf)))
      return Any(low) ? i : i + kHalf;
  }
  return i;
}

/// The number of units before the first difference, at most `count`.
[[gnu::always_inline]] inline std::int32_t EqualUnits(const char16_t* left, const char16_t* right,
                                                      std::int32_t count) {
  std::int32_t i = 0;
  if constexpr (kHasBlocks) {
    if (count >= kLong)
      i = EqualRun(left, right, count);
    for (; count - i >= kBlock; i += kBlock)
      if (const Block different = Differences(left + i, right + i); Any(different))
        return i + FirstOf(different);
  } else {
    while (count - i >= 4 && FourUnits(left + i) == FourUnits(right + i))
      i += 4;
  }
  while (i < count && left[i] == right[i])
    ++i;
  return i;
}

/// Orders two numbers.
constexpr signed char Order(std::int32_t left, std::int32_t right) {
  return static_cast<signed char>((left > right) - (left < right));
}

/// Compares in code unit order. Decides all texts but null ones.
[[gnu::always_inline]] inline signed char InUnitOrder(Units left, Units right) {
  if (!left.first || !right.first)
    return kUndecided;
  const std::int32_t shorter = std::min(left.count, right.count);
  const std::int32_t equal = EqualUnits(left.first, right.first, shorter);
  return equal < shorter ? Order(left.first[equal], right.first[equal])
                         : Order(left.count, right.count);
}

/// Whether the unit at `place` is half of a surrogate pair.
[[gnu::always_inline]] inline bool IsInPair(Units text, std::int32_t place) {
  const char16_t unit = text.first[place];
  return IsLead(unit) ? place + 1 < text.count && IsTrail(text.first[place + 1])
                      : IsTrail(unit) && place > 0 && IsLead(text.first[place - 1]);
}

/// Compares in code point order: by the units in which the texts first differ, except that half of
/// a pair sorts after every unit that is none. Decides all texts but null ones.
[[gnu::always_inline]] inline signed char InCodePointOrder(Units left, Units right) {
  if (!left.first || !right.first)
    return kUndecided;
  const std::int32_t shorter = std::min(left.count, right.count);
  const std::int32_t equal = EqualUnits(left.first, right.first, shorter);
  if (equal == shorter)
    return Order(left.count, right.count);
  const bool ours = IsInPair(left, equal), theirs = IsInPair(right, equal);
  return ours == theirs ? Order(left.first[equal], right.first[equal]) : Order(ours, theirs);
}

/// Whether every unit is below `limit`.
inline bool AreBelow(Units text, char16_t limit) {
  std::int32_t i = 0;
  for (; kHasBlocks && text.count - i >= kBlock; i += kBlock)
    if (Any(LoadBlock(text.first + i) >= BlockOf(limit)))
      return false;
  while (i < text.count && text.first[i] < limit)
    ++i;
  return i == text.count;
}

constexpr bool IsAscii(char16_t unit) { return unit < 0x80; }

constexpr char16_t FoldAscii(char16_t unit) {
  return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + 0x20) : unit;
}

/// FoldAscii() of four ASCII units.
constexpr std::uint64_t FoldFourAscii(std::uint64_t units) {
  constexpr std::uint64_t kEach = 0x0001000100010001;
  // The bit 0x80 of each unit: whether it is at or above A, and whether it is above Z.
  const std::uint64_t fromA = units + (0x80 - u'A') * kEach;
  const std::uint64_t aboveZ = units + (0x80 - u'Z' - 1) * kEach;
  return units | ((fromA & ~aboveZ & 0x80 * kEach) >> 2);
}

/// Compares without regard to case, by ICU's default folding, in the order of units or code points.
/// Decides as far as units are equal or ASCII. Otherwise both texts are moved past what is equal:
/// the rest decides, because folding looks at one code point at a time. No surrogate pair is split.
inline signed char IgnoringAsciiCase(Units& left, Units& right) {
  if (!left.first || !right.first)
    return kUndecided;
  constexpr std::uint64_t kNotAscii = 0xFF80FF80FF80FF80;
  const std::int32_t shorter = std::min(left.count, right.count);
  std::int32_t i = 0;
  for (; shorter - i >= 4; i += 4) {
    const std::uint64_t ours = FourUnits(left.first + i), theirs = FourUnits(right.first + i);
    if (ours != theirs &&
        (((ours | theirs) & kNotAscii) != 0 || FoldFourAscii(ours) != FoldFourAscii(theirs)))
      break;
  }
  for (; i < shorter; ++i) {
    const char16_t ours = left.first[i], theirs = right.first[i];
    if (ours == theirs)
      continue;
    if (!IsAscii(ours) || !IsAscii(theirs)) {
      if (i > 0 && IsLead(left.first[i - 1]))
        --i;
      left = {left.first + i, left.count - i};
      right = {right.first + i, right.count - i};
      return kUndecided;
    }
    if (FoldAscii(ours) != FoldAscii(theirs))
      return Order(FoldAscii(ours), FoldAscii(theirs));
  }
  return Order(left.count, right.count);
}

#endif
