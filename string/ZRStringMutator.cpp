#include <ZRString/ZRStringMutator.h>

#include "string/CodeUnits.h"
#include "string/Growth.h"
#include "string/Handles.h"
#include "string/Range.h"
#include "string/ZRStringImplementation.h"

// The edits here detach first, then read the operands' bodies, resolve lengths and make one ICU
// call. So an operand that is this string is read from its new body. Growth.h keeps texts that
// would become too long from ICU.

namespace {

/// Moves a text that fills its storage to a larger one. Returns false, with the text unchanged, if
/// there is no memory; ICU's getTerminatedBuffer() would lose the text then.
[[gnu::noinline, gnu::cold]] bool MakeRoomForOneMore(icu::UnicodeString& text) {
  if (text.isBogus())
    return false;
  icu::UnicodeString roomier(text.length() + 1, 0, 0);
  roomier.append(text);
  if (roomier.isBogus())
    return false;
  text.swap(roomier);
  return true;
}

/// SetTo() with units whose number had to be measured, or is great.
[[gnu::noinline, gnu::cold]] void SetToUnlessTooLong(icu::UnicodeString& text, Units units) {
  if (units.count <= kMaxLength)
    text.setTo(units.first, units.count);
  else if (text.getBuffer())  // else it is open, and setToBogus() would free it
    text.setToBogus();
}

}  // namespace

void ReplaceUnlessTooLong(icu::UnicodeString& text, ZRLong start, ZRLong length, Units added) {
  const Units replaced = UnitsOf(text, start, length);
  if (replaced.first && std::int64_t{text.length()} - replaced.count + added.count > kMaxGrown)
    text.setToBogus();
  else
    text.replace(start, Resolved(length), added.first, added.count);
}

ZRStringMutator& ZRStringLongEdit::Replace(ZRStringMutator& edited, ZRLong start, ZRLong length,
                                           const ZRString& source, ZRLong srcStart,
                                           ZRLong srcLength) {
  ReplaceUnlessTooLong(TextOf(edited.body_), start, length,
                       UnitsOf(TextOf(source.body_), srcStart, srcLength));
  return edited;
}

ZRStringMutator& ZRStringLongEdit::Replace(ZRStringMutator& edited, ZRLong start, ZRLong length,
                                           const unsigned short* text, ZRLong srcStart,
                                           ZRLong srcLength) {
  ReplaceUnlessTooLong(TextOf(edited.body_), start, length,
                       MeasuredUnits(text, srcStart, srcLength));
  return edited;
}

ZRStringMutator::ZRStringMutator() = default;

ZRStringMutator::ZRStringMutator(const UniStr255& record) : ZRString(record) {}

ZRStringMutator::ZRStringMutator(const unsigned char* text, ZRLong start, ZRLong length)
    : ZRString(text, start, length) {}

ZRStringMutator::ZRStringMutator(const char* text, ZRLong start, ZRLong length)
    : ZRString(text, start, length) {}

ZRStringMutator::ZRStringMutator(const unsigned short* text, ZRLong start, ZRLong length)
    : ZRString(text, start, length) {}

ZRStringMutator::ZRStringMutator(const ZRString& source, ZRLong start, ZRLong length)
    : ZRString(source, start, length) {}

ZRStringMutator::ZRStringMutator(ZRStringRef__* handle) : ZRString(handle) {}

ZRStringMutator::ZRStringMutator(ZRMutableStringRef__* handle) : ZRString(handle) {}

ZRStringMutator& ZRStringMutator::SetTo(const ZRString& source, ZRLong start, ZRLong length) {
  CopyOnWrite();
  TextOf(body_).setTo(TextOf(source.body_), start, Resolved(length));
  return *this;
}

ZRStringMutator& ZRStringMutator::SetTo(const unsigned short* text, ZRLong length) {
  CopyOnWrite();
  if (static_cast<std::uint32_t>(length) > kMaxLength)
    SetToUnlessTooLong(TextOf(body_), MeasuredUnits(text, 0, length));
  else
    TextOf(body_).setTo(ToIcu(text), length);
  return *this;
}

ZRStringMutator& ZRStringMutator::SetCharAt(ZRLong offset, unsigned short unit) {
  CopyOnWrite();
  TextOf(body_).setCharAt(offset, unit);
  return *this;
}

