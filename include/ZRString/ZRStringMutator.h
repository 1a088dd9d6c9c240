#ifndef ZRSTRING_ZRSTRINGMUTATOR_H
#define ZRSTRING_ZRSTRINGMUTATOR_H

#include <ZRString/ZRString.h>

/// A Unicode normalization form. The numbers are this library's own, not ICU's.
enum ZRStringNormalizationMode : int {
  kZRNormalizationNFC = 2,   ///< canonical composition
  kZRNormalizationNFKC = 3,  ///< compatibility composition
  kZRNormalizationNFD = 4,   ///< canonical decomposition
  kZRNormalizationNFKD = 5,  ///< compatibility decomposition
  kZRNormalizationFCD = 6    ///< fast C or D: not a form of its own, but fit for comparing
};

/// An editable string: a ZRString that takes a body of its own before it changes text.
///
/// **Sharing.** Construction from a whole string, construction from a handle, and assignment share
/// the source's body and copy nothing. Every editing member first *detaches*: a shared body is
/// copied, once, and no other string ever sees the edit. An edit that turns out to change nothing
/// detaches as well; only Normalize() does not.
///
/// **Operands.** The conventions of ZRString hold: positions and ranges are cut to the text they
/// refer to, a length of -1 for this string or for a ZRString operand means to its end, a negative
/// length of a raw operand means up to its terminating zero unit, and `Between` members take
/// inclusive ends. An operand may be this string itself or share its body; it is read as it was
/// before the edit. The same holds for a raw operand within this string's own units, which the zero
/// unit behind them is not part of.
///
/// **Results.** Editing members return this object, so that edits chain.
///
/// **Errors.** Detaching, the temporaries that some members need and the sum of operator+() throw
/// `std::bad_alloc` when they cannot be made, and leave this string and every operand as they were.
/// When ICU runs out of memory inside an edit, or a text would grow past what ICU can hold, the
/// text of this string is lost and in ICU's error state: its length is 0, its buffer is null, it
/// equals only a text in the same state, and it ignores edits until SetTo() gives it a new text,
/// Truncate(0) or Remove(0, INT32_MAX) makes it an empty one, or another string is assigned.
///
/// **Open buffer.** From GetBuffer(ZRLong) to ReleaseBuffer() the text reads as empty and ignores
/// edits; use the string for nothing else meanwhile.
///
/// **Threads.** As ZRString: a mutator, and all that share its body, belong to one thread at a
/// time.
class ZR_API ZRStringMutator : public ZRString {
 public:
  ZRStringMutator();  ///< An empty string.

  ZRStringMutator(const UniStr255& record);                                  ///< As ZRString.
  ZRStringMutator(const unsigned char* text, ZRLong start, ZRLong length);   ///< As ZRString.
  ZRStringMutator(const char* text, ZRLong start, ZRLong length);            ///< As ZRString.
  ZRStringMutator(const unsigned short* text, ZRLong start, ZRLong length);  ///< As ZRString.

  /// A range of `source`; shares its body exactly when ZRString would.
  ZRStringMutator(const ZRString& source, ZRLong start, ZRLong length);

  ZR_INLINE ZRStringMutator(const ZRString& source) noexcept;         ///< Shares its body.
  ZR_INLINE ZRStringMutator(const ZRStringMutator& source) noexcept;  ///< Shares its body.

  /// Shares the body of the string that `handle` stands for; an empty string for a null handle.
  ZRStringMutator(ZRStringRef__* handle);
  ZRStringMutator(ZRMutableStringRef__* handle);  ///< The same.

  ZR_INLINE ~ZRStringMutator() override;

  /// Gives up this string's body and shares that of `other`; copies no units.
  ZR_INLINE ZRStringMutator& operator=(const ZRStringMutator& other) noexcept;

  /// Gives up this string's body and shares that of `other`; copies no units.
  ZR_INLINE ZRStringMutator& operator=(const ZRString& other) noexcept;

