#ifndef ZRSTRING_STRING_RANGE_H
#define ZRSTRING_STRING_RANGE_H

#include <ZRString/ZRTypes.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <cstdint>

/// As a length: to the end of the string that the range refers to.
constexpr ZRLong kToEnd = -1;

/// A length with kToEnd resolved. ICU cuts every range of a string at that string's end, so the
/// greatest length is as good as the string's own and needs no look at it.
constexpr std::int32_t Resolved(ZRLong length) { return length == kToEnd ? INT32_MAX : length; }

/// The start and the exclusive limit of a range; ICU cuts what lies past the end of the text.
struct Range {
  std::int32_t start;  // not negative
  std::int32_t limit;  // not negative

  /// Negative when the limit lies before the start, which to ICU is an empty range.
  std::int32_t Length() const { return limit - start; }
};

/// The units `start` through `end`, both inclusive.
///
/// ICU 72's own Between members subtract before they pin: a negative start would make the range
/// longer there, and extremes would overflow. An end that has no successor stands for the end.
constexpr Range Between(ZRLong start, ZRLong end) {
  const auto limit = static_cast<std::uint32_t>(std::max<std::int32_t>(end, -1)) + 1;
  return {std::max<std::int32_t>(start, 0),
          static_cast<std::int32_t>(std::min<std::uint32_t>(limit, INT32_MAX))};
}

#endif
