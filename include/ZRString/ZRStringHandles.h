#ifndef ZRSTRING_ZRSTRINGHANDLES_H
#define ZRSTRING_ZRSTRINGHANDLES_H

#include <ZRString/ZRTypes.h>

/// @file
/// The handle interface: opaque handles and plain functions, for C and languages that can call C.
///
/// 1. **Handles.** A handle is the address of the object it stands for: a ZRString, a
///    ZRStringMutator or a ZRStringPtrArray. A create function allocates the object. The caller
///    owns it and must pass the handle to the matching destroy function; using a handle after that
///    is undefined behaviour.
/// 2. **Status.** A function tests its parameters in order, calls the member that its comment names
///    (a create function: a constructor) and returns 0. If a parameter is invalid, it returns 3 +
///    the position of the first invalid one, counted from 1, and does nothing else: no
///    out-parameter is written. Functions on arrays may also return #kZRStatusIndexOutside; they
///    test an index last.
/// 3. **Units and ranges.** Starts, lengths, indices and positions in a string count UTF-16 code
///    units. A negative start is invalid. A length of -1 (#kZRToEnd) is valid only where the
///    comment says so, and means to the end unless the comment says otherwise; any other negative
///    length is invalid. Ranges that reach past the end of a string are clamped to it.
/// 4. **Results.** A comparison's `*result` becomes -1, 0 or 1: the range of `string` sorts before,
///    equal to or after that of `src`. A search's `*index` counts from the start of `string`, and
///    becomes -1 (#kZRNotFound) if nothing is found.
/// 5. **Pointers.** Units and bytes are read or written only during the call. The memory must cover
///    the range that the arguments name; that is not checked.
/// 6. **Sharing.** A copy shares its source's text until either is edited. An edit does not show in
///    other strings.
/// 7. **Exceptions.** Exceptions, `std::bad_alloc` included, propagate to the caller, and no
///    out-parameter is written; only the functions that create arrays return a status instead. A
///    create function, and the copy of a shared text before an edit, also throw if ICU runs out of
///    memory. An edit that ICU cannot complete otherwise loses the text, whose length is then 0
///    (see ICU's error state in ZRStringMutator).
/// 8. **Threads.** There is no locking: an array, or strings that share text, may be used by only
///    one thread at a time, except for reading; copying and destroying are not reading.
/// 9. **Calling convention.** #ZR_CALL: `__cdecl` on Windows.

