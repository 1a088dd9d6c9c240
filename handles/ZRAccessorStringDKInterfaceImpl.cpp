#include <ZRString/ZRString.h>
#include <ZRString/ZRStringInterfaces.h>

#include <climits>

#include "handles/Parameters.h"

namespace {

constexpr ZRLong kToEnd = -1;
constexpr unsigned short kNoUnit = 0xFFFF;

/// The inclusive end of a range whose parameters have been tested. The greatest index stands for
/// every end past it, and for a length of -1: to a Between member both mean through the end.
constexpr ZRLong InclusiveEnd(ZRLong start, ZRLong length) {
  return length == kToEnd || start > INT_MAX - length ? INT_MAX : start + length - 1;
}

}  // namespace

ZRAccessorStringDKInterfaceImpl& ZRAccessorStringDKInterfaceImpl::operator=(
    const ZRAccessorStringDKInterfaceImpl&) = default;

ZRLong ZRAccessorStringDKInterfaceImpl::ZRStringCreateFromUniChars(const unsigned short* chars,
                                                                   ZRLong start, ZRLong length,
                                                                   ZRStringRef__** out) {
  if (const ZRLong status =
          FirstInvalid(NotNull(chars), NotNegative(start), LengthOrToEnd(length), NotNull(out)))
    return status;
  *out = (new ZRString(chars, start, length))->GetZRStringRef();
  return kZRStatusSuccess;
}

ZRLong ZRAccessorStringDKInterfaceImpl::ZRStringCreateFromLocalString(const unsigned char* text,
                                                                      ZRLong start, ZRLong length,
                                                                      ZRStringRef__** out) {
  if (const ZRLong status =
          FirstInvalid(NotNull(text), NotNegative(start), LengthOrToEnd(length), NotNull(out)))
    return status;
  *out = (new ZRString(text, start, length))->GetZRStringRef();
  return kZRStatusSuccess;
}

ZRLong ZRAccessorStringDKInterfaceImpl::ZRStringCreateFromCString(const char* text, ZRLong start,
                                                                  ZRLong length,
                                                                  ZRStringRef__** out) {
  if (const ZRLong status =
          FirstInvalid(NotNull(text), NotNegative(start), NotNegative(length), NotNull(out)))
    return status;
  *out = (new ZRString(text, start, length))->GetZRStringRef();
  return kZRStatusSuccess;
}

ZRLong ZRAccessorStringDKInterfaceImpl::ZRStringCreateCopy(ZRStringRef__* source,
                                                           ZRStringRef__** out) {
  if (const ZRLong status = FirstInvalid(NotNull(source), NotNull(out)))
    return status;
  *out = (new ZRString(source))->GetZRStringRef();
  return kZRStatusSuccess;
}

ZRLong ZRAccessorStringDKInterfaceImpl::ZRStringCreateCopyRange(ZRStringRef__* source, ZRLong start,
                                                                ZRLong length,
                                                                ZRStringRef__** out) {
  if (const ZRLong status =
          FirstInvalid(NotNull(source), NotNegative(start), LengthOrToEnd(length), NotNull(out)))
    return status;
  *out = (new ZRString(GetZRStringFromRef(source), start, length))->GetZRStringRef();
  return kZRStatusSuccess;
}

ZRLong ZRAccessorStringDKInterfaceImpl::ZRStringDestroy(ZRStringRef__* string) {
  if (const ZRLong status = FirstInvalid(NotNull(string)))
    return status;
  delete &GetZRStringFromRef(string);
  return kZRStatusSuccess;
}

ZRLong ZRAccessorStringDKInterfaceImpl::ZRStringCompare(ZRStringRef__* string, ZRLong start,
                                                        ZRLong length, ZRStringRef__* src,
                                                        ZRLong srcStart, ZRLong srcLength,
                                                        ZRLong* result) {
  if (const ZRLong status =
          FirstInvalid(NotNull(string), NotNegative(start), LengthOrToEnd(length), NotNull(src),
                       NotNegative(srcStart), LengthOrToEnd(srcLength), NotNull(result)))
    return status;
  const ZRString& own = GetZRStringFromRef(string);
  const ZRString& other = GetZRStringFromRef(src);
  *result = own.CompareBetween(start, InclusiveEnd(start, length), other, srcStart,
                               InclusiveEnd(srcStart, srcLength));
  return kZRStatusSuccess;
}

