#ifndef ZRSTRING_STRING_SEARCH_H
#define ZRSTRING_STRING_SEARCH_H

#include <unicode/ustring.h>

#include <cstdint>
#include <cstring>

#include "string/Blocks.h"
#include "string/CodeUnits.h"
#include "string/Comparison.h"

/// Whether a pattern, which is not empty, may occur in the middle of a surrogate pair, where it
/// must not be found.
inline bool MaySplitPair(Units pattern) {
  return IsTrail(pattern.first[0]) || IsLead(pattern.first[pattern.count - 1]);
}

/// The place of the first occurrence of a pattern for which MaySplitPair() is false; -1 if there is
/// none. Looks at blocks of places, for the first and the last unit of the pattern.
[[gnu::noinline]] inline std::int32_t IndexOfWhole(Units text, Units pattern) {
  const char16_t first = pattern.first[0], last = pattern.first[pattern.count - 1];
  const std::int32_t places = text.count - pattern.count + 1;
  const char16_t* const ends = text.first + pattern.count - 1;
  const auto isAt = [&](std::int32_t place) {
    return text.first[place] == first && ends[place] == last &&
           std::memcmp(text.first + place, pattern.first, pattern.count * sizeof first) == 0;
  };
  const Block firsts = BlockOf(first), lasts = BlockOf(last);
  const auto candidates = [&](std::int32_t place) {
    return (LoadBlock(text.first + place) == firsts) & (LoadBlock(ends + place) == lasts);
  };
  std::int32_t i = 0;
  for (; kHasBlocks && places - i >= 2 * kBlock; i += 2 * kBlock) {
    const auto low = candidates(i), high = candidates(i + kBlock);
    if (!Any(low | high))
      continue;
    for (std::int32_t k = Any(low) ? FirstOf(low) : kBlock; k < 2 * kBlock; ++k)
      if (isAt(i + k))
        return i + k;
  }
  for (; i < places; ++i)
    if (isAt(i))
      return i;
  return -1;
}

/// As ICU's indexOf(), for a pattern that is not empty.
inline std::int32_t IndexOf(Units text, Units pattern) {
  if (pattern.count > text.count)
    return -1;
  if (!MaySplitPair(pattern))
    return IndexOfWhole(text, pattern);
  const char16_t* const found =
      u_strFindFirst(text.first, text.count, pattern.first, pattern.count);
  return found ? static_cast<std::int32_t>(found - text.first) : -1;
}

#endif
