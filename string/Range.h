#ifndef ZRSTRING_STRING_RANGE_H
#define ZRSTRING_STRING_RANGE_H

#include <ZRString/ZRTypes.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "string/CodeUnits.h"

/// A length with kZRToEnd resolved. ICU cuts every range of a string at that string's end, so the
/// greatest length is as good as the string's own and needs no look at it.
constexpr std::int32_t Resolved(ZRLong length) { return length == kZRToEnd ? INT32_MAX : length; }

/// The start and the exclusive limit of a range; ICU cuts what lies past the end of the text.
struct Range {
  std::int32_t start;  // not negative
  std::int32_t limit;  // not negative

  /// 0 when the limit lies before the start.
  std::int32_t Length() const { return std::max(limit - start, 0); }
};

/// The units `start` through `end`, both inclusive.
///
/// ICU 72's own Between members subtract before they pin: a negative start would make the range
/// longer there, and extremes would overflow. An end that has no successor stands for the end.
constexpr Range Between(ZRLong start, ZRLong end) {
  const auto limit = static_cast<std::int32_t>(static_cast<std::uint32_t>(end) + 1);
  if ((start | limit) >= 0)
    return {start, limit};
  return {std::max<std::int32_t>(start, 0), end < 0 ? 0 : end < INT32_MAX ? end + 1 : INT32_MAX};
}

/// The units of a range of `text`, cut to it.
inline Units UnitsOf(const icu::UnicodeString& text, ZRLong start, ZRLong length) {
  const std::int32_t first = std::clamp<std::int32_t>(start, 0, text.length());
  return {text.getBuffer() + first,
          std::clamp<std::int32_t>(Resolved(length), 0, text.length() - first)};
}

/// The units of a range of a raw text, cut to that text, which ends before its first zero unit.
/// Reads no unit behind that zero nor behind the range.
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
