#ifndef ZRSTRING_ZRSTRINGINTERFACES_H
#define ZRSTRING_ZRSTRINGINTERFACES_H

#include <ZRString/ZRStringHandles.h>

/// @file
/// The functions of the handle interface as static members of three classes. ZRStringHandles.h
/// says what each does and returns. The classes have no data; DK and CDK are part of their
/// published names.

// Written by tools/write-derived.py: edit ZRStringHandles.h and run that.

/// Immutable strings. Every member has the name of its plain function.
class ZR_API ZRAccessorStringDKInterfaceImpl {
 public:
  /// Copies nothing.
  ZRAccessorStringDKInterfaceImpl& operator=(const ZRAccessorStringDKInterfaceImpl&);

  /// Calls ::ZRStringCreateFromUniChars().
  static ZRLong ZRStringCreateFromUniChars(const unsigned short* chars, ZRLong start, ZRLong length,
      ZRStringRef__** out);
  /// Calls ::ZRStringCreateFromLocalString().
  static ZRLong ZRStringCreateFromLocalString(const unsigned char* text, ZRLong start,
      ZRLong length, ZRStringRef__** out);
  /// Calls ::ZRStringCreateFromCString().
  static ZRLong ZRStringCreateFromCString(const char* text, ZRLong start, ZRLong length,
      ZRStringRef__** out);
  /// Calls ::ZRStringCreateCopy().
  static ZRLong ZRStringCreateCopy(ZRStringRef__* source, ZRStringRef__** out);
  /// Calls ::ZRStringCreateCopyRange().
  static ZRLong ZRStringCreateCopyRange(ZRStringRef__* source, ZRLong start, ZRLong length,
      ZRStringRef__** out);
  /// Calls ::ZRStringDestroy().
  static ZRLong ZRStringDestroy(ZRStringRef__* string);
  /// Calls ::ZRStringCompare().
  static ZRLong ZRStringCompare(ZRStringRef__* string, ZRLong start, ZRLong length,
      ZRStringRef__* src, ZRLong srcStart, ZRLong srcLength, ZRLong* result);
  /// Calls ::ZRStringCompareCodePointOrder().
  static ZRLong ZRStringCompareCodePointOrder(ZRStringRef__* string, ZRLong start, ZRLong length,
      ZRStringRef__* src, ZRLong srcStart, ZRLong srcLength, ZRLong* result);
  /// Calls ::ZRStringICompare().
  static ZRLong ZRStringICompare(ZRStringRef__* string, ZRLong start, ZRLong length,
      ZRStringRef__* src, ZRLong srcStart, ZRLong srcLength, ZRULong options, ZRLong* result);
  /// Calls ::ZRStringFind().
  static ZRLong ZRStringFind(ZRStringRef__* string, ZRLong start, ZRLong length,
      ZRStringRef__* pattern, ZRLong* index);
  /// Calls ::ZRStringFindUniChars().
  static ZRLong ZRStringFindUniChars(ZRStringRef__* string, ZRLong start, ZRLong length,
      unsigned short* pattern, ZRLong patternLength, ZRLong* index);
  /// Calls ::ZRStringRFind().
  static ZRLong ZRStringRFind(ZRStringRef__* string, ZRLong start, ZRLong length,
      ZRStringRef__* pattern, ZRLong* index);
  /// Calls ::ZRStringRFindUniChars().
  static ZRLong ZRStringRFindUniChars(ZRStringRef__* string, ZRLong start, ZRLong length,
      unsigned short* pattern, ZRLong patternLength, ZRLong* index);
  /// Calls ::ZRStringGetUniCharsAt().
  static ZRLong ZRStringGetUniCharsAt(ZRStringRef__* string, ZRLong index, ZRLong count,
      unsigned short* units);
  /// Calls ::ZRStringExtractIntoUniChars().
  static ZRLong ZRStringExtractIntoUniChars(ZRStringRef__* string, ZRLong start, ZRLong length,
      unsigned short* dst, ZRLong dstStart);
  /// Calls ::ZRStringGetLength().
  static ZRLong ZRStringGetLength(ZRStringRef__* string, ZRLong* length);
  /// Calls ::ZRStringIsEmpty().
  static ZRLong ZRStringIsEmpty(ZRStringRef__* string, unsigned char* isEmpty);
  /// Calls ::ZRStringGetBuffer().
  static ZRLong ZRStringGetBuffer(ZRStringRef__* string, unsigned short** buffer);
  /// Calls ::ZRStringLastIndexOf().
  static ZRLong ZRStringLastIndexOf(ZRStringRef__* string, unsigned short unit, ZRLong* index);
};

