#include <ZRString/ZRString.h>

#include <algorithm>
#include <cstdint>

#include "string/CodeUnits.h"
#include "string/Comparison.h"
#include "string/Range.h"
#include "string/Search.h"
#include "string/ZRStringImplementation.h"

// The members of ZRString that read the text, except ICompare().
//
// CMakeLists.txt compiles this file with -fno-exceptions. Most members here are noexcept and end in
// a call of ICU, whose functions do not throw but are not declared noexcept. With exceptions, the
// compiler could not turn such a call into a jump.
//
// Comparison.h and Search.h answer before ICU, where they can. What they leave undecided goes to
// the ICU call below.

namespace {

signed char CompareWhole(const icu::UnicodeString& left, const icu::UnicodeString& right) {
  if (const signed char order = InUnitOrder(UnitsOf(left), UnitsOf(right)); order != kUndecided)
    return order;
  return left.compare(right);
}

/// Whether a raw pattern must be measured before ICU gets it: ICU 72 takes a pattern of 2^31 units
/// for one of a negative length.
bool MustBeMeasured(const unsigned short* pattern, ZRLong start, ZRLong length) {
  return length < 0 && pattern && start >= 0;
}

/// Index of the first occurrence of `pattern` in `range`, counted from the start of `text`.
ZRLong IndexIn(const icu::UnicodeString& text, Units range, Units pattern) {
  const std::int32_t place = IndexOf(range, pattern);
  if (place < 0)
    return kZRNotFound;
  return static_cast<ZRLong>(range.first + place - text.getBuffer());
}

}  // namespace

bool ZRString::operator==(const ZRString& other) const noexcept {
  return body_ == other.body_ || TextOf(body_) == TextOf(other.body_);
}

bool ZRString::operator!=(const ZRString& other) const noexcept {
  return TextOf(body_) != TextOf(other.body_);
}

bool ZRString::operator>(const ZRString& other) const noexcept {
  return CompareWhole(TextOf(body_), TextOf(other.body_)) > 0;
}

bool ZRString::operator<(const ZRString& other) const noexcept {
  return CompareWhole(TextOf(body_), TextOf(other.body_)) < 0;
}

bool ZRString::operator>=(const ZRString& other) const noexcept {
  return CompareWhole(TextOf(body_), TextOf(other.body_)) >= 0;
}

bool ZRString::operator<=(const ZRString& other) const noexcept {
  return CompareWhole(TextOf(body_), TextOf(other.body_)) <= 0;
}

signed char ZRString::Compare(ZRLong start, ZRLong length, const ZRString& src, ZRLong srcStart,
                              ZRLong srcLength) const noexcept {
  const signed char order = InUnitOrder(UnitsOf(TextOf(body_), start, length),
                                        UnitsOf(TextOf(src.body_), srcStart, srcLength));
  if (order != kUndecided)
    return order;
  return TextOf(body_).compare(start, Resolved(length), TextOf(src.body_), srcStart,
                               Resolved(srcLength));
}

signed char ZRString::Compare(ZRLong start, ZRLong length, const unsigned short* src,
                              ZRLong srcStart, ZRLong srcLength) const noexcept {
  const Units raw = MeasuredUnits(src, srcStart, srcLength);
  const signed char order = InUnitOrder(UnitsOf(TextOf(body_), start, length), raw);
  if (order != kUndecided)
    return order;
  return TextOf(body_).compare(start, Resolved(length), raw.first, 0, raw.count);
}

signed char ZRString::CompareBetween(ZRLong start, ZRLong end, const ZRString& src, ZRLong srcStart,
                                     ZRLong srcEnd) const noexcept {
  const Range own = Between(start, end);
  const Range other = Between(srcStart, srcEnd);
  const signed char order =
      InUnitOrder(UnitsOf(TextOf(body_), own), UnitsOf(TextOf(src.body_), other));
  if (order != kUndecided)
    return order;
  return TextOf(body_).compareBetween(own.start, own.limit, TextOf(src.body_), other.start,
                                      other.limit);
}

signed char ZRString::CompareCodePointOrder(ZRLong start, ZRLong length, const ZRString& src,
                                            ZRLong srcStart, ZRLong srcLength) const noexcept {
  const signed char order = InCodePointOrder(UnitsOf(TextOf(body_), start, length),
                                             UnitsOf(TextOf(src.body_), srcStart, srcLength));
  if (order != kUndecided)
    return order;
  return TextOf(body_).compareCodePointOrder(start, Resolved(length), TextOf(src.body_), srcStart,
                                             Resolved(srcLength));
}

signed char ZRString::CompareCodePointOrder(ZRLong start, ZRLong length, const unsigned short* src,
                                            ZRLong srcStart, ZRLong srcLength) const noexcept {
  const Units raw = MeasuredUnits(src, srcStart, srcLength);
  const signed char order = InCodePointOrder(UnitsOf(TextOf(body_), start, length), raw);
  if (order != kUndecided)
    return order;
  return TextOf(body_).compareCodePointOrder(start, Resolved(length), raw.first, 0, raw.count);
}

signed char ZRString::CompareCodePointOrderBetween(ZRLong start, ZRLong end, const ZRString& src,
                                                   ZRLong srcStart, ZRLong srcEnd) const noexcept {
  const Range own = Between(start, end);
  const Range other = Between(srcStart, srcEnd);
  const signed char order =
      InCodePointOrder(UnitsOf(TextOf(body_), own), UnitsOf(TextOf(src.body_), other));
  if (order != kUndecided)
    return order;
  return TextOf(body_).compareCodePointOrderBetween(own.start, own.limit, TextOf(src.body_),
                                                    other.start, other.limit);
}