ZRStringMutator& ZRStringMutator::operator+=(unsigned short unit) {
  CopyOnWrite();
  if (MayOutgrow(TextOf(body_), 1))
    return ZRStringLongEdit::Replace(*this, INT32_MAX, 0, &unit, 0, 1);
  TextOf(body_) += static_cast<char16_t>(unit);
  return *this;
}

ZRStringMutator& ZRStringMutator::operator+=(const ZRString& other) {
  CopyOnWrite();
  if (MayOutgrow(TextOf(body_), TextOf(other.body_).length()))
    return ZRStringLongEdit::Replace(*this, INT32_MAX, 0, other, 0, kZRToEnd);
  TextOf(body_) += TextOf(other.body_);
  return *this;
}

ZRStringMutator& ZRStringMutator::Append(const ZRString& source, ZRLong start, ZRLong length) {
  CopyOnWrite();
  if (MayOutgrow(TextOf(body_), TextOf(source.body_).length()))
    return ZRStringLongEdit::Replace(*this, INT32_MAX, 0, source, start, length);
  TextOf(body_).append(TextOf(source.body_), start, Resolved(length));
  return *this;
}

ZRStringMutator& ZRStringMutator::Append(const unsigned short* text, ZRLong start, ZRLong length) {
  CopyOnWrite();
  if (MayOutgrow(TextOf(body_), length))
    return ZRStringLongEdit::Replace(*this, INT32_MAX, 0, text, start, length);
  TextOf(body_).append(ToIcu(text), start, length);
  return *this;
}

ZRStringMutator& ZRStringMutator::Insert(ZRLong position, const ZRString& source, ZRLong start,
                                         ZRLong length) {
  CopyOnWrite();
  if (MayOutgrow(TextOf(body_), TextOf(source.body_).length()))
    return ZRStringLongEdit::Replace(*this, position, 0, source, start, length);
  TextOf(body_).insert(position, TextOf(source.body_), start, Resolved(length));
  return *this;
}

ZRStringMutator& ZRStringMutator::Insert(ZRLong position, const unsigned short* text, ZRLong start,
                                         ZRLong length) {
  CopyOnWrite();
  if (MayOutgrow(TextOf(body_), length))
    return ZRStringLongEdit::Replace(*this, position, 0, text, start, length);
  TextOf(body_).insert(position, ToIcu(text), start, length);
  return *this;
}

ZRStringMutator& ZRStringMutator::Replace(ZRLong position, ZRLong length, const ZRString& source,
                                          ZRLong srcStart, ZRLong srcLength) {
  CopyOnWrite();
  if (MayOutgrow(TextOf(body_), TextOf(source.body_).length()))
    return ZRStringLongEdit::Replace(*this, position, length, source, srcStart, srcLength);
  TextOf(body_).replace(position, Resolved(length), TextOf(source.body_), srcStart,
                        Resolved(srcLength));
  return *this;
}

ZRStringMutator& ZRStringMutator::Replace(ZRLong position, ZRLong length,
                                          const unsigned short* text, ZRLong srcStart,
                                          ZRLong srcLength) {
  CopyOnWrite();
  if (MayOutgrow(TextOf(body_), srcLength))
    return ZRStringLongEdit::Replace(*this, position, length, text, srcStart, srcLength);
  TextOf(body_).replace(position, Resolved(length), ToIcu(text), srcStart, srcLength);
  return *this;
}

ZRStringMutator& ZRStringMutator::ReplaceBetween(ZRLong start, ZRLong end, const ZRString& source,
                                                 ZRLong srcStart, ZRLong srcEnd) {
  CopyOnWrite();
  const Range own = Between(start, end);
  const Range other = Between(srcStart, srcEnd);
  if (MayOutgrow(TextOf(body_), TextOf(source.body_).length()))
    return ZRStringLongEdit::Replace(*this, own.start, own.Length(), source, other.start,
                                     other.Length());
  TextOf(body_).replaceBetween(own.start, own.limit, TextOf(source.body_), other.start,
                               other.limit);
  return *this;
}

