#ifndef ZRSTRING_STRING_CODEUNITS_H
#define ZRSTRING_STRING_CODEUNITS_H

#include <ZRString/ZRTypes.h>
#include <unicode/char16ptr.h>
#include <unicode/unistr.h>

#include <cstdint>

// The interface's code unit, unsigned short, and ICU's, char16_t, are distinct types of the same
// width. Every pointer to one becomes a pointer to the other here, behind ICU's aliasing barrier.

inline const char16_t* ToIcu(const unsigned short* units) { return icu::ConstChar16Ptr(units); }

inline char16_t* ToIcu(unsigned short* units) { return icu::Char16Ptr(units); }

// ICU's own way back, toOldUCharPtr, gives wchar_t on Windows.
inline const unsigned short* FromIcu(const char16_t* units) {
#ifdef U_ALIASING_BARRIER
  U_ALIASING_BARRIER(units);
#endif
  return reinterpret_cast<const unsigned short*>(units);
}

inline unsigned short* FromIcu(char16_t* units) {
  return const_cast<unsigned short*>(FromIcu(const_cast<const char16_t*>(units)));
}

/// A length of a raw text as ICU 72 reads it reliably: below -1 some of its members do not take a
/// negative length as "up to the terminating zero".
inline std::int32_t RawLength(ZRLong length) { return length < 0 ? -1 : length; }

/// The range of a raw text, its start already applied.
///
/// ICU 72 mishandles a start together with a negative length: compare() and caseCompare() measure
/// the text from twice the start, startsWith() from its beginning. From 0 all of them are right.
struct RawRange {
  const char16_t* units;
  std::int32_t length;
};

inline RawRange RawRangeOf(const unsigned short* text, ZRLong start, ZRLong length) {
  return text ? RawRange{ToIcu(text + start), RawLength(length)} : RawRange{nullptr, 0};
}

#endif