unsigned char ZRString::StartsWith(const ZRString& src, ZRLong srcStart,
                                   ZRLong srcLength) const noexcept {
  // ICU 72's startsWith(), unlike its endsWith(), clamps the operand's range too late.
  const icu::UnicodeString& srcText = TextOf(src.body_);
  const std::int32_t first = std::clamp<std::int32_t>(srcStart, 0, srcText.length());
  const std::int32_t count =
      std::clamp<std::int32_t>(Resolved(srcLength), 0, srcText.length() - first);
  return TextOf(body_).startsWith(srcText, first, count);
}

unsigned char ZRString::StartsWith(const unsigned short* src, ZRLong srcStart,
                                   ZRLong srcLength) const noexcept {
  const Units raw = RawUnits(src, srcStart, srcLength);
  return TextOf(body_).startsWith(raw.first, 0, raw.count);
}

unsigned char ZRString::EndsWith(const ZRString& src, ZRLong srcStart,
                                 ZRLong srcLength) const noexcept {
  return TextOf(body_).endsWith(TextOf(src.body_), srcStart, Resolved(srcLength));
}

unsigned char ZRString::EndsWith(const unsigned short* src, ZRLong srcStart,
                                 ZRLong srcLength) const noexcept {
  const Units raw = RawUnits(src, srcStart, srcLength);
  return TextOf(body_).endsWith(raw.first, 0, raw.count);
}

ZRLong ZRString::Find(const ZRString& pattern, ZRLong patternStart, ZRLong patternLength,
                      ZRLong start, ZRLong length) const noexcept {
  const Units range = UnitsOf(TextOf(body_), start, length);
  const Units wanted = UnitsOf(TextOf(pattern.body_), patternStart, patternLength);
  if (range.first && wanted.count > 0)
    return IndexIn(TextOf(body_), range, wanted);
  return TextOf(body_).indexOf(TextOf(pattern.body_), patternStart, Resolved(patternLength), start,
                               Resolved(length));
}

ZRLong ZRString::Find(const unsigned short* pattern, ZRLong patternStart, ZRLong patternLength,
                      ZRLong start, ZRLong length) const noexcept {
  const Units range = UnitsOf(TextOf(body_), start, length);
  if (range.first && pattern && patternStart >= 0 && patternLength > 0)
    return IndexIn(TextOf(body_), range, {ToIcu(pattern) + patternStart, patternLength});
  if (MustBeMeasured(pattern, patternStart, patternLength))
    return Find(pattern, patternStart, TerminatedLength(ToIcu(pattern + patternStart)), start,
                length);
  return TextOf(body_).indexOf(ToIcu(pattern), patternStart, patternLength, start,
                               Resolved(length));
}

ZRLong ZRString::RFind(const ZRString& pattern, ZRLong patternStart, ZRLong patternLength,
                       ZRLong start, ZRLong length) const noexcept {
  return TextOf(body_).lastIndexOf(TextOf(pattern.body_), patternStart, Resolved(patternLength),
                                   start, Resolved(length));
}

ZRLong ZRString::RFind(const unsigned short* pattern, ZRLong patternStart, ZRLong patternLength,
                       ZRLong start, ZRLong length) const noexcept {
  if (MustBeMeasured(pattern, patternStart, patternLength))
    return RFind(pattern, patternStart, TerminatedLength(ToIcu(pattern + patternStart)), start,
                 length);
  return TextOf(body_).lastIndexOf(ToIcu(pattern), patternStart, patternLength, start,
                                   Resolved(length));
}

ZRLong ZRString::LastIndexOf(unsigned short unit) const noexcept {
  return TextOf(body_).lastIndexOf(static_cast<char16_t>(unit));
}

unsigned short ZRString::CharAt(ZRLong index) const noexcept { return TextOf(body_).charAt(index); }

unsigned short ZRString::operator[](ZRLong index) const noexcept {
  return TextOf(body_).charAt(index);
}

ZRLong ZRString::GetLength() const noexcept { return TextOf(body_).length(); }

unsigned char ZRString::IsEmpty() const noexcept { return TextOf(body_).isEmpty(); }

const unsigned short* ZRString::GetBuffer() const { return FromIcu(TextOf(body_).getBuffer()); }

void ZRString::Extract(ZRLong start, ZRLong length, unsigned short* dst, ZRLong dstStart) const {
  // As unsigned numbers, a negative start and a length of -1 are past the end.
  const std::uint32_t whole = TextOf(body_).length();
  const std::uint32_t first = start;
  if (first > whole || length < kZRToEnd)
    return;
  const std::uint32_t count = std::min<std::uint32_t>(length, whole - first);
  (dst + dstStart)[count] = 0;
  TextOf(body_).extract(start, count, ToIcu(dst), dstStart);
}

void ZRString::ExtractBetween(ZRLong start, ZRLong end, unsigned short* dst,
                              ZRLong dstStart) const {
  const ZRLong whole = TextOf(body_).length();
  const ZRLong limit = end < whole ? end + 1 : whole;
  if (start < 0 || start > limit)
    return;
  (dst + dstStart)[limit - start] = 0;
  TextOf(body_).extractBetween(start, limit, ToIcu(dst), dstStart);
}
