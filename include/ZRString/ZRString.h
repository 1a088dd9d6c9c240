#ifndef ZRSTRING_ZRSTRING_H
#define ZRSTRING_ZRSTRING_H

#include <ZRString/ZRTypes.h>

struct ZRStringRef__;
struct ZRMutableStringRef__;
class ZRStringMutator;

/// @def ZR_INLINE
/// Marks members that programs compile inline, so that copying a string takes no call. The library
/// exports them as functions, too.
#if defined(ZRString_EXPORTS)
#define ZR_INLINE inline __attribute__((used))
#else
#define ZR_INLINE inline
#endif

/// The number of strings that hold a body: the first part of every body, and all of it that
/// programs see.
///
/// A plain integer, 1 for a new body. Only TakeShare() and GiveUpShare() change it.
/// @code
/// ZRStringHolderCount count;
/// assert(count.TakeShare() == &count && count.IsShared());
/// assert(count.GiveUpShare() && !count.IsShared());
/// assert(!count.GiveUpShare());  // the last one
/// @endcode
/// @since 1.1
class ZRStringHolderCount {
 public:
  bool IsShared() const noexcept { return count_ > 1; }  ///< Whether there is more than one holder.

  /// Adds a holder. Returns the body.
  ZRStringHolderCount* TakeShare() noexcept {
    ++count_;
    return this;
  }

  /// Removes a holder. Returns false, with the number unchanged, for the last one, who must destroy
  /// the body instead.
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
/// It cannot be assigned and has no default. Use ZRStringMutator in structs, in `std::optional` and
/// in vectors that are sorted or erased from; copies share their text all the same.
///
/// @code
/// const ZRString text("copy on write", 0, kZRToEnd);
/// const ZRString copy(text);               // shares the units
/// const ZRString word(text, 8, kZRToEnd);  // copies those of "write"
/// assert(copy.GetBuffer() == text.GetBuffer());
/// assert(word.GetLength() == 5 && word.CharAt(0) == 'w');
/// assert(text.EndsWith(word, 0, kZRToEnd));
/// assert(text.Find(word, 0, 2, 0, kZRToEnd) == 8);    // "wr" in the whole text
/// assert(text.CompareBetween(0, 3, word, 0, 3) < 0);  // "copy" before "writ"
/// @endcode
///
/// **Sharing.** The units are in a reference-counted body. Copies, assignments, strings created
/// from a handle, and strings created from a range of another string with a start of 0 and a length
/// of -1 or exactly that string's share the body of their source, which takes an addition and no
/// allocation. The last holder destroys the body. Only ZRStringMutator changes text, and it first
/// gets a body of its own. At most 2147483647 strings may share a body; one more is undefined
/// behaviour.
///
/// **Units and ranges.** Starts, lengths and indices count UTF-16 code units. A range is a start
/// and a length, clamped to the text it refers to: a start below 0 counts as 0, a start past the
/// end as the end, a negative length as 0, and a length past the end stops at the end. No range is
/// an error.
///
/// - A length of -1 (#kZRToEnd) for this string or for a ZRString operand means to the end of that
///   string.
/// - A *raw* operand is a `const unsigned short*` with a start and a length. It is not checked: its
///   range must be readable. A negative length means up to its terminating zero unit. A null raw
///   operand is an empty text.
/// - Members whose names end in `Between` take an inclusive end index instead of a length. An end
///   at or past the last index means through the end, an end below the start an empty range. For
///   them -1 is an end like any other.
///
/// **Results.** Three-way comparisons give -1, 0 or +1: this string's range sorts before, equal
/// to or after the operand's. Yes/no queries give 1 or 0.
///
/// **Errors.** A constructor that makes a body of its own, and CopyOnWrite(), deliver the whole
/// text or throw `std::bad_alloc`: when the library or ICU runs out of memory, and for a text
/// longer than ICU can hold, some 2^31 units. Queries do not throw. Collated comparison (option 3
/// of ICompare()) allocates inside ICU; if that fails, the result may be wrong, and the first such
/// call may crash.
///
/// **Threads.** There is no locking, and the number of holders is a plain integer: strings that
/// share a body may be copied, assigned, edited and destroyed by only one thread at a time. Any
/// number of threads may read them while none does any of these.
class ZR_API ZRString {
 public:
  /// @name Creation
  /// @code
  /// const unsigned short units[] = {'b', 'a', 'n', 'a', 'n', 'a', 0};
  /// const ZRString banana(units);  // up to the zero unit
  /// assert(banana == ZRString("banana", 0, kZRToEnd));           // from windows-1252 bytes
  /// assert(ZRString(banana, 2) == ZRString(units, 2));           // "ba": a length
  /// assert(ZRString(banana, 2, 3) == ZRString("nan", 0, 3));     // a start and a length
  /// assert(ZRString(banana).GetBuffer() == banana.GetBuffer());  // a copy shares the units
  /// @endcode
  /// @{

