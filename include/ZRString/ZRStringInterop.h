#ifndef ZRSTRING_ZRSTRINGINTEROP_H
#define ZRSTRING_ZRSTRINGINTEROP_H

#if __cplusplus < 201703L && (!defined(_MSVC_LANG) || _MSVC_LANG < 201703L)
#error "<ZRString/ZRStringInterop.h> needs C++17 or later, for example the option -std=c++17"
#elif !defined(__cpp_exceptions) && !defined(_CPPUNWIND)
#error "<ZRString/ZRStringInterop.h> needs exceptions: leave out the option -fno-exceptions"
#else

#include <ZRString/ZRStringMutator.h>

#include <climits>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <functional>
#include <new>
#include <ostream>
#include <stdexcept>
#include <string>
#include <string_view>
#if __has_include(<version>)
#include <version>
#endif
#ifdef __cpp_lib_format
#include <format>
#endif

/// @file
/// Strings and the C++ standard library: UTF-8, `std::u16string_view`, hashing, ordering, printing.
///
/// The shared library contains none of this: the header is compiled into the programs that include
/// it and uses only the public members of ZRString and ZRStringMutator. Besides the functions below
/// it specializes `std::hash`, so that strings can be keys of unordered containers, and, with
/// `<format>` of C++20, `std::formatter`, which formats a string like a `std::string` of its UTF-8.
///
/// **Ill-formed text.** In UTF-8, each maximal subpart of an ill-formed sequence becomes one
/// U+FFFD, as the Unicode standard recommends and ICU does. In UTF-16, each unpaired surrogate
/// becomes U+FFFD. Zero bytes and zero units are characters like any other.
///
/// **Open buffers and the error state.** A string with an open writable buffer, or in ICU's error
/// state, reads as empty.
///
/// **Errors.** A text of 2^31 or more units or bytes throws `std::length_error`. If memory runs
/// out, ICU's included, the functions throw `std::bad_alloc`. The header does not compile without
/// exceptions.
///
/// **Aliasing.** `unsigned short`, the library's code unit, and `char16_t` are different types, so
/// a compiler may assume that pointers to them never point to the same memory. ICU stores the units
/// as `char16_t`, and a view reads them as such. Pointers are converted behind a compiler barrier,
/// as in ICU's own headers. A program that writes units through ZRStringMutator::GetBuffer() calls
/// ReleaseBuffer(), which the compiler cannot see into, before it can take a view of them.

