#include <ZRString/ZRStringMutator.h>

#include "string/CodeUnits.h"
#include "string/Handles.h"
#include "string/Range.h"
#include "string/ZRStringImplementation.h"

// Every edit runs in this order: detach, then read the operands' bodies, then resolve lengths, then
// one ICU call. An operand that is this string itself is so read in its new body.

namespace {

/// Gives a text that fills its storage a larger one; false, with the text as it was, without
/// memory. Left to itself ICU would then lose the text, and with it that of every holder.
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

}  // namespace

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

ZRStringMutator::ZRStringMutator(const ZRString& source) : ZRString(source) {}

ZRStringMutator::ZRStringMutator(const ZRStringMutator& source) : ZRString(source) {}

ZRStringMutator::ZRStringMutator(ZRStringRef__* handle) : ZRString(handle) {}

ZRStringMutator::ZRStringMutator(ZRMutableStringRef__* handle) : ZRString(handle) {}

ZRStringMutator::~ZRStringMutator() = default;

ZRStringMutator& ZRStringMutator::operator=(const ZRStringMutator& other) {
  ZRString::operator=(other);
  return *this;
}

ZRStringMutator& ZRStringMutator::operator=(const ZRString& other) {
  ZRString::operator=(other);
  return *this;
}

ZRStringMutator& ZRStringMutator::SetTo(const ZRString& source, ZRLong start, ZRLong length) {
  CopyOnWrite();
  body_->text.setTo(source.body_->text, start, Resolved(length));
  return *this;
}

ZRStringMutator& ZRStringMutator::SetTo(const unsigned short* text, ZRLong length) {
  CopyOnWrite();
  body_->text.setTo(ToIcu(text), length);
  return *this;
}

ZRStringMutator& ZRStringMutator::SetCharAt(ZRLong offset, unsigned short unit) {
  CopyOnWrite();
  body_->text.setCharAt(offset, unit);
  return *this;
}

ZRStringMutator& ZRStringMutator::operator+=(unsigned short unit) {
  CopyOnWrite();
  body_->text += static_cast<char16_t>(unit);
  return *this;
}

ZRStringMutator& ZRStringMutator::operator+=(const ZRString& other) {
  CopyOnWrite();
  body_->text += other.body_->text;
  return *this;
}

ZRStringMutator& ZRStringMutator::Append(const ZRString& source, ZRLong start, ZRLong length) {
  CopyOnWrite();
  body_->text.append(source.body_->text, start, Resolved(length));
  return *this;
}

ZRStringMutator& ZRStringMutator::Append(const unsigned short* text, ZRLong start, ZRLong length) {
  CopyOnWrite();
  body_->text.append(ToIcu(text), start, length);
  return *this;
}

ZRStringMutator& ZRStringMutator::Insert(ZRLong position, const ZRString& source, ZRLong start,
                                         ZRLong length) {
  CopyOnWrite();
  body_->text.insert(position, source.body_->text, start, Resolved(length));
  return *this;
}

ZRStringMutator& ZRStringMutator::Insert(ZRLong position, const unsigned short* text, ZRLong start,
                                         ZRLong length) {
  CopyOnWrite();
  body_->text.insert(position, ToIcu(text), start, length);
  return *this;
}

ZRStringMutator& ZRStringMutator::Replace(ZRLong position, ZRLong length, const ZRString& source,
                                          ZRLong srcStart, ZRLong srcLength) {
  CopyOnWrite();
  body_->text.replace(position, Resolved(length), source.body_->text, srcStart,
                      Resolved(srcLength));
  return *this;
}

ZRStringMutator& ZRStringMutator::Replace(ZRLong position, ZRLong length,
                                          const unsigned short* text, ZRLong srcStart,
                                          ZRLong srcLength) {
  CopyOnWrite();
  body_->text.replace(position, Resolved(length), ToIcu(text), srcStart, srcLength);
  return *this;
}

ZRStringMutator& ZRStringMutator::ReplaceBetween(ZRLong start, ZRLong end, const ZRString& source,
                                                 ZRLong srcStart, ZRLong srcEnd) {
  CopyOnWrite();
  const Range own = Between(start, end);
  const Range other = Between(srcStart, srcEnd);
  body_->text.replaceBetween(own.start, own.limit, source.body_->text, other.start, other.limit);
  return *this;
}

ZRStringMutator& ZRStringMutator::Remove(ZRLong start, ZRLong length) {
  CopyOnWrite();
  // Not the greatest length: from a start of 0 that is another operation of ICU's, which ends its
  // error state.
  body_->text.remove(start, length == kZRToEnd ? body_->text.length() : length);
  return *this;
}

ZRStringMutator& ZRStringMutator::RemoveBetween(ZRLong start, ZRLong end) {
  CopyOnWrite();
  const Range own = Between(start, end);
  body_->text.removeBetween(own.start, own.limit);
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
  body_->text.extract(start, Resolved(length), target.body_->text);
}

void ZRStringMutator::ExtractBetween(ZRLong start, ZRLong end, ZRStringMutator& target) const {
  target.CopyOnWrite();
  const Range own = Between(start, end);
  body_->text.extractBetween(own.start, own.limit, target.body_->text);
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
  return FromIcu(body_->text.getBuffer(minCapacity));
}

void ZRStringMutator::ReleaseBuffer(ZRLong newLength) { body_->text.releaseBuffer(newLength); }

const unsigned short* ZRStringMutator::GetTerminatedBuffer() {
  icu::UnicodeString& text = body_->text;
  if (text.length() == text.getCapacity() && !MakeRoomForOneMore(text))
    return nullptr;
  return FromIcu(text.getTerminatedBuffer());
}

ZRLong ZRStringMutator::GetCapacity() const { return body_->text.getCapacity(); }

ZRMutableStringRef__* ZRStringMutator::GetZRMutableStringRef() { return HandleOf(this); }

ZRStringMutator& GetZRStringMutatorFromRef(ZRMutableStringRef__* handle) {
  return StringOf(handle);
}