  /// Holds the units of `text` up to its terminating zero unit; none if `text` is null.
  ZRString(const unsigned short* text);

  /// Holds the first `length` units of `text`, as a raw operand with a start of 0.
  ZRString(const unsigned short* text, ZRLong length);

  /// Holds a range of `text`, a raw operand.
  ZRString(const unsigned short* text, ZRLong start, ZRLong length);

  /// Holds `length` bytes of `text` from its byte `start`, decoded from the code page windows-1252.
  ///
  /// A length of -1 means up to the terminating zero byte, any other negative length no bytes. The
  /// range is not checked. A null `text` gives an empty string, whatever the range.
  ZRString(const unsigned char* text, ZRLong start, ZRLong length);

  /// Holds 8-bit text, as the constructor from `unsigned char`.
  ZRString(const char* text, ZRLong start, ZRLong length);

  /// Holds as many units of `record` as its length says; -1: up to the first zero unit.
  ZRString(const UniStr255& record);

  /// Shares the body of `source`.
  ZR_INLINE ZRString(const ZRString& source) noexcept;

  /// Holds the first `length` units of `source`; -1: all. The number is a length, not a start.
  ///
  /// Shares the body of `source` if `length` is -1 or exactly its length.
  ZRString(const ZRString& source, ZRLong length);

  /// Holds a range of `source`.
  ///
  /// Shares the body of `source` if `start` is 0 and `length` is -1 or exactly its length; copies
  /// the units otherwise.
  ZRString(const ZRString& source, ZRLong start, ZRLong length);

  /// Shares the body of the string that `handle` stands for; an empty string for a null handle.
  ZRString(ZRStringRef__* handle);

  /// Shares the body of the mutable string that `handle` stands for; an empty string for a null
  /// handle.
  ZRString(ZRMutableStringRef__* handle);

  /// Gives up this string's share of its body. The last holder destroys the body.
  ZR_INLINE virtual ~ZRString();

  /// @}

  /// @name Comparison
  /// @code
  /// const ZRString name("Stra\337e", 0, kZRToEnd);  // windows-1252
  /// const ZRString sign("STRASSE", 0, kZRToEnd);
  /// assert(name != sign && sign < name);
  /// assert(name.Compare(0, 1, sign, 0, 1) == 0);
  /// assert(name.CompareBetween(0, 0, sign, 0, 0) == 0);  // the same range: units 0 through 0
  /// assert(name.ICompare(0, kZRToEnd, sign, 0, kZRToEnd, kZRCompareIgnoreCase) == 0);
  /// @endcode
  /// @{

  /// Whether the texts are equal. Does not read them if both strings hold the same body.
  bool operator==(const ZRString& other) const noexcept;
  bool operator!=(const ZRString& other) const noexcept;  ///< Whether the texts differ.
  bool operator>(const ZRString& other) const noexcept;   ///< In code unit order.
  bool operator<(const ZRString& other) const noexcept;   ///< In code unit order.
  bool operator>=(const ZRString& other) const noexcept;  ///< In code unit order.
  bool operator<=(const ZRString& other) const noexcept;  ///< In code unit order.

  /// Compares a range of this string with a range of `src` in UTF-16 code unit order.
  signed char Compare(ZRLong start, ZRLong length, const ZRString& src, ZRLong srcStart,
                      ZRLong srcLength) const noexcept;

  /// Compares a range of this string with a raw operand in UTF-16 code unit order.
  signed char Compare(ZRLong start, ZRLong length, const unsigned short* src, ZRLong srcStart,
                      ZRLong srcLength) const noexcept;

  /// As Compare(), with inclusive ends.
  signed char CompareBetween(ZRLong start, ZRLong end, const ZRString& src, ZRLong srcStart,
                             ZRLong srcEnd) const noexcept;