ZRStringMutator& ZRStringMutator::Remove(ZRLong start, ZRLong length) {
  CopyOnWrite();
  // Not Resolved(): remove(0, INT32_MAX) is ICU's call for clearing the error state.
  TextOf(body_).remove(start, length == kZRToEnd ? TextOf(body_).length() : length);
  return *this;
}

ZRStringMutator& ZRStringMutator::RemoveBetween(ZRLong start, ZRLong end) {
  CopyOnWrite();
  const Range own = Between(start, end);
  TextOf(body_).removeBetween(own.start, own.limit);
  return *this;
}

unsigned char ZRStringMutator::PadLeading(ZRLong targetLength, unsigned short padUnit) {
  CopyOnWrite();
  return TextOf(body_).padLeading(targetLength, padUnit);
}

unsigned char ZRStringMutator::PadTrailing(ZRLong targetLength, unsigned short padUnit) {
  CopyOnWrite();
  return TextOf(body_).padTrailing(targetLength, padUnit);
}

unsigned char ZRStringMutator::Truncate(ZRLong targetLength) {
  CopyOnWrite();
  return TextOf(body_).truncate(targetLength);
}

ZRStringMutator& ZRStringMutator::Trim() {
  CopyOnWrite();
  TextOf(body_).trim();
  return *this;
}

ZRStringMutator& ZRStringMutator::Reverse(ZRLong start, ZRLong length) {
  CopyOnWrite();
  TextOf(body_).reverse(start, Resolved(length));
  return *this;
}

ZRStringMutator& ZRStringMutator::ToUpper() {
  CopyOnWrite();
  TextOf(body_).toUpper();
  return *this;
}

ZRStringMutator& ZRStringMutator::ToLower() {
  CopyOnWrite();
  TextOf(body_).toLower();
  return *this;
}

const unsigned short* ZRStringMutator::GetBuffer() const { return ZRString::GetBuffer(); }

void ZRStringMutator::Extract(ZRLong start, ZRLong length, unsigned short* dst,
                              ZRLong dstStart) const {
  ZRString::Extract(start, length, dst, dstStart);
}

void ZRStringMutator::ExtractBetween(ZRLong start, ZRLong end, unsigned short* dst,
                                     ZRLong dstStart) const {
  ZRString::ExtractBetween(start, end, dst, dstStart);
}

void ZRStringMutator::Extract(ZRLong start, ZRLong length, ZRStringMutator& target) const {
  target.CopyOnWrite();
  TextOf(body_).extract(start, Resolved(length), TextOf(target.body_));
}

void ZRStringMutator::ExtractBetween(ZRLong start, ZRLong end, ZRStringMutator& target) const {
  target.CopyOnWrite();
  const Range own = Between(start, end);
  TextOf(body_).extractBetween(own.start, own.limit, TextOf(target.body_));
}

ZRStringMutator ZRStringMutator::operator+(const ZRString& other) const {
  ZRStringMutator result(*this);
  result.Append(other, 0, kZRToEnd);
  return result;
}

ZRStringMutator operator+(const ZRString& left, unsigned short unit) {
  ZRStringMutator result(left);
  result += unit;
  return result;
}

ZRStringMutator operator+(unsigned short unit, const ZRString& right) {
  ZRStringMutator result(right);
  result.Insert(0, &unit, 0, 1);
  return result;
}

unsigned short* ZRStringMutator::GetBuffer(ZRLong minCapacity) {
  CopyOnWrite();
  return FromIcu(TextOf(body_).getBuffer(minCapacity));
}

void ZRStringMutator::ReleaseBuffer(ZRLong newLength) noexcept {
  TextOf(body_).releaseBuffer(newLength);
}

const unsigned short* ZRStringMutator::GetTerminatedBuffer() noexcept {
  icu::UnicodeString& text = TextOf(body_);
  if (text.length() == text.getCapacity() && !MakeRoomForOneMore(text))
    return nullptr;
  return FromIcu(text.getTerminatedBuffer());
}

ZRLong ZRStringMutator::GetCapacity() const noexcept { return TextOf(body_).getCapacity(); }

ZRMutableStringRef__* ZRStringMutator::GetZRMutableStringRef() noexcept { return HandleOf(this); }

ZRStringMutator& GetZRStringMutatorFromRef(ZRMutableStringRef__* handle) {
  return StringOf(handle);
}
