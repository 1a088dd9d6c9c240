#include <ZRString/ZRStringInterfaces.h>
#include <ZRString/ZRStringPtrArray.h>

#include <memory>

#include "handles/Parameters.h"

namespace {

ZRStringPtrArray& ArrayOf(ZRStringPtrArrayRef__* array) {
  return *GetZRStringPtrArrayFromRef(array);
}

// The array takes a string's handle for what it is, the string's address, and never looks behind
// it.
ZRString* StringOf(ZRStringRef__* string) { return reinterpret_cast<ZRString*>(string); }

/// Arrays hand out null entries too, so a handle is made without a call on the string.
ZRStringRef__* HandleOf(ZRString* string) { return reinterpret_cast<ZRStringRef__*>(string); }

bool IsInside(ZRLong index, const ZRStringPtrArray& array) {
  return index >= 0 && static_cast<ZRULong>(index) < array.Size();
}

}  // namespace

ZRStringCDKInterfaceImpl& ZRStringCDKInterfaceImpl::operator=(const ZRStringCDKInterfaceImpl&) =
    default;

ZRLong ZRStringCDKInterfaceImpl::ZRSPtrArrayCreate(ZRStringPtrArrayRef__** out) {
  if (const ZRLong status = FirstInvalid(NotNull(out)))
    return status;
  try {
    *out = (new ZRStringPtrArray())->GetZRStringPtrArrayRef();
  } catch (...) {
    return kZRStatusIndexOutside;
  }
  return kZRStatusSuccess;
}

ZRLong ZRStringCDKInterfaceImpl::ZRSPtrArrayCreateFromZRSPtrArray(ZRStringPtrArrayRef__* source,
                                                                  ZRStringPtrArrayRef__** out) {
  if (const ZRLong status = FirstInvalid(NotNull(source), NotNull(out)))
    return status;
  try {
    auto copy = std::make_unique<ZRStringPtrArray>();
    *copy = ArrayOf(source);
    *out = copy.release()->GetZRStringPtrArrayRef();
  } catch (...) {
    return kZRStatusIndexOutside;
  }
  return kZRStatusSuccess;
}

ZRLong ZRStringCDKInterfaceImpl::ZRSPtrArrayDestroy(ZRStringPtrArrayRef__* array) {
  if (const ZRLong status = FirstInvalid(NotNull(array)))
    return status;
  delete &ArrayOf(array);
  return kZRStatusSuccess;
}

ZRLong ZRStringCDKInterfaceImpl::ZRSPtrArraySize(ZRStringPtrArrayRef__* array, ZRULong* size) {
  if (const ZRLong status = FirstInvalid(NotNull(array), NotNull(size)))
    return status;
  *size = ArrayOf(array).Size();
  return kZRStatusSuccess;
}

ZRLong ZRStringCDKInterfaceImpl::ZRSPtrArrayIsEmpty(ZRStringPtrArrayRef__* array,
                                                    unsigned char* isEmpty) {
  if (const ZRLong status = FirstInvalid(NotNull(array), NotNull(isEmpty)))
    return status;
  *isEmpty = ArrayOf(array).Empty();
  return kZRStatusSuccess;
}

ZRLong ZRStringCDKInterfaceImpl::ZRSPtrArrayGetZRStringRefAt(ZRStringPtrArrayRef__* array,
                                                             ZRLong index, ZRStringRef__** string) {
  if (const ZRLong status = FirstInvalid(NotNull(array), Untested(), NotNull(string)))
    return status;
  if (ArrayOf(array).Empty())
    return kZRStatusIndexOutside;
  *string = HandleOf(ArrayOf(array)[index]);
  return kZRStatusSuccess;
}

ZRLong ZRStringCDKInterfaceImpl::ZRSPtrArraySetZRStringRefAt(ZRStringPtrArrayRef__* array,
                                                             ZRLong index, ZRStringRef__* string) {
  if (const ZRLong status = FirstInvalid(NotNull(array), Untested(), NotNull(string)))
    return status;
  if (!IsInside(index, ArrayOf(array)))
    return kZRStatusIndexOutside;
  ArrayOf(array).SetString(index, StringOf(string));
  return kZRStatusSuccess;
}

ZRLong ZRStringCDKInterfaceImpl::ZRSPtrArrayInsertZRStringRefAt(ZRStringPtrArrayRef__* array,
                                                                ZRLong index,
                                                                ZRStringRef__* string) {
  if (const ZRLong status = FirstInvalid(NotNull(array), Untested(), NotNull(string)))
    return status;
  if (!IsInside(index, ArrayOf(array)))
    return kZRStatusIndexOutside;
  ArrayOf(array).Insert(index, StringOf(string));
  return kZRStatusSuccess;
}

