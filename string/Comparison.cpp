#include <ZRString/ZRString.h>
#include <unicode/stringoptions.h>

#include "string/CodeUnits.h"
#include "string/ProcessCollator.h"
#include "string/Range.h"
#include "string/ZRStringImplementation.h"

namespace {

std::uint32_t IcuOptions(ZRULong options) {
  return options == kZRCompareIgnoreCaseCodePointOrder ? U_COMPARE_CODE_POINT_ORDER : options;
}

/// The operand of a collated comparison: up to its zero unit, or `length` units of it, from a start
/// of 0; otherwise a range of the text up to its zero unit.
Units CollatedOperand(const unsigned short* src, ZRLong srcStart, ZRLong srcLength) {
  return srcStart == 0 ? RawUnits(src, 0, srcLength) : TerminatedUnits(src, srcStart, srcLength);
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
  const RawOperand raw(src, srcStart, srcLength);
  return body_->text.compare(start, Resolved(length), raw.units, raw.start, raw.length);
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
  const RawOperand raw(src, srcStart, srcLength);
  return body_->text.compareCodePointOrder(start, Resolved(length), raw.units, raw.start,
                                           raw.length);
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
  if (options == kZRCompareCollated)
    return Collate(UnitsOf(body_->text, start, length),
                   UnitsOf(src.body_->text, srcStart, srcLength));
  return body_->text.caseCompare(start, Resolved(length), src.body_->text, srcStart,
                                 Resolved(srcLength), IcuOptions(options));
}

signed char ZRString::ICompare(ZRLong start, ZRLong length, const unsigned short* src,
                               ZRLong srcStart, ZRLong srcLength, ZRULong options) const {
  if (options == kZRCompareCollated)
    return Collate(UnitsOf(body_->text, start, length), CollatedOperand(src, srcStart, srcLength));
  const RawOperand raw(src, srcStart, srcLength);
  return body_->text.caseCompare(start, Resolved(length), raw.units, raw.start, raw.length,
                                 IcuOptions(options));
}

signed char ZRString::ICompareBetween(ZRLong start, ZRLong end, const ZRString& src,
                                      ZRLong srcStart, ZRLong srcEnd, ZRULong options) const {
  const Range own = Between(start, end);
  const Range other = Between(srcStart, srcEnd);
  if (options == kZRCompareCollated)
    return Collate(UnitsOf(body_->text, own), UnitsOf(src.body_->text, other));
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
  const Units raw = RawUnits(src, srcStart, srcLength);
  return body_->text.startsWith(raw.first, 0, raw.count);
}

unsigned char ZRString::EndsWith(const ZRString& src, ZRLong srcStart, ZRLong srcLength) const {
  return body_->text.endsWith(src.body_->text, srcStart, Resolved(srcLength));
}

unsigned char ZRString::EndsWith(const unsigned short* src, ZRLong srcStart,
                                 ZRLong srcLength) const {
  const Units raw = RawUnits(src, srcStart, srcLength);
  return body_->text.endsWith(raw.first, 0, raw.count);
}
