#include <ZRString/ZRString.h>
#include <unicode/stringoptions.h>
#include <unicode/ustring.h>

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

/// What follows the equal beginnings of two texts, compared by ICU. Out of line, as the caller
/// decides most texts.
[[gnu::noinline]] signed char CaseCompareRest(Units own, Units other, std::uint32_t options) {
  UErrorCode status = U_ZERO_ERROR;
  return Order(u_strCaseCompare(own.first, own.count, other.first, other.count, options, &status),
               0);
}

/// Compares without regard to case, with ICU only from the first unit that is neither equal nor
/// ASCII. Does not decide with options that fold in another way, nor null texts.
signed char IgnoringCase(Units own, Units other, std::uint32_t options) {
  if (options != U_FOLD_CASE_DEFAULT && options != U_COMPARE_CODE_POINT_ORDER)
    return kUndecided;
  const signed char order = IgnoringAsciiCase(own, other);
  return order == kUndecided && own.first && other.first ? CaseCompareRest(own, other, options)
                                                         : order;
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
  const RawOperand raw(src, srcStart, srcLength);
  const signed char order =
      IgnoringCase(UnitsOf(TextOf(body_), start, length), raw.Known(), IcuOptions(options));
  if (order != kUndecided)
    return order;
  return TextOf(body_).caseCompare(start, Resolved(length), raw.units, raw.start, raw.length,
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
