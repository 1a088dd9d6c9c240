#ifndef ZRSTRING_ZRSTRING_H
#define ZRSTRING_ZRSTRING_H

#include <ZRString/ZRTypes.h>

struct ZRStringRef__;
struct ZRMutableStringRef__;
class ZRStringMutator;

/// @def ZR_INLINE
/// Marks members that programs compile inline, so that copying a string takes no call. The library
/// compiles them as functions, in string/Copying.cpp, and exports them.
#if defined(ZRString_EXPORTS)
#define ZR_INLINE
#else
#define ZR_INLINE inline
#endif

/// The number of strings that hold a body: the first part of every body, and all that a program
/// sees of it, so that it can copy strings without a call.
///
/// The number is a plain integer, 1 for a new body. The two operations are all that change it.
struct ZRStringHolderCount {
 public:
  bool IsShared() const noexcept { return count_ > 1; }  ///< Whether there is more than one holder.

  /// Adds a holder. Returns the body.
  ZRStringHolderCount* TakeShare() noexcept {
    ++count_;
    return this;
  }

  /// Takes a holder away. Returns false, with the number as it is, if it is the last one: the body
  /// is then to be destroyed.
  bool GiveUpShare() noexcept {
    if (count_ < 2)
      return false;
    --count_;
    return true;
  }

 private:
  ZRLong count_ = 1;
};

/// An immutable Unicode string of UTF-16 code units.
///
/// **Sharing.** The units live in a reference-counted body. A copy, an assignment, a string made
/// from a handle and a string made from the whole of another one share the body: one pointer and
/// one addition, no allocation. The last holder frees the body. Only a ZRStringMutator changes
/// text, and it takes a body of its own before it does, so a ZRString never changes.
///
/// **Units and ranges.** Starts, lengths and indices count UTF-16 code units. A range is a start
/// and a length, cut to the text it refers to: a start below 0 is 0, a start past the end is the
/// end, a negative length is 0, a length past the end stops there. Nothing is an error.
///
/// - A length of -1 for this string or for a ZRString operand means to the end of that string.
/// - A *raw* operand is a `const unsigned short*` with a start and a length. It is not checked:
///   its range must be readable. A negative length means up to its terminating zero unit. A null
///   raw operand is an empty text.
/// - Members whose names end in `Between` take an inclusive end index instead of a length. An end
///   at or past the last index means through the end; an end below the start is an empty range,
///   and -1 has no other meaning there.
///
/// **Results.** Three-way comparisons give -1, 0 or +1: this string's range sorts before, equal
/// to or after the operand's. Yes/no queries give 1 or 0.
///
/// **Errors.** Constructors and CopyOnWrite() allocate. They deliver the whole text or throw
/// `std::bad_alloc`: for want of memory, the library's or ICU's, and for a text longer than ICU can
/// hold (some 2^31 units). No query throws. Collated comparison (option 3 of ICompare()) also
/// allocates inside ICU; what fails there is not reported.
///
/// **Threads.** Counts are plain integers and nothing is locked. Strings that share a body must
/// be copied, assigned, edited and destroyed by one thread at a time; threads may read them at
/// once as long as none does any of these.
class ZR_API ZRString {
 public:
  /// The units of `text` up to its terminating zero unit; empty when `text` is null.
  ZRString(const unsigned short* text);

  /// The first `length` units of `text`; a negative length: up to its terminating zero unit.
  ZRString(const unsigned short* text, ZRLong length);

  /// `length` units of `text` from its unit `start`; a negative length: from there up to the
  /// terminating zero unit. The caller answers for the range; a null `text` gives an empty string.
  ZRString(const unsigned short* text, ZRLong start, ZRLong length);

  /// `length` bytes of `text` from its byte `start`, decoded from the code page windows-1252; a
  /// length of -1: up to the terminating zero byte, any other negative length: none. A null
  /// `text` gives an empty string.
  ZRString(const unsigned char* text, ZRLong start, ZRLong length);

  /// The same for `char`.
  ZRString(const char* text, ZRLong start, ZRLong length);

  /// The units of `record`, as many as its count says; -1: up to a zero unit.
  ZRString(const UniStr255& record);

  /// A copy that shares the body of `source`.
  ZR_INLINE ZRString(const ZRString& source) noexcept;

  /// The first `length` units of `source`; -1: all. The one number is a length, not a start.
  /// Shares the body of `source` when `length` is -1 or exactly its length.
  ZRString(const ZRString& source, ZRLong length);

  /// A range of `source`; a length of -1: to its end. Shares the body of `source` when `start` is
  /// 0 and `length` is -1 or exactly its length; otherwise the units are copied.
  ZRString(const ZRString& source, ZRLong start, ZRLong length);

