// Written by tools/write-derived.py: edit ZRStringHandles.h and run that.

#include <ZRString/ZRStringInterfaces.h>

#include "string/Handles.h"

ZRAccessorStringDKInterfaceImpl& ZRAccessorStringDKInterfaceImpl::operator=(
    const ZRAccessorStringDKInterfaceImpl&) = default;

ZRLong ZRAccessorStringDKInterfaceImpl::ZRStringCreateFromUniChars(const unsigned short* chars,
    ZRLong start, ZRLong length, ZRStringRef__** out) {
  return ::ZRStringCreateFromUniChars(chars, start, length, out);
}

ZRLong ZRAccessorStringDKInterfaceImpl::ZRStringCreateFromLocalString(const unsigned char* text,
    ZRLong start, ZRLong length, ZRStringRef__** out) {
  return ::ZRStringCreateFromLocalString(text, start, length, out);
}

ZRLong ZRAccessorStringDKInterfaceImpl::ZRStringCreateFromCString(const char* text, ZRLong start,
    ZRLong length, ZRStringRef__** out) {
  return ::ZRStringCreateFromCString(text, start, length, out);
}

ZRLong ZRAccessorStringDKInterfaceImpl::ZRStringCreateCopy(ZRStringRef__* source,
    ZRStringRef__** out) {
  return ::ZRStringCreateCopy(source, out);
}

ZRLong ZRAccessorStringDKInterfaceImpl::ZRStringCreateCopyRange(ZRStringRef__* source, ZRLong start,
    ZRLong length, ZRStringRef__** out) {
  return ::ZRStringCreateCopyRange(source, start, length, out);
}

ZRLong ZRAccessorStringDKInterfaceImpl::ZRStringDestroy(ZRStringRef__* string) {
  return ::ZRStringDestroy(string);
}

ZRLong ZRAccessorStringDKInterfaceImpl::ZRStringCompare(ZRStringRef__* string, ZRLong start,
    ZRLong length, ZRStringRef__* src, ZRLong srcStart, ZRLong srcLength, ZRLong* result) {
  return ::ZRStringCompare(string, start, length, src, srcStart, srcLength, result);
}

ZRLong ZRAccessorStringDKInterfaceImpl::ZRStringCompareCodePointOrder(ZRStringRef__* string,
    ZRLong start, ZRLong length, ZRStringRef__* src, ZRLong srcStart, ZRLong srcLength,
    ZRLong* result) {
  return ::ZRStringCompareCodePointOrder(string, start, length, src, srcStart, srcLength, result);
}

ZRLong ZRAccessorStringDKInterfaceImpl::ZRStringICompare(ZRStringRef__* string, ZRLong start,
    ZRLong length, ZRStringRef__* src, ZRLong srcStart, ZRLong srcLength, ZRULong options,
    ZRLong* result) {
  return ::ZRStringICompare(string, start, length, src, srcStart, srcLength, options, result);
}

ZRLong ZRAccessorStringDKInterfaceImpl::ZRStringFind(ZRStringRef__* string, ZRLong start,
    ZRLong length, ZRStringRef__* pattern, ZRLong* index) {
  return ::ZRStringFind(string, start, length, pattern, index);
}

ZRLong ZRAccessorStringDKInterfaceImpl::ZRStringFindUniChars(ZRStringRef__* string, ZRLong start,
    ZRLong length, unsigned short* pattern, ZRLong patternLength, ZRLong* index) {
  return ::ZRStringFindUniChars(string, start, length, pattern, patternLength, index);
}

ZRLong ZRAccessorStringDKInterfaceImpl::ZRStringRFind(ZRStringRef__* string, ZRLong start,
    ZRLong length, ZRStringRef__* pattern, ZRLong* index) {
  return ::ZRStringRFind(string, start, length, pattern, index);
}

ZRLong ZRAccessorStringDKInterfaceImpl::ZRStringRFindUniChars(ZRStringRef__* string, ZRLong start,
    ZRLong length, unsigned short* pattern, ZRLong patternLength, ZRLong* index) {
  return ::ZRStringRFindUniChars(string, start, length, pattern, patternLength, index);
}

ZRLong ZRAccessorStringDKInterfaceImpl::ZRStringGetUniCharsAt(ZRStringRef__* string, ZRLong index,
    ZRLong count, unsigned short* units) {
  return ::ZRStringGetUniCharsAt(string, index, count, units);
}

ZRLong ZRAccessorStringDKInterfaceImpl::ZRStringExtractIntoUniChars(ZRStringRef__* string,
    ZRLong start, ZRLong length, unsigned short* dst, ZRLong dstStart) {
  return ::ZRStringExtractIntoUniChars(string, start, length, dst, dstStart);
}

ZRLong ZRAccessorStringDKInterfaceImpl::ZRStringGetLength(ZRStringRef__* string, ZRLong* length) {
  return ::ZRStringGetLength(string, length);
}

