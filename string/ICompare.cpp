#include <ZRString/ZRString.h>
#include <unicode/stringoptions.h>

#include <cstdint>

#include "string/CodeUnits.h"
#include "string/ProcessCollator.h"
#include "string/Range.h"
#include "string/ZRStringImplementation.h"

namespace {

std::uint32_t IcuOptions(ZRULong options) {
  return options == kZRCompareIgnoreCaseCodePointOrder ? U_COMPARE_CODE_POINT_ORDER : options;
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
  return TextOf(body_).caseCompare(start, Resolved(length), TextOf(src.body_), srcStart,
                                   Resolved(srcLength), IcuOptions(options));
}

signed char ZRString::ICompare(ZRLong start, ZRLong length, const unsigned short* src,
                               ZRLong srcStart, ZRLong srcLength, ZRULong options) const {
  if (options == kZRCompareCollated)
    return CollateRawRange(TextOf(body_), start, length, src, srcStart, srcLength);
  const RawOperand raw(src, srcStart, srcLength);
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
  return TextOf(body_).caseCompareBetween(own.start, own.limit, TextOf(src.body_), other.start,
                                          other.limit, IcuOptions(options));
}
