#include <ZRString/ZRString.h>
#include <unicode/stringoptions.h>
#include <unicode/ustring.h>
#include <unicode/utf16.h>

#include <cstdint>

#include "string/CodeUnits.h"
#include "string/Comparison.h"
#include "string/ProcessCollator.h"
#include "string/Range.h"
#include "string/ZRStringImplementation.h"

namespace {

std::uint32_t IcuOptions(ZRULong options) {
  return options == kZRCompareIgnoreCaseCodePointOrder ? U_COMPARE_CODE_POINT_ORDER : options;
}

/// Whether some lead surrogate is followed by a unit that is no trail surrogate.
bool HasUnpairedLead(Units text) {
  for (std::int32_t i = 0; i + 1 < text.count; ++i)
    if (IsLead(text.first[i]) && !IsTrail(text.first[i + 1]))
      return true;
  return false;
}

/// A text without regard to case, unit by unit, or by code points if the options say so.
class FoldedText {
 public:
  FoldedText(Units text, std::uint32_t options) : text_(text), options_(options) {}

  /// The next unit or code point, or -1 at the end.
  std::int32_t Next() {
    if (next_ == length_ && !FoldNext())
      return -1;
    const char16_t unit = folded_[next_++];
    return (options_ & U_COMPARE_CODE_POINT_ORDER) != 0 && IsLead(unit) && next_ < length_
               ? U16_GET_SUPPLEMENTARY(unit, folded_[next_++])
               : unit;
  }

 private:
  bool FoldNext() {
    if (place_ == text_.count)
      return false;
    const std::int32_t start = place_;
    U16_FWD_1(text_.first, place_, text_.count);
    UErrorCode status = U_ZERO_ERROR;
    length_ = u_strFoldCase(folded_, kLongest, text_.first + start, place_ - start,
                            options_ & kFoldingBits, &status);
    next_ = 0;
    return true;
  }

  static constexpr std::int32_t kLongest = 6;         // a code point folds to three at most
  static constexpr std::uint32_t kFoldingBits = 0x7;  // the option bits that choose the folding

  const Units text_;
  const std::uint32_t options_;
  std::int32_t place_ = 0;
  char16_t folded_[kLongest];
  std::int32_t next_ = 0;
  std::int32_t length_ = 0;
};

/// Compares texts that differ, without u_strCaseCompare(), and slowly.
[[gnu::cold, gnu::noinline]] signed char CompareFolded(Units own, Units other,
                                                       std::uint32_t options) {
  FoldedText left(own, options), right(other, options);
  std::int32_t ours, theirs;
  do {
    ours = left.Next();
    theirs = right.Next();
  } while (ours == theirs && ours >= 0);
  return Order(ours, theirs);
}

signed char IcuCaseCompare(Units left, Units right, std::uint32_t options) {
  UErrorCode status = U_ZERO_ERROR;
  return Order(u_strCaseCompare(left.first, left.count, right.first, right.count, options, &status),
               0);
}

/// Compares by ICU what is not decided yet of two texts. Out of line, as the caller decides most.
///
/// Where `own` has an unpaired lead surrogate and a letter that folds, and `other` a pair with the
/// same lead that folds, ICU 72 reads the unit before an array on its stack: it finds a difference,
/// but the order depends on what is there. With the operands exchanged it is right there. A long
/// text is compared again in that way, as it may end long after the difference.
[[gnu::cold, gnu::noinline]] signed char CaseCompareRest(Units own, Units other,
                                                         std::uint32_t options) {
  constexpr std::int32_t kShort = 64;
  const signed char order = IcuCaseCompare(own, other, options);
  if (order == 0 ||
      (own.count <= kShort ? !HasUnpairedLead(own) : IcuCaseCompare(other, own, options) == -order))
    return order;
  return CompareFolded(own, other, options);
}

/// Compares without regard to case; with default folding, asks ICU only from the first unit on that
/// is neither equal nor ASCII. Leaves null texts to ICU.
signed char IgnoringCase(Units own, Units other, std::uint32_t options) {
  if (!own.first || !other.first)
    return kUndecided;
  if (options == U_FOLD_CASE_DEFAULT || options == U_COMPARE_CODE_POINT_ORDER) {
    if (const signed char order = IgnoringAsciiCase(own, other); order != kUndecided)
      return order;
  } else if (own.first == other.first) {  // caseCompare() then looks only at the lengths
    return kUndecided;
  }
  return CaseCompareRest(own, other, options);
}

constexpr bool IsWhole(ZRLong start, ZRLong length) { return start == 0 && length == kZRToEnd; }

// The collated comparisons are out of line. Inlined, they would make every ICompare() call set up a
// stack frame.

[[gnu::noinline]] signed char CollateRanges(const icu::UnicodeString& text, ZRLong start,
                                            ZRLong length, const icu::UnicodeString& srcText,
                                            ZRLong srcStart, ZRLong srcLength) {
  if (IsWhole(start, length) && IsWhole(srcStart, srcLength))
    return Collate(text, srcText);
  return Collate(UnitsOf(text, start, length), UnitsOf(srcText, srcStart, srcLength));
}

/// With a start of 0 the operand is read as in the other comparisons, with any other start up to
/// its first zero unit at most.
[[gnu::noinline]] signed char CollateRawRange(const icu::UnicodeString& text, ZRLong start,
                                              ZRLong length, const unsigned short* src,
                                              ZRLong srcStart, ZRLong srcLength) {
  return Collate(UnitsOf(text, start, length), srcStart == 0
                                                   ? RawUnits(src, 0, srcLength)
                                                   : TerminatedUnits(src, srcStart, srcLength));
}

}  // namespace

