#include <ZRString/ZRStringInterfaces.h>
#include <ZRString/ZRStringMutator.h>

#include <memory>
#include <new>

#include "handles/Parameters.h"

namespace {

constexpr ZRLong kToEnd = -1;

}  // namespace

ZRMutableStringDKInterfaceImpl& ZRMutableStringDKInterfaceImpl::operator=(
    const ZRMutableStringDKInterfaceImpl&) = default;

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringCreateEmpty(ZRMutableStringRef__** out) {
  if (const ZRLong status = FirstInvalid(NotNull(out)))
    return status;
  *out = (new ZRStringMutator())->GetZRMutableStringRef();
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringCreateFromUniChars(
    const unsigned short* chars, ZRLong start, ZRLong length, ZRMutableStringRef__** out) {
  if (const ZRLong status =
          FirstInvalid(NotNull(chars), NotNegative(start), NotNegative(length), NotNull(out)))
    return status;
  *out = (new ZRStringMutator(chars, start, length))->GetZRMutableStringRef();
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringCreateCopy(ZRStringRef__* source,
                                                                 ZRMutableStringRef__** out) {
  if (const ZRLong status = FirstInvalid(NotNull(source), NotNull(out)))
    return status;
  *out = (new ZRStringMutator(source))->GetZRMutableStringRef();
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringCreateCopyRange(ZRStringRef__* source,
                                                                      ZRLong start, ZRLong length,
                                                                      ZRMutableStringRef__** out) {
  if (const ZRLong status =
          FirstInvalid(NotNull(source), NotNegative(start), LengthOrToEnd(length), NotNull(out)))
    return status;
  *out = (new ZRStringMutator(GetZRStringFromRef(source), start, length))->GetZRMutableStringRef();
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringCreateFromLocalString(
    const unsigned char* text, ZRLong start, ZRLong length, ZRMutableStringRef__** out) {
  if (const ZRLong status =
          FirstInvalid(NotNull(text), NotNegative(start), NotNegative(length), NotNull(out)))
    return status;
  *out = (new ZRStringMutator(text, start, length))->GetZRMutableStringRef();
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringCreateFromCString(
    const char* text, ZRLong start, ZRLong length, ZRMutableStringRef__** out) {
  if (const ZRLong status =
          FirstInvalid(NotNull(text), NotNegative(start), NotNegative(length), NotNull(out)))
    return status;
  *out = (new ZRStringMutator(text, start, length))->GetZRMutableStringRef();
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringDestroy(ZRMutableStringRef__* string) {
  if (const ZRLong status = FirstInvalid(NotNull(string)))
    return status;
  delete &GetZRStringMutatorFromRef(string);
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringSetUniCharAt(ZRMutableStringRef__* string,
                                                                   ZRLong index,
                                                                   unsigned short unit) {
  if (const ZRLong status = FirstInvalid(NotNull(string), NotNegative(index), Untested()))
    return status;
  GetZRStringMutatorFromRef(string).SetCharAt(index, unit);
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringSetToZRString(ZRMutableStringRef__* string,
                                                                    ZRStringRef__* src,
                                                                    ZRLong srcStart,
                                                                    ZRLong srcLength) {
  if (const ZRLong status = FirstInvalid(NotNull(string), NotNull(src), NotNegative(srcStart),
                                         LengthOrToEnd(srcLength)))
    return status;
  GetZRStringMutatorFromRef(string).SetTo(GetZRStringFromRef(src), srcStart, srcLength);
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringAppend(ZRMutableStringRef__* string,
                                                             ZRStringRef__* src) {
  if (const ZRLong status = FirstInvalid(NotNull(string), NotNull(src)))
    return status;
  GetZRStringMutatorFromRef(string).Append(GetZRStringFromRef(src), 0, kToEnd);
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringAppendUniChars(ZRMutableStringRef__* string,
                                                                     const unsigned short* chars,
                                                                     ZRLong srcStart,
                                                                     ZRLong srcLength) {
  if (const ZRLong status = FirstInvalid(NotNull(string), NotNull(chars), NotNegative(srcStart),
                                         NotNegative(srcLength)))
    return status;
  GetZRStringMutatorFromRef(string).Append(chars, srcStart, srcLength);
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringInsert(ZRMutableStringRef__* string,
                                                             ZRLong position, ZRStringRef__* src,
                                                             ZRLong srcStart, ZRLong srcLength) {
  if (const ZRLong status = FirstInvalid(NotNull(string), NotNegative(position), NotNull(src),
                                         NotNegative(srcStart), LengthOrToEnd(srcLength)))
    return status;
  GetZRStringMutatorFromRef(string).Insert(position, GetZRStringFromRef(src), srcStart, srcLength);
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringInsertUniChars(ZRMutableStringRef__* string,
                                                                     ZRLong position,
                                                                     const unsigned short* chars,
                                                                     ZRLong srcStart,
                                                                     ZRLong srcLength) {
  if (const ZRLong status = FirstInvalid(NotNull(string), NotNegative(position), NotNull(chars),
                                         NotNegative(srcStart), NotNegative(srcLength)))
    return status;
  GetZRStringMutatorFromRef(string).Insert(position, chars, srcStart, srcLength);
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringReplaceBetween(ZRMutableStringRef__* string,
                                                                     ZRLong start, ZRLong length,
                                                                     ZRStringRef__* replacement) {
  if (const ZRLong status = FirstInvalid(NotNull(string), NotNegative(start), LengthOrToEnd(length),
                                         NotNull(replacement)))
    return status;
  GetZRStringMutatorFromRef(string).Replace(start, length, GetZRStringFromRef(replacement), 0,
                                            kToEnd);
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringReplaceWithUniChars(
    ZRMutableStringRef__* string, ZRLong start, ZRLong length, const unsigned short* chars,
    ZRLong srcStart, ZRLong srcLength) {
  if (const ZRLong status =
          FirstInvalid(NotNull(string), NotNegative(start), LengthOrToEnd(length), NotNull(chars),
                       NotNegative(srcStart), NotNegative(srcLength)))
    return status;
  GetZRStringMutatorFromRef(string).Replace(start, length, chars, srcStart, srcLength);
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringFindAndReplace(ZRMutableStringRef__* string,
                                                                     ZRLong start, ZRLong length,
                                                                     ZRStringRef__* find,
                                                                     ZRStringRef__* replacement) {
  if (const ZRLong status = FirstInvalid(NotNull(string), NotNegative(start), LengthOrToEnd(length),
                                         NotNull(find), NotNull(replacement)))
    return status;
  GetZRStringMutatorFromRef(string).FindAndReplace(start, length, GetZRStringFromRef(find), 0,
                                                   kToEnd, GetZRStringFromRef(replacement), 0,
                                                   kToEnd);
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringRemoveBetween(ZRMutableStringRef__* string,
                                                                    ZRLong start, ZRLong end) {
  if (const ZRLong status = FirstInvalid(NotNull(string), NotNegative(start), EndOrToEnd(end)))
    return status;
  ZRStringMutator& own = GetZRStringMutatorFromRef(string);
  own.RemoveBetween(start, end == kToEnd ? own.GetLength() : end);
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringPadLeading(ZRMutableStringRef__* string,
                                                                 ZRLong targetLength,
                                                                 unsigned short padUnit,
                                                                 unsigned char* padded) {
  if (const ZRLong status =
          FirstInvalid(NotNull(string), NotNegative(targetLength), Untested(), NotNull(padded)))
    return status;
  *padded = GetZRStringMutatorFromRef(string).PadLeading(targetLength, padUnit);
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringPadTrailing(ZRMutableStringRef__* string,
                                                                  ZRLong targetLength,
                                                                  unsigned short padUnit,
                                                                  unsigned char* padded) {
  if (const ZRLong status =
          FirstInvalid(NotNull(string), NotNegative(targetLength), Untested(), NotNull(padded)))
    return status;
  *padded = GetZRStringMutatorFromRef(string).PadTrailing(targetLength, padUnit);
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringTruncate(ZRMutableStringRef__* string,
                                                               ZRLong targetLength,
                                                               unsigned char* truncated) {
  if (const ZRLong status =
          FirstInvalid(NotNull(string), NotNegative(targetLength), NotNull(truncated)))
    return status;
  *truncated = GetZRStringMutatorFromRef(string).Truncate(targetLength);
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringTrim(ZRMutableStringRef__* string) {
  if (const ZRLong status = FirstInvalid(NotNull(string)))
    return status;
  GetZRStringMutatorFromRef(string).Trim();
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringToUpper(ZRMutableStringRef__* string) {
  if (const ZRLong status = FirstInvalid(NotNull(string)))
    return status;
  GetZRStringMutatorFromRef(string).ToUpper();
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringToLower(ZRMutableStringRef__* string) {
  if (const ZRLong status = FirstInvalid(NotNull(string)))
    return status;
  GetZRStringMutatorFromRef(string).ToLower();
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringGetBufferWithCapacity(
    ZRMutableStringRef__* string, ZRLong minCapacity, unsigned short** buffer) {
  if (const ZRLong status =
          FirstInvalid(NotNull(string), CapacityOrCurrent(minCapacity), NotNull(buffer)))
    return status;
  *buffer = GetZRStringMutatorFromRef(string).GetBuffer(minCapacity);
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringGetCapacity(ZRMutableStringRef__* string,
                                                                  ZRLong* capacity) {
  if (const ZRLong status = FirstInvalid(NotNull(string), NotNull(capacity)))
    return status;
  *capacity = GetZRStringMutatorFromRef(string).GetCapacity();
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringReleaseBuffer(ZRMutableStringRef__* string,
                                                                    ZRLong newLength) {
  if (const ZRLong status = FirstInvalid(NotNull(string), LengthOrToZero(newLength)))
    return status;
  GetZRStringMutatorFromRef(string).ReleaseBuffer(newLength);
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringReverse(ZRMutableStringRef__* string,
                                                              ZRLong start, ZRLong length) {
  if (const ZRLong status =
          FirstInvalid(NotNull(string), NotNegative(start), LengthOrToEnd(length)))
    return status;
  GetZRStringMutatorFromRef(string).Reverse(start, length);
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringAddStrings(ZRStringRef__* first,
                                                                 ZRStringRef__* second,
                                                                 ZRMutableStringRef__** out) {
  if (const ZRLong status = FirstInvalid(NotNull(first), NotNull(second), NotNull(out)))
    return status;
  auto sum = std::make_unique<ZRStringMutator>();
  *sum += GetZRStringFromRef(first);
  *sum += GetZRStringFromRef(second);
  // No buffer: ICU could not hold the sum. An edit leaves that in the text, a create function
  // throws.
  if (!sum->GetBuffer())
    throw std::bad_alloc();
  *out = sum.release()->GetZRMutableStringRef();
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringLastIndexOf(ZRMutableStringRef__* string,
                                                                  unsigned short unit,
                                                                  ZRLong* index) {
  if (const ZRLong status = FirstInvalid(NotNull(string), Untested(), NotNull(index)))
    return status;
  *index = GetZRStringMutatorFromRef(string).LastIndexOf(unit);
  return kZRStatusSuccess;
}

ZRStringRef__* ZRMutableStringDKInterfaceImpl::ZRStringRefConst(ZRMutableStringRef__* string) {
  return string ? GetZRStringMutatorFromRef(string).GetZRStringRef() : nullptr;
}

ZRLong ZRMutableStringCreateEmpty(ZRMutableStringRef__** out) {
  return ZRMutableStringDKInterfaceImpl::ZRMutableStringCreateEmpty(out);
}

ZRLong ZRMutableStringCreateFromUniChars(const unsigned short* chars, ZRLong start, ZRLong length,
                                         ZRMutableStringRef__** out) {
  return ZRMutableStringDKInterfaceImpl::ZRMutableStringCreateFromUniChars(chars, start, length,
                                                                           out);
}

ZRLong ZRMutableStringCreateCopy(ZRStringRef__* source, ZRMutableStringRef__** out) {
  return ZRMutableStringDKInterfaceImpl::ZRMutableStringCreateCopy(source, out);
}

ZRLong ZRMutableStringCreateCopyRange(ZRStringRef__* source, ZRLong start, ZRLong length,
                                      ZRMutableStringRef__** out) {
  return ZRMutableStringDKInterfaceImpl::ZRMutableStringCreateCopyRange(source, start, length, out);
}

ZRLong ZRMutableStringCreateFromLocalString(const unsigned char* text, ZRLong start, ZRLong length,
                                            ZRMutableStringRef__** out) {
  return ZRMutableStringDKInterfaceImpl::ZRMutableStringCreateFromLocalString(text, start, length,
                                                                              out);
}

ZRLong ZRMutableStringCreateFromCString(const char* text, ZRLong start, ZRLong length,
                                        ZRMutableStringRef__** out) {
  return ZRMutableStringDKInterfaceImpl::ZRMutableStringCreateFromCString(text, start, length, out);
}

ZRLong ZRMutableStringDestroy(ZRMutableStringRef__* string) {
  return ZRMutableStringDKInterfaceImpl::ZRMutableStringDestroy(string);
}

ZRLong ZRMutableStringSetUniCharAt(ZRMutableStringRef__* string, ZRLong index,
                                   unsigned short unit) {
  return ZRMutableStringDKInterfaceImpl::ZRMutableStringSetUniCharAt(string, index, unit);
}

ZRLong ZRMutableStringSetToZRString(ZRMutableStringRef__* string, ZRStringRef__* src,
                                    ZRLong srcStart, ZRLong srcLength) {
  return ZRMutableStringDKInterfaceImpl::ZRMutableStringSetToZRString(string, src, srcStart,
                                                                      srcLength);
}

ZRLong ZRMutableStringAppend(ZRMutableStringRef__* string, ZRStringRef__* src) {
  return ZRMutableStringDKInterfaceImpl::ZRMutableStringAppend(string, src);
}

ZRLong ZRMutableStringAppendUniChars(ZRMutableStringRef__* string, const unsigned short* chars,
                                     ZRLong srcStart, ZRLong srcLength) {
  return ZRMutableStringDKInterfaceImpl::ZRMutableStringAppendUniChars(string, chars, srcStart,
                                                                       srcLength);
}

ZRLong ZRMutableStringInsert(ZRMutableStringRef__* string, ZRLong position, ZRStringRef__* src,
                             ZRLong srcStart, ZRLong srcLength) {
  return ZRMutableStringDKInterfaceImpl::ZRMutableStringInsert(string, position, src, srcStart,
                                                               srcLength);
}

ZRLong ZRMutableStringInsertUniChars(ZRMutableStringRef__* string, ZRLong position,
                                     const unsigned short* chars, ZRLong srcStart,
                                     ZRLong srcLength) {
  return ZRMutableStringDKInterfaceImpl::ZRMutableStringInsertUniChars(string, position, chars,
                                                                       srcStart, srcLength);
}

ZRLong ZRMutableStringReplaceBetween(ZRMutableStringRef__* string, ZRLong start, ZRLong length,
                                     ZRStringRef__* replacement) {
  return ZRMutableStringDKInterfaceImpl::ZRMutableStringReplaceBetween(string, start, length,
                                                                       replacement);
}

ZRLong ZRMutableStringReplaceWithUniChars(ZRMutableStringRef__* string, ZRLong start, ZRLong length,
                                          const unsigned short* chars, ZRLong srcStart,
                                          ZRLong srcLength) {
  return ZRMutableStringDKInterfaceImpl::ZRMutableStringReplaceWithUniChars(
      string, start, length, chars, srcStart, srcLength);
}

ZRLong ZRMutableStringFindAndReplace(ZRMutableStringRef__* string, ZRLong start, ZRLong length,
                                     ZRStringRef__* find, ZRStringRef__* replacement) {
  return ZRMutableStringDKInterfaceImpl::ZRMutableStringFindAndReplace(string, start, length, find,
                                                                       replacement);
}

ZRLong ZRMutableStringRemoveBetween(ZRMutableStringRef__* string, ZRLong start, ZRLong end) {
  return ZRMutableStringDKInterfaceImpl::ZRMutableStringRemoveBetween(string, start, end);
}

ZRLong ZRMutableStringPadLeading(ZRMutableStringRef__* string, ZRLong targetLength,
                                 unsigned short padUnit, unsigned char* padded) {
  return ZRMutableStringDKInterfaceImpl::ZRMutableStringPadLeading(string, targetLength, padUnit,
                                                                   padded);
}

ZRLong ZRMutableStringPadTrailing(ZRMutableStringRef__* string, ZRLong targetLength,
                                  unsigned short padUnit, unsigned char* padded) {
  return ZRMutableStringDKInterfaceImpl::ZRMutableStringPadTrailing(string, targetLength, padUnit,
                                                                    padded);
}

ZRLong ZRMutableStringTruncate(ZRMutableStringRef__* string, ZRLong targetLength,
                               unsigned char* truncated) {
  return ZRMutableStringDKInterfaceImpl::ZRMutableStringTruncate(string, targetLength, truncated);
}

ZRLong ZRMutableStringTrim(ZRMutableStringRef__* string) {
  return ZRMutableStringDKInterfaceImpl::ZRMutableStringTrim(string);
}

ZRLong ZRMutableStringToUpper(ZRMutableStringRef__* string) {
  return ZRMutableStringDKInterfaceImpl::ZRMutableStringToUpper(string);
}

ZRLong ZRMutableStringToLower(ZRMutableStringRef__* string) {
  return ZRMutableStringDKInterfaceImpl::ZRMutableStringToLower(string);
}

ZRLong ZRMutableStringGetBufferWithCapacity(ZRMutableStringRef__* string, ZRLong minCapacity,
                                            unsigned short** buffer) {
  return ZRMutableStringDKInterfaceImpl::ZRMutableStringGetBufferWithCapacity(string, minCapacity,
                                                                              buffer);
}

ZRLong ZRMutableStringGetCapacity(ZRMutableStringRef__* string, ZRLong* capacity) {
  return ZRMutableStringDKInterfaceImpl::ZRMutableStringGetCapacity(string, capacity);
}

ZRLong ZRMutableStringReleaseBuffer(ZRMutableStringRef__* string, ZRLong newLength) {
  return ZRMutableStringDKInterfaceImpl::ZRMutableStringReleaseBuffer(string, newLength);
}

ZRLong ZRMutableStringReverse(ZRMutableStringRef__* string, ZRLong start, ZRLong length) {
  return ZRMutableStringDKInterfaceImpl::ZRMutableStringReverse(string, start, length);
}

ZRLong ZRMutableStringAddStrings(ZRStringRef__* first, ZRStringRef__* second,
                                 ZRMutableStringRef__** out) {
  return ZRMutableStringDKInterfaceImpl::ZRMutableStringAddStrings(first, second, out);
}

ZRLong ZRMutableStringLastIndexOf(ZRMutableStringRef__* string, unsigned short unit,
                                  ZRLong* index) {
  return ZRMutableStringDKInterfaceImpl::ZRMutableStringLastIndexOf(string, unit, index);
}
