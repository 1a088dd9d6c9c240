#ifndef ZRSTRING_ZRSTRINGMUTATOR_H
#define ZRSTRING_ZRSTRINGMUTATOR_H

#include <ZRString/ZRString.h>

#include <type_traits>
#include <utility>

/// A Unicode normalization form. The numbers are this library's own, not ICU's.
enum ZRStringNormalizationMode : int {
  kZRNormalizationNFC = 2,   ///< canonical composition
  kZRNormalizationNFKC = 3,  ///< compatibility composition
  kZRNormalizationNFD = 4,   ///< canonical decomposition
  kZRNormalizationNFKD = 5,  ///< compatibility decomposition
  kZRNormalizationFCD = 6    ///< fast C or D: not a form of its own, but fit for collating
};

/// An editable string: a ZRString that gets a body of its own before it changes text.
///
/// @code
/// const ZRString red("red, green, red", 0, kZRToEnd);
/// ZRStringMutator text(red);  // shares the units of `red`; the first edit copies them
/// text.Replace(5, 5, ZRString("blue", 0, kZRToEnd), 0, kZRToEnd);
/// assert(text == ZRString("red, blue, red", 0, kZRToEnd));
/// text.Remove(9, kZRToEnd).ToUpper() += '!';
/// assert(text == ZRString("RED, BLUE!", 0, kZRToEnd));
/// assert(red == ZRString("red, green, red", 0, kZRToEnd));
/// @endcode
///
/// **Sharing.** Construction from a whole string or from a handle, and assignment, share the
/// source's body and copy no units. Assignment from a temporary or moved mutator exchanges the
/// bodies; construction from one shares, as a copy does. Every editing member first *detaches*: it
/// copies a shared body, so that no other string changes. Edits detach even if they change nothing,
/// except Normalize().
///
/// **Operands.** As for ZRString: ranges are clamped, -1 means to the end, raw operands are not
/// checked and `Between` members take inclusive ends. Positions are clamped as well. An operand may
/// be this string or share its body, and a raw operand may lie within this string's own units (but
/// not start at the zero unit after them): it is read as it was before the edit.
///
/// **Results.** Editing members return this object, so that edits can be chained, except for those
/// that return whether they did something.
///
/// **Errors.** Detaching, and the copy that FindAndReplace() makes of an operand within this
/// string's own units, throw `std::bad_alloc` and leave this string and every operand as they were.
/// If ICU runs out of memory inside an edit, except Normalize(), or the text would grow past what
/// ICU can hold, this string's text is lost and in ICU's error state. Its length is then 0 and its
/// buffer null. Such a string equals only strings in the same state; collated, also empty ones. It
/// ignores edits until SetTo() gives it a new text, Truncate(0) or Remove(0, INT32_MAX) empties
/// it, or another string is assigned. The first ToUpper() or ToLower() may crash instead.
///
/// **Open buffer.** From GetBuffer(ZRLong) to ReleaseBuffer() the text reads as empty and ignores
/// edits. In between, only ask for the string's capacity.
///
/// **Threads.** As for ZRString.
class ZR_API ZRStringMutator : public ZRString {
 public:
  /// @name Creation and assignment
  /// @code
  /// const ZRString source("banana", 0, kZRToEnd);
  /// ZRStringMutator text(source);  // shares the units
  /// ZRStringMutator part(source, 2, 3);
  /// assert(text.GetBuffer() == source.GetBuffer() && part.GetLength() == 3);
  /// part = text;  // shares them, too
  /// assert(part.GetBuffer() == source.GetBuffer());
  /// @endcode
  /// @{

  ZRStringMutator();  ///< An empty string.

  ZRStringMutator(const UniStr255& record);                                  ///< As ZRString.
  ZRStringMutator(const unsigned char* text, ZRLong start, ZRLong length);   ///< As ZRString.
  ZRStringMutator(const char* text, ZRLong start, ZRLong length);            ///< As ZRString.
  ZRStringMutator(const unsigned short* text, ZRLong start, ZRLong length);  ///< As ZRString.

  /// Holds a range of `source`. Shares its body in the same cases as ZRString.
  ZRStringMutator(const ZRString& source, ZRLong start, ZRLong length);

  ZR_INLINE ZRStringMutator(const ZRString& source) noexcept;         ///< Shares its body.
  ZR_INLINE ZRStringMutator(const ZRStringMutator& source) noexcept;  ///< Shares its body.

  /// Shares the body of the string that `handle` stands for; an empty string for a null handle.
  ZRStringMutator(ZRStringRef__* handle);