  /// Shares the body of the string that `handle` stands for; an empty string for a null handle.
  ZRString(ZRStringRef__* handle);

  /// The same for the handle of a mutable string.
  ZRString(ZRMutableStringRef__* handle);

  /// Gives up the share of the body, and frees the body with its last share.
  ZR_INLINE virtual ~ZRString();

  /// Equal texts. Strings that share a body are equal without a look at the text.
  bool operator==(const ZRString& other) const;
  bool operator!=(const ZRString& other) const;  ///< Different texts.
  bool operator>(const ZRString& other) const;   ///< Code unit order.
  bool operator<(const ZRString& other) const;   ///< Code unit order.
  bool operator>=(const ZRString& other) const;  ///< Code unit order.
  bool operator<=(const ZRString& other) const;  ///< Code unit order.

  /// Compares a range of this string with a range of `src` in UTF-16 code unit order.
  signed char Compare(ZRLong start, ZRLong length, const ZRString& src, ZRLong srcStart,
                      ZRLong srcLength) const;

  /// The same with a raw operand.
  signed char Compare(ZRLong start, ZRLong length, const unsigned short* src, ZRLong srcStart,
                      ZRLong srcLength) const;

  /// The same with inclusive ends.
  signed char CompareBetween(ZRLong start, ZRLong end, const ZRString& src, ZRLong srcStart,
                             ZRLong srcEnd) const;

  /// Compares two ranges in code point order: a supplementary character, two units from U+D800
  /// up, sorts after U+E000 to U+FFFF, where Compare() puts it before.
  signed char CompareCodePointOrder(ZRLong start, ZRLong length, const ZRString& src,
                                    ZRLong srcStart, ZRLong srcLength) const;

  /// The same with a raw operand.
  signed char CompareCodePointOrder(ZRLong start, ZRLong length, const unsigned short* src,
                                    ZRLong srcStart, ZRLong srcLength) const;

  /// The same with inclusive ends.
  signed char CompareCodePointOrderBetween(ZRLong start, ZRLong end, const ZRString& src,
                                           ZRLong srcStart, ZRLong srcEnd) const;

  /// Compares two ranges without regard to case, or in linguistic order.
  ///
  /// `options`: 0 default case folding in code unit order; 1 the same with the Turkic dotted and
  /// dotless i; 2 default case folding in code point order; 3 linguistic order, case included, of
  /// the collator of the process's default locale. Any other value goes to ICU's case folding
  /// comparison as its option bits.
  ///
  /// The collator is made by the first comparison that needs it and kept until the library is
  /// unloaded; a later change of the default locale does not reach it. If none can be made, the
  /// result is 0 and the next call tries again. Option 3 may be used by several threads at once;
  /// after the library's own clean-up at the process's end its result is 0.
  signed char ICompare(ZRLong start, ZRLong length, const ZRString& src, ZRLong srcStart,
                       ZRLong srcLength, ZRULong options) const;

  /// The same with a raw operand. With option 3 and a `srcStart` other than 0, `src` is read up to
  /// its terminating zero unit, which must be there, and the range is cut to that text; -1 means to
  /// its end, any other negative length an empty range.
  signed char ICompare(ZRLong start, ZRLong length, const unsigned short* src, ZRLong srcStart,
                       ZRLong srcLength, ZRULong options) const;

  /// The same with inclusive ends.
  signed char ICompareBetween(ZRLong start, ZRLong end, const ZRString& src, ZRLong srcStart,
                              ZRLong srcEnd, ZRULong options) const;

  /// Whether this whole string begins with a range of `src`. An empty range: yes.
  unsigned char StartsWith(const ZRString& src, ZRLong srcStart, ZRLong srcLength) const;

  /// The same with a raw operand.
  unsigned char StartsWith(const unsigned short* src, ZRLong srcStart, ZRLong srcLength) const;

  /// Whether this whole string ends with a range of `src`. An empty range: yes.
  unsigned char EndsWith(const ZRString& src, ZRLong srcStart, ZRLong srcLength) const;

  /// The same with a raw operand.
  unsigned char EndsWith(const unsigned short* src, ZRLong srcStart, ZRLong srcLength) const;

  /// Index of the first occurrence of a range of `pattern` inside a range of this string.
  ///
  /// The index counts from the start of this string; -1 when the pattern's range is empty or does
  /// not occur wholly inside [start, start + length). Half of a
  /// surrogate pair, at either end of the pattern, is not found where it would cut a pair inside
  /// the searched range.
  ZRLong Find(const ZRString& pattern, ZRLong patternStart, ZRLong patternLength, ZRLong start,
              ZRLong length) const;

