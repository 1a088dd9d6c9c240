#include <ZRString/ZRStringPtrArray.h>

#include <stdexcept>

#if defined(_MSC_VER)
template class ZR_API std::vector<ZRString*>;
#else
template class std::vector<ZRString*>;
#endif

namespace {

bool IsInside(ZRLong index, const std::vector<ZRString*>& strings) {
  return index >= 0 && static_cast<std::size_t>(index) < strings.size();
}

ZRString* EntryOrLast(ZRLong index, const std::vector<ZRString*>& strings) {
  if (IsInside(index, strings))
    return strings[index];
  // vector::at() would throw this exception with another message.
  if (strings.empty())
    throw std::out_of_range("invalid vector<T> subscript");
  return strings.back();
}

}  // namespace

ZRStringPtrArray::ZRStringPtrArray() noexcept = default;

ZRStringPtrArray::ZRStringPtrArray(const ZRStringPtrArray& other) = default;

ZRStringPtrArray::~ZRStringPtrArray() = default;

ZRStringPtrArray& ZRStringPtrArray::operator=(const ZRStringPtrArray& other) = default;

ZRULong ZRStringPtrArray::Size() const noexcept { return static_cast<ZRULong>(strings_.size()); }

bool ZRStringPtrArray::Empty() const noexcept { return strings_.empty(); }

ZRString* ZRStringPtrArray::operator[](ZRLong index) { return EntryOrLast(index, strings_); }

#if defined(__GNUC__)
#pragma GCC diagnostic ignored "-Wignored-qualifiers"
#endif
ZRString* const ZRStringPtrArray::operator[](ZRLong index) const {
  return EntryOrLast(index, strings_);
}

ZRString* ZRStringPtrArray::GetString(ZRLong index) { return EntryOrLast(index, strings_); }

bool ZRStringPtrArray::SetString(ZRLong index, ZRString* const string) noexcept {
  if (!IsInside(index, strings_))
    return false;
  strings_[index] = string;
  return true;
}

bool ZRStringPtrArray::Insert(ZRLong index, ZRString* const string) {
  if (!IsInside(index, strings_))
    return false;
  strings_.insert(strings_.begin() + index, string);
  return true;
}

void ZRStringPtrArray::PushBack(ZRString* const string) { strings_.push_back(string); }

void ZRStringPtrArray::Erase(ZRLong index) noexcept {
  if (IsInside(index, strings_))
    strings_.erase(strings_.begin() + index);
}

std::vector<ZRString*>::iterator ZRStringPtrArray::Erase(
    std::vector<ZRString*>::iterator position) noexcept {
  return strings_.erase(position);
}

void ZRStringPtrArray::EraseAll() noexcept { strings_.clear(); }

void ZRStringPtrArray::DeleteAll() noexcept {
  for (ZRString* const string : strings_)
    delete string;
  strings_.clear();
}

std::vector<ZRString*>::iterator ZRStringPtrArray::Begin() noexcept { return strings_.begin(); }

std::vector<ZRString*>::iterator ZRStringPtrArray::End() noexcept { return strings_.end(); }

std::vector<ZRString*>::const_iterator ZRStringPtrArray::Begin() const noexcept {
  return strings_.begin();
}

std::vector<ZRString*>::const_iterator ZRStringPtrArray::End() const noexcept {
  return strings_.end();
}

ZRStringPtrArrayRef__* ZRStringPtrArray::GetZRStringPtrArrayRef() noexcept {
  return reinterpret_cast<ZRStringPtrArrayRef__*>(this);
}

ZRStringPtrArray* GetZRStringPtrArrayFromRef(ZRStringPtrArrayRef__* handle) {
  return reinterpret_cast<ZRStringPtrArray*>(handle);
}