/// Mutable strings. Every member but ZRStringRefConst() has the name of its plain function.
class ZR_API ZRMutableStringDKInterfaceImpl {
 public:
  /// Copies nothing.
  ZRMutableStringDKInterfaceImpl& operator=(const ZRMutableStringDKInterfaceImpl&);

  /// Calls ::ZRMutableStringCreateEmpty().
  static ZRLong ZRMutableStringCreateEmpty(ZRMutableStringRef__** out);
  /// Calls ::ZRMutableStringCreateFromUniChars().
  static ZRLong ZRMutableStringCreateFromUniChars(const unsigned short* chars, ZRLong start,
      ZRLong length, ZRMutableStringRef__** out);
  /// Calls ::ZRMutableStringCreateCopy().
  static ZRLong ZRMutableStringCreateCopy(ZRStringRef__* source, ZRMutableStringRef__** out);
  /// Calls ::ZRMutableStringCreateCopyRange().
  static ZRLong ZRMutableStringCreateCopyRange(ZRStringRef__* source, ZRLong start, ZRLong length,
      ZRMutableStringRef__** out);
  /// Calls ::ZRMutableStringCreateFromLocalString().
  static ZRLong ZRMutableStringCreateFromLocalString(const unsigned char* text, ZRLong start,
      ZRLong length, ZRMutableStringRef__** out);
  /// Calls ::ZRMutableStringCreateFromCString().
  static ZRLong ZRMutableStringCreateFromCString(const char* text, ZRLong start, ZRLong length,
      ZRMutableStringRef__** out);
  /// Calls ::ZRMutableStringDestroy().
  static ZRLong ZRMutableStringDestroy(ZRMutableStringRef__* string);
  /// Calls ::ZRMutableStringSetUniCharAt().
  static ZRLong ZRMutableStringSetUniCharAt(ZRMutableStringRef__* string, ZRLong index,
      unsigned short unit);
  /// Calls ::ZRMutableStringSetToZRString().
  static ZRLong ZRMutableStringSetToZRString(ZRMutableStringRef__* string, ZRStringRef__* src,
      ZRLong srcStart, ZRLong srcLength);
  /// Calls ::ZRMutableStringAppend().
  static ZRLong ZRMutableStringAppend(ZRMutableStringRef__* string, ZRStringRef__* src);
  /// Calls ::ZRMutableStringAppendUniChars().
  static ZRLong ZRMutableStringAppendUniChars(ZRMutableStringRef__* string,
      const unsigned short* chars, ZRLong srcStart, ZRLong srcLength);
  /// Calls ::ZRMutableStringInsert().
  static ZRLong ZRMutableStringInsert(ZRMutableStringRef__* string, ZRLong position,
      ZRStringRef__* src, ZRLong srcStart, ZRLong srcLength);
  /// Calls ::ZRMutableStringInsertUniChars().
  static ZRLong ZRMutableStringInsertUniChars(ZRMutableStringRef__* string, ZRLong position,
      const unsigned short* chars, ZRLong srcStart, ZRLong srcLength);
  /// Calls ::ZRMutableStringReplaceBetween().
  static ZRLong ZRMutableStringReplaceBetween(ZRMutableStringRef__* string, ZRLong start,
      ZRLong length, ZRStringRef__* replacement);
  /// Calls ::ZRMutableStringReplaceWithUniChars().
  static ZRLong ZRMutableStringReplaceWithUniChars(ZRMutableStringRef__* string, ZRLong start,
      ZRLong length, const unsigned short* chars, ZRLong srcStart, ZRLong srcLength);
  /// Calls ::ZRMutableStringFindAndReplace().
  static ZRLong ZRMutableStringFindAndReplace(ZRMutableStringRef__* string, ZRLong start,
      ZRLong length, ZRStringRef__* find, ZRStringRef__* replacement);
  /// Calls ::ZRMutableStringRemoveBetween().
  static ZRLong ZRMutableStringRemoveBetween(ZRMutableStringRef__* string, ZRLong start,
      ZRLong end);
  /// Calls ::ZRMutableStringPadLeading().
  static ZRLong ZRMutableStringPadLeading(ZRMutableStringRef__* string, ZRLong targetLength,
      unsigned short padUnit, unsigned char* padded);
  /// Calls ::ZRMutableStringPadTrailing().
  static ZRLong ZRMutableStringPadTrailing(ZRMutableStringRef__* string, ZRLong targetLength,
      unsigned short padUnit, unsigned char* padded);
  /// Calls ::ZRMutableStringTruncate().
  static ZRLong ZRMutableStringTruncate(ZRMutableStringRef__* string, ZRLong targetLength,
      unsigned char* truncated);
  /// Calls ::ZRMutableStringTrim().
  static ZRLong ZRMutableStringTrim(ZRMutableStringRef__* string);
  /// Calls ::ZRMutableStringToUpper().
  static ZRLong ZRMutableStringToUpper(ZRMutableStringRef__* string);
  /// Calls ::ZRMutableStringToLower().
  static ZRLong ZRMutableStringToLower(ZRMutableStringRef__* string);
  /// Calls ::ZRMutableStringGetBufferWithCapacity().
  static ZRLong ZRMutableStringGetBufferWithCapacity(ZRMutableStringRef__* string,
      ZRLong minCapacity, unsigned short** buffer);
  /// Calls ::ZRMutableStringGetCapacity().
  static ZRLong ZRMutableStringGetCapacity(ZRMutableStringRef__* string, ZRLong* capacity);
  /// Calls ::ZRMutableStringReleaseBuffer().
  static ZRLong ZRMutableStringReleaseBuffer(ZRMutableStringRef__* string, ZRLong newLength);
  /// Calls ::ZRMutableStringReverse().
  static ZRLong ZRMutableStringReverse(ZRMutableStringRef__* string, ZRLong start, ZRLong length);
  /// Calls ::ZRMutableStringAddStrings().
  static ZRLong ZRMutableStringAddStrings(ZRStringRef__* first, ZRStringRef__* second,
      ZRMutableStringRef__** out);
  /// Calls ::ZRMutableStringLastIndexOf().
  static ZRLong ZRMutableStringLastIndexOf(ZRMutableStringRef__* string, unsigned short unit,
      ZRLong* index);

