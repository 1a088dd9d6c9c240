// The texts of the tests, a model of ranges, and access to the body of a string.
#ifndef ZRSTRING_TESTS_TEXT_H
#define ZRSTRING_TESTS_TEXT_H

#include <ZRString/ZRString.h>

#include <algorithm>
#include <climits>
#include <cstdint>
#include <cstring>
#include <memory>
#include <ostream>
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

/// A raw text in memory of exactly its size, so that a sanitizer sees reads past either end.
class ExactText {
 public:
  ExactText(const Text& text, bool terminated)
      : units_(new unsigned short[text.size() + terminated]) {
    std::copy(text.begin(), text.end(), units_.get());
    if (terminated)
      units_[text.size()] = 0;
  }

  const unsigned short* Units() const { return units_.get(); }

 private:
  std::unique_ptr<unsigned short[]> units_;
};

// A model of ranges, in 64 bits and without ICU.

inline Text CutBetween(const Text& text, ZRLong start, ZRLong end) {
  const auto size = static_cast<long long>(text.size());
  const long long first = std::clamp<long long>(start, 0, size);
  const long long limit = std::clamp<long long>(end + 1LL, first, size);
  return text.substr(first, limit - first);
}

inline Text Cut(const Text& text, ZRLong start, ZRLong length) {
  const auto size = static_cast<long long>(text.size());
  const long long first = std::clamp<long long>(start, 0, size);
  const long long count = length == -1 ? size : std::max<long long>(length, 0);
  return text.substr(first, std::min(count, size - first));
}

#endif
