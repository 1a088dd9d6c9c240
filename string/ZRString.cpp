#include <ZRString/ZRString.h>

#include <algorithm>
#include <cstddef>
#include <cstring>

#include "string/CodeUnits.h"
#include "string/Handles.h"
#include "string/Range.h"
#include "string/ZRStringImplementation.h"

namespace {

constexpr const char* kCodePage = "windows-1252";

const char* FromByte(const char* text, ZRLong start) { return text ? text + start : nullptr; }

/// A length of -1 becomes the number of bytes before the terminating zero byte.
ZRLong ByteCount(const char* text, ZRLong start, ZRLong length) {
  if (!text || length != kToEnd)
    return length;
  return static_cast<ZRLong>(std::min<std::size_t>(std::strlen(text + start), INT32_MAX));
}

/// Gives up a share of a body for a copy of it. Out of line: most edits find their body unshared.
[[gnu::noinline, gnu::cold]] ZRStringImplementation* ExchangedForCopy(
    ZRStringImplementation* body) {
  auto* const copy = new ZRStringImplementation(body->text);
  body->GiveUpShare();
  return copy;
}

}  // namespace

ZRString::ZRString() { CreateNewImplementation(); }

ZRString::ZRString(const unsigned short* text) { CreateNewImplementation(text, 0, kToEnd); }

ZRString::ZRString(const unsigned short* text, ZRLong length) {
  CreateNewImplementation(text, 0, length);
}

ZRString::ZRString(const unsigned short* text, ZRLong start, ZRLong length) {
  CreateNewImplementation(text, start, length);
}

ZRString::ZRString(const unsigned char* text, ZRLong start, ZRLong length)
    : ZRString(reinterpret_cast<const char*>(text), start, length) {}

ZRString::ZRString(const char* text, ZRLong start, ZRLong length) {
  CreateNewImplementation(FromByte(text, start), ByteCount(text, start, length));
}

ZRString::ZRString(const UniStr255& record) {
  CreateNewImplementation(record.units, 0, record.length);
}

ZRString::ZRString(const ZRString& source) { CreateNewImplementation(source, 0, kToEnd); }

ZRString::ZRString(const ZRString& source, ZRLong length) {
  CreateNewImplementation(source, 0, length);
}

ZRString::ZRString(const ZRString& source, ZRLong start, ZRLong length) {
  CreateNewImplementation(source, start, length);
}

ZRString::ZRString(ZRStringRef__* handle) { CreateNewImplementation(handle); }

ZRString::ZRString(ZRMutableStringRef__* handle) { CreateNewImplementation(handle); }

ZRString::~ZRString() { body_->GiveUpShare(); }

void ZRString::CreateNewImplementation() { body_ = new ZRStringImplementation(); }

void ZRString::CreateNewImplementation(const unsigned short* text, ZRLong start, ZRLong length) {
  const RawRange range = RawRangeOf(text, start, length);
  body_ = new ZRStringImplementation(range.units, range.length);
}

void ZRString::CreateNewImplementation(const char* text, ZRLong length) {
  if (!text)
    return CreateNewImplementation();
  body_ = new ZRStringImplementation(text, std::max<ZRLong>(length, 0), kCodePage);
}

void ZRString::CreateNewImplementation(const ZRString& source, ZRLong start, ZRLong length) {
  if (start == 0 && (length == kToEnd || length == source.GetLength()))
    body_ = source.body_->TakeShare();
  else if (length == kToEnd)
    body_ = new ZRStringImplementation(source.body_->text, start);
  else
    body_ = new ZRStringImplementation(source.body_->text, start, length);
}

void ZRString::CreateNewImplementation(ZRStringRef__* handle) {
  if (!handle)
    return CreateNewImplementation();
  body_ = StringOf(handle).body_->TakeShare();
}

void ZRString::CreateNewImplementation(ZRMutableStringRef__* handle) {
  if (!handle)
    return CreateNewImplementation();
  body_ = StringOf(handle).body_->TakeShare();
}

const ZRString& ZRString::operator=(const ZRString& other) {
  if (body_ != other.body_) {
    body_->GiveUpShare();
    body_ = other.body_->TakeShare();
  }
  return *this;
}

void ZRString::CopyOnWrite() {
  if (body_->IsShared())
    body_ = ExchangedForCopy(body_);
}

ZRLong ZRString::Find(const ZRString& pattern, ZRLong patternStart, ZRLong patternLength,
                      ZRLong start, ZRLong length) const {
  return body_->text.indexOf(pattern.body_->text, patternStart, Resolved(patternLength), start,
                             Resolved(length));
}

ZRLong ZRString::Find(const unsigned short* pattern, ZRLong patternStart, ZRLong patternLength,
                      ZRLong start, ZRLong length) const {
  return body_->text.indexOf(ToIcu(pattern), patternStart, RawLength(patternLength), start,
                             Resolved(length));
}

ZRLong ZRString::RFind(const ZRString& pattern, ZRLong patternStart, ZRLong patternLength,
                       ZRLong start, ZRLong length) const {
  return body_->text.lastIndexOf(pattern.body_->text, patternStart, Resolved(patternLength), start,
                                 Resolved(length));
}

ZRLong ZRString::RFind(const unsigned short* pattern, ZRLong patternStart, ZRLong patternLength,
                       ZRLong start, ZRLong length) const {
  return body_->text.lastIndexOf(ToIcu(pattern), patternStart, RawLength(patternLength), start,
                                 Resolved(length));
}

ZRLong ZRString::LastIndexOf(unsigned short unit) const {
  return body_->text.lastIndexOf(static_cast<char16_t>(unit));
}

unsigned short ZRString::CharAt(ZRLong index) const { return body_->text.charAt(index); }

unsigned short ZRString::operator[](ZRLong index) const { return body_->text.charAt(index); }

ZRLong ZRString::GetLength() const { return body_->text.length(); }

unsigned char ZRString::IsEmpty() const { return body_->text.isEmpty(); }

const unsigned short* ZRString::GetBuffer() const { return FromIcu(body_->text.getBuffer()); }

void ZRString::Extract(ZRLong start, ZRLong length, unsigned short* dst, ZRLong dstStart) const {
  const ZRLong whole = body_->text.length();
  if (start > whole || start < 0 || length < kToEnd)
    return;
  const ZRLong rest = whole - start;
  const ZRLong count = length == kToEnd ? rest : std::min(length, rest);
  body_->text.extract(start, count, ToIcu(dst), dstStart);
  (dst + dstStart)[count] = 0;
}

void ZRString::ExtractBetween(ZRLong start, ZRLong end, unsigned short* dst,
                              ZRLong dstStart) const {
  const ZRLong whole = body_->text.length();
  const ZRLong limit = end < whole ? end + 1 : whole;
  if (start < 0 || start > limit)
    return;
  body_->text.extractBetween(start, limit, ToIcu(dst), dstStart);
  (dst + dstStart)[limit - start] = 0;
}

ZRStringRef__* ZRString::GetZRStringRef() const { return HandleOf(this); }

const ZRString& GetZRStringFromRef(ZRStringRef__* handle) { return StringOf(handle); }

ZRLong ZRStringRefToZRString(ZRStringRef__* handle, ZRString** result) {
  if (!result)
    return StatusOfParameter(2);
  if (!handle)
    return StatusOfParameter(1);
  *result = &StringOf(handle);
  return kZRStatusSuccess;
}
