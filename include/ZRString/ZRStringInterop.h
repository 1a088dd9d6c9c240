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
#include <iterator>
#include <new>
#include <optional>
#include <ostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>
#if __has_include(<version>)
#include <version>
#endif
#ifdef __cpp_lib_format
#include <format>
#endif

/// @file
/// Strings and the C++ standard library: UTF-8, `std::u16string_view`, hashing, ordering, printing;
/// characters, and short forms of what programs do most often.
///
/// The shared library contains none of this: the header is compiled into the programs that include
/// it and uses only the public members of ZRString and ZRStringMutator. Besides the functions below
/// it specializes `std::hash`, so that strings can be keys of unordered containers, and, with
/// `<format>` of C++20, `std::formatter`, which formats a string like a `std::string` of its UTF-8.
///
/// **Ill-formed text.** In UTF-8, each maximal subpart of an ill-formed sequence becomes one
/// U+FFFD, as the Unicode standard recommends and ICU does. ToUtf8() makes each unpaired surrogate
/// U+FFFD. Zero bytes and zero units are characters like any other.
///
/// **Open buffers and the error state.** A string with an open writable buffer, or in ICU's error
/// state, reads as empty, except where a comment says otherwise.
///
/// **Errors.** A text of 2^31 or more units throws `std::length_error` where it is converted,
/// counted or looked for. A function that gets no memory, or would make too long a text, throws
/// `std::bad_alloc` or `std::length_error`; but the first UpperCase() or LowerCase() may crash
/// instead. The header does not compile without exceptions.
///
/// **Aliasing.** `unsigned short`, the library's code unit, and `char16_t` are different types, so
/// a compiler may assume that pointers to them never point to the same memory. ICU stores the units
/// as `char16_t`, and a view reads them as such. Pointers are converted behind a compiler barrier,
/// as in ICU's own headers. A program that writes units through ZRStringMutator::GetBuffer() calls
/// ReleaseBuffer(), which the compiler cannot see into, before it can take a view of them.
///
/// @code
/// const ZRString name = FromUtf8("d\xC3\xA9j\xC3\xA0");
/// assert(name == u"d\u00E9j\u00E0"_zr && ToUtf8(name).size() == 6);
/// const std::u16string_view units = Utf16View(name);  // valid as long as `name`
/// assert(units.size() == 4 && FromUtf16(units) == name);
/// assert(std::hash<ZRString>()(name) == std::hash<ZRString>()(FromUtf16(units)));
/// @endcode
/// @since 1.1

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

/// What converts to a view, but is no null pointer.
template <typename Text>
constexpr bool kIsView =
    std::is_convertible_v<const Text&, std::u16string_view> && !std::is_base_of_v<ZRString, Text> &&
    !std::is_same_v<Text, std::nullptr_t>;

template <typename Text>
using IfView = std::enable_if_t<kIsView<Text>, int>;

template <typename Text>
using IfText = std::enable_if_t<kIsView<Text> || std::is_base_of_v<ZRString, Text>, int>;

inline std::u16string_view ViewOf(const ZRString& string) {
  return {UnitsAs<const char16_t>(string.GetBuffer()),
          static_cast<std::size_t>(string.GetLength())};
}
inline std::u16string_view ViewOf(std::u16string_view text) { return text; }

inline const ZRString& StringOf(const ZRString& string) { return string; }
inline ZRString StringOf(std::u16string_view text) {
  return ZRString(UnitsAs<const unsigned short>(text.data()), Length(text.size()));
}

inline bool AreEqual(std::u16string_view left, std::u16string_view right) {
  return left.size() == right.size() &&
         (left.empty() || std::memcmp(left.data(), right.data(), 2 * left.size()) == 0);
}

inline ZRStringMutator Sum(std::u16string_view left, std::u16string_view right) {
  const ZRLong length = Length(left.size() + right.size());
  ZRStringMutator sum;
  unsigned short* const units = sum.GetBuffer(length);
  if (!units)
    throw std::bad_alloc();
  if (!left.empty())
    std::memcpy(units, left.data(), 2 * left.size());
  if (!right.empty())
    std::memcpy(units + left.size(), right.data(), 2 * right.size());
  sum.ReleaseBuffer(length);
  return sum;
}