  /// Compares a range of this string with a range of `src` in code point order.
  ///
  /// A supplementary character, whose units begin at U+D800, sorts after U+E000 to U+FFFF. In the
  /// order of Compare() it sorts before them.
  signed char CompareCodePointOrder(ZRLong start, ZRLong length, const ZRString& src,
                                    ZRLong srcStart, ZRLong srcLength) const noexcept;

  /// Compares a range of this string with a raw operand in code point order.
  signed char CompareCodePointOrder(ZRLong start, ZRLong length, const unsigned short* src,
                                    ZRLong srcStart, ZRLong srcLength) const noexcept;

  /// As CompareCodePointOrder(), with inclusive ends.
  signed char CompareCodePointOrderBetween(ZRLong start, ZRLong end, const ZRString& src,
                                           ZRLong srcStart, ZRLong srcEnd) const noexcept;

  /// Compares a range of this string with a range of `src` without regard to case, or in linguistic
  /// order.
  ///
  /// | `options` | Compares |
  /// |---|---|
  /// | 0, #kZRCompareIgnoreCase | by default case folding, in code unit order |
  /// | 1, #kZRCompareIgnoreCaseTurkic | as 0, with the Turkic dotted and dotless i |
  /// | 2, #kZRCompareIgnoreCaseCodePointOrder | as 0, in code point order |
  /// | 3, #kZRCompareCollated | in the linguistic order of the default locale, case included |
  /// | any other value | as ICU's case-insensitive comparison with these option bits |
  ///
  /// Option 3 uses one collator, for the locale that is the default when a comparison first needs
  /// it, and keeps it until the library is unloaded. If none can be created, the result is 0 and
  /// the next comparison tries again. Several threads may use option 3 at once. Once the library's
  /// static destructors have run, its result is 0.
  signed char ICompare(ZRLong start, ZRLong length, const ZRString& src, ZRLong srcStart,
                       ZRLong srcLength, ZRULong options) const;

  /// Compares a range of this string with a raw operand without regard to case, or in linguistic
  /// order.
  ///
  /// With option 3 and a `srcStart` other than 0, `src` is read up to its terminating zero unit and
  /// the range is clamped to that text: there -1 means to its end, any other negative length an
  /// empty range.
  signed char ICompare(ZRLong start, ZRLong length, const unsigned short* src, ZRLong srcStart,
                       ZRLong srcLength, ZRULong options) const;

  /// As ICompare(), with inclusive ends.
  signed char ICompareBetween(ZRLong start, ZRLong end, const ZRString& src, ZRLong srcStart,
                              ZRLong srcEnd, ZRULong options) const;

  /// @}

  /// @name Search
  /// @code
  /// const ZRString list("un, deux, un", 0, kZRToEnd);
  /// const ZRString word("un", 0, kZRToEnd);
  /// assert(list.StartsWith(word, 0, kZRToEnd) && list.EndsWith(word, 0, kZRToEnd));
  /// assert(list.Find(word, 0, kZRToEnd, 1, kZRToEnd) == 10);  // from unit 1 to the end
  /// assert(list.RFind(word, 0, kZRToEnd, 0, 10) == 0);        // in the first ten units
  /// assert(list.LastIndexOf(',') == 8 && list.LastIndexOf(';') == kZRNotFound);
  /// @endcode
  /// @{

  /// Whether this whole string begins with a range of `src`. 1 for an empty range; 0 if just one of
  /// the two is in ICU's error state, which ZRStringMutator describes.
  unsigned char StartsWith(const ZRString& src, ZRLong srcStart, ZRLong srcLength) const noexcept;

  /// Whether this whole string begins with a raw operand. 1 for an empty range; 0 in ICU's error
  /// state.
  unsigned char StartsWith(const unsigned short* src, ZRLong srcStart,
                           ZRLong srcLength) const noexcept;

  /// Whether this whole string ends with a range of `src`. Returns as StartsWith().
  unsigned char EndsWith(const ZRString& src, ZRLong srcStart, ZRLong srcLength) const noexcept;

  /// Whether this whole string ends with a raw operand. Returns as StartsWith().
  unsigned char EndsWith(const unsigned short* src, ZRLong srcStart,
                         ZRLong srcLength) const noexcept;

  /// Index of the first occurrence of a range of `pattern` inside a range of this string.
  ///
  /// The index counts from the start of this string. It is -1 (#kZRNotFound) if the pattern's range
  /// is empty or does not occur wholly inside [start, start + length). A pattern that begins with a
  /// trail surrogate or ends with a lead surrogate is not found where it would split a pair of the
  /// searched range.
  ZRLong Find(const ZRString& pattern, ZRLong patternStart, ZRLong patternLength, ZRLong start,
              ZRLong length) const noexcept;

