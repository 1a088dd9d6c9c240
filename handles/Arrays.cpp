#include <ZRString/ZRStringHandles.h>
#include <ZRString/ZRStringPtrArray.h>

#include <memory>

#include "handles/Parameters.h"

namespace {

ZRStringPtrArray& ArrayOf(ZRStringPtrArrayRef__* array) {
  return *GetZRStringPtrArrayFromRef(array);
}

}  // namespace

ZRLong ZRStringPtrArrayCreate(ZRStringPtrArrayRef__** out) {
  if (const ZRLong status = FirstInvalid(NotNull(out)))
    return status;
  try {
    *out = (new ZRStringPtrArray())->GetZRStringPtrArrayRef();
  } catch (...) {
    return kZRStatusIndexOutside;
  }
  return kZRStatusSuccess;
}

ZRLong ZRStrPtrArrCreateFromZRStrPtrArr(ZRStringPtrArrayRef__* source,
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

ZRLong ZRStringPtrArrayDestroy(ZRStringPtrArrayRef__* array) {
  if (const ZRLong status = FirstInvalid(NotNull(array)))
    return status;
  delete &ArrayOf(array);
  return kZRStatusSuccess;
}

ZRLong ZRStringPtrArraySize(ZRStringPtrArrayRef__* array, ZRULong* size) {
  if (const ZRLong status = FirstInvalid(NotNull(array), NotNull(size)))
    return status;
  *size = ArrayOf(array).Size();
  return kZRStatusSuccess;
}

ZRLong ZRStringPtrArrayIsEmpty(ZRStringPtrArrayRef__* array, unsigned char* isEmpty) {
  if (const ZRLong status = FirstInvalid(NotNull(array), NotNull(isEmpty)))
    return status;
  *isEmpty = ArrayOf(array).Empty();
  return kZRStatusSuccess;
}

ZRLong GetZRStringRefAt(ZRStringPtrArrayRef__* array, ZRLong index, ZRStringRef__** string) {
  if (const ZRLong status = FirstInvalid(NotNull(array), Untested(), NotNull(string)))
    return status;
  if (ArrayOf(array).Empty())
    return kZRStatusIndexOutside;
  *string = HandleOf(ArrayOf(array)[index]);
  return kZRStatusSuccess;
}

ZRLong SetZRStringRefAt(ZRStringPtrArrayRef__* array, ZRLong index, ZRStringRef__* string) {
  if (const ZRLong status = FirstInvalid(NotNull(array), Untested(), NotNull(string)))
    return status;
  return ArrayOf(array).SetString(index, &StringOf(string)) ? kZRStatusSuccess
                                                            : kZRStatusIndexOutside;
}

ZRLong InsertZRStringRefAt(ZRStringPtrArrayRef__* array, ZRLong index, ZRStringRef__* string) {
  // Without the index, which makes the status of a null string 5 here, not 6.
  if (const ZRLong status = FirstInvalid(NotNull(array), NotNull(string)))
    return status;
  return ArrayOf(array).Insert(index, &StringOf(string)) ? kZRStatusSuccess : kZRStatusIndexOutside;
}

ZRLong ZRStringPtrArrayPushBack(ZRStringPtrArrayRef__* array, ZRStringRef__* string) {
  if (const ZRLong status = FirstInvalid(NotNull(array), NotNull(string)))
    return status;
  ArrayOf(array).PushBack(&StringOf(string));
  return kZRStatusSuccess;
}

ZRLong ZRStringPtrArrayErase(ZRStringPtrArrayRef__* array, ZRLong index) {
  if (const ZRLong status = FirstInvalid(NotNull(array), Untested()))
    return status;
  const ZRULong size = ArrayOf(array).Size();
  ArrayOf(array).Erase(index);  // does nothing for an index outside the array
  return ArrayOf(array).Size() < size ? kZRStatusSuccess : kZRStatusIndexOutside;
}

ZRLong ZRStringPtrArrayEraseAll(ZRStringPtrArrayRef__* array) {
  if (const ZRLong status = FirstInvalid(NotNull(array)))
    return status;
  ArrayOf(array).EraseAll();
  return kZRStatusSuccess;
}

ZRLong ZRStringPtrArrayDeleteAll(ZRStringPtrArrayRef__* array) {
  if (const ZRLong status = FirstInvalid(NotNull(array)))
    return status;
  ArrayOf(array).DeleteAll();
  return kZRStatusSuccess;
}