ZRLong ZRAccessorStringDKInterfaceImpl::ZRStringCompareCodePointOrder(
    ZRStringRef__* string, ZRLong start, ZRLong length, ZRStringRef__* src, ZRLong srcStart,
    ZRLong srcLength, ZRLong* result) {
  if (const ZRLong status =
          FirstInvalid(NotNull(string), NotNegative(start), LengthOrToEnd(length), NotNull(src),
                       NotNegative(srcStart), LengthOrToEnd(srcLength), NotNull(result)))
    return status;
  const ZRString& own = GetZRStringFromRef(string);
  const ZRString& other = GetZRStringFromRef(src);
  *result = own.CompareCodePointOrderBetween(start, InclusiveEnd(start, length), other, srcStart,
                                             InclusiveEnd(srcStart, srcLength));
  return kZRStatusSuccess;
}

ZRLong ZRAccessorStringDKInterfaceImpl::ZRStringICompare(ZRStringRef__* string, ZRLong start,
                                                         ZRLong length, ZRStringRef__* src,
                                                         ZRLong srcStart, ZRLong srcLength,
                                                         ZRULong options, ZRLong* result) {
  if (const ZRLong status = FirstInvalid(NotNull(string), NotNegative(start), LengthOrToEnd(length),
                                         NotNull(src), NotNegative(srcStart),
                                         LengthOrToEnd(srcLength), Untested(), NotNull(result)))
    return status;
  const ZRString& own = GetZRStringFromRef(string);
  const ZRString& other = GetZRStringFromRef(src);
  *result = own.ICompareBetween(start, InclusiveEnd(start, length), other, srcStart,
                                InclusiveEnd(srcStart, srcLength), options);
  return kZRStatusSuccess;
}

ZRLong ZRAccessorStringDKInterfaceImpl::ZRStringFind(ZRStringRef__* string, ZRLong start,
                                                     ZRLong length, ZRStringRef__* pattern,
                                                     ZRLong* index) {
  if (const ZRLong status = FirstInvalid(NotNull(string), NotNegative(start), LengthOrToEnd(length),
                                         NotNull(pattern), NotNull(index)))
    return status;
  *index = GetZRStringFromRef(string).Find(GetZRStringFromRef(pattern), 0, kToEnd, start, length);
  return kZRStatusSuccess;
}

ZRLong ZRAccessorStringDKInterfaceImpl::ZRStringFindUniChars(ZRStringRef__* string, ZRLong start,
                                                             ZRLong length, unsigned short* pattern,
                                                             ZRLong patternLength, ZRLong* index) {
  if (const ZRLong status = FirstInvalid(NotNull(string), NotNegative(start), LengthOrToEnd(length),
                                         Untested(), NotNegative(patternLength), NotNull(index)))
    return status;
  *index = GetZRStringFromRef(string).Find(pattern, 0, patternLength, start, length);
  return kZRStatusSuccess;
}

ZRLong ZRAccessorStringDKInterfaceImpl::ZRStringRFind(ZRStringRef__* string, ZRLong start,
                                                      ZRLong length, ZRStringRef__* pattern,
                                                      ZRLong* index) {
  if (const ZRLong status = FirstInvalid(NotNull(string), NotNegative(start), LengthOrToEnd(length),
                                         NotNull(pattern), NotNull(index)))
    return status;
  *index = GetZRStringFromRef(string).RFind(GetZRStringFromRef(pattern), 0, kToEnd, start, length);
  return kZRStatusSuccess;
}

ZRLong ZRAccessorStringDKInterfaceImpl::ZRStringRFindUniChars(ZRStringRef__* string, ZRLong start,
                                                              ZRLong length,
                                                              unsigned short* pattern,
                                                              ZRLong patternLength, ZRLong* index) {
  if (const ZRLong status = FirstInvalid(NotNull(string), NotNegative(start), LengthOrToEnd(length),
                                         Untested(), NotNegative(patternLength), NotNull(index)))
    return status;
  *index = GetZRStringFromRef(string).RFind(pattern, 0, patternLength, start, length);
  return kZRStatusSuccess;
}