ZRLong ZRStringCDKInterfaceImpl::ZRSPtrArrayPushBack(ZRStringPtrArrayRef__* array,
                                                     ZRStringRef__* string) {
  if (const ZRLong status = FirstInvalid(NotNull(array), NotNull(string)))
    return status;
  ArrayOf(array).PushBack(StringOf(string));
  return kZRStatusSuccess;
}

ZRLong ZRStringCDKInterfaceImpl::ZRSPtrArrayErase(ZRStringPtrArrayRef__* array, ZRLong index) {
  if (const ZRLong status = FirstInvalid(NotNull(array), Untested()))
    return status;
  if (!IsInside(index, ArrayOf(array)))
    return kZRStatusIndexOutside;
  ArrayOf(array).Erase(index);
  return kZRStatusSuccess;
}

ZRLong ZRStringCDKInterfaceImpl::ZRSPtrArrayEraseAll(ZRStringPtrArrayRef__* array) {
  if (const ZRLong status = FirstInvalid(NotNull(array)))
    return status;
  ArrayOf(array).EraseAll();
  return kZRStatusSuccess;
}

ZRLong ZRStringCDKInterfaceImpl::ZRSPtrArrayDeleteAll(ZRStringPtrArrayRef__* array) {
  if (const ZRLong status = FirstInvalid(NotNull(array)))
    return status;
  ArrayOf(array).DeleteAll();
  return kZRStatusSuccess;
}

ZRLong ZRStringPtrArrayCreate(ZRStringPtrArrayRef__** out) {
  return ZRStringCDKInterfaceImpl::ZRSPtrArrayCreate(out);
}

ZRLong ZRStrPtrArrCreateFromZRStrPtrArr(ZRStringPtrArrayRef__* source,
                                        ZRStringPtrArrayRef__** out) {
  return ZRStringCDKInterfaceImpl::ZRSPtrArrayCreateFromZRSPtrArray(source, out);
}

ZRLong ZRStringPtrArrayDestroy(ZRStringPtrArrayRef__* array) {
  return ZRStringCDKInterfaceImpl::ZRSPtrArrayDestroy(array);
}

ZRLong ZRStringPtrArraySize(ZRStringPtrArrayRef__* array, ZRULong* size) {
  return ZRStringCDKInterfaceImpl::ZRSPtrArraySize(array, size);
}

ZRLong ZRStringPtrArrayIsEmpty(ZRStringPtrArrayRef__* array, unsigned char* isEmpty) {
  return ZRStringCDKInterfaceImpl::ZRSPtrArrayIsEmpty(array, isEmpty);
}

ZRLong GetZRStringRefAt(ZRStringPtrArrayRef__* array, ZRLong index, ZRStringRef__** string) {
  return ZRStringCDKInterfaceImpl::ZRSPtrArrayGetZRStringRefAt(array, index, string);
}

ZRLong SetZRStringRefAt(ZRStringPtrArrayRef__* array, ZRLong index, ZRStringRef__* string) {
  return ZRStringCDKInterfaceImpl::ZRSPtrArraySetZRStringRefAt(array, index, string);
}

ZRLong InsertZRStringRefAt(ZRStringPtrArrayRef__* array, ZRLong index, ZRStringRef__* string) {
  // This entry point counts its parameters without the index, so a null string is 5 here.
  if (const ZRLong status = FirstInvalid(NotNull(array), NotNull(string)))
    return status;
  return ZRStringCDKInterfaceImpl::ZRSPtrArrayInsertZRStringRefAt(array, index, string);
}

ZRLong ZRStringPtrArrayPushBack(ZRStringPtrArrayRef__* array, ZRStringRef__* string) {
  return ZRStringCDKInterfaceImpl::ZRSPtrArrayPushBack(array, string);
}

ZRLong ZRStringPtrArrayErase(ZRStringPtrArrayRef__* array, ZRLong index) {
  return ZRStringCDKInterfaceImpl::ZRSPtrArrayErase(array, index);
}

ZRLong ZRStringPtrArrayEraseAll(ZRStringPtrArrayRef__* array) {
  return ZRStringCDKInterfaceImpl::ZRSPtrArrayEraseAll(array);
}

ZRLong ZRStringPtrArrayDeleteAll(ZRStringPtrArrayRef__* array) {
  return ZRStringCDKInterfaceImpl::ZRSPtrArrayDeleteAll(array);
}
