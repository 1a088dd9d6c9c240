#ifndef ZRSTRING_ZRSTRINGHANDLES_H
#define ZRSTRING_ZRSTRINGHANDLES_H

#include <ZRString/ZRTypes.h>

/// @file
/// The handle interface: opaque handles and plain functions, for C and whatever can call C.
///
/// 1. **Handles.** A handle is the address of the object it stands for: a ZRString, a
///    ZRStringMutator or a ZRStringPtrArray. A create function makes the object and gives it to the
///    caller, who ends it with the destroy function of its kind. Nothing detects a handle whose
///    object is gone.
/// 2. **Status.** Every function tests its parameters and returns 0, or the status of the first
///    invalid one: 3 + its position, counted from 1. The array functions return
///    #kZRStatusIndexOutside besides. After a status other than 0 nothing has happened and no
///    out-parameter has been written. A function whose comment names no member calls the
///    constructor or the member of its own name.
/// 3. **Units and ranges.** Starts, lengths, indices and positions count UTF-16 code units. A start
///    is never negative here. A length is -1, where the function says so, for "to the end", and
///    otherwise not negative. Ranges past the end of a string are cut there and are no error.
/// 4. **Pointers.** `chars`, `text` and `units` are read or written only during the call. What is
///    behind them must cover the range that is named; nothing can test that.
/// 5. **Sharing.** A copy shares its source's text until one of the two is edited. No edit shows in
///    another string.
/// 6. **Exceptions.** `std::bad_alloc` and every other exception from a member leaves the function
///    as a C++ exception; only the functions that create arrays turn it into a status. A caller
///    that cannot let one pass must have memory to spare. No out-parameter is written then.
///    ICU's own lack of memory is neither: the text then reads as empty.
/// 7. **Threads.** Calls that reach one object, an object that shares its text, or one array belong
///    to one thread at a time.
/// 8. **Calling convention.** #ZR_CALL: `__cdecl` on 32-bit Windows.