ZRLong ZRAccessorStringDKInterfaceImpl::ZRStringIsEmpty(ZRStringRef__* string,
    unsigned char* isEmpty) {
  return ::ZRStringIsEmpty(string, isEmpty);
}

ZRLong ZRAccessorStringDKInterfaceImpl::ZRStringGetBuffer(ZRStringRef__* string,
    unsigned short** buffer) {
  return ::ZRStringGetBuffer(string, buffer);
}

ZRLong ZRAccessorStringDKInterfaceImpl::ZRStringLastIndexOf(ZRStringRef__* string,
    unsigned short unit, ZRLong* index) {
  return ::ZRStringLastIndexOf(string, unit, index);
}

ZRMutableStringDKInterfaceImpl& ZRMutableStringDKInterfaceImpl::operator=(
    const ZRMutableStringDKInterfaceImpl&) = default;

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringCreateEmpty(ZRMutableStringRef__** out) {
  return ::ZRMutableStringCreateEmpty(out);
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringCreateFromUniChars(
    const unsigned short* chars, ZRLong start, ZRLong length, ZRMutableStringRef__** out) {
  return ::ZRMutableStringCreateFromUniChars(chars, start, length, out);
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringCreateCopy(ZRStringRef__* source,
    ZRMutableStringRef__** out) {
  return ::ZRMutableStringCreateCopy(source, out);
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringCreateCopyRange(ZRStringRef__* source,
    ZRLong start, ZRLong length, ZRMutableStringRef__** out) {
  return ::ZRMutableStringCreateCopyRange(source, start, length, out);
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringCreateFromLocalString(
    const unsigned char* text, ZRLong start, ZRLong length, ZRMutableStringRef__** out) {
  return ::ZRMutableStringCreateFromLocalString(text, start, length, out);
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringCreateFromCString(const char* text,
    ZRLong start, ZRLong length, ZRMutableStringRef__** out) {
  return ::ZRMutableStringCreateFromCString(text, start, length, out);
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringDestroy(ZRMutableStringRef__* string) {
  return ::ZRMutableStringDestroy(string);
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringSetUniCharAt(ZRMutableStringRef__* string,
    ZRLong index, unsigned short unit) {
  return ::ZRMutableStringSetUniCharAt(string, index, unit);
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringSetToZRString(ZRMutableStringRef__* string,
    ZRStringRef__* src, ZRLong srcStart, ZRLong srcLength) {
  return ::ZRMutableStringSetToZRString(string, src, srcStart, srcLength);
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringAppend(ZRMutableStringRef__* string,
    ZRStringRef__* src) {
  return ::ZRMutableStringAppend(string, src);
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringAppendUniChars(ZRMutableStringRef__* string,
    const unsigned short* chars, ZRLong srcStart, ZRLong srcLength) {
  return ::ZRMutableStringAppendUniChars(string, chars, srcStart, srcLength);
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringInsert(ZRMutableStringRef__* string,
    ZRLong position, ZRStringRef__* src, ZRLong srcStart, ZRLong srcLength) {
  return ::ZRMutableStringInsert(string, position, src, srcStart, srcLength);
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringInsertUniChars(ZRMutableStringRef__* string,
    ZRLong position, const unsigned short* chars, ZRLong srcStart, ZRLong srcLength) {
  return ::ZRMutableStringInsertUniChars(string, position, chars, srcStart, srcLength);
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringReplaceBetween(ZRMutableStringRef__* string,
    ZRLong start, ZRLong length, ZRStringRef__* replacement) {
  return ::ZRMutableStringReplaceBetween(string, start, length, replacement);
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringReplaceWithUniChars(
    ZRMutableStringRef__* string, ZRLong start, ZRLong length, const unsigned short* chars,
    ZRLong srcStart, ZRLong srcLength) {
  return ::ZRMutableStringReplaceWithUniChars(string, start, length, chars, srcStart, srcLength);
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringFindAndReplace(ZRMutableStringRef__* string,
    ZRLong start, ZRLong length, ZRStringRef__* find, ZRStringRef__* replacement) {
  return ::ZRMutableStringFindAndReplace(string, start, length, find, replacement);
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringRemoveBetween(ZRMutableStringRef__* string,
    ZRLong start, ZRLong end) {
  return ::ZRMutableStringRemoveBetween(string, start, end);
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringPadLeading(ZRMutableStringRef__* string,
    ZRLong targetLength, unsigned short padUnit, unsigned char* padded) {
  return ::ZRMutableStringPadLeading(string, targetLength, padUnit, padded);
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringPadTrailing(ZRMutableStringRef__* string,
    ZRLong targetLength, unsigned short padUnit, unsigned char* padded) {
  return ::ZRMutableStringPadTrailing(string, targetLength, padUnit, padded);
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringTruncate(ZRMutableStringRef__* string,
    ZRLong targetLength, unsigned char* truncated) {
  return ::ZRMutableStringTruncate(string, targetLength, truncated);
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringTrim(ZRMutableStringRef__* string) {
  return ::ZRMutableStringTrim(string);
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringToUpper(ZRMutableStringRef__* string) {
  return ::ZRMutableStringToUpper(string);
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringToLower(ZRMutableStringRef__* string) {
  return ::ZRMutableStringToLower(string);
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringGetBufferWithCapacity(
    ZRMutableStringRef__* string, ZRLong minCapacity, unsigned short** buffer) {
  return ::ZRMutableStringGetBufferWithCapacity(string, minCapacity, buffer);
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringGetCapacity(ZRMutableStringRef__* string,
    ZRLong* capacity) {
  return ::ZRMutableStringGetCapacity(string, capacity);
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringReleaseBuffer(ZRMutableStringRef__* string,
    ZRLong newLength) {
  return ::ZRMutableStringReleaseBuffer(string, newLength);
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringReverse(ZRMutableStringRef__* string,
    ZRLong start, ZRLong length) {
  return ::ZRMutableStringReverse(string, start, length);
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringAddStrings(ZRStringRef__* first,
    ZRStringRef__* second, ZRMutableStringRef__** out) {
  return ::ZRMutableStringAddStrings(first, second, out);
}

ZRLong ZRMutableStringDKInterfaceImpl::ZRMutableStringLastIndexOf(ZRMutableStringRef__* string,
    unsigned short unit, ZRLong* index) {
  return ::ZRMutableStringLastIndexOf(string, unit, index);
}

ZRStringRef__* ZRMutableStringDKInterfaceImpl::ZRStringRefConst(ZRMutableStringRef__* string) {
  return string ? StringOf(string).GetZRStringRef() : nullptr;
}

ZRStringCDKInterfaceImpl& ZRStringCDKInterfaceImpl::operator=(
    const ZRStringCDKInterfaceImpl&) = default;

ZRLong ZRStringCDKInterfaceImpl::ZRSPtrArrayCreate(ZRStringPtrArrayRef__** out) {
  return ::ZRStringPtrArrayCreate(out);
}

ZRLong ZRStringCDKInterfaceImpl::ZRSPtrArrayCreateFromZRSPtrArray(ZRStringPtrArrayRef__* source,
    ZRStringPtrArrayRef__** out) {
  return ::ZRStrPtrArrCreateFromZRStrPtrArr(source, out);
}

ZRLong ZRStringCDKInterfaceImpl::ZRSPtrArrayDestroy(ZRStringPtrArrayRef__* array) {
  return ::ZRStringPtrArrayDestroy(array);
}

ZRLong ZRStringCDKInterfaceImpl::ZRSPtrArraySize(ZRStringPtrArrayRef__* array, ZRULong* size) {
  return ::ZRStringPtrArraySize(array, size);
}

ZRLong ZRStringCDKInterfaceImpl::ZRSPtrArrayIsEmpty(ZRStringPtrArrayRef__* array,
    unsigned char* isEmpty) {
  return ::ZRStringPtrArrayIsEmpty(array, isEmpty);
}

ZRLong ZRStringCDKInterfaceImpl::ZRSPtrArrayGetZRStringRefAt(ZRStringPtrArrayRef__* array,
    ZRLong index, ZRStringRef__** string) {
  return ::GetZRStringRefAt(array, index, string);
}

ZRLong ZRStringCDKInterfaceImpl::ZRSPtrArraySetZRStringRefAt(ZRStringPtrArrayRef__* array,
    ZRLong index, ZRStringRef__* string) {
  return ::SetZRStringRefAt(array, index, string);
}

ZRLong ZRStringCDKInterfaceImpl::ZRSPtrArrayInsertZRStringRefAt(ZRStringPtrArrayRef__* array,
    ZRLong index, ZRStringRef__* string) {
  const ZRLong status = ::InsertZRStringRefAt(array, index, string);
  return status == 5 ? 6 : status;
}

ZRLong ZRStringCDKInterfaceImpl::ZRSPtrArrayPushBack(ZRStringPtrArrayRef__* array,
    ZRStringRef__* string) {
  return ::ZRStringPtrArrayPushBack(array, string);
}

ZRLong ZRStringCDKInterfaceImpl::ZRSPtrArrayErase(ZRStringPtrArrayRef__* array, ZRLong index) {
  return ::ZRStringPtrArrayErase(array, index);
}

ZRLong ZRStringCDKInterfaceImpl::ZRSPtrArrayEraseAll(ZRStringPtrArrayRef__* array) {
  return ::ZRStringPtrArrayEraseAll(array);
}

ZRLong ZRStringCDKInterfaceImpl::ZRSPtrArrayDeleteAll(ZRStringPtrArrayRef__* array) {
  return ::ZRStringPtrArrayDeleteAll(array);
}
