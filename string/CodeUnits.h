#ifndef ZRSTRING_STRING_CODEUNITS_H
#define ZRSTRING_STRING_CODEUNITS_H

#include <ZRString/ZRTypes.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

// The interface's code unit, unsigned short, and ICU's, char16_t, are distinct types of the same
// width. The library's conversions between pointers to them are here, with ICU's aliasing barrier.

inline const char16_t* ToIcu(const unsigned short* units) { return icu::ConstChar16Ptr(units); }

inline char16_t* ToIcu(unsigned short* units) { return icu::Char16Ptr(units); }

// ICU's own conversion back, toOldUCharPtr, gives wchar_t on Windows.
inline const unsigned short* FromIcu(const char16_t* units) {
#ifdef U_ALIASING_BARRIER
  U_ALIASING_BARRIER(units);
#endif
  return reinterpret_cast<const unsigned short*>(units);
}

inline unsigned short* FromIcu(char16_t* units) {
  return const_cast<unsigned short*>(FromIcu(const_cast<const char16_t*>(units)));
}

/// The length of the longest text that ICU 72 allocates storage for. Of its own calls, those that
/// leave room to grow write past that storage if the text is a few units longer.
constexpr std::int32_t kMaxLength = 0x7FFFFFF5;

/// The number of units that ICU keeps inside its string object.
constexpr std::int32_t kMaxInside =
    (UNISTR_OBJECT_SIZE - sizeof(void*) - sizeof(std::int16_t)) / sizeof(char16_t);

/// Units that belong to somebody else. `first` is null where there is no text.
struct Units {
  const char16_t* first;
  std::int32_t count;
};

/// A raw operand with its start added to the pointer; empty for a null text.
///
/// For ICU 72's startsWith(), which measures a text from its beginning whatever the start, and for
/// calls that do not take a null text for an empty one.
inline Units RawUnits(const unsigned short* text, ZRLong start, ZRLong length) {
  return text ? Units{ToIcu(text + start), length} : Units{nullptr, 0};
}

/// The number of units before the zero unit, at most INT32_MAX.
inline std::int32_t TerminatedLength(const char16_t* text) {
  return static_cast<std::int32_t>(
      std::min<std::size_t>(std::char_traits<char16_t>::length(text), INT32_MAX));
}

/// A raw operand with its start added to the pointer and its length measured.
inline Units MeasuredUnits(const unsigned short* text, ZRLong start, ZRLong length) {
  const Units raw = RawUnits(text, start, length);
  return raw.count < 0 ? Units{raw.first, TerminatedLength(raw.first)} : raw;
}

#endif
