//! The functions and constants of ZRStringHandles.h and ZRTypes.h, which say what each means.

#![allow(dead_code, non_camel_case_types, non_snake_case, non_upper_case_globals)]

use std::os::raw::c_char;

pub type ZRLong = i32;
pub type ZRULong = u32;

/// A string, mutable or not.
#[repr(C)]
pub struct ZRStringRef__ {
    _opaque: [u8; 0],
}

/// A mutable string. A pointer to it may be cast to a pointer to `ZRStringRef__`.
#[repr(C)]
pub struct ZRMutableStringRef__ {
    _opaque: [u8; 0],
}

/// An array of strings.
#[repr(C)]
pub struct ZRStringPtrArrayRef__ {
    _opaque: [u8; 0],
}

// Written by tools/write-derived.py from here on: edit the C headers and run that.
pub const kZRToEnd: ZRLong = -1;
pub const kZRNotFound: ZRLong = -1;
pub const kZRNoUnit: u16 = 65535;
pub const kZRCompareIgnoreCase: ZRULong = 0;
pub const kZRCompareIgnoreCaseTurkic: ZRULong = 1;
pub const kZRCompareIgnoreCaseCodePointOrder: ZRULong = 2;
pub const kZRCompareCollated: ZRULong = 3;
pub const kZRStatusSuccess: ZRLong = 0;
pub const kZRStatusFirstParameter: ZRLong = 4;
pub const kZRStatusIndexOutside: ZRLong = 12;