#ifdef __cplusplus
extern "C" {
#endif

typedef struct ZRStringRef__ ZRStringRef__;                  ///< A string, mutable or not.
typedef struct ZRMutableStringRef__ ZRMutableStringRef__;    ///< A mutable string.
typedef struct ZRStringPtrArrayRef__ ZRStringPtrArrayRef__;  ///< An array of strings.

/// Statuses. An invalid parameter has kZRStatusFirstParameter - 1 + its position, counted from 1.
enum {
  kZRStatusSuccess = 0,         ///< The call was made.
  kZRStatusFirstParameter = 4,  ///< The first parameter is invalid; 5: the second. Since 1.1.
  kZRStatusIndexOutside = 12    ///< Arrays only: index outside the array, or array not created.
};

/// @name Immutable strings
/// @code{.c}
/// ZRStringRef__ *text, *part;
/// ZRLong index, length;
/// ZRLong status = ZRStringCreateFromCString("un, deux", 0, 8, &text);
/// if (status == 0)
///   status = ZRStringCreateCopyRange(text, 4, kZRToEnd, &part);
/// if (status == 0)
///   status = ZRStringFind(text, 0, kZRToEnd, part, &index);
/// if (status == 0)
///   status = ZRStringGetLength(part, &length);
/// assert(status == 0 && index == 4 && length == 4);
/// assert(ZRStringFind(text, -1, kZRToEnd, part, &index) == 5);  // the second parameter
/// ZRStringDestroy(part);
/// ZRStringDestroy(text);
/// @endcode
/// @{

/// Creates a string from `length` units, starting at `chars[start]`; -1: up to the zero unit.
/// @return 0; 4 chars is null; 5 start is negative; 6 length is below -1; 7 out is null.
ZR_API ZRLong ZR_CALL ZRStringCreateFromUniChars(const unsigned short* chars, ZRLong start,
                                                 ZRLong length, ZRStringRef__** out);

/// Creates a string from `length` bytes, starting at `text[start]`, decoded from windows-1252; -1:
/// up to the zero byte.
/// @return 0; 4 text is null; 5 start is negative; 6 length is below -1; 7 out is null.
ZR_API ZRLong ZR_CALL ZRStringCreateFromLocalString(const unsigned char* text, ZRLong start,
                                                    ZRLong length, ZRStringRef__** out);

/// As ZRStringCreateFromLocalString(), for `char`, but a length of -1 is refused.
/// @return 0; 4 text is null; 5 start is negative; 6 length is negative; 7 out is null.
ZR_API ZRLong ZR_CALL ZRStringCreateFromCString(const char* text, ZRLong start, ZRLong length,
                                                ZRStringRef__** out);

/// Creates a string that shares the text of `source`.
/// @return 0; 4 source is null; 5 out is null.
ZR_API ZRLong ZR_CALL ZRStringCreateCopy(ZRStringRef__* source, ZRStringRef__** out);

/// Creates a string from a range of `source`; `length` may be -1. With a start of 0 and a length of
/// -1 or exactly that of `source`, the text is shared.
/// @return 0; 4 source is null; 5 start is negative; 6 length is below -1; 7 out is null.
ZR_API ZRLong ZR_CALL ZRStringCreateCopyRange(ZRStringRef__* source, ZRLong start, ZRLong length,
                                              ZRStringRef__** out);

/// Destroys a string; `string` may also be a mutable string's handle.
/// @return 0; 4 string is null.
ZR_API ZRLong ZR_CALL ZRStringDestroy(ZRStringRef__* string);

/// Compares two ranges in UTF-16 code unit order.
///
/// Calls ZRString::Compare. Both lengths may be -1.
/// @return 0; 4 string is null; 5 start is negative; 6 length is below -1; 7 src is null;
///         8 srcStart is negative; 9 srcLength is below -1; 10 result is null.
ZR_API ZRLong ZR_CALL ZRStringCompare(ZRStringRef__* string, ZRLong start, ZRLong length,
                                      ZRStringRef__* src, ZRLong srcStart, ZRLong srcLength,
                                      ZRLong* result);

/// Compares two ranges in code point order.
///
/// Calls ZRString::CompareCodePointOrder. Both lengths may be -1.
/// @return 0; 4 string is null; 5 start is negative; 6 length is below -1; 7 src is null;
///         8 srcStart is negative; 9 srcLength is below -1; 10 result is null.
ZR_API ZRLong ZR_CALL ZRStringCompareCodePointOrder(ZRStringRef__* string, ZRLong start,
                                                    ZRLong length, ZRStringRef__* src,
                                                    ZRLong srcStart, ZRLong srcLength,
                                                    ZRLong* result);

/// Compares two ranges without regard to case or, with #kZRCompareCollated, in linguistic order.
///
/// Calls ZRString::ICompare, which lists the `options`; none is refused. Both lengths may be -1.
/// @return 0; 4 string is null; 5 start is negative; 6 length is below -1; 7 src is null;
///         8 srcStart is negative; 9 srcLength is below -1; 11 result is null.
ZR_API ZRLong ZR_CALL ZRStringICompare(ZRStringRef__* string, ZRLong start, ZRLong length,
                                       ZRStringRef__* src, ZRLong srcStart, ZRLong srcLength,
                                       ZRULong options, ZRLong* result);

/// Finds the first occurrence of the whole of `pattern` in a range of `string`.
///
/// Calls ZRString::Find. `length` may be -1.
/// @return 0; 4 string is null; 5 start is negative; 6 length is below -1; 7 pattern is null;
///         8 index is null.
ZR_API ZRLong ZR_CALL ZRStringFind(ZRStringRef__* string, ZRLong start, ZRLong length,
                                   ZRStringRef__* pattern, ZRLong* index);

/// Finds the first occurrence of `patternLength` units at `pattern` in a range of `string`.
///
/// Calls ZRString::Find. `length` may be -1; `patternLength` may not. A null `pattern` is not
/// found.
/// @return 0; 4 string is null; 5 start is negative; 6 length is below -1; 8 patternLength is
///         negative; 9 index is null.
ZR_API ZRLong ZR_CALL ZRStringFindUniChars(ZRStringRef__* string, ZRLong start, ZRLong length,
                                           unsigned short* pattern, ZRLong patternLength,
                                           ZRLong* index);

/// Finds the last occurrence of the whole of `pattern` in a range of `string`.
///
/// Calls ZRString::RFind. `length` may be -1.
/// @return 0; 4 string is null; 5 start is negative; 6 length is below -1; 7 pattern is null;
///         8 index is null.
ZR_API ZRLong ZR_CALL ZRStringRFind(ZRStringRef__* string, ZRLong start, ZRLong length,
                                    ZRStringRef__* pattern, ZRLong* index);

/// Finds the last occurrence of `patternLength` units at `pattern` in a range of `string`.
///
/// Calls ZRString::RFind. `length` may be -1; `patternLength` may not. A null `pattern` is not
/// found.
/// @return 0; 4 string is null; 5 start is negative; 6 length is below -1; 8 patternLength is
///         negative; 9 index is null.
ZR_API ZRLong ZR_CALL ZRStringRFindUniChars(ZRStringRef__* string, ZRLong start, ZRLong length,
                                            unsigned short* pattern, ZRLong patternLength,
                                            ZRLong* index);

/// Copies at most `count` units, starting at `index`, to `units`, and appends a zero unit.
///
/// Calls ZRString::Extract. Room for `count` + 1 units always suffices. An index outside the string
/// is not an error: it writes only #kZRNoUnit, to `units[0]`.
/// @return 0; 4 string is null; 6 count is below 1; 7 units is null.
ZR_API ZRLong ZR_CALL ZRStringGetUniCharsAt(ZRStringRef__* string, ZRLong index, ZRLong count,
                                            unsigned short* units);

/// Copies a range to memory that starts at `dst[dstStart]`, and appends a zero unit.
///
/// Calls ZRString::Extract. `length` may be -1. If `start` is past the end, nothing is written.
/// @return 0; 4 string is null; 5 start is negative; 6 length is below -1; 7 dst is null;
///         8 dstStart is negative.
ZR_API ZRLong ZR_CALL ZRStringExtractIntoUniChars(ZRStringRef__* string, ZRLong start,
                                                  ZRLong length, unsigned short* dst,
                                                  ZRLong dstStart);

/// Gets the number of units. Calls ZRString::GetLength.
/// @return 0; 4 string is null; 5 length is null.
ZR_API ZRLong ZR_CALL ZRStringGetLength(ZRStringRef__* string, ZRLong* length);

/// `*isEmpty` becomes 1 if the string is empty, 0 otherwise. Calls ZRString::IsEmpty.
/// @return 0; 4 string is null; 5 isEmpty is null.
ZR_API ZRLong ZR_CALL ZRStringIsEmpty(ZRStringRef__* string, unsigned char* isEmpty);

/// Gets the string's own units, as many as ZRStringGetLength() says. Do not write to them.
///
/// Calls ZRString::GetBuffer, which says how long the pointer is valid and when it is null.
/// @return 0; 4 string is null; 5 buffer is null.
ZR_API ZRLong ZR_CALL ZRStringGetBuffer(ZRStringRef__* string, unsigned short** buffer);

/// Finds the last occurrence of `unit`. Calls ZRString::LastIndexOf.
/// @return 0; 4 string is null; 6 index is null.
ZR_API ZRLong ZR_CALL ZRStringLastIndexOf(ZRStringRef__* string, unsigned short unit,
                                          ZRLong* index);

/// @}
/// @name Mutable strings
/// A mutable string's handle is also a string's handle, and may be cast to `ZRStringRef__*`: edits
/// show through both, and either destroy function destroys the one object.
/// @code{.c}
/// ZRMutableStringRef__* text;
/// unsigned short* units;
/// ZRLong status = ZRMutableStringCreateFromCString("deux", 0, 4, &text);
/// if (status == 0)
///   status = ZRMutableStringSetUniCharAt(text, 0, 'f');
/// if (status == 0)
///   status = ZRMutableStringAppendUniChars(text, (const unsigned short[]){'!'}, 0, 1);
/// if (status == 0)
///   status = ZRMutableStringToUpper(text);
/// if (status == 0)
///   status = ZRStringGetBuffer((ZRStringRef__*)text, &units);
/// assert(status == 0 && units[0] == 'F' && units[4] == '!');
/// ZRMutableStringDestroy(text);
/// @endcode
/// @{

/// Creates an empty mutable string.
/// @return 0; 4 out is null.
ZR_API ZRLong ZR_CALL ZRMutableStringCreateEmpty(ZRMutableStringRef__** out);

/// Creates a mutable string from `length` units, starting at `chars[start]`; -1 is refused.
/// @return 0; 4 chars is null; 5 start is negative; 6 length is negative; 7 out is null.
ZR_API ZRLong ZR_CALL ZRMutableStringCreateFromUniChars(const unsigned short* chars, ZRLong start,
                                                        ZRLong length, ZRMutableStringRef__** out);

/// Creates a mutable string that shares the text of `source` until either is edited.
/// @return 0; 4 source is null; 5 out is null.
ZR_API ZRLong ZR_CALL ZRMutableStringCreateCopy(ZRStringRef__* source, ZRMutableStringRef__** out);

/// Creates a mutable string from a range of `source`; `length` may be -1. With a start of 0 and a
/// length of -1 or exactly that of `source`, the text is shared.
/// @return 0; 4 source is null; 5 start is negative; 6 length is below -1; 7 out is null.
ZR_API ZRLong ZR_CALL ZRMutableStringCreateCopyRange(ZRStringRef__* source, ZRLong start,
                                                     ZRLong length, ZRMutableStringRef__** out);

/// Creates a mutable string from `length` bytes, starting at `text[start]`, decoded from
/// windows-1252; -1 is refused.
/// @return 0; 4 text is null; 5 start is negative; 6 length is negative; 7 out is null.
ZR_API ZRLong ZR_CALL ZRMutableStringCreateFromLocalString(const unsigned char* text, ZRLong start,
                                                           ZRLong length,
                                                           ZRMutableStringRef__** out);

/// As ZRMutableStringCreateFromLocalString(), for `char`.
/// @return 0; 4 text is null; 5 start is negative; 6 length is negative; 7 out is null.
ZR_API ZRLong ZR_CALL ZRMutableStringCreateFromCString(const char* text, ZRLong start,
                                                       ZRLong length, ZRMutableStringRef__** out);

/// Destroys a mutable string.
/// @return 0; 4 string is null.
ZR_API ZRLong ZR_CALL ZRMutableStringDestroy(ZRMutableStringRef__* string);

/// Replaces the unit at `index`; if `index` is past the end, the last unit.
///
/// Calls ZRStringMutator::SetCharAt.
/// @return 0; 4 string is null; 5 index is negative.
ZR_API ZRLong ZR_CALL ZRMutableStringSetUniCharAt(ZRMutableStringRef__* string, ZRLong index,
                                                  unsigned short unit);

/// Replaces the whole text by a range of `src`; `srcLength` may be -1.
///
/// Calls ZRStringMutator::SetTo.
/// @return 0; 4 string is null; 5 src is null; 6 srcStart is negative; 7 srcLength is below -1.
ZR_API ZRLong ZR_CALL ZRMutableStringSetToZRString(ZRMutableStringRef__* string, ZRStringRef__* src,
                                                   ZRLong srcStart, ZRLong srcLength);

/// Appends the whole of `src`. Calls ZRStringMutator::Append.
/// @return 0; 4 string is null; 5 src is null.
ZR_API ZRLong ZR_CALL ZRMutableStringAppend(ZRMutableStringRef__* string, ZRStringRef__* src);

/// Appends `srcLength` units, starting at `chars[srcStart]`; -1 is refused.
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

/// Inserts `srcLength` units, starting at `chars[srcStart]`, before the unit at `position`; -1 is
/// refused.
///
/// Calls ZRStringMutator::Insert.
/// @return 0; 4 string is null; 5 position is negative; 6 chars is null; 7 srcStart is negative;
///         8 srcLength is negative.
ZR_API ZRLong ZR_CALL ZRMutableStringInsertUniChars(ZRMutableStringRef__* string, ZRLong position,
                                                    const unsigned short* chars, ZRLong srcStart,
                                                    ZRLong srcLength);

/// Replaces `length` units, starting at `start`, by the whole of `replacement`. Despite the
/// function's name, the third parameter is a length, not an end; it may be -1.
///
/// Calls ZRStringMutator::Replace.
/// @return 0; 4 string is null; 5 start is negative; 6 length is below -1; 7 replacement is null.
ZR_API ZRLong ZR_CALL ZRMutableStringReplaceBetween(ZRMutableStringRef__* string, ZRLong start,
                                                    ZRLong length, ZRStringRef__* replacement);

/// Replaces `length` units, starting at `start`, by `srcLength` units, starting at
/// `chars[srcStart]`; `length` may be -1, `srcLength` may not.
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

/// Removes the units `start` through `end`, inclusive; an end of -1 means through the last unit.
///
/// Calls ZRStringMutator::RemoveBetween.
/// @return 0; 4 string is null; 5 start is negative; 6 end is below -1.
ZR_API ZRLong ZR_CALL ZRMutableStringRemoveBetween(ZRMutableStringRef__* string, ZRLong start,
                                                   ZRLong end);

/// Inserts `padUnit` at the front until the string has `targetLength` units. `*padded` becomes 1 if
/// units were inserted, 0 otherwise. If ICU cannot hold that many units, the text is lost.
///
/// Calls ZRStringMutator::PadLeading.
/// @return 0; 4 string is null; 5 targetLength is negative; 7 padded is null.
ZR_API ZRLong ZR_CALL ZRMutableStringPadLeading(ZRMutableStringRef__* string, ZRLong targetLength,
                                                unsigned short padUnit, unsigned char* padded);

/// Appends `padUnit` until the string has `targetLength` units. `*padded` becomes 1 or 0 as in
/// ZRMutableStringPadLeading().
///
/// Calls ZRStringMutator::PadTrailing.
/// @return 0; 4 string is null; 5 targetLength is negative; 7 padded is null.
ZR_API ZRLong ZR_CALL ZRMutableStringPadTrailing(ZRMutableStringRef__* string, ZRLong targetLength,
                                                 unsigned short padUnit, unsigned char* padded);

/// Cuts the text to `targetLength` units. `*truncated` becomes 1 if it was longer, 0 otherwise.
///
/// Calls ZRStringMutator::Truncate.
/// @return 0; 4 string is null; 5 targetLength is negative; 6 truncated is null.
ZR_API ZRLong ZR_CALL ZRMutableStringTruncate(ZRMutableStringRef__* string, ZRLong targetLength,
                                              unsigned char* truncated);

/// Removes leading and trailing white space. Calls ZRStringMutator::Trim.
/// @return 0; 4 string is null.
ZR_API ZRLong ZR_CALL ZRMutableStringTrim(ZRMutableStringRef__* string);

/// Maps to upper case by the rules of the default locale; the length may change.
///
/// Calls ZRStringMutator::ToUpper.
/// @return 0; 4 string is null.
ZR_API ZRLong ZR_CALL ZRMutableStringToUpper(ZRMutableStringRef__* string);

/// Maps to lower case by the rules of the default locale; the length may change.
///
/// Calls ZRStringMutator::ToLower.
/// @return 0; 4 string is null.
ZR_API ZRLong ZR_CALL ZRMutableStringToLower(ZRMutableStringRef__* string);

/// Opens the string's own storage for writing, with room for at least `minCapacity` units (-1: what
/// there is). `*buffer` becomes null if the buffer cannot be opened.
///
/// Calls ZRStringMutator::GetBuffer. Before ZRMutableStringReleaseBuffer() closes the buffer, do
/// nothing with the string but ask for its capacity; do not even copy it: a copy would share what
/// is written.
/// @return 0; 4 string is null; 5 minCapacity is below -1; 6 buffer is null.
ZR_API ZRLong ZR_CALL ZRMutableStringGetBufferWithCapacity(ZRMutableStringRef__* string,
                                                           ZRLong minCapacity,
                                                           unsigned short** buffer);

/// Gets the number of units that the string's storage has room for.
///
/// Calls ZRStringMutator::GetCapacity.
/// @return 0; 4 string is null; 5 capacity is null.
ZR_API ZRLong ZR_CALL ZRMutableStringGetCapacity(ZRMutableStringRef__* string, ZRLong* capacity);

/// Closes the buffer and sets the string's length to `newLength`, at most the capacity; -1: up to
/// the first zero unit in the buffer, or the capacity. Without an open buffer, does nothing.
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

/// Creates a mutable string: `first` followed by `second`, which may be the same string.
///
/// Calls ZRStringMutator::operator+=.
/// @return 0; 4 first is null; 5 second is null; 6 out is null.
ZR_API ZRLong ZR_CALL ZRMutableStringAddStrings(ZRStringRef__* first, ZRStringRef__* second,
                                                ZRMutableStringRef__** out);

/// Finds the last occurrence of `unit`. Calls ZRString::LastIndexOf.
/// @return 0; 4 string is null; 6 index is null.
ZR_API ZRLong ZR_CALL ZRMutableStringLastIndexOf(ZRMutableStringRef__* string, unsigned short unit,
                                                 ZRLong* index);

/// @}
/// @name Arrays of strings
/// An array stores handles of strings that it does not own; only ZRStringPtrArrayDeleteAll()
/// destroys them. An index is tested after all pointers. One outside the array gives
/// #kZRStatusIndexOutside, except from GetZRStringRefAt().
/// @code{.c}
/// ZRStringPtrArrayRef__* words;
/// ZRStringRef__ *word, *entry;
/// ZRULong size;
/// ZRLong status = ZRStringPtrArrayCreate(&words);
/// if (status == 0)
///   status = ZRStringCreateFromCString("un", 0, 2, &word);
/// if (status == 0)
///   status = ZRStringPtrArrayPushBack(words, word);
/// if (status == 0)
///   status = GetZRStringRefAt(words, 0, &entry);
/// if (status == 0)
///   status = ZRStringPtrArraySize(words, &size);
/// assert(status == 0 && entry == word && size == 1);
/// assert(SetZRStringRefAt(words, 1, word) == kZRStatusIndexOutside);
/// ZRStringPtrArrayDeleteAll(words);  // destroys the string, too
/// ZRStringPtrArrayDestroy(words);
/// @endcode
/// @{

/// Creates an empty array.
/// @return 0; 4 out is null; 12 no memory.
ZR_API ZRLong ZR_CALL ZRStringPtrArrayCreate(ZRStringPtrArrayRef__** out);

/// Creates an array with the entries of `source`, in the same order.
/// @return 0; 4 source is null; 5 out is null; 12 no memory.
ZR_API ZRLong ZR_CALL ZRStrPtrArrCreateFromZRStrPtrArr(ZRStringPtrArrayRef__* source,
                                                       ZRStringPtrArrayRef__** out);

/// Destroys an array, but none of the strings in it.
/// @return 0; 4 array is null.
ZR_API ZRLong ZR_CALL ZRStringPtrArrayDestroy(ZRStringPtrArrayRef__* array);

/// Gets the number of entries. Calls ZRStringPtrArray::Size.
/// @return 0; 4 array is null; 5 size is null.
ZR_API ZRLong ZR_CALL ZRStringPtrArraySize(ZRStringPtrArrayRef__* array, ZRULong* size);

/// `*isEmpty` becomes 1 if the array has no entries, 0 otherwise. Calls ZRStringPtrArray::Empty.
/// @return 0; 4 array is null; 5 isEmpty is null.
ZR_API ZRLong ZR_CALL ZRStringPtrArrayIsEmpty(ZRStringPtrArrayRef__* array, unsigned char* isEmpty);

/// Gets the entry at `index` or, if `index` is outside the array, the last entry.
///
/// Calls ZRStringPtrArray::operator[].
/// @return 0; 4 array is null; 6 string is null; 12 the array is empty.
ZR_API ZRLong ZR_CALL GetZRStringRefAt(ZRStringPtrArrayRef__* array, ZRLong index,
                                       ZRStringRef__** string);

/// Replaces the entry at `index` by `string`; the string that it held is not destroyed.
///
/// Calls ZRStringPtrArray::SetString.
/// @return 0; 4 array is null; 6 string is null; 12 index is outside the array.
ZR_API ZRLong ZR_CALL SetZRStringRefAt(ZRStringPtrArrayRef__* array, ZRLong index,
                                       ZRStringRef__* string);

/// Inserts `string` before the entry at `index`; ZRStringPtrArrayPushBack() appends.
///
/// Calls ZRStringPtrArray::Insert.
/// @return 0; 4 array is null; 5 string is null (not 6); 12 index is outside the array.
ZR_API ZRLong ZR_CALL InsertZRStringRefAt(ZRStringPtrArrayRef__* array, ZRLong index,
                                          ZRStringRef__* string);

/// Appends `string`. Calls ZRStringPtrArray::PushBack.
/// @return 0; 4 array is null; 5 string is null.
ZR_API ZRLong ZR_CALL ZRStringPtrArrayPushBack(ZRStringPtrArrayRef__* array, ZRStringRef__* string);

/// Removes the entry at `index`; its string is not destroyed.
///
/// Calls ZRStringPtrArray::Erase.
/// @return 0; 4 array is null; 12 index is outside the array.
ZR_API ZRLong ZR_CALL ZRStringPtrArrayErase(ZRStringPtrArrayRef__* array, ZRLong index);

/// Removes all entries; their strings are not destroyed. Calls ZRStringPtrArray::EraseAll.
/// @return 0; 4 array is null.
ZR_API ZRLong ZR_CALL ZRStringPtrArrayEraseAll(ZRStringPtrArrayRef__* array);

/// Destroys all strings in the array and removes all entries. No string may be in it twice.
///
/// Calls ZRStringPtrArray::DeleteAll.
/// @return 0; 4 array is null.
ZR_API ZRLong ZR_CALL ZRStringPtrArrayDeleteAll(ZRStringPtrArrayRef__* array);

/// @}

#ifdef __cplusplus
}
#endif

#endif