  /// The same with a raw pattern; -1 also for a null pattern and for a negative `patternStart`.
  ZRLong Find(const unsigned short* pattern, ZRLong patternStart, ZRLong patternLength,
              ZRLong start, ZRLong length) const;

  /// Index of the last such occurrence.
  ZRLong RFind(const ZRString& pattern, ZRLong patternStart, ZRLong patternLength, ZRLong start,
               ZRLong length) const;

  /// The same with a raw pattern; -1 also for a null pattern and for a negative `patternStart`.
  ZRLong RFind(const unsigned short* pattern, ZRLong patternStart, ZRLong patternLength,
               ZRLong start, ZRLong length) const;

  /// Index of the last occurrence of `unit` in the whole string, -1 when there is none. Half of a
  /// surrogate pair is not found inside a whole pair.
  ZRLong LastIndexOf(unsigned short unit) const;

  /// The unit at `index`; 0xFFFF outside 0 .. GetLength() - 1.
  unsigned short CharAt(ZRLong index) const;
  unsigned short operator[](ZRLong index) const;  ///< CharAt().

  ZRLong GetLength() const;       ///< Number of UTF-16 code units.
  unsigned char IsEmpty() const;  ///< 1 when the length is 0.

  /// The units, not necessarily followed by a zero unit; take their number from GetLength().
  ///
  /// Valid while this string holds the same body and no holder of that body changes it or asks
  /// for its terminated buffer. Null while a writable buffer is open on the body, and in ICU's
  /// error state, which ZRStringMutator describes.
  virtual const unsigned short* GetBuffer() const;

  /// Copies a range to `dst[dstStart]` onwards and puts a zero unit after it.
  ///
  /// Room for `dstStart` + copied units + 1 is the caller's to provide. Writes nothing, not even
  /// the zero unit, when `start` is past the end or negative or `length` is below -1.
  virtual void Extract(ZRLong start, ZRLong length, unsigned short* dst, ZRLong dstStart) const;

  /// The same with an inclusive end. Writes nothing when `start` is negative or past `end` + 1,
  /// `end` having been cut to the last index.
  virtual void ExtractBetween(ZRLong start, ZRLong end, unsigned short* dst, ZRLong dstStart) const;

  /// This object's own address as a handle, valid as long as the object lives.
  ZRStringRef__* GetZRStringRef() const;

 protected:
  /// Gives up this string's body and shares that of `other`; nothing when they share it already.
  ZR_INLINE const ZRString& operator=(const ZRString& other) noexcept;

  /// Makes this string the only holder of its body: a shared body is copied. When the copy cannot
  /// be made, `std::bad_alloc` leaves the string as it was.
  void CopyOnWrite();

 private:
  friend class ZRStringMutator;

  ZRString();

  void CreateNewImplementation();
  void CreateNewImplementation(const unsigned short* text, ZRLong start, ZRLong length);
  void CreateNewImplementation(const char* text, ZRLong length);
  void CreateNewImplementation(const ZRString& source, ZRLong start, ZRLong length);
  void CreateNewImplementation(ZRStringRef__* handle);
  void CreateNewImplementation(ZRMutableStringRef__* handle);

  /// Destroys the body, of which this string is the last holder.
  void DestroyBody() noexcept;

  /// Never null after construction; this object holds exactly one share of it. The text follows the
  /// count, inside the library.
  ZRStringHolderCount* body_;
};

/// The string that a handle stands for. `handle` must not be null.
ZR_API const ZRString& ZR_CALL GetZRStringFromRef(ZRStringRef__* handle);

/// Writes the address of the string that `handle` stands for to `*result`.
/// @return 5 `result` is null (tested first); 4 `handle` is null; otherwise 0. `*result` is
///         written only with 0.
ZR_API ZRLong ZR_CALL ZRStringRefToZRString(ZRStringRef__* handle, ZRString** result);

#if !defined(ZRString_EXPORTS) || defined(ZR_COMPILE_INLINE_MEMBERS)

ZR_INLINE ZRString::ZRString(const ZRString& source) noexcept : body_(source.body_->TakeShare()) {}

ZR_INLINE ZRString::~ZRString() {
  if (!body_->GiveUpShare())
    DestroyBody();
}

ZR_INLINE const ZRString& ZRString::operator=(const ZRString& other) noexcept {
  if (body_ != other.body_) {
    if (!body_->GiveUpShare())
      DestroyBody();
    body_ = other.body_->TakeShare();
  }
  return *this;
}

#endif

#endif
