#include <ZRString/ZRString.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <new>
#include <string>

#include "string/CodeUnits.h"
#include "string/Handles.h"
#include "string/Range.h"
#include "string/Windows1252.h"
#include "string/ZRStringImplementation.h"

namespace {

/// A length that a string may have. Throws std::bad_alloc for a greater one.
std::int32_t Checked(std::size_t length) {
  if (length > kMaxLength)
    ThrowBadAlloc();
  return static_cast<std::int32_t>(length);
}

/// A new body with room for `count` units, and hardly more unless ICU keeps them inside the body.
/// Expects to be filled.
ZRStringImplementation* RoomFor(std::int32_t count) {
  return count <= kMaxInside ? new ZRStringImplementation()
                             : new ZRStringImplementation(count, 0, 0);
}

/// A new body that holds these units. ICU's own constructor, which takes more time, would leave a
/// long text room to grow.
ZRStringImplementation* Holding(Units units) {
  auto* const body = RoomFor(units.count);
  std::char_traits<char16_t>::copy(body->text.getBuffer(units.count), units.first, units.count);
  body->text.releaseBuffer(units.count);
  return body;
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
  CreateNewImplementation(text, text && length == kZRToEnd ? Checked(std::strlen(text)) : length);
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
  const Units raw = MeasuredUnits(text, start, length);
  Checked(raw.count);
  body_ = Holding(raw);
}

void ZRString::CreateNewImplementation(const char* text, ZRLong length) {
  if (!text || length <= 0)
    return CreateNewImplementation();
  auto* const body = RoomFor(length);
  DecodeWindows1252(text, length, body->text.getBuffer(length));
  body->text.releaseBuffer(length);
  body_ = body;
}

void ZRString::CreateNewImplementation(const ZRString& source, ZRLong start, ZRLong length) {
  if (start == 0 && (length == kZRToEnd || length == source.GetLength()))
    body_ = source.body_->TakeShare();
  else
    body_ = Holding(UnitsOf(TextOf(source.body_), start, length));
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
