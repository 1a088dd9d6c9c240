#ifndef ZRSTRING_ZRSTRINGINTERFACES_H
#define ZRSTRING_ZRSTRINGINTERFACES_H

#include <ZRString/ZRStringHandles.h>

/// @file
/// The functions of the handle interface as static members of three classes without data, of which
/// no objects are made. ZRStringHandles.h says what each does and returns.

/// Immutable strings. Every member is the plain function of the same name.
class ZR_API ZRAccessorStringDKInterfaceImpl {
 public:
  /// There is nothing to copy. @return this object
  ZRAccessorStringDKInterfaceImpl& operator=(const ZRAccessorStringDKInterfaceImpl&);

  static ZRLong ZRStringCreateFromUniChars(const unsigned short* chars, ZRLong start, ZRLong length,
                                           ZRStringRef__** out);
  static ZRLong ZRStringCreateFromLocalString(const unsigned char* text, ZRLong start,
                                              ZRLong length, ZRStringRef__** out);
  static ZRLong ZRStringCreateFromCString(const char* text, ZRLong start, ZRLong length,
                                          ZRStringRef__** out);
  static ZRLong ZRStringCreateCopy(ZRStringRef__* source, ZRStringRef__** out);
  static ZRLong ZRStringCreateCopyRange(ZRStringRef__* source, ZRLong start, ZRLong length,
                                        ZRStringRef__** out);
  static ZRLong ZRStringDestroy(ZRStringRef__* string);
  static ZRLong ZRStringCompare(ZRStringRef__* string, ZRLong start, ZRLong length,
                                ZRStringRef__* src, ZRLong srcStart, ZRLong srcLength,
                                ZRLong* result);
  static ZRLong ZRStringCompareCodePointOrder(ZRStringRef__* string, ZRLong start, ZRLong length,
                                              ZRStringRef__* src, ZRLong srcStart, ZRLong srcLength,
                                              ZRLong* result);
  static ZRLong ZRStringICompare(ZRStringRef__* string, ZRLong start, ZRLong length,
                                 ZRStringRef__* src, ZRLong srcStart, ZRLong srcLength,
                                 ZRULong options, ZRLong* result);
  static ZRLong ZRStringFind(ZRStringRef__* string, ZRLong start, ZRLong length,
                             ZRStringRef__* pattern, ZRLong* index);
  static ZRLong ZRStringFindUniChars(ZRStringRef__* string, ZRLong start, ZRLong length,
                                     unsigned short* pattern, ZRLong patternLength, ZRLong* index);
  static ZRLong ZRStringRFind(ZRStringRef__* string, ZRLong start, ZRLong length,
                              ZRStringRef__* pattern, ZRLong* index);
  static ZRLong ZRStringRFindUniChars(ZRStringRef__* string, ZRLong start, ZRLong length,
                                      unsigned short* pattern, ZRLong patternLength, ZRLong* index);
  static ZRLong ZRStringGetUniCharsAt(ZRStringRef__* string, ZRLong index, ZRLong count,
                                      unsigned short* units);
  static ZRLong ZRStringExtractIntoUniChars(ZRStringRef__* string, ZRLong start, ZRLong length,
                                            unsigned short* dst, ZRLong dstStart);
  static ZRLong ZRStringGetLength(ZRStringRef__* string, ZRLong* length);
  static ZRLong ZRStringIsEmpty(ZRStringRef__* string, unsigned char* isEmpty);
  static ZRLong ZRStringGetBuffer(ZRStringRef__* string, unsigned short** buffer);
  static ZRLong ZRStringLastIndexOf(ZRStringRef__* string, unsigned short unit, ZRLong* index);
};

/// Mutable strings. Every member but one is the plain function of the same name.
class ZR_API ZRMutableStringDKInterfaceImpl {
 public:
  /// There is nothing to copy. @return this object
  ZRMutableStringDKInterfaceImpl& operator=(const ZRMutableStringDKInterfaceImpl&);