  /// Makes a range of `source` the whole text.
  ZRStringMutator& SetTo(const ZRString& source, ZRLong start, ZRLong length);

  /// Makes the first `length` units of `text` the whole text.
  ZRStringMutator& SetTo(const unsigned short* text, ZRLong length);

  /// Replaces the unit at `offset`: below 0 the first one, past the end the last one. An empty
  /// string stays empty.
  ZRStringMutator& SetCharAt(ZRLong offset, unsigned short unit);

  ZRStringMutator& operator+=(unsigned short unit);    ///< Appends a unit.
  ZRStringMutator& operator+=(const ZRString& other);  ///< Appends the whole of `other`.

  /// Appends a range of `source`.
  ZRStringMutator& Append(const ZRString& source, ZRLong start, ZRLong length);

  /// The same with a raw operand.
  ZRStringMutator& Append(const unsigned short* text, ZRLong start, ZRLong length);

  /// Inserts a range of `source` before the unit at `position`.
  ZRStringMutator& Insert(ZRLong position, const ZRString& source, ZRLong start, ZRLong length);

  /// The same with a raw operand.
  ZRStringMutator& Insert(ZRLong position, const unsigned short* text, ZRLong start, ZRLong length);

  /// Replaces `length` units from `position` by a range of `source`.
  ZRStringMutator& Replace(ZRLong position, ZRLong length, const ZRString& source, ZRLong srcStart,
                           ZRLong srcLength);

  /// The same with a raw operand.
  ZRStringMutator& Replace(ZRLong position, ZRLong length, const unsigned short* text,
                           ZRLong srcStart, ZRLong srcLength);

  /// Replaces the units `start` through `end` by the units `srcStart` through `srcEnd` of `source`.
  ZRStringMutator& ReplaceBetween(ZRLong start, ZRLong end, const ZRString& source, ZRLong srcStart,
                                  ZRLong srcEnd);

  ZRStringMutator& Remove(ZRLong start, ZRLong length);      ///< Removes `length` units.
  ZRStringMutator& RemoveBetween(ZRLong start, ZRLong end);  ///< Removes through `end`.

  /// Replaces every occurrence of a range of `oldText` inside [start, start + length) by a range
  /// of `newText`. What was put in is not searched again; an empty old range changes nothing.
  ///
  /// A raw operand is read up to its first zero unit, which must be there even when its length is
  /// given; its range is cut to that text. -1 means to the end of that text, any other negative
  /// length an empty range. An operand within this string's own units is copied before this string
  /// detaches.
  ZRStringMutator& FindAndReplace(ZRLong start, ZRLong length, const ZRString& oldText,
                                  ZRLong oldStart, ZRLong oldLength, const ZRString& newText,
                                  ZRLong newStart, ZRLong newLength);
  ZRStringMutator& FindAndReplace(ZRLong start, ZRLong length, const unsigned short* oldText,
                                  ZRLong oldStart, ZRLong oldLength, const ZRString& newText,
                                  ZRLong newStart, ZRLong newLength);  ///< The same.
  ZRStringMutator& FindAndReplace(ZRLong start, ZRLong length, const ZRString& oldText,
                                  ZRLong oldStart, ZRLong oldLength, const unsigned short* newText,
                                  ZRLong newStart, ZRLong newLength);  ///< The same.
  ZRStringMutator& FindAndReplace(ZRLong start, ZRLong length, const unsigned short* oldText,
                                  ZRLong oldStart, ZRLong oldLength, const unsigned short* newText,
                                  ZRLong newStart, ZRLong newLength);  ///< The same.

  /// Brings the text into a normalization form.
  /// @return 1 when the text was replaced by its normalized form; 0 when a quick check found it in
  ///         that form, when `mode` is none of the five, or when ICU reported an error, for want of
  ///         memory too. With 0, and when `std::bad_alloc` is thrown, the string is unchanged and a
  ///         shared body stays shared.
  unsigned char Normalize(ZRStringNormalizationMode mode);

