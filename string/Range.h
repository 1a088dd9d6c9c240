#ifndef ZRSTRING_STRING_RANGE_H
#define ZRSTRING_STRING_RANGE_H

#include <ZRString/ZRTypes.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "string/CodeUnits.h"

/// The length with -1 replaced by the greatest length: ICU clamps nearly every range of a string,
/// so the string's own length need not be looked up.
constexpr std::int32_t Resolved(ZRLong length) { return length == kZRToEnd ? INT32_MAX : length; }

/// The start and the exclusive limit of a range, which may lie past the end of the text.
struct Range {
  std::int32_t start;  // not negative
  std::int32_t limit;  // not negative

  /// 0 if the limit is before the start.
  std::int32_t Length() const { return std::max(limit - start, 0); }
};

/// The units `start` through `end`, both inclusive.
///
/// Clamped at 0 here because most of ICU 72's own Between members subtract before they clamp: a
/// negative start would lengthen the range, and extreme values would overflow.
constexpr Range Between(ZRLong start, ZRLong end) {
  const auto limit = static_cast<std::int32_t>(static_cast<std::uint32_t>(end) + 1);
  if ((start | limit) >= 0)
    return {start, limit};
  return {std::max<std::int32_t>(start, 0), end < 0 ? 0 : end < INT32_MAX ? end + 1 : INT32_MAX};
}

// Always inlined; string/Comparison.h says why.

/// The units of a text; null for an open buffer and in the error state.
[[gnu::always_inline]] inline Units UnitsOf(const icu::UnicodeString& text) {
  return {text.getBuffer(), text.length()};
}

/// The units of a range of `text`, clamped to it; null for an open buffer and in the error state.
[[gnu::always_inline]] inline Units UnitsOf(const icu::UnicodeString& text, ZRLong start,
                                            ZRLong length) {
  const std::int32_t first = std::clamp<std::int32_t>(start, 0, text.length());
  return {text.getBuffer() + first,
          std::clamp<std::int32_t>(Resolved(length), 0, text.length() - first)};
}

[[gnu::always_inline]] inline Units UnitsOf(const icu::UnicodeString& text, Range range) {
  return UnitsOf(text, range.start, range.Length());
}

/// The units of a range of a raw text, clamped to that text, which ends before its first zero unit.
/// Reads neither past that zero nor past the range.
inline Units TerminatedUnits(const unsigned short* text, ZRLong start, ZRLong length) {
  if (!text || length < kZRToEnd)
    return {nullptr, 0};
  const char16_t* const units = ToIcu(text);
  const std::size_t first = std::max<ZRLong>(start, 0);
  const std::size_t limit = length == kZRToEnd ? INT32_MAX : first + length;
  std::size_t end = 0;
  while (end < limit && units[end] != 0)
    ++end;
  return end <= first ? Units{nullptr, 0}
                      : Units{units + first, static_cast<std::int32_t>(end - first)};
}

#endif