  /// Shares the body of the mutable string that `handle` stands for; an empty string for a null
  /// handle.
  ZRStringMutator(ZRMutableStringRef__* handle);

  ZR_INLINE ~ZRStringMutator() override;  ///< As the destructor of ZRString.

  /// Gives up this string's body and shares that of `other`. Copies no units.
  ZR_INLINE ZRStringMutator& operator=(const ZRStringMutator& other) noexcept;

  /// Gives up this string's body and shares that of `other`. Copies no units. Truncate(0) empties a
  /// string.
  ZR_INLINE ZRStringMutator& operator=(const ZRString& other) noexcept;

  /// Move assignment: exchanges the bodies, without touching them. `other` then holds this string's
  /// former body.
  ///
  /// A template, so that it is compiled into the program and not exported.
  /// @since 1.1
  template <typename Other, typename = std::enable_if_t<std::is_same_v<Other, ZRStringMutator>>>
  ZRStringMutator& operator=(Other&& other) noexcept {
    std::swap(body_, other.body_);
    return *this;
  }

  /// @}

  /// @name Edits
  /// @code
  /// const ZRString deux("deux", 0, kZRToEnd);
  /// ZRStringMutator text(ZRString("un, trois", 0, kZRToEnd));
  /// text.Insert(4, deux, 0, kZRToEnd).Insert(8, ZRString(", ", 0, 2), 0, kZRToEnd);
  /// assert(text == ZRString("un, deux, trois", 0, kZRToEnd));
  /// text.Replace(0, 2, deux, 0, kZRToEnd).RemoveBetween(4, 9) += '!';
  /// assert(text == ZRString("deux, trois!", 0, kZRToEnd));
  /// text.FindAndReplace(0, kZRToEnd, deux, 0, kZRToEnd, ZRString("2", 0, 1), 0, kZRToEnd);
  /// assert(text == ZRString("2, trois!", 0, kZRToEnd));
  /// text.SetTo(deux, 0, kZRToEnd).SetCharAt(0, 'D');
  /// assert(text == ZRString("Deux", 0, kZRToEnd));
  /// @endcode
  /// @{

  /// Replaces the whole text by a range of `source`.
  ZRStringMutator& SetTo(const ZRString& source, ZRLong start, ZRLong length);

  /// Replaces the whole text by a raw operand with a start of 0.
  ZRStringMutator& SetTo(const unsigned short* text, ZRLong length);

  /// Replaces the unit at `offset`: the first one for an offset below 0, the last one for an offset
  /// past the end. An empty string stays empty.
  ZRStringMutator& SetCharAt(ZRLong offset, unsigned short unit);

  /// Appends a unit. Other integers are cut to 16 bits; there are operators for `char32_t` and
  /// `char` below, and none for floating types.
  ZRStringMutator& operator+=(unsigned short unit);
  ZRStringMutator& operator+=(const ZRString& other);  ///< Appends the whole of `other`.

  /// Appends a range of `source`.
  ZRStringMutator& Append(const ZRString& source, ZRLong start, ZRLong length);

  /// Appends a raw operand.
  ZRStringMutator& Append(const unsigned short* text, ZRLong start, ZRLong length);

  /// Inserts a range of `source` before the unit at `position`.
  ZRStringMutator& Insert(ZRLong position, const ZRString& source, ZRLong start, ZRLong length);

  /// Inserts a raw operand before the unit at `position`.
  ZRStringMutator& Insert(ZRLong position, const unsigned short* text, ZRLong start, ZRLong length);

  /// Replaces `length` units, starting at `position`, by a range of `source`.
  ZRStringMutator& Replace(ZRLong position, ZRLong length, const ZRString& source, ZRLong srcStart,
                           ZRLong srcLength);

  /// Replaces `length` units, starting at `position`, by a raw operand.
  ZRStringMutator& Replace(ZRLong position, ZRLong length, const unsigned short* text,
                           ZRLong srcStart, ZRLong srcLength);

  /// Replaces the units `start` through `end` by the units `srcStart` through `srcEnd` of `source`.
  ZRStringMutator& ReplaceBetween(ZRLong start, ZRLong end, const ZRString& source, ZRLong srcStart,
                                  ZRLong srcEnd);

  ZRStringMutator& Remove(ZRLong start, ZRLong length);      ///< Removes a range.
  ZRStringMutator& RemoveBetween(ZRLong start, ZRLong end);  ///< Removes through `end`.