#ifdef __cplusplus
extern "C" {
#endif

typedef struct ZRStringRef__ ZRStringRef__;                  ///< A string, mutable or not.
typedef struct ZRMutableStringRef__ ZRMutableStringRef__;    ///< A mutable string.
typedef struct ZRStringPtrArrayRef__ ZRStringPtrArrayRef__;  ///< An array of strings.

/// Statuses. An invalid parameter has kZRStatusFirstParameter - 1 + its position, counted from 1.
enum {
  kZRStatusSuccess = 0,         ///< Done; all out-parameters are written.
  kZRStatusFirstParameter = 4,  ///< The first parameter is invalid; 5: the second, and so on.
  kZRStatusIndexOutside = 12    ///< Arrays only: an index outside the array, or no array was made.
};

/// @name Immutable strings
/// @{

/// A new string of `length` units of `chars` from its unit `start`; -1: up to the zero unit.
/// @return 0; 4 chars is null; 5 start is negative; 6 length is below -1; 7 out is null.
ZR_API ZRLong ZR_CALL ZRStringCreateFromUniChars(const unsigned short* chars, ZRLong start,
                                                 ZRLong length, ZRStringRef__** out);

/// A new string of `length` bytes of `text`, decoded from windows-1252, from its byte `start`;
/// -1: up to the zero byte.
/// @return 0; 4 text is null; 5 start is negative; 6 length is below -1; 7 out is null.
ZR_API ZRLong ZR_CALL ZRStringCreateFromLocalString(const unsigned char* text, ZRLong start,
                                                    ZRLong length, ZRStringRef__** out);

/// The same for `char`, but -1 is refused.
/// @return 0; 4 text is null; 5 start is negative; 6 length is negative; 7 out is null.
ZR_API ZRLong ZR_CALL ZRStringCreateFromCString(const char* text, ZRLong start, ZRLong length,
                                                ZRStringRef__** out);

/// A new string with the text of `source`, shared.
/// @return 0; 4 source is null; 5 out is null.
ZR_API ZRLong ZR_CALL ZRStringCreateCopy(ZRStringRef__* source, ZRStringRef__** out);

/// A new string with a range of `source`; `length` may be -1. Shares the text of `source` when the
/// range is the whole of it.
/// @return 0; 4 source is null; 5 start is negative; 6 length is below -1; 7 out is null.
ZR_API ZRLong ZR_CALL ZRStringCreateCopyRange(ZRStringRef__* source, ZRLong start, ZRLong length,
                                              ZRStringRef__** out);

/// Ends a string; a mutable one, seen through its immutable handle, is ended as one.
/// @return 0; 4 string is null.
ZR_API ZRLong ZR_CALL ZRStringDestroy(ZRStringRef__* string);

/// Compares two ranges in code unit order: `*result` becomes -1, 0 or 1.
///
/// Calls ZRString::Compare. Both lengths may be -1.
/// @return 0; 4 string is null; 5 start is negative; 6 length is below -1; 7 src is null;
///         8 srcStart is negative; 9 srcLength is below -1; 10 result is null.
ZR_API ZRLong ZR_CALL ZRStringCompare(ZRStringRef__* string, ZRLong start, ZRLong length,
                                      ZRStringRef__* src, ZRLong srcStart, ZRLong srcLength,
                                      ZRLong* result);

/// Compares two ranges in code point order: `*result` becomes -1, 0 or 1.
///
/// Calls ZRString::CompareCodePointOrder. Both lengths may be -1.
/// @return 0; 4 string is null; 5 start is negative; 6 length is below -1; 7 src is null;
///         8 srcStart is negative; 9 srcLength is below -1; 10 result is null.
ZR_API ZRLong ZR_CALL ZRStringCompareCodePointOrder(ZRStringRef__* string, ZRLong start,
                                                    ZRLong length, ZRStringRef__* src,
                                                    ZRLong srcStart, ZRLong srcLength,
                                                    ZRLong* result);

/// Compares two ranges without regard to case, or, with options 3, in linguistic order: `*result`
/// becomes -1, 0 or 1.
///
/// Calls ZRString::ICompare, where `options` are listed; every value is accepted. Both
/// lengths may be -1.
/// @return 0; 4 string is null; 5 start is negative; 6 length is below -1; 7 src is null;
///         8 srcStart is negative; 9 srcLength is below -1; 11 result is null.
ZR_API ZRLong ZR_CALL ZRStringICompare(ZRStringRef__* string, ZRLong start, ZRLong length,
                                       ZRStringRef__* src, ZRLong srcStart, ZRLong srcLength,
                                       ZRULong options, ZRLong* result);

/// Index of the first occurrence of the whole of `pattern` in a range of `string`.
///
/// Calls ZRString::Find. `length` may be -1. `*index` becomes -1 when nothing is found.
/// @return 0; 4 string is null; 5 start is negative; 6 length is below -1; 7 pattern is null;
///         8 index is null.
ZR_API ZRLong ZR_CALL ZRStringFind(ZRStringRef__* string, ZRLong start, ZRLong length,
                                   ZRStringRef__* pattern, ZRLong* index);

/// The same for the first `patternLength` units of `pattern`, which may be null: nothing is found.
/// @return 0; 4 string is null; 5 start is negative; 6 length is below -1; 8 patternLength is
///         negative; 9 index is null.
ZR_API ZRLong ZR_CALL ZRStringFindUniChars(ZRStringRef__* string, ZRLong start, ZRLong length,
                                           unsigned short* pattern, ZRLong patternLength,
                                           ZRLong* index);

/// Index of the last occurrence of the whole of `pattern` in a range of `string`.
///
/// Calls ZRString::RFind. `length` may be -1. `*index` becomes -1 when nothing is found.
/// @return 0; 4 string is null; 5 start is negative; 6 length is below -1; 7 pattern is null;
///         8 index is null.
ZR_API ZRLong ZR_CALL ZRStringRFind(ZRStringRef__* string, ZRLong start, ZRLong length,
                                    ZRStringRef__* pattern, ZRLong* index);

/// The same for the first `patternLength` units of `pattern`, which may be null: nothing is found.
/// @return 0; 4 string is null; 5 start is negative; 6 length is below -1; 8 patternLength is
///         negative; 9 index is null.
ZR_API ZRLong ZR_CALL ZRStringRFindUniChars(ZRStringRef__* string, ZRLong start, ZRLong length,
                                            unsigned short* pattern, ZRLong patternLength,
                                            ZRLong* index);

/// Copies at most `count` units from `index` on to `units` and puts a zero unit after them.
///
/// An index outside the string, which is no error, writes the one unit 0xFFFF instead. Room for
/// `count` + 1 units always suffices.
/// @return 0; 4 string is null; 6 count is below 1; 7 units is null.
ZR_API ZRLong ZR_CALL ZRStringGetUniCharsAt(ZRStringRef__* string, ZRLong index, ZRLong count,
                                            unsigned short* units);

/// Copies a range to `dst[dstStart]` onwards and puts a zero unit after it.
///
/// Calls ZRString::Extract. `length` may be -1. A start past the end writes nothing.
/// @return 0; 4 string is null; 5 start is negative; 6 length is below -1; 7 dst is null;
///         8 dstStart is negative.
ZR_API ZRLong ZR_CALL ZRStringExtractIntoUniChars(ZRStringRef__* string, ZRLong start,
                                                  ZRLong length, unsigned short* dst,
                                                  ZRLong dstStart);

/// The number of units.
/// @return 0; 4 string is null; 5 length is null.
ZR_API ZRLong ZR_CALL ZRStringGetLength(ZRStringRef__* string, ZRLong* length);

/// 1 for an empty string, else 0.
/// @return 0; 4 string is null; 5 isEmpty is null.
ZR_API ZRLong ZR_CALL ZRStringIsEmpty(ZRStringRef__* string, unsigned char* isEmpty);

/// The string's own units, to be read only, as many as ZRStringGetLength() says.
///
/// Calls ZRString::GetBuffer, which tells how long the pointer is valid and when it is null.
/// @return 0; 4 string is null; 5 buffer is null.
ZR_API ZRLong ZR_CALL ZRStringGetBuffer(ZRStringRef__* string, unsigned short** buffer);

/// Index of the last occurrence of `unit`, -1 when there is none.
/// @return 0; 4 string is null; 6 index is null.
ZR_API ZRLong ZR_CALL ZRStringLastIndexOf(ZRStringRef__* string, unsigned short unit,
                                          ZRLong* index);

/// @}
/// @name Mutable strings
/// The handle of a mutable string is the handle of a string too, and may be cast to one: edits show
/// through both, and either destroy function ends the one object.
/// @{

/// A new, empty mutable string.
/// @return 0; 4 out is null.
ZR_API ZRLong ZR_CALL ZRMutableStringCreateEmpty(ZRMutableStringRef__** out);

/// A new mutable string of `length` units of `chars` from its unit `start`; -1 is refused.
/// @return 0; 4 chars is null; 5 start is negative; 6 length is negative; 7 out is null.
ZR_API ZRLong ZR_CALL ZRMutableStringCreateFromUniChars(const unsigned short* chars, ZRLong start,
                                                        ZRLong length, ZRMutableStringRef__** out);

/// A new mutable string with the text of `source`, shared until the first edit.
/// @return 0; 4 source is null; 5 out is null.
ZR_API ZRLong ZR_CALL ZRMutableStringCreateCopy(ZRStringRef__* source, ZRMutableStringRef__** out);

/// A new mutable string with a range of `source`; `length` may be -1.
/// @return 0; 4 source is null; 5 start is negative; 6 length is below -1; 7 out is null.
ZR_API ZRLong ZR_CALL ZRMutableStringCreateCopyRange(ZRStringRef__* source, ZRLong start,
                                                     ZRLong length, ZRMutableStringRef__** out);

/// A new mutable string of `length` bytes of `text`, decoded from windows-1252, from its byte
/// `start`; -1 is refused.
/// @return 0; 4 text is null; 5 start is negative; 6 length is negative; 7 out is null.
ZR_API ZRLong ZR_CALL ZRMutableStringCreateFromLocalString(const unsigned char* text, ZRLong start,
                                                           ZRLong length,
                                                           ZRMutableStringRef__** out);

/// The same for `char`.
/// @return 0; 4 text is null; 5 start is negative; 6 length is negative; 7 out is null.
ZR_API ZRLong ZR_CALL ZRMutableStringCreateFromCString(const char* text, ZRLong start,
                                                       ZRLong length, ZRMutableStringRef__** out);

/// Ends a mutable string.
/// @return 0; 4 string is null.
ZR_API ZRLong ZR_CALL ZRMutableStringDestroy(ZRMutableStringRef__* string);

/// Replaces the unit at `index`; past the end the last one.
///
/// Calls ZRStringMutator::SetCharAt.
/// @return 0; 4 string is null; 5 index is negative.
ZR_API ZRLong ZR_CALL ZRMutableStringSetUniCharAt(ZRMutableStringRef__* string, ZRLong index,
                                                  unsigned short unit);

/// Makes a range of `src` the whole text; `srcLength` may be -1.
///
/// Calls ZRStringMutator::SetTo.
/// @return 0; 4 string is null; 5 src is null; 6 srcStart is negative; 7 srcLength is below -1.
ZR_API ZRLong ZR_CALL ZRMutableStringSetToZRString(ZRMutableStringRef__* string, ZRStringRef__* src,
                                                   ZRLong srcStart, ZRLong srcLength);

/// Appends the whole of `src`.
///
/// Calls ZRStringMutator::Append.
/// @return 0; 4 string is null; 5 src is null.
ZR_API ZRLong ZR_CALL ZRMutableStringAppend(ZRMutableStringRef__* string, ZRStringRef__* src);

/// Appends `srcLength` units of `chars` from its unit `srcStart`; -1 is refused.
///
/// Calls ZRStringMutator::Append.
/// @return 0; 4 string is null; 5 chars is null; 6 srcStart is negative; 7 srcLength is negative.
ZR_API ZRLong ZR_CALL ZRMutableStringAppendUniChars(ZRMutableStringRef__* string,
                                                    const unsigned short* chars, ZRLong srcStart,
                                                    ZRLong srcLength);

/// Inserts a range of `src` before the unit at `position`; `srcLength` may be -1.
///
/// Calls ZRStringMutator::Insert.
/// @return 0; 4 string is null; 5 position is negative; 6 src is null; 7 srcStart is negative;
///         8 srcLength is below -1.
ZR_API ZRLong ZR_CALL ZRMutableStringInsert(ZRMutableStringRef__* string, ZRLong position,
                                            ZRStringRef__* src, ZRLong srcStart, ZRLong srcLength);

/// Inserts `srcLength` units of `chars` from its unit `srcStart`; -1 is refused.
///
/// Calls ZRStringMutator::Insert.
/// @return 0; 4 string is null; 5 position is negative; 6 chars is null; 7 srcStart is negative;
///         8 srcLength is negative.
ZR_API ZRLong ZR_CALL ZRMutableStringInsertUniChars(ZRMutableStringRef__* string, ZRLong position,
                                                    const unsigned short* chars, ZRLong srcStart,
                                                    ZRLong srcLength);

/// Replaces `length` units from `start` by the whole of `replacement`. The third parameter is a
/// length, not an end, and may be -1.
///
/// Calls ZRStringMutator::Replace.
/// @return 0; 4 string is null; 5 start is negative; 6 length is below -1; 7 replacement is null.
ZR_API ZRLong ZR_CALL ZRMutableStringReplaceBetween(ZRMutableStringRef__* string, ZRLong start,
                                                    ZRLong length, ZRStringRef__* replacement);

/// Replaces `length` units from `start` (-1: to the end) by `srcLength` units of `chars` from its
/// unit `srcStart`; a `srcLength` of -1 is refused.
///
/// Calls ZRStringMutator::Replace.
/// @return 0; 4 string is null; 5 start is negative; 6 length is below -1; 7 chars is null;
///         8 srcStart is negative; 9 srcLength is negative.
ZR_API ZRLong ZR_CALL ZRMutableStringReplaceWithUniChars(ZRMutableStringRef__* string, ZRLong start,
                                                         ZRLong length, const unsigned short* chars,
                                                         ZRLong srcStart, ZRLong srcLength);

/// Replaces every occurrence of the whole of `find` in a range by the whole of `replacement`;
/// `length` may be -1.
///
/// Calls ZRStringMutator::FindAndReplace.
/// @return 0; 4 string is null; 5 start is negative; 6 length is below -1; 7 find is null;
///         8 replacement is null.
ZR_API ZRLong ZR_CALL ZRMutableStringFindAndReplace(ZRMutableStringRef__* string, ZRLong start,
                                                    ZRLong length, ZRStringRef__* find,
                                                    ZRStringRef__* replacement);

/// Removes the units `start` through `end`, inclusive; -1: through the end.
///
/// Calls ZRStringMutator::RemoveBetween.
/// @return 0; 4 string is null; 5 start is negative; 6 end is below -1.
ZR_API ZRLong ZR_CALL ZRMutableStringRemoveBetween(ZRMutableStringRef__* string, ZRLong start,
                                                   ZRLong end);

/// Fills up to `targetLength` units with `padUnit` at the front. `*padded` becomes 1 when the
/// string was shorter, else 0.
///
/// Calls ZRStringMutator::PadLeading.
/// @return 0; 4 string is null; 5 targetLength is negative; 7 padded is null.
ZR_API ZRLong ZR_CALL ZRMutableStringPadLeading(ZRMutableStringRef__* string, ZRLong targetLength,
                                                unsigned short padUnit, unsigned char* padded);

/// The same at the end.
///
/// Calls ZRStringMutator::PadTrailing.
/// @return 0; 4 string is null; 5 targetLength is negative; 7 padded is null.
ZR_API ZRLong ZR_CALL ZRMutableStringPadTrailing(ZRMutableStringRef__* string, ZRLong targetLength,
                                                 unsigned short padUnit, unsigned char* padded);

/// Cuts the text to `targetLength` units. `*truncated` becomes 1 when the string was longer, else
/// 0.
///
/// Calls ZRStringMutator::Truncate.
/// @return 0; 4 string is null; 5 targetLength is negative; 6 truncated is null.
ZR_API ZRLong ZR_CALL ZRMutableStringTruncate(ZRMutableStringRef__* string, ZRLong targetLength,
                                              unsigned char* truncated);

/// Removes leading and trailing white space.
///
/// Calls ZRStringMutator::Trim.
/// @return 0; 4 string is null.
ZR_API ZRLong ZR_CALL ZRMutableStringTrim(ZRMutableStringRef__* string);

/// Maps to upper case by the default locale; the length may change.
///
/// Calls ZRStringMutator::ToUpper.
/// @return 0; 4 string is null.
ZR_API ZRLong ZR_CALL ZRMutableStringToUpper(ZRMutableStringRef__* string);

/// Maps to lower case by the default locale; the length may change.
///
/// Calls ZRStringMutator::ToLower.
/// @return 0; 4 string is null.
ZR_API ZRLong ZR_CALL ZRMutableStringToLower(ZRMutableStringRef__* string);

/// Opens the string's own storage for writing, with room for at least `minCapacity` units (-1: its
/// current capacity). `*buffer` becomes null when it cannot be had.
///
/// Calls ZRStringMutator::GetBuffer. Use the string for nothing else before
/// ZRMutableStringReleaseBuffer(), which ends the buffer.
/// @return 0; 4 string is null; 5 minCapacity is below -1; 6 buffer is null.
ZR_API ZRLong ZR_CALL ZRMutableStringGetBufferWithCapacity(ZRMutableStringRef__* string,
                                                           ZRLong minCapacity,
                                                           unsigned short** buffer);

/// The number of units that the text's storage has room for.
///
/// Calls ZRStringMutator::GetCapacity.
/// @return 0; 4 string is null; 5 capacity is null.
ZR_API ZRLong ZR_CALL ZRMutableStringGetCapacity(ZRMutableStringRef__* string, ZRLong* capacity);

/// Closes the buffer and makes `newLength` the length; -1: up to the first zero unit in it.
///
/// Calls ZRStringMutator::ReleaseBuffer.
/// @return 0; 4 string is null; 5 newLength is below -1.
ZR_API ZRLong ZR_CALL ZRMutableStringReleaseBuffer(ZRMutableStringRef__* string, ZRLong newLength);

/// Reverses a range; `length` may be -1. Surrogate pairs stay in order.
///
/// Calls ZRStringMutator::Reverse.
/// @return 0; 4 string is null; 5 start is negative; 6 length is below -1.
ZR_API ZRLong ZR_CALL ZRMutableStringReverse(ZRMutableStringRef__* string, ZRLong start,
                                             ZRLong length);

/// A new mutable string: `first` followed by `second`, which may be the same string. When there is
/// no memory for the sum, `std::bad_alloc` leaves the function and no handle is written.
/// @return 0; 4 first is null; 5 second is null; 6 out is null.
ZR_API ZRLong ZR_CALL ZRMutableStringAddStrings(ZRStringRef__* first, ZRStringRef__* second,
                                                ZRMutableStringRef__** out);

/// Index of the last occurrence of `unit`, -1 when there is none.
/// @return 0; 4 string is null; 6 index is null.
ZR_API ZRLong ZR_CALL ZRMutableStringLastIndexOf(ZRMutableStringRef__* string, unsigned short unit,
                                                 ZRLong* index);

/// @}
/// @name Arrays of strings
/// An array holds handles and owns none of the strings; only ZRStringPtrArrayDeleteAll() destroys
/// them. An index is tested after all pointers, and its status is #kZRStatusIndexOutside.
/// @{

/// A new, empty array.
/// @return 0; 4 out is null; 12 no memory.
ZR_API ZRLong ZR_CALL ZRStringPtrArrayCreate(ZRStringPtrArrayRef__** out);

/// A new array with the handles of `source`, in the same order.
/// @return 0; 4 source is null; 5 out is null; 12 no memory.
ZR_API ZRLong ZR_CALL ZRStrPtrArrCreateFromZRStrPtrArr(ZRStringPtrArrayRef__* source,
                                                       ZRStringPtrArrayRef__** out);

/// Ends an array, destroying no string.
/// @return 0; 4 array is null.
ZR_API ZRLong ZR_CALL ZRStringPtrArrayDestroy(ZRStringPtrArrayRef__* array);

/// The number of entries.
/// @return 0; 4 array is null; 5 size is null.
ZR_API ZRLong ZR_CALL ZRStringPtrArraySize(ZRStringPtrArrayRef__* array, ZRULong* size);

/// 1 for an array without entries, else 0.
/// @return 0; 4 array is null; 5 isEmpty is null.
ZR_API ZRLong ZR_CALL ZRStringPtrArrayIsEmpty(ZRStringPtrArrayRef__* array, unsigned char* isEmpty);

/// The entry at `index`; for an index outside the array the last entry.
///
/// The handle is null for a null entry, which only the class interface can put there.
/// @return 0; 4 array is null; 6 string is null; 12 the array is empty.
ZR_API ZRLong ZR_CALL GetZRStringRefAt(ZRStringPtrArrayRef__* array, ZRLong index,
                                       ZRStringRef__** string);

/// Puts `string` in the place of the entry at `index`, which is dropped, not destroyed.
/// @return 0; 4 array is null; 6 string is null; 12 index is outside the array.
ZR_API ZRLong ZR_CALL SetZRStringRefAt(ZRStringPtrArrayRef__* array, ZRLong index,
                                       ZRStringRef__* string);

/// Inserts `string` before the entry at `index`; ZRStringPtrArrayPushBack() appends.
/// @return 0; 4 array is null; 5 string is null (not 6); 12 index is outside the array.
ZR_API ZRLong ZR_CALL InsertZRStringRefAt(ZRStringPtrArrayRef__* array, ZRLong index,
                                          ZRStringRef__* string);

/// Appends `string`.
/// @return 0; 4 array is null; 5 string is null.
ZR_API ZRLong ZR_CALL ZRStringPtrArrayPushBack(ZRStringPtrArrayRef__* array, ZRStringRef__* string);

/// Drops the entry at `index`, destroying no string.
/// @return 0; 4 array is null; 12 index is outside the array.
ZR_API ZRLong ZR_CALL ZRStringPtrArrayErase(ZRStringPtrArrayRef__* array, ZRLong index);

/// Drops all entries, destroying no string.
/// @return 0; 4 array is null.
ZR_API ZRLong ZR_CALL ZRStringPtrArrayEraseAll(ZRStringPtrArrayRef__* array);

/// Destroys every string in the array and drops all entries.
/// @return 0; 4 array is null.
ZR_API ZRLong ZR_CALL ZRStringPtrArrayDeleteAll(ZRStringPtrArrayRef__* array);

/// @}

#ifdef __cplusplus
}
#endif

#endif