  /// The immutable handle of a mutable string, null for null. Returns no status, and has no plain
  /// function.
  static ZRStringRef__* ZRStringRefConst(ZRMutableStringRef__* string);
};

/// Arrays of strings. Every member has another name than its plain function.
class ZR_API ZRStringCDKInterfaceImpl {
 public:
  /// Copies nothing.
  ZRStringCDKInterfaceImpl& operator=(const ZRStringCDKInterfaceImpl&);

  /// Calls ::ZRStringPtrArrayCreate().
  static ZRLong ZRSPtrArrayCreate(ZRStringPtrArrayRef__** out);
  /// Calls ::ZRStrPtrArrCreateFromZRStrPtrArr().
  static ZRLong ZRSPtrArrayCreateFromZRSPtrArray(ZRStringPtrArrayRef__* source,
      ZRStringPtrArrayRef__** out);
  /// Calls ::ZRStringPtrArrayDestroy().
  static ZRLong ZRSPtrArrayDestroy(ZRStringPtrArrayRef__* array);
  /// Calls ::ZRStringPtrArraySize().
  static ZRLong ZRSPtrArraySize(ZRStringPtrArrayRef__* array, ZRULong* size);
  /// Calls ::ZRStringPtrArrayIsEmpty().
  static ZRLong ZRSPtrArrayIsEmpty(ZRStringPtrArrayRef__* array, unsigned char* isEmpty);
  /// Calls ::GetZRStringRefAt().
  static ZRLong ZRSPtrArrayGetZRStringRefAt(ZRStringPtrArrayRef__* array, ZRLong index,
      ZRStringRef__** string);
  /// Calls ::SetZRStringRefAt().
  static ZRLong ZRSPtrArraySetZRStringRefAt(ZRStringPtrArrayRef__* array, ZRLong index,
      ZRStringRef__* string);
  /// Calls ::InsertZRStringRefAt(). Returns 6, not 5, if `string` is null.
  static ZRLong ZRSPtrArrayInsertZRStringRefAt(ZRStringPtrArrayRef__* array, ZRLong index,
      ZRStringRef__* string);
  /// Calls ::ZRStringPtrArrayPushBack().
  static ZRLong ZRSPtrArrayPushBack(ZRStringPtrArrayRef__* array, ZRStringRef__* string);
  /// Calls ::ZRStringPtrArrayErase().
  static ZRLong ZRSPtrArrayErase(ZRStringPtrArrayRef__* array, ZRLong index);
  /// Calls ::ZRStringPtrArrayEraseAll().
  static ZRLong ZRSPtrArrayEraseAll(ZRStringPtrArrayRef__* array);
  /// Calls ::ZRStringPtrArrayDeleteAll().
  static ZRLong ZRSPtrArrayDeleteAll(ZRStringPtrArrayRef__* array);
};

#endif