  /// Replaces every occurrence of a range of `oldText` inside [start, start + length) by a range
  /// of `newText`. Occurrences are what Find() finds. Replacements are not searched again. An empty
  /// old range changes nothing, nor does an operand in ICU's error state.
  ///
  /// The other overloads take one or both operands raw. Such an operand is read up to its first
  /// zero unit at most, even if its length says more, and its range is clamped to that text: -1
  /// means to its end, any other negative length an empty range.
  ZRStringMutator& FindAndReplace(ZRLong start, ZRLong length, const ZRString& oldText,
                                  ZRLong oldStart, ZRLong oldLength, const ZRString& newText,
                                  ZRLong newStart, ZRLong newLength);

  /// As FindAndReplace(), with a raw `oldText`.
  ZRStringMutator& FindAndReplace(ZRLong start, ZRLong length, const unsigned short* oldText,
                                  ZRLong oldStart, ZRLong oldLength, const ZRString& newText,
                                  ZRLong newStart, ZRLong newLength);

  /// As FindAndReplace(), with a raw `newText`.
  ZRStringMutator& FindAndReplace(ZRLong start, ZRLong length, const ZRString& oldText,
                                  ZRLong oldStart, ZRLong oldLength, const unsigned short* newText,
                                  ZRLong newStart, ZRLong newLength);

  /// As FindAndReplace(), with both operands raw.
  ZRStringMutator& FindAndReplace(ZRLong start, ZRLong length, const unsigned short* oldText,
                                  ZRLong oldStart, ZRLong oldLength, const unsigned short* newText,
                                  ZRLong newStart, ZRLong newLength);

  /// @}

  /// @name Whole texts
  /// @code
  /// ZRStringMutator text(ZRString("  d\xE9j\xE0 vu ", 0, kZRToEnd));  // windows-1252
  /// assert(text.Trim().GetLength() == 7);
  /// assert(text.Normalize(kZRNormalizationNFD) == 1 && text.GetLength() == 9);
  /// assert(text.Normalize(kZRNormalizationNFC) == 1 && text.GetLength() == 7);
  /// text.ToUpper();
  /// assert(text == ZRString("D\xC9J\xC0 VU", 0, kZRToEnd));
  /// assert(text.PadLeading(9, '.') == 1 && text[1] == '.');
  /// assert(text.Truncate(3) == 1 && text.Reverse(0, kZRToEnd)[0] == 'D');
  /// @endcode
  /// @{

  /// Replaces the text by its normalized form.
  /// @return 1 if the text was replaced. 0, with the string unchanged and a shared body still
  ///         shared, if a quick check found the text normalized, if `mode` is none of the five, or
  ///         if ICU failed. `std::bad_alloc` also leaves the string unchanged.
  unsigned char Normalize(ZRStringNormalizationMode mode);

  /// Fills up to `targetLength` units with `padUnit` at the front.
  /// @return 1 if the string was shorter and was filled, else 0. 0 also if ICU cannot hold that
  ///         many units; the text is then in ICU's error state.
  unsigned char PadLeading(ZRLong targetLength, unsigned short padUnit);

  /// Fills up to `targetLength` units with `padUnit` at the end. Returns as PadLeading().
  unsigned char PadTrailing(ZRLong targetLength, unsigned short padUnit);

  /// Cuts the text to `targetLength` units.
  /// @return 1 if the string was longer, else 0. 0 also for a negative length.
  unsigned char Truncate(ZRLong targetLength);

  /// Removes leading and trailing white space, as ICU's `u_isWhitespace` defines it.
  ZRStringMutator& Trim();

  /// Reverses a range. The units of surrogate pairs in it stay in order.
  ZRStringMutator& Reverse(ZRLong start, ZRLong length);

  /// Maps to upper case by the rules of ICU's default locale. The length may change.
  ZRStringMutator& ToUpper();

  /// Maps to lower case by the rules of ICU's default locale. The length may change.
  ZRStringMutator& ToLower();

  /// @}

  /// @name Reading
  /// @code
  /// const ZRStringMutator text(ZRString("banana", 0, kZRToEnd));
  /// ZRStringMutator part;
  /// text.Extract(2, 3, part);
  /// assert(part == ZRString("nan", 0, kZRToEnd));
  /// assert(part + text == ZRString("nanbanana", 0, kZRToEnd));
  /// @endcode
  /// @{

  const unsigned short* GetBuffer() const override;
  void Extract(ZRLong start, ZRLong length, unsigned short* dst, ZRLong dstStart) const override;
  void ExtractBetween(ZRLong start, ZRLong end, unsigned short* dst,
                      ZRLong dstStart) const override;