ZRLong ZRAccessorStringDKInterfaceImpl::ZRStringGetUniCharsAt(ZRStringRef__* string, ZRLong index,
                                                              ZRLong count, unsigned short* units) {
  if (const ZRLong status =
          FirstInvalid(NotNull(string), Untested(), AtLeastOne(count), NotNull(units)))
    return status;
  const ZRString& own = GetZRStringFromRef(string);
  if (index < 0 || index > own.GetLength() - 1)
    units[0] = kNoUnit;
  else
    own.Extract(index, count, units, 0);
  return kZRStatusSuccess;
}

ZRLong ZRAccessorStringDKInterfaceImpl::ZRStringExtractIntoUniChars(ZRStringRef__* string,
                                                                    ZRLong start, ZRLong length,
                                                                    unsigned short* dst,
                                                                    ZRLong dstStart) {
  if (const ZRLong status = FirstInvalid(NotNull(string), NotNegative(start), LengthOrToEnd(length),
                                         NotNull(dst), NotNegative(dstStart)))
    return status;
  GetZRStringFromRef(string).Extract(start, length, dst, dstStart);
  return kZRStatusSuccess;
}

ZRLong ZRAccessorStringDKInterfaceImpl::ZRStringGetLength(ZRStringRef__* string, ZRLong* length) {
  if (const ZRLong status = FirstInvalid(NotNull(string), NotNull(length)))
    return status;
  *length = GetZRStringFromRef(string).GetLength();
  return kZRStatusSuccess;
}

ZRLong ZRAccessorStringDKInterfaceImpl::ZRStringIsEmpty(ZRStringRef__* string,
                                                        unsigned char* isEmpty) {
  if (const ZRLong status = FirstInvalid(NotNull(string), NotNull(isEmpty)))
    return status;
  *isEmpty = GetZRStringFromRef(string).IsEmpty();
  return kZRStatusSuccess;
}

ZRLong ZRAccessorStringDKInterfaceImpl::ZRStringGetBuffer(ZRStringRef__* string,
                                                          unsigned short** buffer) {
  if (const ZRLong status = FirstInvalid(NotNull(string), NotNull(buffer)))
    return status;
  *buffer = const_cast<unsigned short*>(GetZRStringFromRef(string).GetBuffer());
  return kZRStatusSuccess;
}

ZRLong ZRAccessorStringDKInterfaceImpl::ZRStringLastIndexOf(ZRStringRef__* string,
                                                            unsigned short unit, ZRLong* index) {
  if (const ZRLong status = FirstInvalid(NotNull(string), Untested(), NotNull(index)))
    return status;
  *index = GetZRStringFromRef(string).LastIndexOf(unit);
  return kZRStatusSuccess;
}

ZRLong ZRStringCreateFromUniChars(const unsigned short* chars, ZRLong start, ZRLong length,
                                  ZRStringRef__** out) {
  return ZRAccessorStringDKInterfaceImpl::ZRStringCreateFromUniChars(chars, start, length, out);
}

ZRLong ZRStringCreateFromLocalString(const unsigned char* text, ZRLong start, ZRLong length,
                                     ZRStringRef__** out) {
  return ZRAccessorStringDKInterfaceImpl::ZRStringCreateFromLocalString(text, start, length, out);
}

ZRLong ZRStringCreateFromCString(const char* text, ZRLong start, ZRLong length,
                                 ZRStringRef__** out) {
  return ZRAccessorStringDKInterfaceImpl::ZRStringCreateFromCString(text, start, length, out);
}

ZRLong ZRStringCreateCopy(ZRStringRef__* source, ZRStringRef__** out) {
  return ZRAccessorStringDKInterfaceImpl::ZRStringCreateCopy(source, out);
}

ZRLong ZRStringCreateCopyRange(ZRStringRef__* source, ZRLong start, ZRLong length,
                               ZRStringRef__** out) {
  return ZRAccessorStringDKInterfaceImpl::ZRStringCreateCopyRange(source, start, length, out);
}

