#ifndef ZRSTRING_STRING_SEARCH_H
#define ZRSTRING_STRING_SEARCH_H

#include <unicode/ustring.h>

#include <cstdint>
#include <cstring>

#include "string/Blocks.h"
#include "string/CodeUnits.h"
#include "string/Comparison.h"

/// The place of the first occurrence of a pattern, which is not empty, in a text; -1 if there is
/// none. As ICU's indexOf().
///
/// ICU looks at each place; this looks at places in blocks, for the pattern's first and last unit.
/// A pattern that begins or ends with half of a surrogate pair must not split a pair: ICU finds it.
inline std::int32_t IndexOf(Units text, Units pattern) {
  const char16_t first = pattern.first[0], last = pattern.first[pattern.count - 1];
  if (IsTrail(first) || IsLead(last)) {
    const char16_t* const found =
        u_strFindFirst(text.first, text.count, pattern.first, pattern.count);
    return found ? static_cast<std::int32_t>(found - text.first) : -1;
  }
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
  for (; places - i >= 2 * kBlock; i += 2 * kBlock) {
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

#endif