  /// Replaces the whole text of `target`, which detaches, by a range of this string. A `target` in
  /// ICU's error state stays in it.
  void Extract(ZRLong start, ZRLong length, ZRStringMutator& target) const;

  /// Replaces the whole text of `target`, which detaches, by the units `start` through `end`.
  void ExtractBetween(ZRLong start, ZRLong end, ZRStringMutator& target) const;

  /// This string followed by `other`.
  ZRStringMutator operator+(const ZRString& other) const;

  /// @}

  /// @name Storage and handle
  /// @code
  /// ZRStringMutator text;
  /// unsigned short* const units = text.GetBuffer(100);
  /// assert(units && text.GetCapacity() >= 100);
  /// for (int i = 0; i < 3; ++i)
  ///   units[i] = static_cast<unsigned short>('a' + i);
  /// text.ReleaseBuffer(3);
  /// assert(text == ZRString("abc", 0, kZRToEnd));
  /// assert(text.GetTerminatedBuffer()[3] == 0);
  /// @endcode
  /// @{

  /// Detaches and opens the text's storage for writing, with room for at least `minCapacity` units
  /// (-1: its capacity, which detaching may have reduced). The previous units are still in it.
  ///
  /// The pointer is valid until ReleaseBuffer(). It is null, with the text unchanged, if a buffer
  /// is already open, in ICU's error state or if `minCapacity` is below -1, and null, with the text
  /// in ICU's error state, if ICU cannot make the room.
  ///
  /// Do not copy the string while the buffer is open. The copy would share the body and see what is
  /// written; a second call here would detach from it and leave the copy with the open buffer.
  virtual unsigned short* GetBuffer(ZRLong minCapacity);

  /// Closes the buffer and sets the length to `newLength`, at most the capacity; -1: up to the
  /// first zero unit in the buffer, or the whole capacity if there is none.
  ///
  /// Does nothing if no buffer is open or `newLength` is below -1. Acts on the body that this
  /// string holds at this moment, without detaching.
  void ReleaseBuffer(ZRLong newLength) noexcept;

  /// The units followed by a zero unit, without detaching.
  ///
  /// The units may move, which invalidates pointers from GetBuffer() of this string and of strings
  /// that share its body; for threads this is an edit. Null, with the text unchanged, while a
  /// buffer is open, in ICU's error state, and if ICU runs out of memory.
  const unsigned short* GetTerminatedBuffer() noexcept;

  ZRLong GetCapacity() const noexcept;  ///< Number of units that the text's storage has room for.

  /// This object's address as a handle, valid as long as the object lives.
  ZRMutableStringRef__* GetZRMutableStringRef() noexcept;

  /// @}
};

/// Exchanges the bodies of two strings, without touching them.
/// @since 1.1
inline void swap(ZRStringMutator& left, ZRStringMutator& right) noexcept {
  left = std::move(right);
}

/// `left` followed by `unit`.
ZR_API ZRStringMutator ZR_CALL operator+(const ZRString& left, unsigned short unit);

/// `unit` followed by `right`.
ZR_API ZRStringMutator ZR_CALL operator+(unsigned short unit, const ZRString& right);

/// The mutable string that a handle stands for. `handle` must not be null.
ZR_API ZRStringMutator& ZR_CALL GetZRStringMutatorFromRef(ZRMutableStringRef__* handle);

/// @name Characters and numbers as operands
/// Without these operators, a `char32_t`, `char` or floating operand would be converted to a unit:
/// a character above U+FFFF would lose its upper bits. They take exactly these types.
/// @code
/// ZRStringMutator text;
/// text += U'\U0001F600';  // two units
/// text += '\x80';         // windows-1252: the euro sign
/// assert(text.GetLength() == 3 && text[2] == 0x20AC);
/// @endcode
/// @since 1.1
/// @{