ZRLong ZRStringDestroy(ZRStringRef__* string) {
  return ZRAccessorStringDKInterfaceImpl::ZRStringDestroy(string);
}

ZRLong ZRStringCompare(ZRStringRef__* string, ZRLong start, ZRLong length, ZRStringRef__* src,
                       ZRLong srcStart, ZRLong srcLength, ZRLong* result) {
  return ZRAccessorStringDKInterfaceImpl::ZRStringCompare(string, start, length, src, srcStart,
                                                          srcLength, result);
}

ZRLong ZRStringCompareCodePointOrder(ZRStringRef__* string, ZRLong start, ZRLong length,
                                     ZRStringRef__* src, ZRLong srcStart, ZRLong srcLength,
                                     ZRLong* result) {
  return ZRAccessorStringDKInterfaceImpl::ZRStringCompareCodePointOrder(
      string, start, length, src, srcStart, srcLength, result);
}

ZRLong ZRStringICompare(ZRStringRef__* string, ZRLong start, ZRLong length, ZRStringRef__* src,
                        ZRLong srcStart, ZRLong srcLength, ZRULong options, ZRLong* result) {
  return ZRAccessorStringDKInterfaceImpl::ZRStringICompare(string, start, length, src, srcStart,
                                                           srcLength, options, result);
}

ZRLong ZRStringFind(ZRStringRef__* string, ZRLong start, ZRLong length, ZRStringRef__* pattern,
                    ZRLong* index) {
  return ZRAccessorStringDKInterfaceImpl::ZRStringFind(string, start, length, pattern, index);
}

ZRLong ZRStringFindUniChars(ZRStringRef__* string, ZRLong start, ZRLong length,
                            unsigned short* pattern, ZRLong patternLength, ZRLong* index) {
  return ZRAccessorStringDKInterfaceImpl::ZRStringFindUniChars(string, start, length, pattern,
                                                               patternLength, index);
}

ZRLong ZRStringRFind(ZRStringRef__* string, ZRLong start, ZRLong length, ZRStringRef__* pattern,
                     ZRLong* index) {
  return ZRAccessorStringDKInterfaceImpl::ZRStringRFind(string, start, length, pattern, index);
}

ZRLong ZRStringRFindUniChars(ZRStringRef__* string, ZRLong start, ZRLong length,
                             unsigned short* pattern, ZRLong patternLength, ZRLong* index) {
  return ZRAccessorStringDKInterfaceImpl::ZRStringRFindUniChars(string, start, length, pattern,
                                                                patternLength, index);
}

ZRLong ZRStringGetUniCharsAt(ZRStringRef__* string, ZRLong index, ZRLong count,
                             unsigned short* units) {
  return ZRAccessorStringDKInterfaceImpl::ZRStringGetUniCharsAt(string, index, count, units);
}

ZRLong ZRStringExtractIntoUniChars(ZRStringRef__* string, ZRLong start, ZRLong length,
                                   unsigned short* dst, ZRLong dstStart) {
  return ZRAccessorStringDKInterfaceImpl::ZRStringExtractIntoUniChars(string, start, length, dst,
                                                                      dstStart);
}

ZRLong ZRStringGetLength(ZRStringRef__* string, ZRLong* length) {
  return ZRAccessorStringDKInterfaceImpl::ZRStringGetLength(string, length);
}

ZRLong ZRStringIsEmpty(ZRStringRef__* string, unsigned char* isEmpty) {
  return ZRAccessorStringDKInterfaceImpl::ZRStringIsEmpty(string, isEmpty);
}

ZRLong ZRStringGetBuffer(ZRStringRef__* string, unsigned short** buffer) {
  return ZRAccessorStringDKInterfaceImpl::ZRStringGetBuffer(string, buffer);
}

ZRLong ZRStringLastIndexOf(ZRStringRef__* string, unsigned short unit, ZRLong* index) {
  return ZRAccessorStringDKInterfaceImpl::ZRStringLastIndexOf(string, unit, index);
}