#[rustfmt::skip]
#[link(name = "ZRString")]
extern "C" {
    pub fn ZRStringCreateFromUniChars(chars: *const u16, start: ZRLong, length: ZRLong,
        out: *mut *mut ZRStringRef__) -> ZRLong;
    pub fn ZRStringCreateFromLocalString(text: *const u8, start: ZRLong, length: ZRLong,
        out: *mut *mut ZRStringRef__) -> ZRLong;
    pub fn ZRStringCreateFromCString(text: *const c_char, start: ZRLong, length: ZRLong,
        out: *mut *mut ZRStringRef__) -> ZRLong;
    pub fn ZRStringCreateCopy(source: *mut ZRStringRef__, out: *mut *mut ZRStringRef__) -> ZRLong;
    pub fn ZRStringCreateCopyRange(source: *mut ZRStringRef__, start: ZRLong, length: ZRLong,
        out: *mut *mut ZRStringRef__) -> ZRLong;
    pub fn ZRStringDestroy(string: *mut ZRStringRef__) -> ZRLong;
    pub fn ZRStringCompare(string: *mut ZRStringRef__, start: ZRLong, length: ZRLong,
        src: *mut ZRStringRef__, srcStart: ZRLong, srcLength: ZRLong,
        result: *mut ZRLong) -> ZRLong;
    pub fn ZRStringCompareCodePointOrder(string: *mut ZRStringRef__, start: ZRLong, length: ZRLong,
        src: *mut ZRStringRef__, srcStart: ZRLong, srcLength: ZRLong,
        result: *mut ZRLong) -> ZRLong;
    pub fn ZRStringICompare(string: *mut ZRStringRef__, start: ZRLong, length: ZRLong,
        src: *mut ZRStringRef__, srcStart: ZRLong, srcLength: ZRLong, options: ZRULong,
        result: *mut ZRLong) -> ZRLong;
    pub fn ZRStringFind(string: *mut ZRStringRef__, start: ZRLong, length: ZRLong,
        pattern: *mut ZRStringRef__, index: *mut ZRLong) -> ZRLong;
    pub fn ZRStringFindUniChars(string: *mut ZRStringRef__, start: ZRLong, length: ZRLong,
        pattern: *mut u16, patternLength: ZRLong, index: *mut ZRLong) -> ZRLong;
    pub fn ZRStringRFind(string: *mut ZRStringRef__, start: ZRLong, length: ZRLong,
        pattern: *mut ZRStringRef__, index: *mut ZRLong) -> ZRLong;
    pub fn ZRStringRFindUniChars(string: *mut ZRStringRef__, start: ZRLong, length: ZRLong,
        pattern: *mut u16, patternLength: ZRLong, index: *mut ZRLong) -> ZRLong;
    pub fn ZRStringGetUniCharsAt(string: *mut ZRStringRef__, index: ZRLong, count: ZRLong,
        units: *mut u16) -> ZRLong;
    pub fn ZRStringExtractIntoUniChars(string: *mut ZRStringRef__, start: ZRLong, length: ZRLong,
        dst: *mut u16, dstStart: ZRLong) -> ZRLong;
    pub fn ZRStringGetLength(string: *mut ZRStringRef__, length: *mut ZRLong) -> ZRLong;
    pub fn ZRStringIsEmpty(string: *mut ZRStringRef__, isEmpty: *mut u8) -> ZRLong;
    pub fn ZRStringGetBuffer(string: *mut ZRStringRef__, buffer: *mut *mut u16) -> ZRLong;
    pub fn ZRStringLastIndexOf(string: *mut ZRStringRef__, unit: u16, index: *mut ZRLong) -> ZRLong;
    pub fn ZRMutableStringCreateEmpty(out: *mut *mut ZRMutableStringRef__) -> ZRLong;
    pub fn ZRMutableStringCreateFromUniChars(chars: *const u16, start: ZRLong, length: ZRLong,
        out: *mut *mut ZRMutableStringRef__) -> ZRLong;
    pub fn ZRMutableStringCreateCopy(source: *mut ZRStringRef__,
        out: *mut *mut ZRMutableStringRef__) -> ZRLong;
    pub fn ZRMutableStringCreateCopyRange(source: *mut ZRStringRef__, start: ZRLong, length: ZRLong,
        out: *mut *mut ZRMutableStringRef__) -> ZRLong;
    pub fn ZRMutableStringCreateFromLocalString(text: *const u8, start: ZRLong, length: ZRLong,
        out: *mut *mut ZRMutableStringRef__) -> ZRLong;
    pub fn ZRMutableStringCreateFromCString(text: *const c_char, start: ZRLong, length: ZRLong,
        out: *mut *mut ZRMutableStringRef__) -> ZRLong;
    pub fn ZRMutableStringDestroy(string: *mut ZRMutableStringRef__) -> ZRLong;
    pub fn ZRMutableStringSetUniCharAt(string: *mut ZRMutableStringRef__, index: ZRLong,
        unit: u16) -> ZRLong;
    pub fn ZRMutableStringSetToZRString(string: *mut ZRMutableStringRef__, src: *mut ZRStringRef__,
        srcStart: ZRLong, srcLength: ZRLong) -> ZRLong;
    pub fn ZRMutableStringAppend(string: *mut ZRMutableStringRef__,
        src: *mut ZRStringRef__) -> ZRLong;
    pub fn ZRMutableStringAppendUniChars(string: *mut ZRMutableStringRef__, chars: *const u16,
        srcStart: ZRLong, srcLength: ZRLong) -> ZRLong;
    pub fn ZRMutableStringInsert(string: *mut ZRMutableStringRef__, position: ZRLong,
        src: *mut ZRStringRef__, srcStart: ZRLong, srcLength: ZRLong) -> ZRLong;
    pub fn ZRMutableStringInsertUniChars(string: *mut ZRMutableStringRef__, position: ZRLong,
        chars: *const u16, srcStart: ZRLong, srcLength: ZRLong) -> ZRLong;
    pub fn ZRMutableStringReplaceBetween(string: *mut ZRMutableStringRef__, start: ZRLong,
        length: ZRLong, replacement: *mut ZRStringRef__) -> ZRLong;
    pub fn ZRMutableStringReplaceWithUniChars(string: *mut ZRMutableStringRef__, start: ZRLong,
        length: ZRLong, chars: *const u16, srcStart: ZRLong, srcLength: ZRLong) -> ZRLong;
    pub fn ZRMutableStringFindAndReplace(string: *mut ZRMutableStringRef__, start: ZRLong,
        length: ZRLong, find: *mut ZRStringRef__, replacement: *mut ZRStringRef__) -> ZRLong;
    pub fn ZRMutableStringRemoveBetween(string: *mut ZRMutableStringRef__, start: ZRLong,
        end: ZRLong) -> ZRLong;
    pub fn ZRMutableStringPadLeading(string: *mut ZRMutableStringRef__, targetLength: ZRLong,
        padUnit: u16, padded: *mut u8) -> ZRLong;
    pub fn ZRMutableStringPadTrailing(string: *mut ZRMutableStringRef__, targetLength: ZRLong,
        padUnit: u16, padded: *mut u8) -> ZRLong;
    pub fn ZRMutableStringTruncate(string: *mut ZRMutableStringRef__, targetLength: ZRLong,
        truncated: *mut u8) -> ZRLong;
    pub fn ZRMutableStringTrim(string: *mut ZRMutableStringRef__) -> ZRLong;
    pub fn ZRMutableStringToUpper(string: *mut ZRMutableStringRef__) -> ZRLong;
    pub fn ZRMutableStringToLower(string: *mut ZRMutableStringRef__) -> ZRLong;
    pub fn ZRMutableStringGetBufferWithCapacity(string: *mut ZRMutableStringRef__,
        minCapacity: ZRLong, buffer: *mut *mut u16) -> ZRLong;
    pub fn ZRMutableStringGetCapacity(string: *mut ZRMutableStringRef__,
        capacity: *mut ZRLong) -> ZRLong;
    pub fn ZRMutableStringReleaseBuffer(string: *mut ZRMutableStringRef__,
        newLength: ZRLong) -> ZRLong;
    pub fn ZRMutableStringReverse(string: *mut ZRMutableStringRef__, start: ZRLong,
        length: ZRLong) -> ZRLong;
    pub fn ZRMutableStringAddStrings(first: *mut ZRStringRef__, second: *mut ZRStringRef__,
        out: *mut *mut ZRMutableStringRef__) -> ZRLong;
    pub fn ZRMutableStringLastIndexOf(string: *mut ZRMutableStringRef__, unit: u16,
        index: *mut ZRLong) -> ZRLong;
    pub fn ZRStringPtrArrayCreate(out: *mut *mut ZRStringPtrArrayRef__) -> ZRLong;
    pub fn ZRStrPtrArrCreateFromZRStrPtrArr(source: *mut ZRStringPtrArrayRef__,
        out: *mut *mut ZRStringPtrArrayRef__) -> ZRLong;
    pub fn ZRStringPtrArrayDestroy(array: *mut ZRStringPtrArrayRef__) -> ZRLong;
    pub fn ZRStringPtrArraySize(array: *mut ZRStringPtrArrayRef__, size: *mut ZRULong) -> ZRLong;
    pub fn ZRStringPtrArrayIsEmpty(array: *mut ZRStringPtrArrayRef__, isEmpty: *mut u8) -> ZRLong;
    pub fn GetZRStringRefAt(array: *mut ZRStringPtrArrayRef__, index: ZRLong,
        string: *mut *mut ZRStringRef__) -> ZRLong;
    pub fn SetZRStringRefAt(array: *mut ZRStringPtrArrayRef__, index: ZRLong,
        string: *mut ZRStringRef__) -> ZRLong;
    pub fn InsertZRStringRefAt(array: *mut ZRStringPtrArrayRef__, index: ZRLong,
        string: *mut ZRStringRef__) -> ZRLong;
    pub fn ZRStringPtrArrayPushBack(array: *mut ZRStringPtrArrayRef__,
        string: *mut ZRStringRef__) -> ZRLong;
    pub fn ZRStringPtrArrayErase(array: *mut ZRStringPtrArrayRef__, index: ZRLong) -> ZRLong;
    pub fn ZRStringPtrArrayEraseAll(array: *mut ZRStringPtrArrayRef__) -> ZRLong;
    pub fn ZRStringPtrArrayDeleteAll(array: *mut ZRStringPtrArrayRef__) -> ZRLong;
}
