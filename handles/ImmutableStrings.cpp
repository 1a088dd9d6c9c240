#include <ZRString/ZRString.h>
#include <ZRString/ZRStringHandles.h>

#include "handles/Parameters.h"

ZRLong ZRStringCreateFromUniChars(const unsigned short* chars, ZRLong start, ZRLong length,
                                  ZRStringRef__** out) {
  if (const ZRLong status =
          FirstInvalid(NotNull(chars), NotNegative(start), LengthOrToEnd(length), NotNull(out)))
    return status;
  *out = HandleOf(new ZRString(chars, start, length));
  return kZRStatusSuccess;
}

ZRLong ZRStringCreateFromLocalString(const unsigned char* text, ZRLong start, ZRLong length,
                                     ZRStringRef__** out) {
  if (const ZRLong status =
          FirstInvalid(NotNull(text), NotNegative(start), LengthOrToEnd(length), NotNull(out)))
    return status;
  *out = HandleOf(new ZRString(text, start, length));
  return kZRStatusSuccess;
}

ZRLong ZRStringCreateFromCString(const char* text, ZRLong start, ZRLong length,
                                 ZRStringRef__** out) {
  if (const ZRLong status =
          FirstInvalid(NotNull(text), NotNegative(start), NotNegative(length), NotNull(out)))
    return status;
  *out = HandleOf(new ZRString(text, start, length));
  return kZRStatusSuccess;
}

ZRLong ZRStringCreateCopy(ZRStringRef__* source, ZRStringRef__** out) {
  if (const ZRLong status = FirstInvalid(NotNull(source), NotNull(out)))
    return status;
  *out = HandleOf(new ZRString(source));
  return kZRStatusSuccess;
}

ZRLong ZRStringCreateCopyRange(ZRStringRef__* source, ZRLong start, ZRLong length,
                               ZRStringRef__** out) {
  if (const ZRLong status =
          FirstInvalid(NotNull(source), NotNegative(start), LengthOrToEnd(length), NotNull(out)))
    return status;
  *out = HandleOf(new ZRString(StringOf(source), start, length));
  return kZRStatusSuccess;
}

ZRLong ZRStringDestroy(ZRStringRef__* string) {
  if (const ZRLong status = FirstInvalid(NotNull(string)))
    return status;
  delete &StringOf(string);
  return kZRStatusSuccess;
}

ZRLong ZRStringCompare(ZRStringRef__* string, ZRLong start, ZRLong length, ZRStringRef__* src,
                       ZRLong srcStart, ZRLong srcLength, ZRLong* result) {
  if (const ZRLong status =
          FirstInvalid(NotNull(string), NotNegative(start), LengthOrToEnd(length), NotNull(src),
                       NotNegative(srcStart), LengthOrToEnd(srcLength), NotNull(result)))
    return status;
  *result = StringOf(string).Compare(start, length, StringOf(src), srcStart, srcLength);
  return kZRStatusSuccess;
}

ZRLong ZRStringCompareCodePointOrder(ZRStringRef__* string, ZRLong start, ZRLong length,
                                     ZRStringRef__* src, ZRLong srcStart, ZRLong srcLength,
                                     ZRLong* result) {
  if (const ZRLong status =
          FirstInvalid(NotNull(string), NotNegative(start), LengthOrToEnd(length), NotNull(src),
                       NotNegative(srcStart), LengthOrToEnd(srcLength), NotNull(result)))
    return status;
  *result =
      StringOf(string).CompareCodePointOrder(start, length, StringOf(src), srcStart, srcLength);
  return kZRStatusSuccess;
}

ZRLong ZRStringICompare(ZRStringRef__* string, ZRLong start, ZRLong length, ZRStringRef__* src,
                        ZRLong srcStart, ZRLong srcLength, ZRULong options, ZRLong* result) {
  if (const ZRLong status = FirstInvalid(NotNull(string), NotNegative(start), LengthOrToEnd(length),
                                         NotNull(src), NotNegative(srcStart),
                                         LengthOrToEnd(srcLength), Untested(), NotNull(result)))
    return status;
  *result = StringOf(string).ICompare(start, length, StringOf(src), srcStart, srcLength, options);
  return kZRStatusSuccess;
}