/// @cond
namespace ZRStringInteropDetail {

constexpr std::uint32_t kReplacement = 0xFFFD;

constexpr bool IsLead(std::uint32_t unit) { return (unit & 0xFC00) == 0xD800; }
constexpr bool IsTrail(std::uint32_t unit) { return (unit & 0xFC00) == 0xDC00; }

template <typename To, typename From>
To* UnitsAs(From* units) {
#ifdef __GNUC__
  __asm__ __volatile__("" : : "rm"(units) : "memory");
#endif
  return reinterpret_cast<To*>(units);
}

inline ZRLong Length(std::size_t size) {
  if (size > INT32_MAX)
    throw std::length_error("ZRString: a text of 2^31 units or bytes, or more");
  return static_cast<ZRLong>(size);
}

// ASCII is converted in blocks of this many characters, for which compilers use vector
// instructions.
constexpr std::ptrdiff_t kBlock = 8;

// Texts of up to this many units or bytes are converted on the stack.
constexpr ZRLong kOnStack = 256;

// ICU stores texts of this length inside the body, whatever room they are given.
constexpr ZRLong kShort = 24;

inline bool WidenBlock(const char* bytes, unsigned short* units) {
  unsigned char block[kBlock];
  std::uint64_t together;
  std::memcpy(block, bytes, sizeof block);
  std::memcpy(&together, bytes, sizeof together);
  if (together & 0x8080808080808080)
    return false;
  for (std::ptrdiff_t i = 0; i < kBlock; ++i)
    units[i] = block[i];
  return true;
}

inline bool NarrowBlock(const char16_t* units, char* bytes) {
  char16_t block[kBlock];
  std::uint64_t halves[2];
  std::memcpy(block, units, sizeof block);
  std::memcpy(halves, units, sizeof halves);
  if ((halves[0] | halves[1]) & 0xFF80FF80FF80FF80)
    return false;
  for (std::ptrdiff_t i = 0; i < kBlock; ++i)
    bytes[i] = static_cast<char>(block[i]);
  return true;
}

/// Reads the code point at `*next`, which is not ASCII, and moves `*next` behind it. If it is
/// ill-formed, moves `*next` behind its maximal subpart and returns U+FFFD.
inline std::uint32_t Decode(const char** next, const char* end) {
  const auto lead = static_cast<unsigned char>(*(*next)++);
  const int trails = lead < 0xC2 || lead > 0xF4 ? 0 : lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
  if (trails == 0)
    return kReplacement;
  // The range of the second byte excludes overlong forms, surrogates and what is above U+10FFFF.
  unsigned least = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
  unsigned greatest = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
  std::uint32_t codePoint = lead & (0x3Fu >> trails);
  for (int i = 0; i < trails; ++i) {
    const unsigned trail = *next == end ? 0 : static_cast<unsigned char>(**next);
    if (trail < least || trail > greatest)
      return kReplacement;
    codePoint = codePoint << 6 | (trail & 0x3F);
    least = 0x80;
    greatest = 0xBF;
    ++*next;
  }
  return codePoint;
}

/// Writes `text` as UTF-16, at most one unit per byte, and returns the number of units.
inline ZRLong Utf16FromUtf8(std::string_view text, unsigned short* units) {
  unsigned short* to = units;
  const char* next = text.data();
  const char* const end = next + text.size();
  const auto byte = [&](int i) { return static_cast<unsigned char>(next[i]); };
  const auto put = [&](std::uint32_t unit) { *to++ = static_cast<unsigned short>(unit); };
  while (next != end) {
    for (; end - next >= kBlock && WidenBlock(next, to); next += kBlock)
      to += kBlock;
    for (; next != end && byte(0) < 0x80; ++next)
      put(byte(0));
    while (next != end && byte(0) >= 0x80) {
      // Two and three bytes, unless the second one's range depends on the first.
      if (end - next >= 3 && (byte(1) & 0xC0) == 0x80) {
        const std::uint32_t lead = byte(0);
        if (lead >= 0xC2 && lead < 0xE0) {
          put((lead & 0x1F) << 6 | (byte(1) & 0x3F));
          next += 2;
          continue;
        }
        if (lead > 0xE0 && lead < 0xF0 && lead != 0xED && (byte(2) & 0xC0) == 0x80) {
          put((lead & 0x0F) << 12 | (byte(1) & 0x3F) << 6 | (byte(2) & 0x3F));
          next += 3;
          continue;
        }
      }
      const char* behind = next;
      const std::uint32_t codePoint = Decode(&behind, end);
      next = behind;
      if (codePoint > 0xFFFF) {
        put(0xD7C0 + (codePoint >> 10));
        put(0xDC00 | (codePoint & 0x3FF));
      } else {
        put(codePoint);
      }
    }
  }
  return static_cast<ZRLong>(to - units);
}

/// Writes the units from `*next` up to `limit` as UTF-8, at most three bytes per unit, and returns
/// the number of bytes. If `limit` splits a surrogate pair, the whole pair is written. Moves
/// `*next` behind the last unit written.
inline std::size_t Utf8FromUtf16(const char16_t** next, const char16_t* limit, const char16_t* end,
                                 char* bytes) {
  const char16_t* from = *next;
  char* to = bytes;
  const auto put = [&](std::uint32_t byte) { *to++ = static_cast<char>(byte); };
  while (from < limit) {
    for (; limit - from >= kBlock && NarrowBlock(from, to); from += kBlock)
      to += kBlock;
    for (; from < limit && *from < 0x80; ++from)
      put(*from);
    while (from < limit && *from >= 0x80) {
      std::uint32_t codePoint = *from++;
      if (codePoint < 0x800) {
        put(0xC0 | codePoint >> 6);
        put(0x80 | (codePoint & 0x3F));
        continue;
      }
      if (IsLead(codePoint) && from != end && IsTrail(*from)) {
        codePoint = 0x10000 + ((codePoint & 0x3FF) << 10) + (*from++ & 0x3FF);
        put(0xF0 | codePoint >> 18);
        put(0x80 | (codePoint >> 12 & 0x3F));
      } else {
        if (IsLead(codePoint) || IsTrail(codePoint))
          codePoint = kReplacement;
        put(0xE0 | codePoint >> 12);
      }
      put(0x80 | (codePoint >> 6 & 0x3F));
      put(0x80 | (codePoint & 0x3F));
    }
  }
  *next = from;
  return static_cast<std::size_t>(to - bytes);
}

/// A string without room to grow, which the constructors would leave.
inline ZRString Exact(const unsigned short* units, ZRLong length) {
  if (length <= kShort)
    return ZRString(units, length);
  ZRStringMutator string;
  unsigned short* const buffer = string.GetBuffer(length);
  if (!buffer)
    throw std::bad_alloc();
  std::memcpy(buffer, units, static_cast<std::size_t>(length) * sizeof *units);
  string.ReleaseBuffer(length);
  return string;
}

}  // namespace ZRStringInteropDetail
/// @endcond

