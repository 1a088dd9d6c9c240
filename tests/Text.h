// The texts of the tests, a model of ranges, and access to the body of a string.
#ifndef ZRSTRING_TESTS_TEXT_H
#define ZRSTRING_TESTS_TEXT_H

#include <ZRString/ZRString.h>

#include <algorithm>
#include <climits>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string>

using Text = std::u16string;

inline const unsigned short* Raw(const char16_t* text) {
  return reinterpret_cast<const unsigned short*>(text);
}

inline const unsigned short* Raw(const Text& text) { return Raw(text.c_str()); }

inline ZRString Make(const Text& text) {
  return ZRString(Raw(text), 0, static_cast<ZRLong>(text.size()));
}

inline Text TextOf(const ZRString& string) {
  const unsigned short* const units = string.GetBuffer();
  return units ? Text(units, units + string.GetLength()) : Text();
}

/// A string is a pointer to a virtual table and one to a body; a body begins with its count.
inline const std::int32_t* BodyOf(const ZRString& string) {
  const std::int32_t* body;
  std::memcpy(&body, reinterpret_cast<const char*>(&string) + sizeof(void*), sizeof body);
  return body;
}

inline int Holders(const ZRString& string) { return *BodyOf(string); }

// A model of ranges, in 64 bits and without ICU.

inline Text CutBetween(const Text& text, long long start, long long end) {
  const auto size = static_cast<long long>(text.size());
  const long long first = std::clamp(start, 0LL, size);
  return text.substr(first, std::clamp(end + 1, first, size) - first);
}

inline Text Cut(const Text& text, long long start, long long length) {
  const long long first = std::max(start, 0LL), end = length == -1 ? INT_MAX : first + length - 1;
  return CutBetween(text, first, end);
}

#endif