  /// Index of the first occurrence of a raw pattern inside a range of this string. Also -1 for a
  /// null pattern and for a negative `patternStart`.
  ZRLong Find(const unsigned short* pattern, ZRLong patternStart, ZRLong patternLength,
              ZRLong start, ZRLong length) const noexcept;

  /// Index of the last occurrence of what Find() finds the first of.
  ZRLong RFind(const ZRString& pattern, ZRLong patternStart, ZRLong patternLength, ZRLong start,
               ZRLong length) const noexcept;

  /// Index of the last occurrence of a raw pattern inside a range of this string. Also -1 for a
  /// null pattern and for a negative `patternStart`.
  ZRLong RFind(const unsigned short* pattern, ZRLong patternStart, ZRLong patternLength,
               ZRLong start, ZRLong length) const noexcept;

  /// Index of the last occurrence of `unit` in the whole string; -1 if there is none. Half of a
  /// surrogate pair is not found inside a pair.
  ZRLong LastIndexOf(unsigned short unit) const noexcept;

  /// @}

  /// @name Units and handle
  /// @code
  /// const ZRString text("banana", 0, kZRToEnd);
  /// assert(text.GetLength() == 6 && !text.IsEmpty());
  /// assert(text[2] == 'n' && text.CharAt(6) == kZRNoUnit);
  /// assert(text.GetBuffer()[5] == 'a');  // perhaps no zero unit follows
  /// unsigned short part[4];
  /// text.Extract(2, 3, part, 0);
  /// assert(part[0] == 'n' && part[3] == 0);
  /// @endcode
  /// @{

  /// The unit at `index`; 0xFFFF (#kZRNoUnit) outside 0 .. GetLength() - 1.
  unsigned short CharAt(ZRLong index) const noexcept;
  unsigned short operator[](ZRLong index) const noexcept;  ///< As CharAt().

  ZRLong GetLength() const noexcept;       ///< Number of UTF-16 code units.
  unsigned char IsEmpty() const noexcept;  ///< Whether the length is 0.

  /// The units, GetLength() of them, not necessarily followed by a zero unit.
  ///
  /// Valid as long as this string holds the same body and no holder of that body changes it or asks
  /// for its terminated buffer. Null while a writable buffer is open on the body, and in ICU's
  /// error state, which ZRStringMutator describes.
  virtual const unsigned short* GetBuffer() const;

  /// Copies a range to memory that starts at `dst[dstStart]`, and adds a zero unit.
  ///
  /// `dst` must have room for `dstStart`, the copied units and the zero unit, and must not overlap
  /// this string's units. Writes nothing, not even the zero unit, if `start` is negative or past
  /// the end or if `length` is below -1.
  virtual void Extract(ZRLong start, ZRLong length, unsigned short* dst, ZRLong dstStart) const;

  /// Copies the units `start` through `end` to memory that starts at `dst[dstStart]`, and adds a
  /// zero unit.
  ///
  /// As Extract(), but an `end` past the last index is first clamped to it. Writes nothing if
  /// `start` is negative or greater than `end` + 1.
  virtual void ExtractBetween(ZRLong start, ZRLong end, unsigned short* dst, ZRLong dstStart) const;

  /// This object's address as a handle, valid as long as the object lives.
  ZRStringRef__* GetZRStringRef() const noexcept;

  /// @}

 protected:
  /// Gives up this string's body and shares that of `other`. Does nothing if both are the same.
  ZR_INLINE const ZRString& operator=(const ZRString& other) noexcept;

  /// Makes this string the only holder of its body, by copying a shared one. If the copy cannot be
  /// made, throws `std::bad_alloc` and leaves the string as it was.
  void CopyOnWrite();

 private:
  friend class ZRStringMutator;
  friend struct ZRStringLongEdit;  // inside the library

  ZRString();

  void CreateNewImplementation();
  void CreateNewImplementation(const unsigned short* text, ZRLong start, ZRLong length);
  void CreateNewImplementation(const char* text, ZRLong length);
  void CreateNewImplementation(const ZRString& source, ZRLong start, ZRLong length);
  void CreateNewImplementation(ZRStringRef__* handle);
  void CreateNewImplementation(ZRMutableStringRef__* handle);

  /// Destroys the body, whose last holder this string is.
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
