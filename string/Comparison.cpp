#include <ZRString/ZRString.h>
#include <unicode/stringoptions.h>

#include "string/CodeUnits.h"
#include "string/ProcessCollator.h"
#include "string/Range.h"
#include "string/TerminatedRange.h"
#include "string/ZRStringImplementation.h"

namespace {

constexpr ZRULong kCodePointOrder = 2;
constexpr ZRULong kCollated = 3;

std::uint32_t IcuOptions(ZRULong options) {
  return options == kCodePointOrder ? U_COMPARE_CODE_POINT_ORDER : options;
}

// The collated comparisons stand apart from their members, which would otherwise set up room for
// the temporaries at every call.

[[gnu::noinline]] signed char CollateRanges(const icu::UnicodeString& text, std::int32_t start,
                                            std::int32_t length, const icu::UnicodeString& srcText,
                                            std::int32_t srcStart, std::int32_t srcLength) {
  return Collate(icu::UnicodeString(text, start, length),
                 icu::UnicodeString(srcText, srcStart, srcLength));
}

[[gnu::noinline]] signed char CollateRawRange(const icu::UnicodeString& text, ZRLong start,
                                              ZRLong length, const unsigned short* src,
                                              ZRLong srcStart, ZRLong srcLength) {
  const icu::UnicodeString operand = srcStart == 0
                                         ? icu::UnicodeString(ToIcu(src), RawLength(srcLength))
                                         : TerminatedRange(src, srcStart, srcLength);
  if (start == 0 && (length == kToEnd || length == text.length()))
    return Collate(text, operand);
  return Collate(icu::UnicodeString(text, start, Resolved(length)), operand);
}

}  // namespace

bool ZRString::operator==(const ZRString& other) const {
  return body_ == other.body_ || body_->text == other.body_->text;
}

bool ZRString::operator!=(const ZRString& other) const { return body_->text != other.body_->text; }

bool ZRString::operator>(const ZRString& other) const { return body_->text > other.body_->text; }

bool ZRString::operator<(const ZRString& other) const { return body_->text < other.body_->text; }

bool ZRString::operator>=(const ZRString& other) const { return body_->text >= other.body_->text; }

bool ZRString::operator<=(const ZRString& other) const { return body_->text <= other.body_->text; }

signed char ZRString::Compare(ZRLong start, ZRLong length, const ZRString& src, ZRLong srcStart,
                              ZRLong srcLength) const {
  return body_->text.compare(start, Resolved(length), src.body_->text, srcStart,
                             Resolved(srcLength));
}

signed char ZRString::Compare(ZRLong start, ZRLong length, const unsigned short* src,
                              ZRLong srcStart, ZRLong srcLength) const {
  const RawRange raw = RawRangeOf(src, srcStart, srcLength);
  return body_->text.compare(start, Resolved(length), raw.units, 0, raw.length);
}

signed char ZRString::CompareBetween(ZRLong start, ZRLong end, const ZRString& src, ZRLong srcStart,
                                     ZRLong srcEnd) const {
  const Range own = Between(start, end);
  const Range other = Between(srcStart, srcEnd);
  return body_->text.compareBetween(own.start, own.limit, src.body_->text, other.start,
                                    other.limit);
}

signed char ZRString::CompareCodePointOrder(ZRLong start, ZRLong length, const ZRString& src,
                                            ZRLong srcStart, ZRLong srcLength) const {
  return body_->text.compareCodePointOrder(start, Resolved(length), src.body_->text, srcStart,
                                           Resolved(srcLength));
}

signed char ZRString::CompareCodePointOrder(ZRLong start, ZRLong length, const unsigned short* src,
                                            ZRLong srcStart, ZRLong srcLength) const {
  const RawRange raw = RawRangeOf(src, srcStart, srcLength);
  return body_->text.compareCodePointOrder(start, Resolved(length), raw.units, 0, raw.length);
}

signed char ZRString::CompareCodePointOrderBetween(ZRLong start, ZRLong end, const ZRString& src,
                                                   ZRLong srcStart, ZRLong srcEnd) const {
  const Range own = Between(start, end);
  const Range other = Between(srcStart, srcEnd);
  return body_->text.compareCodePointOrderBetween(own.start, own.limit, src.body_->text,
                                                  other.start, other.limit);
}

signed char ZRString::ICompare(ZRLong start, ZRLong length, const ZRString& src, ZRLong srcStart,
                               ZRLong srcLength, ZRULong options) const {
  const std::int32_t count = Resolved(length);
  const std::int32_t srcCount = Resolved(srcLength);
  if (options == kCollated)
    return CollateRanges(body_->text, start, count, src.body_->text, srcStart, srcCount);
  return body_->text.caseCompare(start, count, src.body_->text, srcStart, srcCount,
                                 IcuOptions(options));
}

signed char ZRString::ICompare(ZRLong start, ZRLong length, const unsigned short* src,
                               ZRLong srcStart, ZRLong srcLength, ZRULong options) const {
  if (options == kCollated)
    return CollateRawRange(body_->text, start, length, src, srcStart, srcLength);
  const RawRange raw = RawRangeOf(src, srcStart, srcLength);
  return body_->text.caseCompare(start, Resolved(length), raw.units, 0, raw.length,
                                 IcuOptions(options));
}

signed char ZRString::ICompareBetween(ZRLong start, ZRLong end, const ZRString& src,
                                      ZRLong srcStart, ZRLong srcEnd, ZRULong options) const {
  const Range own = Between(start, end);
  const Range other = Between(srcStart, srcEnd);
  if (options == kCollated)
    return CollateRanges(body_->text, own.start, own.Length(), src.body_->text, other.start,
                         other.Length());
  return body_->text.caseCompareBetween(own.start, own.limit, src.body_->text, other.start,
                                        other.limit, IcuOptions(options));
}

unsigned char ZRString::StartsWith(const ZRString& src, ZRLong srcStart, ZRLong srcLength) const {
  // ICU 72's startsWith(), unlike its endsWith(), does not pin the operand's range.
  const icu::UnicodeString& srcText = src.body_->text;
  const std::int32_t first = std::clamp<std::int32_t>(srcStart, 0, srcText.length());
  const std::int32_t count =
      std::clamp<std::int32_t>(Resolved(srcLength), 0, srcText.length() - first);
  return body_->text.startsWith(srcText, first, count);
}

unsigned char ZRString::StartsWith(const unsigned short* src, ZRLong srcStart,
                                   ZRLong srcLength) const {
  const RawRange raw = RawRangeOf(src, srcStart, srcLength);
  return body_->text.startsWith(raw.units, 0, raw.length);
}

unsigned char ZRString::EndsWith(const ZRString& src, ZRLong srcStart, ZRLong srcLength) const {
  return body_->text.endsWith(src.body_->text, srcStart, Resolved(srcLength));
}

unsigned char ZRString::EndsWith(const unsigned short* src, ZRLong srcStart,
                                 ZRLong srcLength) const {
  const RawRange raw = RawRangeOf(src, srcStart, srcLength);
  return body_->text.endsWith(raw.units, 0, raw.length);
}
