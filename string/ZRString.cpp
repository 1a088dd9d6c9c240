#include <ZRString/ZRString.h>

#include <cstddef>
#include <cstdint>
#include <new>
#include <string>

#include "string/CodeUnits.h"
#include "string/Handles.h"
#include "string/Range.h"
#include "string/Windows1252.h"
#include "string/ZRStringImplementation.h"

namespace {

/// The length of a terminated text. Throws std::bad_alloc if no string could be that long.
template <typename Character>
ZRLong TerminatedLength(const Character* text) {
  const std::size_t length = std::char_traits<Character>::length(text);
  if (length > kMaxLength)
    ThrowBadAlloc();
  return static_cast<ZRLong>(length);
}

/// Replaces the caller's share of a shared body by a private copy. Out of line because most edits
/// find the body unshared.
[[gnu::noinline, gnu::cold]] ZRStringImplementation* PrivateCopyOf(ZRStringHolderCount* shared) {
  auto* const copy = new ZRStringImplementation(TextOf(shared));
  shared->GiveUpShare();
  return copy;
}

}  // namespace

void ThrowBadAlloc() { throw std::bad_alloc(); }

ZRString::ZRString() { CreateNewImplementation(); }

ZRString::ZRString(const unsigned short* text) { CreateNewImplementation(text, 0, kZRToEnd); }

ZRString::ZRString(const unsigned short* text, ZRLong length) {
  CreateNewImplementation(text, 0, length);
}

ZRString::ZRString(const unsigned short* text, ZRLong start, ZRLong length) {
  CreateNewImplementation(text, start, length);
}

ZRString::ZRString(const unsigned char* text, ZRLong start, ZRLong length)
    : ZRString(reinterpret_cast<const char*>(text), start, length) {}

ZRString::ZRString(const char* text, ZRLong start, ZRLong length) {
  if (text)
    text += start;
  CreateNewImplementation(text, text && length == kZRToEnd ? TerminatedLength(text) : length);
}

ZRString::ZRString(const UniStr255& record) {
  CreateNewImplementation(record.units, 0, record.length);
}

ZRString::ZRString(const ZRString& source, ZRLong length) {
  CreateNewImplementation(source, 0, length);
}

ZRString::ZRString(const ZRString& source, ZRLong start, ZRLong length) {
  CreateNewImplementation(source, start, length);
}

ZRString::ZRString(ZRStringRef__* handle) { CreateNewImplementation(handle); }

ZRString::ZRString(ZRMutableStringRef__* handle) { CreateNewImplementation(handle); }

void ZRString::CreateNewImplementation() { body_ = new ZRStringImplementation(); }

void ZRString::CreateNewImplementation(const unsigned short* text, ZRLong start, ZRLong length) {
  const Units raw = RawUnits(text, start, length);
  const std::int32_t count = raw.count < 0 ? TerminatedLength(raw.first) : raw.count;
  if (count > kMaxLength)
    ThrowBadAlloc();
  body_ = new ZRStringImplementation(raw.first, count);
}

void ZRString::CreateNewImplementation(const char* text, ZRLong length) {
  if (!text || length <= 0)
    return CreateNewImplementation();
  auto* const body = new ZRStringImplementation(length, 0, 0);  // no units, but room for them
  DecodeWindows1252(text, length, body->text.getBuffer(length));
  body->text.releaseBuffer(length);
  body_ = body;
}

void ZRString::CreateNewImplementation(const ZRString& source, ZRLong start, ZRLong length) {
  if (start == 0 && (length == kZRToEnd || length == source.GetLength()))
    body_ = source.body_->TakeShare();
  else if (length == kZRToEnd)
    body_ = new ZRStringImplementation(TextOf(source.body_), start);
  else
    body_ = new ZRStringImplementation(TextOf(source.body_), start, length);
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

void ZRString::DestroyBody() noexcept { delete static_cast<ZRStringImplementation*>(body_); }

void ZRString::CopyOnWrite() {
  if (body_->IsShared())
    body_ = PrivateCopyOf(body_);
}

ZRStringRef__* ZRString::GetZRStringRef() const noexcept { return HandleOf(this); }

const ZRString& GetZRStringFromRef(ZRStringRef__* handle) { return StringOf(handle); }

ZRLong ZRStringRefToZRString(ZRStringRef__* handle, ZRString** result) {
  if (!result)
    return StatusOfParameter(2);
  if (!handle)
    return StatusOfParameter(1);
  *result = &StringOf(handle);
  return kZRStatusSuccess;
}
