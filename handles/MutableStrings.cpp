#include <ZRString/ZRStringHandles.h>
#include <ZRString/ZRStringMutator.h>

#include <memory>
#include <new>

#include "handles/Parameters.h"

ZRLong ZRMutableStringCreateEmpty(ZRMutableStringRef__** out) {
  if (const ZRLong status = FirstInvalid(NotNull(out)))
    return status;
  *out = HandleOf(new ZRStringMutator());
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringCreateFromUniChars(const unsigned short* chars, ZRLong start, ZRLong length,
                                         ZRMutableStringRef__** out) {
  if (const ZRLong status =
          FirstInvalid(NotNull(chars), NotNegative(start), NotNegative(length), NotNull(out)))
    return status;
  *out = HandleOf(new ZRStringMutator(chars, start, length));
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringCreateCopy(ZRStringRef__* source, ZRMutableStringRef__** out) {
  if (const ZRLong status = FirstInvalid(NotNull(source), NotNull(out)))
    return status;
  *out = HandleOf(new ZRStringMutator(source));
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringCreateCopyRange(ZRStringRef__* source, ZRLong start, ZRLong length,
                                      ZRMutableStringRef__** out) {
  if (const ZRLong status =
          FirstInvalid(NotNull(source), NotNegative(start), LengthOrToEnd(length), NotNull(out)))
    return status;
  *out = HandleOf(new ZRStringMutator(StringOf(source), start, length));
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringCreateFromLocalString(const unsigned char* text, ZRLong start, ZRLong length,
                                            ZRMutableStringRef__** out) {
  if (const ZRLong status =
          FirstInvalid(NotNull(text), NotNegative(start), NotNegative(length), NotNull(out)))
    return status;
  *out = HandleOf(new ZRStringMutator(text, start, length));
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringCreateFromCString(const char* text, ZRLong start, ZRLong length,
                                        ZRMutableStringRef__** out) {
  if (const ZRLong status =
          FirstInvalid(NotNull(text), NotNegative(start), NotNegative(length), NotNull(out)))
    return status;
  *out = HandleOf(new ZRStringMutator(text, start, length));
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringDestroy(ZRMutableStringRef__* string) {
  if (const ZRLong status = FirstInvalid(NotNull(string)))
    return status;
  delete &StringOf(string);
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringSetUniCharAt(ZRMutableStringRef__* string, ZRLong index,
                                   unsigned short unit) {
  if (const ZRLong status = FirstInvalid(NotNull(string), NotNegative(index), Untested()))
    return status;
  StringOf(string).SetCharAt(index, unit);
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringSetToZRString(ZRMutableStringRef__* string, ZRStringRef__* src,
                                    ZRLong srcStart, ZRLong srcLength) {
  if (const ZRLong status = FirstInvalid(NotNull(string), NotNull(src), NotNegative(srcStart),
                                         LengthOrToEnd(srcLength)))
    return status;
  StringOf(string).SetTo(StringOf(src), srcStart, srcLength);
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringAppend(ZRMutableStringRef__* string, ZRStringRef__* src) {
  if (const ZRLong status = FirstInvalid(NotNull(string), NotNull(src)))
    return status;
  StringOf(string).Append(StringOf(src), 0, kZRToEnd);
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringAppendUniChars(ZRMutableStringRef__* string, const unsigned short* chars,
                                     ZRLong srcStart, ZRLong srcLength) {
  if (const ZRLong status = FirstInvalid(NotNull(string), NotNull(chars), NotNegative(srcStart),
                                         NotNegative(srcLength)))
    return status;
  StringOf(string).Append(chars, srcStart, srcLength);
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringInsert(ZRMutableStringRef__* string, ZRLong position, ZRStringRef__* src,
                             ZRLong srcStart, ZRLong srcLength) {
  if (const ZRLong status = FirstInvalid(NotNull(string), NotNegative(position), NotNull(src),
                                         NotNegative(srcStart), LengthOrToEnd(srcLength)))
    return status;
  StringOf(string).Insert(position, StringOf(src), srcStart, srcLength);
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringInsertUniChars(ZRMutableStringRef__* string, ZRLong position,
                                     const unsigned short* chars, ZRLong srcStart,
                                     ZRLong srcLength) {
  if (const ZRLong status = FirstInvalid(NotNull(string), NotNegative(position), NotNull(chars),
                                         NotNegative(srcStart), NotNegative(srcLength)))
    return status;
  StringOf(string).Insert(position, chars, srcStart, srcLength);
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringReplaceBetween(ZRMutableStringRef__* string, ZRLong start, ZRLong length,
                                     ZRStringRef__* replacement) {
  if (const ZRLong status = FirstInvalid(NotNull(string), NotNegative(start), LengthOrToEnd(length),
                                         NotNull(replacement)))
    return status;
  StringOf(string).Replace(start, length, StringOf(replacement), 0, kZRToEnd);
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringReplaceWithUniChars(ZRMutableStringRef__* string, ZRLong start, ZRLong length,
                                          const unsigned short* chars, ZRLong srcStart,
                                          ZRLong srcLength) {
  if (const ZRLong status =
          FirstInvalid(NotNull(string), NotNegative(start), LengthOrToEnd(length), NotNull(chars),
                       NotNegative(srcStart), NotNegative(srcLength)))
    return status;
  StringOf(string).Replace(start, length, chars, srcStart, srcLength);
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringFindAndReplace(ZRMutableStringRef__* string, ZRLong start, ZRLong length,
                                     ZRStringRef__* find, ZRStringRef__* replacement) {
  if (const ZRLong status = FirstInvalid(NotNull(string), NotNegative(start), LengthOrToEnd(length),
                                         NotNull(find), NotNull(replacement)))
    return status;
  StringOf(string).FindAndReplace(start, length, StringOf(find), 0, kZRToEnd, StringOf(replacement),
                                  0, kZRToEnd);
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringRemoveBetween(ZRMutableStringRef__* string, ZRLong start, ZRLong end) {
  if (const ZRLong status =
          FirstInvalid(NotNull(string), NotNegative(start), EndOrThroughLast(end)))
    return status;
  ZRStringMutator& own = StringOf(string);
  own.RemoveBetween(start, end == kZRToEnd ? own.GetLength() : end);
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringPadLeading(ZRMutableStringRef__* string, ZRLong targetLength,
                                 unsigned short padUnit, unsigned char* padded) {
  if (const ZRLong status =
          FirstInvalid(NotNull(string), NotNegative(targetLength), Untested(), NotNull(padded)))
    return status;
  *padded = StringOf(string).PadLeading(targetLength, padUnit);
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringPadTrailing(ZRMutableStringRef__* string, ZRLong targetLength,
                                  unsigned short padUnit, unsigned char* padded) {
  if (const ZRLong status =
          FirstInvalid(NotNull(string), NotNegative(targetLength), Untested(), NotNull(padded)))
    return status;
  *padded = StringOf(string).PadTrailing(targetLength, padUnit);
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringTruncate(ZRMutableStringRef__* string, ZRLong targetLength,
                               unsigned char* truncated) {
  if (const ZRLong status =
          FirstInvalid(NotNull(string), NotNegative(targetLength), NotNull(truncated)))
    return status;
  *truncated = StringOf(string).Truncate(targetLength);
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringTrim(ZRMutableStringRef__* string) {
  if (const ZRLong status = FirstInvalid(NotNull(string)))
    return status;
  StringOf(string).Trim();
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringToUpper(ZRMutableStringRef__* string) {
  if (const ZRLong status = FirstInvalid(NotNull(string)))
    return status;
  StringOf(string).ToUpper();
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringToLower(ZRMutableStringRef__* string) {
  if (const ZRLong status = FirstInvalid(NotNull(string)))
    return status;
  StringOf(string).ToLower();
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringGetBufferWithCapacity(ZRMutableStringRef__* string, ZRLong minCapacity,
                                            unsigned short** buffer) {
  if (const ZRLong status =
          FirstInvalid(NotNull(string), CapacityOrCurrent(minCapacity), NotNull(buffer)))
    return status;
  *buffer = StringOf(string).GetBuffer(minCapacity);
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringGetCapacity(ZRMutableStringRef__* string, ZRLong* capacity) {
  if (const ZRLong status = FirstInvalid(NotNull(string), NotNull(capacity)))
    return status;
  *capacity = StringOf(string).GetCapacity();
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringReleaseBuffer(ZRMutableStringRef__* string, ZRLong newLength) {
  if (const ZRLong status = FirstInvalid(NotNull(string), LengthOrToZeroUnit(newLength)))
    return status;
  StringOf(string).ReleaseBuffer(newLength);
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringReverse(ZRMutableStringRef__* string, ZRLong start, ZRLong length) {
  if (const ZRLong status =
          FirstInvalid(NotNull(string), NotNegative(start), LengthOrToEnd(length)))
    return status;
  StringOf(string).Reverse(start, length);
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringAddStrings(ZRStringRef__* first, ZRStringRef__* second,
                                 ZRMutableStringRef__** out) {
  if (const ZRLong status = FirstInvalid(NotNull(first), NotNull(second), NotNull(out)))
    return status;
  auto sum = std::make_unique<ZRStringMutator>();
  *sum += StringOf(first);
  *sum += StringOf(second);
  // A null buffer means that ICU could not hold the sum. Edits leave the text in that state; create
  // functions throw.
  if (!sum->GetBuffer())
    throw std::bad_alloc();
  *out = HandleOf(sum.release());
  return kZRStatusSuccess;
}

ZRLong ZRMutableStringLastIndexOf(ZRMutableStringRef__* string, unsigned short unit,
                                  ZRLong* index) {
  if (const ZRLong status = FirstInvalid(NotNull(string), Untested(), NotNull(index)))
    return status;
  *index = StringOf(string).LastIndexOf(unit);
  return kZRStatusSuccess;
}
