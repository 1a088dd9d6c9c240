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
  return body_->text.compare(start, Resolved(length, body_->text), src.body_->text, srcStart,
                             Resolved(srcLength, src.body_->text));
}

signed char ZRString::Compare(ZRLong start, ZRLong length, const unsigned short* src,
                              ZRLong srcStart, ZRLong srcLength) const {
  const RawRange raw = RawRangeOf(src, srcStart, srcLength);
  return body_->text.compare(start, Resolved(length, body_->text), raw.units, 0, raw.length);
}

signed char ZRString::CompareBetween(ZRLong start, ZRLong end, const ZRString& src, ZRLong srcStart,
                                     ZRLong srcEnd) const {
  const Range own = Between(start, end, body_->text);
  const Range other = Between(srcStart, srcEnd, src.body_->text);
  return body_->text.compareBetween(own.start, own.limit, src.body_->text, other.start,
                                    other.limit);
}

signed char ZRString::CompareCodePointOrder(ZRLong start, ZRLong length, const ZRString& src,
                                            ZRLong srcStart, ZRLong srcLength) const {
  return body_->text.compareCodePointOrder(start, Resolved(length, body_->text), src.body_->text,
                                           srcStart, Resolved(srcLength, src.body_->text));
}

signed char ZRString::CompareCodePointOrder(ZRLong start, ZRLong length, const unsigned short* src,
                                            ZRLong srcStart, ZRLong srcLength) const {
  const RawRange raw = RawRangeOf(src, srcStart, srcLength);
  return body_->text.compareCodePointOrder(start, Resolved(length, body_->text), raw.units, 0,
                                           raw.length);
}

signed char ZRString::CompareCodePointOrderBetween(ZRLong start, ZRLong end, const ZRString& src,
                                                   ZRLong srcStart, ZRLong srcEnd) const {
  const Range own = Between(start, end, body_->text);
  const Range other = Between(srcStart, srcEnd, src.body_->text);
  return body_->text.compareCodePointOrderBetween(own.start, own.limit, src.body_->text,
                                                  other.start, other.limit);
}

signed char ZRString::ICompare(ZRLong start, ZRLong length, const ZRString& src, ZRLong srcStart,
                               ZRLong srcLength, ZRULong options) const {
  const icu::UnicodeString& text = body_->text;
  const icu::UnicodeString& srcText = src.body_->text;
  const std::int32_t count = Resolved(length, text);
  const std::int32_t srcCount = Resolved(srcLength, srcText);
  if (options == kCollated)
    return Collate(icu::UnicodeString(text, start, count),
                   icu::UnicodeString(srcText, srcStart, srcCount));
  return text.caseCompare(start, count, srcText, srcStart, srcCount, IcuOptions(options));
}

signed char ZRString::ICompare(ZRLong start, ZRLong length, const unsigned short* src,
                               ZRLong srcStart, ZRLong srcLength, ZRULong options) const {
  const icu::UnicodeString& text = body_->text;
  const std::int32_t count = Resolved(length, text);
  if (options != kCollated) {
    const RawRange raw = RawRangeOf(src, srcStart, srcLength);
    return text.caseCompare(start, count, raw.units, 0, raw.length, IcuOptions(options));
  }
  const icu::UnicodeString operand = srcStart == 0
                                         ? icu::UnicodeString(ToIcu(src), RawLength(srcLength))
                                         : TerminatedRange(src, srcStart, srcLength);
  if (start == 0 && count == text.length())
    return Collate(text, operand);
  return Collate(icu::UnicodeString(text, start, count), operand);
}

signed char ZRString::ICompareBetween(ZRLong start, ZRLong end, const ZRString& src,
                                      ZRLong srcStart, ZRLong srcEnd, ZRULong options) const {
  const icu::UnicodeString& text = body_->text;
  const icu::UnicodeString& srcText = src.body_->text;
  const Range own = Between(start, end, text);
  const Range other = Between(srcStart, srcEnd, srcText);
  if (options == kCollated)
    return Collate(icu::UnicodeString(text, own.start, own.Length()),
                   icu::UnicodeString(srcText, other.start, other.Length()));
  return text.caseCompareBetween(own.start, own.limit, srcText, other.start, other.limit,
                                 IcuOptions(options));
}

unsigned char ZRString::StartsWith(const ZRString& src, ZRLong srcStart, ZRLong srcLength) const {
  // ICU 72's startsWith(), unlike its endsWith(), does not pin the operand's range.
  const Range range = Pinned(srcStart, srcLength, src.body_->text);
  return body_->text.startsWith(src.body_->text, range.start, range.Length());
}

unsigned char ZRString::StartsWith(const unsigned short* src, ZRLong srcStart,
                                   ZRLong srcLength) const {
  const RawRange raw = RawRangeOf(src, srcStart, srcLength);
  return body_->text.startsWith(raw.units, 0, raw.length);
}

unsigned char ZRString::EndsWith(const ZRString& src, ZRLong srcStart, ZRLong srcLength) const {
  return body_->text.endsWith(src.body_->text, srcStart, Resolved(srcLength, src.body_->text));
}

unsigned char ZRString::EndsWith(const unsigned short* src, ZRLong srcStart,
                                 ZRLong srcLength) const {
  const RawRange raw = RawRangeOf(src, srcStart, srcLength);
  return body_->text.endsWith(raw.units, 0, raw.length);
}