ZRLong ZRStringFind(ZRStringRef__* string, ZRLong start, ZRLong length, ZRStringRef__* pattern,
                    ZRLong* index) {
  if (const ZRLong status = FirstInvalid(NotNull(string), NotNegative(start), LengthOrToEnd(length),
                                         NotNull(pattern), NotNull(index)))
    return status;
  *index = StringOf(string).Find(StringOf(pattern), 0, kZRToEnd, start, length);
  return kZRStatusSuccess;
}

ZRLong ZRStringFindUniChars(ZRStringRef__* string, ZRLong start, ZRLong length,
                            unsigned short* pattern, ZRLong patternLength, ZRLong* index) {
  if (const ZRLong status = FirstInvalid(NotNull(string), NotNegative(start), LengthOrToEnd(length),
                                         Untested(), NotNegative(patternLength), NotNull(index)))
    return status;
  *index = StringOf(string).Find(pattern, 0, patternLength, start, length);
  return kZRStatusSuccess;
}

ZRLong ZRStringRFind(ZRStringRef__* string, ZRLong start, ZRLong length, ZRStringRef__* pattern,
                     ZRLong* index) {
  if (const ZRLong status = FirstInvalid(NotNull(string), NotNegative(start), LengthOrToEnd(length),
                                         NotNull(pattern), NotNull(index)))
    return status;
  *index = StringOf(string).RFind(StringOf(pattern), 0, kZRToEnd, start, length);
  return kZRStatusSuccess;
}

ZRLong ZRStringRFindUniChars(ZRStringRef__* string, ZRLong start, ZRLong length,
                             unsigned short* pattern, ZRLong patternLength, ZRLong* index) {
  if (const ZRLong status = FirstInvalid(NotNull(string), NotNegative(start), LengthOrToEnd(length),
                                         Untested(), NotNegative(patternLength), NotNull(index)))
    return status;
  *index = StringOf(string).RFind(pattern, 0, patternLength, start, length);
  return kZRStatusSuccess;
}

ZRLong ZRStringGetUniCharsAt(ZRStringRef__* string, ZRLong index, ZRLong count,
                             unsigned short* units) {
  if (const ZRLong status =
          FirstInvalid(NotNull(string), Untested(), AtLeastOne(count), NotNull(units)))
    return status;
  const ZRString& own = StringOf(string);
  if (index < 0 || index > own.GetLength() - 1)
    units[0] = kZRNoUnit;
  else
    own.Extract(index, count, units, 0);
  return kZRStatusSuccess;
}

ZRLong ZRStringExtractIntoUniChars(ZRStringRef__* string, ZRLong start, ZRLong length,
                                   unsigned short* dst, ZRLong dstStart) {
  if (const ZRLong status = FirstInvalid(NotNull(string), NotNegative(start), LengthOrToEnd(length),
                                         NotNull(dst), NotNegative(dstStart)))
    return status;
  StringOf(string).Extract(start, length, dst, dstStart);
  return kZRStatusSuccess;
}

ZRLong ZRStringGetLength(ZRStringRef__* string, ZRLong* length) {
  if (const ZRLong status = FirstInvalid(NotNull(string), NotNull(length)))
    return status;
  *length = StringOf(string).GetLength();
  return kZRStatusSuccess;
}

ZRLong ZRStringIsEmpty(ZRStringRef__* string, unsigned char* isEmpty) {
  if (const ZRLong status = FirstInvalid(NotNull(string), NotNull(isEmpty)))
    return status;
  *isEmpty = StringOf(string).IsEmpty();
  return kZRStatusSuccess;
}

ZRLong ZRStringGetBuffer(ZRStringRef__* string, unsigned short** buffer) {
  if (const ZRLong status = FirstInvalid(NotNull(string), NotNull(buffer)))
    return status;
  *buffer = const_cast<unsigned short*>(StringOf(string).GetBuffer());
  return kZRStatusSuccess;
}

ZRLong ZRStringLastIndexOf(ZRStringRef__* string, unsigned short unit, ZRLong* index) {
  if (const ZRLong status = FirstInvalid(NotNull(string), Untested(), NotNull(index)))
    return status;
  *index = StringOf(string).LastIndexOf(unit);
  return kZRStatusSuccess;
}