inline void ThrowIfLost(const ZRStringMutator& edited) {
  if (!edited.GetBuffer())
    throw std::bad_alloc();
}

/// A text or a single unit that a function looks for: a string, or units.
struct Pattern {
  template <typename Text, IfText<Text> = 0>
  Pattern(const Text& text) {
    if constexpr (kIsView<Text>)
      view = text;
    else
      string = &text;
  }
  template <typename Unit,
            std::enable_if_t<std::is_same_v<Unit, char16_t> || std::is_same_v<Unit, unsigned short>,
                             int> = 0>
  Pattern(Unit single) : unit(static_cast<char16_t>(single)), view(&unit, 1) {}
  Pattern(const Pattern&) = delete;
  Pattern& operator=(const Pattern&) = delete;

  ZRLong Size() const { return string ? string->GetLength() : Length(view.size()); }
  ZRString String() const { return string ? *string : StringOf(view); }

  /// Calls `withString` with the string, or `withUnits` with the units and their number.
  template <typename WithString, typename WithUnits>
  auto Call(WithString withString, WithUnits withUnits) const {
    return string ? withString(*string)
                  : withUnits(UnitsAs<const unsigned short>(view.data()), Length(view.size()));
  }

  const ZRString* string = nullptr;
  char16_t unit = 0;
  std::u16string_view view;
};

}  // namespace ZRStringInteropDetail
/// @endcond