/// @cond
namespace ZRStringMutatorDetail {

template <typename Type>
using IfCharacter =
    std::enable_if_t<std::is_same_v<Type, char32_t> || std::is_same_v<Type, char>, int>;

// A mutator that is no variable, but nothing that would only be converted to one.
template <typename Type>
using IfTemporary = std::enable_if_t<!std::is_reference_v<Type> && !std::is_const_v<Type> &&
                                         std::is_base_of_v<ZRStringMutator, Type>,
                                     int>;

template <typename Type>
using IfFloating = std::enable_if_t<std::is_floating_point_v<Type>, int>;

inline ZRStringMutator& Append(ZRStringMutator& string, char32_t character) {
  if (character <= 0xFFFF)
    return string += static_cast<unsigned short>(character);
  if (character > 0x10FFFF)
    return string += static_cast<unsigned short>(0xFFFD);
  const unsigned short pair[] = {static_cast<unsigned short>(0xD7C0 + (character >> 10)),
                                 static_cast<unsigned short>(0xDC00 | (character & 0x3FF))};
  return string.Append(pair, 0, 2);
}

inline ZRStringMutator& Append(ZRStringMutator& string, char character) {
  // Outside 0x80 to 0x9F, windows-1252 is the beginning of Unicode.
  const auto byte = static_cast<unsigned char>(character);
  return byte < 0x80 || byte > 0x9F ? string += static_cast<unsigned short>(byte)
                                    : string += ZRString(&character, 0, 1);
}

}  // namespace ZRStringMutatorDetail
/// @endcond

/// Appends a character: a `char32_t`, of which a value above U+10FFFF becomes U+FFFD and a
/// surrogate stays one, or a `char`, decoded from windows-1252.
template <typename Character, ZRStringMutatorDetail::IfCharacter<Character> = 0>
inline ZRStringMutator& operator+=(ZRStringMutator& left, Character right) {
  return ZRStringMutatorDetail::Append(left, right);
}

/// Appends a character to a temporary string.
template <typename Temporary, typename Character, ZRStringMutatorDetail::IfTemporary<Temporary> = 0,
          ZRStringMutatorDetail::IfCharacter<Character> = 0>
inline ZRStringMutator& operator+=(Temporary&& left, Character right) {
  return ZRStringMutatorDetail::Append(left, right);
}

/// `left` followed by a character, as appended by the operator +=.
template <typename Character, ZRStringMutatorDetail::IfCharacter<Character> = 0>
inline ZRStringMutator operator+(const ZRString& left, Character right) {
  ZRStringMutator sum(left);
  sum += right;
  return sum;
}

/// A character, as appended by the operator +=, followed by `right`.
template <typename Character, ZRStringMutatorDetail::IfCharacter<Character> = 0>
inline ZRStringMutator operator+(Character left, const ZRString& right) {
  ZRStringMutator sum;
  sum += left;
  sum += right;
  return sum;
}

template <typename Number, ZRStringMutatorDetail::IfFloating<Number> = 0>
void operator+=(ZRStringMutator& left, Number right) = delete;  ///< A number is not a unit.

template <typename Temporary, typename Number, ZRStringMutatorDetail::IfTemporary<Temporary> = 0,
          ZRStringMutatorDetail::IfFloating<Number> = 0>
void operator+=(Temporary&& left, Number right) = delete;  ///< A number is not a unit.

template <typename Number, ZRStringMutatorDetail::IfFloating<Number> = 0>
void operator+(const ZRString& left, Number right) = delete;  ///< A number is not a unit.

template <typename Number, ZRStringMutatorDetail::IfFloating<Number> = 0>
void operator+(Number left, const ZRString& right) = delete;  ///< A number is not a unit.

/// @}

/// @cond
// The sum of two strings, and operators with a UTF-16 text, are in ZRStringInterop.h. Without that
// header, a compiler finds these and names their operand.
struct IncludeZRStringInteropForThisOperator {
  IncludeZRStringInteropForThisOperator(const ZRString&);
  IncludeZRStringInteropForThisOperator(const char16_t*);
};
void operator+(const ZRString&, IncludeZRStringInteropForThisOperator) = delete;
void operator==(const ZRString&, IncludeZRStringInteropForThisOperator) = delete;
void operator!=(const ZRString&, IncludeZRStringInteropForThisOperator) = delete;
void operator<(const ZRString&, IncludeZRStringInteropForThisOperator) = delete;
/// @endcond

ZR_INLINE ZRStringMutator::ZRStringMutator(const ZRString& source) noexcept : ZRString(source) {}

ZR_INLINE ZRStringMutator::ZRStringMutator(const ZRStringMutator& source) noexcept
    : ZRString(source) {}

ZR_INLINE ZRStringMutator::~ZRStringMutator() = default;

ZR_INLINE ZRStringMutator& ZRStringMutator::operator=(const ZRStringMutator& other) noexcept {
  ZRString::operator=(other);
  return *this;
}

ZR_INLINE ZRStringMutator& ZRStringMutator::operator=(const ZRString& other) noexcept {
  ZRString::operator=(other);
  return *this;
}

#endif