  /// Fills up to `targetLength` units with `padUnit` at the front.
  /// @return 1 when the string was shorter, else 0; 0 also when ICU cannot hold that many units,
  /// and
  ///         the text is then in ICU's error state.
  unsigned char PadLeading(ZRLong targetLength, unsigned short padUnit);

  /// The same at the end.
  unsigned char PadTrailing(ZRLong targetLength, unsigned short padUnit);

  /// Cuts the text to `targetLength` units.
  /// @return 1 when the string was longer, else 0; 0 for a negative length too.
  unsigned char Truncate(ZRLong targetLength);

  /// Removes leading and trailing white space, as ICU's `u_isWhitespace` knows it.
  ZRStringMutator& Trim();

  /// Reverses a range; surrogate pairs in it stay in order.
  ZRStringMutator& Reverse(ZRLong start, ZRLong length);

  /// Full case mapping by ICU's default locale; the length may change.
  ZRStringMutator& ToUpper();
  ZRStringMutator& ToLower();  ///< The same.

  const unsigned short* GetBuffer() const override;
  void Extract(ZRLong start, ZRLong length, unsigned short* dst, ZRLong dstStart) const override;
  void ExtractBetween(ZRLong start, ZRLong end, unsigned short* dst,
                      ZRLong dstStart) const override;

  /// Makes a range of this string the whole text of `target`, which detaches; this string does
  /// not.
  void Extract(ZRLong start, ZRLong length, ZRStringMutator& target) const;

  /// The same with an inclusive end.
  void ExtractBetween(ZRLong start, ZRLong end, ZRStringMutator& target) const;

  /// This string followed by `other`.
  ZRStringMutator operator+(const ZRString& other) const;

  /// Detaches and opens the text's own storage for writing, with room for at least `minCapacity`
  /// units (-1: its current capacity). The previous units are still in it.
  ///
  /// Null, with nothing changed, when a buffer is open already or `minCapacity` is below -1; null,
  /// with the text in ICU's error state, when ICU has no memory.
  /// Valid until ReleaseBuffer(). Do not copy the string while the buffer is open: the copy shares
  /// the body and sees what is written, and a second call here would detach from it and leave the
  /// copy with an open buffer that nobody can close.
  virtual unsigned short* GetBuffer(ZRLong minCapacity);

  /// Closes the buffer and makes `newLength` the length, at most the capacity; -1: up to the first
  /// zero unit in the buffer, or the whole capacity when there is none. Nothing when no buffer is
  /// open or `newLength` is below -1. Acts on the body held at this moment, without detaching.
  void ReleaseBuffer(ZRLong newLength);

  /// The units followed by a zero unit, without detaching. The units may move: a pointer that
  /// GetBuffer() gave, here or from a string that shares the body, is then invalid. For threads
  /// this is an edit. Null, with the text as it was, while a buffer is open, in ICU's error state
  /// and when ICU has no memory.
  const unsigned short* GetTerminatedBuffer();

  ZRLong GetCapacity() const;  ///< Units that the text's storage has room for.

  /// This object's own address as a handle, valid as long as the object lives.
  ZRMutableStringRef__* GetZRMutableStringRef();
};

/// `left` followed by `unit`.
ZR_API ZRStringMutator ZR_CALL operator+(const ZRString& left, unsigned short unit);

/// `unit` followed by `right`.
ZR_API ZRStringMutator ZR_CALL operator+(unsigned short unit, const ZRString& right);

/// The mutable string that a handle stands for. `handle` must not be null.
ZR_API ZRStringMutator& ZR_CALL GetZRStringMutatorFromRef(ZRMutableStringRef__* handle);

#if !defined(ZRString_EXPORTS) || defined(ZR_COMPILE_INLINE_MEMBERS)

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

#endif