/// An inline namespace: its functions are called without naming it, and cannot be mixed up by the
/// linker with functions of the same names in other files of a program.
inline namespace ZRStringInterop {

/// A view of the units of `string`, not a copy: valid as long as the pointer that
/// ZRString::GetBuffer() returns.
inline std::u16string_view Utf16View(const ZRString& string) {
  return ZRStringInteropDetail::ViewOf(string);
}

/// A string with a copy of `text`, which may also be a `std::u16string` or a literal `u"..."`.
inline ZRString FromUtf16(std::u16string_view text) {
  return ZRStringInteropDetail::StringOf(text);
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
    return ZRString(units, static_cast<ZRLong>(length));
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
  return ZRString(string.GetBuffer(), length);
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
  return ZRString(ZRStringInteropDetail::UnitsAs<const unsigned short>(text.data()),
                  ZRStringInteropDetail::Length(text.size()));
}

/// The text of `string` for a function of Windows.
inline std::wstring ToWide(const ZRString& string) {
  const std::u16string_view units = Utf16View(string);
  return std::wstring(units.begin(), units.end());
}
#endif

/// Orders strings and other UTF-16 texts by code units, as ZRString::operator<() does, but a
/// text in ICU's error state counts as empty. With it, `std::map<ZRString, Value, ZRStringLess>`
/// can be searched for a `std::u16string_view` without creating a string.
/// @code
/// const std::vector<ZRString> words = {u"deux"_zr, u"un"_zr};
/// assert(ZRStringLess()(words[0], words[1]) && ZRStringLess()(words[1], u"une"));
/// @endcode
struct ZRStringLess {
  using is_transparent = void;  ///< The operands may have different types.

  /// Whether `left` sorts before `right`; each is a ZRString or converts to `std::u16string_view`.
  template <typename Left, typename Right>
  bool operator()(const Left& left, const Right& right) const {
    return ZRStringInteropDetail::ViewOf(left) < ZRStringInteropDetail::ViewOf(right);
  }
};

/// @name Operators
/// In the comparisons, one operand is a ZRString and the other converts to `std::u16string_view`:
/// `string == u"x"`. They compare code units. A sum is what `+=` would make of a copy; `+=` itself
/// takes no views: `text += u"x"_zr`. In these comparisons and sums, a text in ICU's error state
/// counts as empty. A mutator plus a string, and sums with a character, are not these but those of
/// ZRStringMutator.h.
/// @code
/// const ZRString name = u"un"_zr + u", deux";
/// assert(name == u"un, deux" && name < u"une");
/// @endcode
/// @{

/// `left` followed by `right`.
inline ZRStringMutator operator+(const ZRString& left, const ZRString& right) {
  return ZRStringInteropDetail::Sum(Utf16View(left), Utf16View(right));
}

/// @cond
template <typename Text, ZRStringInteropDetail::IfView<Text> = 0>
ZRStringMutator operator+(const ZRString& left, const Text& right) {
  return ZRStringInteropDetail::Sum(Utf16View(left), right);
}
template <typename Text, ZRStringInteropDetail::IfView<Text> = 0>
ZRStringMutator operator+(const Text& left, const ZRString& right) {
  return ZRStringInteropDetail::Sum(left, Utf16View(right));
}
template <typename Text, ZRStringInteropDetail::IfView<Text> = 0>
bool operator==(const ZRString& left, const Text& right) {
  return ZRStringInteropDetail::AreEqual(Utf16View(left), right);
}
template <typename Text, ZRStringInteropDetail::IfView<Text> = 0>
bool operator==(const Text& left, const ZRString& right) {
  return right == left;
}
template <typename Text, ZRStringInteropDetail::IfView<Text> = 0>
bool operator!=(const ZRString& left, const Text& right) {
  return !(left == right);
}
template <typename Text, ZRStringInteropDetail::IfView<Text> = 0>
bool operator!=(const Text& left, const ZRString& right) {
  return !(right == left);
}
template <typename Text, ZRStringInteropDetail::IfView<Text> = 0>
bool operator<(const ZRString& left, const Text& right) {
  return Utf16View(left) < std::u16string_view(right);
}
template <typename Text, ZRStringInteropDetail::IfView<Text> = 0>
bool operator<(const Text& left, const ZRString& right) {
  return std::u16string_view(left) < Utf16View(right);
}
template <typename Text, ZRStringInteropDetail::IfView<Text> = 0>
bool operator>(const ZRString& left, const Text& right) {
  return right < left;
}
template <typename Text, ZRStringInteropDetail::IfView<Text> = 0>
bool operator>(const Text& left, const ZRString& right) {
  return right < left;
}
template <typename Text, ZRStringInteropDetail::IfView<Text> = 0>
bool operator<=(const ZRString& left, const Text& right) {
  return !(right < left);
}
template <typename Text, ZRStringInteropDetail::IfView<Text> = 0>
bool operator<=(const Text& left, const ZRString& right) {
  return !(right < left);
}
template <typename Text, ZRStringInteropDetail::IfView<Text> = 0>
bool operator>=(const ZRString& left, const Text& right) {
  return !(left < right);
}
template <typename Text, ZRStringInteropDetail::IfView<Text> = 0>
bool operator>=(const Text& left, const ZRString& right) {
  return !(left < right);
}
/// @endcond

/// @}
/// @name Characters
/// A character is a code point. A surrogate pair is one, and so is an unpaired surrogate, with its
/// own value.
/// @code
/// const ZRString text = u"a\U0001F600b"_zr;  // four units, three characters
/// assert(text.GetLength() == 4 && CodePointCount(text) == 3);
/// assert(CodePointAt(text, 2) == U'\U0001F600');
/// char32_t last = 0;
/// for (const char32_t character : CodePoints(text))
///   last = character;
/// assert(last == U'b');
/// @endcode
/// @{

/// The characters of a text, forward and backward:
/// `for (char32_t character : CodePoints(string))`.
///
/// Of a string it holds a copy, which shares the text. Of a `std::u16string_view` it holds the
/// view, whose units must live as long as it is used.
class CodePoints {
 public:
  /// Points to a character; invalid once its CodePoints is destroyed or the units of the string
  /// move, as ZRString::GetBuffer() says.
  class iterator {
   public:
    /// @cond
    using iterator_category = std::bidirectional_iterator_tag;
    using value_type = char32_t;
    using difference_type = std::ptrdiff_t;
    using pointer = const char32_t*;
    using reference = char32_t;

    iterator() = default;
    iterator(std::u16string_view text, std::size_t index) : text_(text), index_(index) {}
    char32_t operator*() const {
      const char32_t unit = text_[index_];
      return Size() == 1 ? unit : 0x10000 + ((unit & 0x3FF) << 10) + (text_[index_ + 1] & 0x3FFu);
    }
    iterator& operator++() {
      index_ += Size();
      return *this;
    }
    iterator& operator--() {
      --index_;
      if (index_ > 0 && ZRStringInteropDetail::IsTrail(text_[index_]) &&
          ZRStringInteropDetail::IsLead(text_[index_ - 1]))
        --index_;
      return *this;
    }
    iterator operator++(int) { return std::exchange(*this, std::next(*this)); }
    iterator operator--(int) { return std::exchange(*this, std::prev(*this)); }
    bool operator==(const iterator& other) const { return index_ == other.index_; }
    bool operator!=(const iterator& other) const { return index_ != other.index_; }
    /// @endcond

    /// The index of the character's first unit in the text.
    ZRLong Index() const { return static_cast<ZRLong>(index_); }

   private:
    std::size_t Size() const {
      const bool pair = ZRStringInteropDetail::IsLead(text_[index_]) && index_ + 1 < text_.size() &&
                        ZRStringInteropDetail::IsTrail(text_[index_ + 1]);
      return pair ? 2 : 1;
    }

    std::u16string_view text_;
    std::size_t index_ = 0;
  };
  using const_iterator = iterator;                           ///< Characters are only read.
  using reverse_iterator = std::reverse_iterator<iterator>;  ///< From the last character on.
  using const_reverse_iterator = reverse_iterator;           ///< Characters are only read.

  /// Of a string.
  explicit CodePoints(const ZRString& string) : text_(Utf16View(string)) {
    if (!text_.empty())
      string_.emplace(string);
  }
  /// Of a view.
  explicit CodePoints(std::u16string_view text) : text_(text) {}

  /// Not copied: it may hold a string.
  CodePoints(const CodePoints&) = delete;
  CodePoints& operator=(const CodePoints&) = delete;

  iterator begin() const { return {Text(), 0}; }                       ///< The first one.
  iterator end() const { return {Text(), text_.size()}; }              ///< Behind the last.
  reverse_iterator rbegin() const { return reverse_iterator(end()); }  ///< The last one.
  reverse_iterator rend() const { return reverse_iterator(begin()); }  ///< Before the first.

 private:
  std::u16string_view Text() const { return string_ ? Utf16View(*string_) : text_; }

  std::optional<ZRString> string_;  // keeps the units alive, which may move
  std::u16string_view text_;
};

/// The number of characters of a text: a ZRString, or what converts to `std::u16string_view`.
template <typename Text, ZRStringInteropDetail::IfText<Text> = 0>
ZRLong CodePointCount(const Text& text) {
  const std::u16string_view units = ZRStringInteropDetail::ViewOf(text);
  ZRLong pairs = 0;
  for (std::size_t i = 1; i < units.size(); ++i)
    pairs +=
        ZRStringInteropDetail::IsTrail(units[i]) && ZRStringInteropDetail::IsLead(units[i - 1]);
  return ZRStringInteropDetail::Length(units.size()) - pairs;
}

/// The character to which the unit at `index` belongs; 0xFFFF (#kZRNoUnit) outside the text.
template <typename Text, ZRStringInteropDetail::IfText<Text> = 0>
char32_t CodePointAt(const Text& text, ZRLong index) {
  const std::u16string_view units = ZRStringInteropDetail::ViewOf(text);
  const auto at = static_cast<std::size_t>(index);
  if (index < 0 || at >= units.size())
    return kZRNoUnit;
  CodePoints::iterator character(units, at + 1);
  return *--character;
}

/// @}
/// @name Short forms
/// Most call the member that their comment names, with default arguments. A `text` is a ZRString or
/// what converts to `std::u16string_view`, of which a string is made first. What a function looks
/// for, a new part and a separator may also be single units, `char16_t` or `unsigned short`. A text
/// with an open buffer or in ICU's error state is empty. But if just one of two texts is in the
/// error state, StartsWith() and EndsWith() are false, if both are, true; and ReplacedAll() with
/// such a new part changes nothing.
/// @code
/// const ZRString list = u"un, deux, un"_zr;
/// assert(Contains(list, u"deux") && IndexOf(list, u"un", 1) == 10 && EndsWith(list, u"un"));
/// assert(PartsOf(list, u", ").size() == 3 && PartOf(list, 4, 4) == u"deux");
/// assert(ReplacedAll(list, u"un", u'1') == u"1, deux, 1");
/// assert(Joined(PartsOf(list, u", "), u'/') == u"un/deux/un");
/// assert(UpperCase(Trimmed(u" deux ")) == u"DEUX");
/// @endcode
/// @{

/// Index of the first occurrence of `part` at or after the unit `from`; -1 (#kZRNotFound) if there
/// is none or `part` is empty. Calls ZRString::Find.
template <typename Text, ZRStringInteropDetail::IfText<Text> = 0>
ZRLong IndexOf(const Text& text, const ZRStringInteropDetail::Pattern& part, ZRLong from = 0) {
  const auto& in = ZRStringInteropDetail::StringOf(text);
  return part.Call(
      [&](const ZRString& string) { return in.Find(string, 0, kZRToEnd, from, kZRToEnd); },
      [&](const unsigned short* units, ZRLong size) {
        return in.Find(units, 0, size, from, kZRToEnd);
      });
}

/// Whether `part` occurs in `text`; not if it is empty. Calls ZRString::Find.
template <typename Text, ZRStringInteropDetail::IfText<Text> = 0>
bool Contains(const Text& text, const ZRStringInteropDetail::Pattern& part) {
  return IndexOf(text, part) != kZRNotFound;
}

/// Whether `text` begins with `part`; also if it is empty. Calls ZRString::StartsWith.
template <typename Text, ZRStringInteropDetail::IfText<Text> = 0>
bool StartsWith(const Text& text, const ZRStringInteropDetail::Pattern& part) {
  const auto& in = ZRStringInteropDetail::StringOf(text);
  return part.Call(
      [&](const ZRString& string) { return in.StartsWith(string, 0, kZRToEnd); },
      [&](const unsigned short* units, ZRLong size) { return in.StartsWith(units, 0, size); });
}

/// Whether `text` ends with `part`; also if it is empty. Calls ZRString::EndsWith.
template <typename Text, ZRStringInteropDetail::IfText<Text> = 0>
bool EndsWith(const Text& text, const ZRStringInteropDetail::Pattern& part) {
  const auto& in = ZRStringInteropDetail::StringOf(text);
  return part.Call(
      [&](const ZRString& string) { return in.EndsWith(string, 0, kZRToEnd); },
      [&](const unsigned short* units, ZRLong size) { return in.EndsWith(units, 0, size); });
}

/// `length` units of `text`, starting at `start`; -1: to the end. The range is clamped.
template <typename Text, ZRStringInteropDetail::IfText<Text> = 0>
ZRStringMutator PartOf(const Text& text, ZRLong start, ZRLong length = kZRToEnd) {
  const auto& string = ZRStringInteropDetail::StringOf(text);
  return string.GetBuffer() ? ZRStringMutator(string, start, length) : ZRStringMutator();
}

/// What PartsOf() does with empty parts.
enum ZREmptyParts {
  kZRKeepEmptyParts,  ///< An empty text has one part, which is empty.
  kZRSkipEmptyParts   ///< An empty text has no parts.
};

/// The parts of `text` between the occurrences of `separator`. Calls ZRString::Find. An empty
/// `separator` separates nothing.
template <typename Text, ZRStringInteropDetail::IfText<Text> = 0>
std::vector<ZRStringMutator> PartsOf(const Text& text,
                                     const ZRStringInteropDetail::Pattern& separator,
                                     ZREmptyParts empty = kZRKeepEmptyParts) {
  const ZRString string = PartOf(text, 0);
  std::vector<ZRStringMutator> parts;
  for (ZRLong start = 0;;) {
    const ZRLong found = IndexOf(string, separator, start);
    const ZRLong end = found == kZRNotFound ? string.GetLength() : found;
    if (end > start || empty == kZRKeepEmptyParts)
      parts.emplace_back(string, start, end - start);
    if (found == kZRNotFound)
      return parts;
    start = end + separator.Size();
  }
}

/// The texts of a range, with `separator` between them. Calls ZRStringMutator::Append.
template <typename Range>
ZRStringMutator Joined(Range&& texts, const ZRStringInteropDetail::Pattern& separator) {
  ZRStringMutator joined;
  const auto append = [&](const ZRStringInteropDetail::Pattern& text) {
    text.Call([&](const ZRString& string) { joined.Append(string, 0, kZRToEnd); },
              [&](const unsigned short* units, ZRLong size) { joined.Append(units, 0, size); });
  };
  bool first = true;
  for (auto&& text : texts) {
    if (!first)
      append(separator);
    append(text);
    first = false;
  }
  ZRStringInteropDetail::ThrowIfLost(joined);
  return joined;
}

/// `text` with each occurrence of `oldPart` replaced by `newPart`, unless `oldPart` is empty. Calls
/// ZRStringMutator::FindAndReplace.
template <typename Text, ZRStringInteropDetail::IfText<Text> = 0>
ZRStringMutator ReplacedAll(const Text& text, const ZRStringInteropDetail::Pattern& oldPart,
                            const ZRStringInteropDetail::Pattern& newPart) {
  ZRStringMutator replaced = PartOf(text, 0);
  replaced.FindAndReplace(0, kZRToEnd, oldPart.String(), 0, kZRToEnd, newPart.String(), 0,
                          kZRToEnd);
  ZRStringInteropDetail::ThrowIfLost(replaced);
  return replaced;
}

/// `text` without leading and trailing white space. Calls ZRStringMutator::Trim.
template <typename Text, ZRStringInteropDetail::IfText<Text> = 0>
ZRStringMutator Trimmed(const Text& text) {
  ZRStringMutator trimmed = PartOf(text, 0);
  trimmed.Trim();
  ZRStringInteropDetail::ThrowIfLost(trimmed);
  return trimmed;
}

/// `text` in upper case, by the rules of ICU's default locale. Calls ZRStringMutator::ToUpper.
template <typename Text, ZRStringInteropDetail::IfText<Text> = 0>
ZRStringMutator UpperCase(const Text& text) {
  ZRStringMutator upper = PartOf(text, 0);
  upper.ToUpper();
  ZRStringInteropDetail::ThrowIfLost(upper);
  return upper;
}

/// `text` in lower case, by the rules of ICU's default locale. Calls ZRStringMutator::ToLower.
template <typename Text, ZRStringInteropDetail::IfText<Text> = 0>
ZRStringMutator LowerCase(const Text& text) {
  ZRStringMutator lower = PartOf(text, 0);
  lower.ToLower();
  ZRStringInteropDetail::ThrowIfLost(lower);
  return lower;
}

/// @}

/// Inserts the text of `string` as UTF-8, like a `std::string`: the field width counts bytes.
inline std::ostream& operator<<(std::ostream& stream, const ZRString& string) {
  return stream << ToUtf8(string);
}

/// Prints `string` for debugging: as UTF-8 in quotation marks, with control characters and unpaired
/// surrogates as numbers, or why it has no text. GoogleTest calls this function to print strings.
inline void PrintTo(const ZRString& string, std::ostream* stream) {
  if (!string.GetBuffer()) {
    *stream << "(no text: its buffer is open, or ICU could not hold it)";
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