/// An inline namespace: its functions are called without naming it, and cannot be mixed up by the
/// linker with functions of the same names in other files of a program.
inline namespace ZRStringInterop {

/// A view of the units of `string`, not a copy: valid as long as the pointer that
/// ZRString::GetBuffer() returns.
inline std::u16string_view Utf16View(const ZRString& string) {
  return {ZRStringInteropDetail::UnitsAs<const char16_t>(string.GetBuffer()),
          static_cast<std::size_t>(string.GetLength())};
}

/// A string with a copy of `text`, which may also be a `std::u16string` or a literal `u"..."`.
inline ZRString FromUtf16(std::u16string_view text) {
  return ZRStringInteropDetail::Exact(
      ZRStringInteropDetail::UnitsAs<const unsigned short>(text.data()),
      ZRStringInteropDetail::Length(text.size()));
}

/// `u"..."_zr` is a string of the whole literal, embedded zero units included.
inline ZRString operator""_zr(const char16_t* text, std::size_t size) {
  return FromUtf16({text, size});
}

/// A string of text in UTF-8.
inline ZRString FromUtf8(std::string_view text) {
  const ZRLong size = ZRStringInteropDetail::Length(text.size());
  if (size <= ZRStringInteropDetail::kOnStack) {
    unsigned short units[ZRStringInteropDetail::kOnStack];
    return ZRStringInteropDetail::Exact(units, ZRStringInteropDetail::Utf16FromUtf8(text, units));
  }
  ZRStringMutator string;
  unsigned short* const units = string.GetBuffer(size);
  if (!units)
    throw std::bad_alloc();
  const ZRLong length = ZRStringInteropDetail::Utf16FromUtf8(text, units);
  string.ReleaseBuffer(length);
  if (size - length <= length / 4)
    return string;
  return ZRStringInteropDetail::Exact(string.GetBuffer(), length);
}

#ifdef __cpp_char8_t
/// A string of text in UTF-8, which may also be a literal `u8"..."`.
inline ZRString FromUtf8(std::u8string_view text) {
  return FromUtf8(std::string_view(reinterpret_cast<const char*>(text.data()), text.size()));
}
#endif

/// `text` as UTF-8.
inline std::string ToUtf8(std::u16string_view text) {
  constexpr std::size_t kChunk = ZRStringInteropDetail::kOnStack;
  char chunk[3 * kChunk + 1];
  const char16_t* next = text.data();
  const char16_t* const end = next + text.size();
  if (text.size() <= kChunk)
    return std::string(chunk, ZRStringInteropDetail::Utf8FromUtf16(&next, end, end, chunk));
  std::string bytes;
  bytes.reserve(text.size());
  for (std::size_t rest = text.size(); rest > 0;) {
    const char16_t* const limit = next + (rest < kChunk ? rest : kChunk);
    const std::size_t size = ZRStringInteropDetail::Utf8FromUtf16(&next, limit, end, chunk);
    rest = static_cast<std::size_t>(end - next);
    if (bytes.capacity() - bytes.size() < size)
      bytes.reserve(bytes.size() + size + 3 * rest);
    bytes.append(chunk, size);
  }
  if (bytes.capacity() - bytes.size() > bytes.size() / 4)
    bytes.shrink_to_fit();
  return bytes;
}

/// The text of `string` as UTF-8.
inline std::string ToUtf8(const ZRString& string) { return ToUtf8(Utf16View(string)); }

#ifdef _WIN32
/// A string with a copy of `text`, which comes from a function of Windows.
inline ZRString FromWide(std::wstring_view text) {
  return ZRStringInteropDetail::Exact(
      ZRStringInteropDetail::UnitsAs<const unsigned short>(text.data()),
      ZRStringInteropDetail::Length(text.size()));
}

/// The text of `string` for a function of Windows.
inline std::wstring ToWide(const ZRString& string) {
  const std::u16string_view units = Utf16View(string);
  return std::wstring(units.begin(), units.end());
}
#endif

/// Orders strings and other UTF-16 texts by code units, as ZRString::operator<() does. With it,
/// `std::map<ZRString, Value, ZRStringLess>` can be searched for a `std::u16string_view` without
/// creating a string.
struct ZRStringLess {
  using is_transparent = void;  ///< The operands may have different types.

  /// Whether `left` sorts before `right`; each is a ZRString or converts to `std::u16string_view`.
  template <typename Left, typename Right>
  bool operator()(const Left& left, const Right& right) const {
    return View(left) < View(right);
  }

 private:
  static std::u16string_view View(const ZRString& string) { return Utf16View(string); }
  static std::u16string_view View(std::u16string_view text) { return text; }
};

/// Inserts the text of `string` as UTF-8, like a `std::string`: the field width counts bytes.
inline std::ostream& operator<<(std::ostream& stream, const ZRString& string) {
  return stream << ToUtf8(string);
}

/// Prints `string` for debugging: as UTF-8 in quotation marks, with control characters and unpaired
/// surrogates as numbers. GoogleTest calls this function to print strings.
inline void PrintTo(const ZRString& string, std::ostream* stream) {
  if (!string.GetBuffer()) {
    *stream << "(no text: its buffer is open, or ICU ran out of memory)";
    return;
  }
  using ZRStringInteropDetail::IsLead;
  using ZRStringInteropDetail::IsTrail;
  const std::u16string_view text = Utf16View(string);
  std::u16string shown;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool pair = IsLead(text[i]) && i + 1 < text.size() && IsTrail(text[i + 1]);
    const bool control = text[i] < 0x20 || (text[i] >= 0x7F && text[i] < 0xA0);
    if (!pair && (control || IsLead(text[i]) || IsTrail(text[i]))) {
      char number[8];
      std::snprintf(number, sizeof number, "\\u%04X", static_cast<unsigned>(text[i]));
      shown.append(number, number + 6);
    } else if (pair) {
      shown.append(text, i++, 2);
    } else {
      if (text[i] == u'"' || text[i] == u'\\')
        shown += u'\\';
      shown += text[i];
    }
  }
  *stream << '"' << ToUtf8(shown) << '"';
}

/// Prints a ZRStringMutator as above.
inline void PrintTo(const ZRStringMutator& string, std::ostream* stream) {
  PrintTo(static_cast<const ZRString&>(string), stream);
}

}  // namespace ZRStringInterop

/// @cond
template <>
struct std::hash<ZRString> {
  std::size_t operator()(const ZRString& string) const {
    return std::hash<std::u16string_view>()(Utf16View(string));
  }
};

template <>
struct std::hash<ZRStringMutator> : std::hash<ZRString> {};

#ifdef __cpp_lib_format
template <>
struct std::formatter<ZRString> : std::formatter<std::string_view> {
  template <typename Context>
  auto format(const ZRString& string, Context& context) const {
    return std::formatter<std::string_view>::format(ToUtf8(string), context);
  }
};

template <>
struct std::formatter<ZRStringMutator> : std::formatter<ZRString> {};
#endif
/// @endcond

#endif

#endif
