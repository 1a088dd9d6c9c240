#ifndef ZRSTRING_ZRSTRINGINTEROP_H
#define ZRSTRING_ZRSTRINGINTEROP_H

#if __cplusplus < 201703L && (!defined(_MSVC_LANG) || _MSVC_LANG < 201703L)
#error "<ZRString/ZRStringInterop.h> needs C++17 or later, for example the option -std=c++17"
#elif !defined(__cpp_exceptions) && !defined(_CPPUNWIND)
#error "<ZRString/ZRStringInterop.h> needs exceptions: leave out the option -fno-exceptions"
#else

#include <ZRString/ZRStringMutator.h>
#include <ZRString/ZRStringUtf8.h>

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
/// **Errors.** A text of 2^31 or more units throws `std::length_error`, given as UTF-8, too. UTF-8
/// may have any number of bytes. If memory runs out, ICU's included, or if ICU cannot hold a text
/// so long, the functions throw `std::bad_alloc`. The header does not compile without exceptions.
///
/// **Aliasing.** `unsigned short`, the library's code unit, and `char16_t` are different types, so
/// a compiler may assume that pointers to them never point to the same memory. ICU stores the units
/// as `char16_t`, and a view reads them as such. Pointers are converted behind a compiler barrier,
/// as in ICU's own headers. A program that writes units through ZRStringMutator::GetBuffer() calls
/// ReleaseBuffer(), which the compiler cannot see into, before it can take a view of them.

/// @cond
namespace ZRStringInteropDetail {

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
    throw std::length_error("ZRString: a text of 2^31 units or more");
  return static_cast<ZRLong>(size);
}

// A text of more bytes than this is measured before it gets storage.
constexpr std::size_t kMaybeTooLong = 0x40000000;

/// A string without room to grow, which the constructors would leave.
inline ZRString Exact(const unsigned short* units, ZRLong length) {
  if (length <= kZRUtf8Short)
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
  const auto* next = reinterpret_cast<const unsigned char*>(text.data());
  const unsigned char* const end = next + text.size();
  if (text.size() <= kZRUtf8Chunk) {
    unsigned short units[kZRUtf8Chunk];
    const std::size_t length = ZRUtf8Decode(&next, end, end, units);
    return ZRStringInteropDetail::Exact(units, static_cast<ZRLong>(length));
  }
  const ZRLong room =
      text.size() <= ZRStringInteropDetail::kMaybeTooLong
          ? static_cast<ZRLong>(text.size())
          : ZRUtf8Room(text.size(), ZRStringInteropDetail::Length(ZRUtf8CountUnits(next, end)));
  ZRStringMutator string;
  unsigned short* const units = string.GetBuffer(room);
  if (!units)
    throw std::bad_alloc();
  const auto length = static_cast<ZRLong>(ZRUtf8Decode(&next, end, end, units));
  string.ReleaseBuffer(length);
  if (room - length <= length / 4)
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
  constexpr std::size_t kChunk = 1024;
  char chunk[3 * kChunk + 1];
  std::size_t rest = static_cast<std::size_t>(ZRStringInteropDetail::Length(text.size()));
  const auto* next = ZRStringInteropDetail::UnitsAs<const ZRUtf8Unit>(text.data());
  const ZRUtf8Unit* const end = next + rest;
  if (rest <= kChunk)
    return std::string(chunk, ZRUtf8Encode(&next, end, end, chunk));
  std::string bytes;
  bytes.reserve(rest);
  while (rest > 0) {
    const std::size_t size =
        ZRUtf8Encode(&next, next + (rest < kChunk ? rest : kChunk), end, chunk);
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