  static ZRLong ZRMutableStringCreateEmpty(ZRMutableStringRef__** out);
  static ZRLong ZRMutableStringCreateFromUniChars(const unsigned short* chars, ZRLong start,
                                                  ZRLong length, ZRMutableStringRef__** out);
  static ZRLong ZRMutableStringCreateCopy(ZRStringRef__* source, ZRMutableStringRef__** out);
  static ZRLong ZRMutableStringCreateCopyRange(ZRStringRef__* source, ZRLong start, ZRLong length,
                                               ZRMutableStringRef__** out);
  static ZRLong ZRMutableStringCreateFromLocalString(const unsigned char* text, ZRLong start,
                                                     ZRLong length, ZRMutableStringRef__** out);
  static ZRLong ZRMutableStringCreateFromCString(const char* text, ZRLong start, ZRLong length,
                                                 ZRMutableStringRef__** out);
  static ZRLong ZRMutableStringDestroy(ZRMutableStringRef__* string);
  static ZRLong ZRMutableStringSetUniCharAt(ZRMutableStringRef__* string, ZRLong index,
                                            unsigned short unit);
  static ZRLong ZRMutableStringSetToZRString(ZRMutableStringRef__* string, ZRStringRef__* src,
                                             ZRLong srcStart, ZRLong srcLength);
  static ZRLong ZRMutableStringAppend(ZRMutableStringRef__* string, ZRStringRef__* src);
  static ZRLong ZRMutableStringAppendUniChars(ZRMutableStringRef__* string,
                                              const unsigned short* chars, ZRLong srcStart,
                                              ZRLong srcLength);
  static ZRLong ZRMutableStringInsert(ZRMutableStringRef__* string, ZRLong position,
                                      ZRStringRef__* src, ZRLong srcStart, ZRLong srcLength);
  static ZRLong ZRMutableStringInsertUniChars(ZRMutableStringRef__* string, ZRLong position,
                                              const unsigned short* chars, ZRLong srcStart,
                                              ZRLong srcLength);
  static ZRLong ZRMutableStringReplaceBetween(ZRMutableStringRef__* string, ZRLong start,
                                              ZRLong length, ZRStringRef__* replacement);
  static ZRLong ZRMutableStringReplaceWithUniChars(ZRMutableStringRef__* string, ZRLong start,
                                                   ZRLong length, const unsigned short* chars,
                                                   ZRLong srcStart, ZRLong srcLength);
  static ZRLong ZRMutableStringFindAndReplace(ZRMutableStringRef__* string, ZRLong start,
                                              ZRLong length, ZRStringRef__* find,
                                              ZRStringRef__* replacement);
  static ZRLong ZRMutableStringRemoveBetween(ZRMutableStringRef__* string, ZRLong start,
                                             ZRLong end);
  static ZRLong ZRMutableStringPadLeading(ZRMutableStringRef__* string, ZRLong targetLength,
                                          unsigned short padUnit, unsigned char* padded);
  static ZRLong ZRMutableStringPadTrailing(ZRMutableStringRef__* string, ZRLong targetLength,
                                           unsigned short padUnit, unsigned char* padded);
  static ZRLong ZRMutableStringTruncate(ZRMutableStringRef__* string, ZRLong targetLength,
                                        unsigned char* truncated);
  static ZRLong ZRMutableStringTrim(ZRMutableStringRef__* string);
  static ZRLong ZRMutableStringToUpper(ZRMutableStringRef__* string);
  static ZRLong ZRMutableStringToLower(ZRMutableStringRef__* string);
  static ZRLong ZRMutableStringGetBufferWithCapacity(ZRMutableStringRef__* string,
                                                     ZRLong minCapacity, unsigned short** buffer);
  static ZRLong ZRMutableStringGetCapacity(ZRMutableStringRef__* string, ZRLong* capacity);
  static ZRLong ZRMutableStringReleaseBuffer(ZRMutableStringRef__* string, ZRLong newLength);
  static ZRLong ZRMutableStringReverse(ZRMutableStringRef__* string, ZRLong start, ZRLong length);
  static ZRLong ZRMutableStringAddStrings(ZRStringRef__* first, ZRStringRef__* second,
                                          ZRMutableStringRef__** out);
  static ZRLong ZRMutableStringLastIndexOf(ZRMutableStringRef__* string, unsigned short unit,
                                           ZRLong* index);

  /// The handle of the same object as a string, null for a null handle. No status is returned, and
  /// there is no plain function of the name.
  static ZRStringRef__* ZRStringRefConst(ZRMutableStringRef__* string);
};

/// Arrays of strings. Every member is a plain function under a name of its own, given beside it.
class ZR_API ZRStringCDKInterfaceImpl {
 public:
  /// There is nothing to copy. @return this object
  ZRStringCDKInterfaceImpl& operator=(const ZRStringCDKInterfaceImpl&);

  /// ZRStringPtrArrayCreate()
  static ZRLong ZRSPtrArrayCreate(ZRStringPtrArrayRef__** out);
  /// ZRStrPtrArrCreateFromZRStrPtrArr()
  static ZRLong ZRSPtrArrayCreateFromZRSPtrArray(ZRStringPtrArrayRef__* source,
                                                 ZRStringPtrArrayRef__** out);
  /// ZRStringPtrArrayDestroy()
  static ZRLong ZRSPtrArrayDestroy(ZRStringPtrArrayRef__* array);
  /// ZRStringPtrArraySize()
  static ZRLong ZRSPtrArraySize(ZRStringPtrArrayRef__* array, ZRULong* size);
  /// ZRStringPtrArrayIsEmpty()
  static ZRLong ZRSPtrArrayIsEmpty(ZRStringPtrArrayRef__* array, unsigned char* isEmpty);
  /// GetZRStringRefAt()
  static ZRLong ZRSPtrArrayGetZRStringRefAt(ZRStringPtrArrayRef__* array, ZRLong index,
                                            ZRStringRef__** string);
  /// SetZRStringRefAt()
  static ZRLong ZRSPtrArraySetZRStringRefAt(ZRStringPtrArrayRef__* array, ZRLong index,
                                            ZRStringRef__* string);
  /// InsertZRStringRefAt(), but a null `string` gives 6.
  static ZRLong ZRSPtrArrayInsertZRStringRefAt(ZRStringPtrArrayRef__* array, ZRLong index,
                                               ZRStringRef__* string);
  /// ZRStringPtrArrayPushBack()
  static ZRLong ZRSPtrArrayPushBack(ZRStringPtrArrayRef__* array, ZRStringRef__* string);
  /// ZRStringPtrArrayErase()
  static ZRLong ZRSPtrArrayErase(ZRStringPtrArrayRef__* array, ZRLong index);
  /// ZRStringPtrArrayEraseAll()
  static ZRLong ZRSPtrArrayEraseAll(ZRStringPtrArrayRef__* array);
  /// ZRStringPtrArrayDeleteAll()
  static ZRLong ZRSPtrArrayDeleteAll(ZRStringPtrArrayRef__* array);
};

#endif