signed char ZRString::ICompare(ZRLong start, ZRLong length, const ZRString& src, ZRLong srcStart,
                               ZRLong srcLength, ZRULong options) const {
  if (options == kZRCompareCollated)
    return CollateRanges(TextOf(body_), start, length, TextOf(src.body_), srcStart, srcLength);
  const signed char order =
      IgnoringCase(UnitsOf(TextOf(body_), start, length),
                   UnitsOf(TextOf(src.body_), srcStart, srcLength), IcuOptions(options));
  if (order != kUndecided)
    return order;
  return TextOf(body_).caseCompare(start, Resolved(length), TextOf(src.body_), srcStart,
                                   Resolved(srcLength), IcuOptions(options));
}

signed char ZRString::ICompare(ZRLong start, ZRLong length, const unsigned short* src,
                               ZRLong srcStart, ZRLong srcLength, ZRULong options) const {
  if (options == kZRCompareCollated)
    return CollateRawRange(TextOf(body_), start, length, src, srcStart, srcLength);
  const Units raw = MeasuredUnits(src, srcStart, srcLength);
  const signed char order =
      IgnoringCase(UnitsOf(TextOf(body_), start, length), raw, IcuOptions(options));
  if (order != kUndecided)
    return order;
  return TextOf(body_).caseCompare(start, Resolved(length), raw.first, 0, raw.count,
                                   IcuOptions(options));
}

signed char ZRString::ICompareBetween(ZRLong start, ZRLong end, const ZRString& src,
                                      ZRLong srcStart, ZRLong srcEnd, ZRULong options) const {
  const Range own = Between(start, end);
  const Range other = Between(srcStart, srcEnd);
  if (options == kZRCompareCollated)
    return CollateRanges(TextOf(body_), own.start, own.Length(), TextOf(src.body_), other.start,
                         other.Length());
  const signed char order = IgnoringCase(UnitsOf(TextOf(body_), own),
                                         UnitsOf(TextOf(src.body_), other), IcuOptions(options));
  if (order != kUndecided)
    return order;
  return TextOf(body_).caseCompareBetween(own.start, own.limit, TextOf(src.body_), other.start,
                                          other.limit, IcuOptions(options));
}
