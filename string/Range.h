#ifndef ZRSTRING_STRING_RANGE_H
#define ZRSTRING_STRING_RANGE_H

#include <ZRString/ZRTypes.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <cstdint>

/// As a length: to the end of the string that the range refers to.
constexpr ZRLong kToEnd = -1;

/// A length with kToEnd resolved. Whatever the start, ICU cuts the range at the end of `text`.
inline std::int32_t Resolved(ZRLong length, const icu::UnicodeString& text) {
  return length == kToEnd ? text.length() : length;
}

/// A range that lies inside a text: 0 <= start <= limit <= the text's length.
struct Range {
  std::int32_t start;
  std::int32_t limit;

  std::int32_t Length() const { return limit - start; }
};

/// The units `start` through `end`, both inclusive, cut to `text`.
///
/// ICU 72's own Between members subtract before they pin: a negative start makes the range longer
/// there, and extremes overflow. An end at or past the last index is never incremented.
inline Range Between(ZRLong start, ZRLong end, const icu::UnicodeString& text) {
  const std::int32_t length = text.length();
  const std::int32_t first = std::clamp<std::int32_t>(start, 0, length);
  return {first, end < length ? std::max<std::int32_t>(end + 1, first) : length};
}

/// `length` units from `start`, kToEnd resolved, cut to `text`.
inline Range Pinned(ZRLong start, ZRLong length, const icu::UnicodeString& text) {
  const std::int32_t first = std::clamp<std::int32_t>(start, 0, text.length());
  const std::int32_t rest = text.length() - first;
  return {first, first + std::clamp<std::int32_t>(Resolved(length, text), 0, rest)};
}

#endif
