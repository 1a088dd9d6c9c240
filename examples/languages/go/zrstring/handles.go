// Package zrstring has the functions and constants of ZRStringHandles.h and ZRTypes.h, which say
// what each means. The names of the constants begin with ZR, not with kZR.
package zrstring

// #cgo pkg-config: zrstring
// #include <ZRString/ZRStringHandles.h>
import "C"

import "unsafe"

// ZRStringRef is the handle of a string, mutable or not.
type ZRStringRef = *C.ZRStringRef__

// ZRMutableStringRef is the handle of a mutable string.
type ZRMutableStringRef = *C.ZRMutableStringRef__

// ZRStringPtrArrayRef is the handle of an array of strings.
type ZRStringPtrArrayRef = *C.ZRStringPtrArrayRef__

// Written by tools/write-derived.py from here on: edit the C headers and run that.
const ZRToEnd int32 = -1
const ZRNotFound int32 = -1
const ZRNoUnit uint16 = 65535
const ZRCompareIgnoreCase uint32 = 0
const ZRCompareIgnoreCaseTurkic uint32 = 1
const ZRCompareIgnoreCaseCodePointOrder uint32 = 2
const ZRCompareCollated uint32 = 3
const ZRStatusSuccess int32 = 0
const ZRStatusFirstParameter int32 = 4
const ZRStatusIndexOutside int32 = 12

func ZRStringCreateFromUniChars(chars *uint16, start int32, length int32, out *ZRStringRef) int32 {
	return int32(C.ZRStringCreateFromUniChars((*C.ushort)(chars), C.ZRLong(start), C.ZRLong(length),
		out))
}

func ZRStringCreateFromLocalString(text *byte, start int32, length int32, out *ZRStringRef) int32 {
	return int32(C.ZRStringCreateFromLocalString((*C.uchar)(text), C.ZRLong(start), C.ZRLong(length),
		out))
}

func ZRStringCreateFromCString(text *byte, start int32, length int32, out *ZRStringRef) int32 {
	return int32(C.ZRStringCreateFromCString((*C.char)(unsafe.Pointer(text)), C.ZRLong(start),
		C.ZRLong(length), out))
}

func ZRStringCreateCopy(source ZRStringRef, out *ZRStringRef) int32 {
	return int32(C.ZRStringCreateCopy(source, out))
}

func ZRStringCreateCopyRange(source ZRStringRef, start int32, length int32,
	out *ZRStringRef) int32 {
	return int32(C.ZRStringCreateCopyRange(source, C.ZRLong(start), C.ZRLong(length), out))
}

func ZRStringDestroy(string ZRStringRef) int32 {
	return int32(C.ZRStringDestroy(string))
}

func ZRStringCompare(string ZRStringRef, start int32, length int32, src ZRStringRef, srcStart int32,
	srcLength int32, result *int32) int32 {
	return int32(C.ZRStringCompare(string, C.ZRLong(start), C.ZRLong(length), src, C.ZRLong(srcStart),
		C.ZRLong(srcLength), (*C.ZRLong)(result)))
}

func ZRStringCompareCodePointOrder(string ZRStringRef, start int32, length int32, src ZRStringRef,
	srcStart int32, srcLength int32, result *int32) int32 {
	return int32(C.ZRStringCompareCodePointOrder(string, C.ZRLong(start), C.ZRLong(length), src,
		C.ZRLong(srcStart), C.ZRLong(srcLength), (*C.ZRLong)(result)))
}

func ZRStringICompare(string ZRStringRef, start int32, length int32, src ZRStringRef,
	srcStart int32, srcLength int32, options uint32, result *int32) int32 {
	return int32(C.ZRStringICompare(string, C.ZRLong(start), C.ZRLong(length), src, C.ZRLong(srcStart),
		C.ZRLong(srcLength), C.ZRULong(options), (*C.ZRLong)(result)))
}

func ZRStringFind(string ZRStringRef, start int32, length int32, pattern ZRStringRef,
	index *int32) int32 {
	return int32(C.ZRStringFind(string, C.ZRLong(start), C.ZRLong(length), pattern,
		(*C.ZRLong)(index)))
}

func ZRStringFindUniChars(string ZRStringRef, start int32, length int32, pattern *uint16,
	patternLength int32, index *int32) int32 {
	return int32(C.ZRStringFindUniChars(string, C.ZRLong(start), C.ZRLong(length),
		(*C.ushort)(pattern), C.ZRLong(patternLength), (*C.ZRLong)(index)))
}

func ZRStringRFind(string ZRStringRef, start int32, length int32, pattern ZRStringRef,
	index *int32) int32 {
	return int32(C.ZRStringRFind(string, C.ZRLong(start), C.ZRLong(length), pattern,
		(*C.ZRLong)(index)))
}

func ZRStringRFindUniChars(string ZRStringRef, start int32, length int32, pattern *uint16,
	patternLength int32, index *int32) int32 {
	return int32(C.ZRStringRFindUniChars(string, C.ZRLong(start), C.ZRLong(length),
		(*C.ushort)(pattern), C.ZRLong(patternLength), (*C.ZRLong)(index)))
}

func ZRStringGetUniCharsAt(string ZRStringRef, index int32, count int32, units *uint16) int32 {
	return int32(C.ZRStringGetUniCharsAt(string, C.ZRLong(index), C.ZRLong(count), (*C.ushort)(units)))
}

func ZRStringExtractIntoUniChars(string ZRStringRef, start int32, length int32, dst *uint16,
	dstStart int32) int32 {
	return int32(C.ZRStringExtractIntoUniChars(string, C.ZRLong(start), C.ZRLong(length),
		(*C.ushort)(dst), C.ZRLong(dstStart)))
}

func ZRStringGetLength(string ZRStringRef, length *int32) int32 {
	return int32(C.ZRStringGetLength(string, (*C.ZRLong)(length)))
}

func ZRStringIsEmpty(string ZRStringRef, isEmpty *byte) int32 {
	return int32(C.ZRStringIsEmpty(string, (*C.uchar)(isEmpty)))
}

func ZRStringGetBuffer(string ZRStringRef, buffer **uint16) int32 {
	return int32(C.ZRStringGetBuffer(string, (**C.ushort)(unsafe.Pointer(buffer))))
}

func ZRStringLastIndexOf(string ZRStringRef, unit uint16, index *int32) int32 {
	return int32(C.ZRStringLastIndexOf(string, C.ushort(unit), (*C.ZRLong)(index)))
}

func ZRMutableStringCreateEmpty(out *ZRMutableStringRef) int32 {
	return int32(C.ZRMutableStringCreateEmpty(out))
}

func ZRMutableStringCreateFromUniChars(chars *uint16, start int32, length int32,
	out *ZRMutableStringRef) int32 {
	return int32(C.ZRMutableStringCreateFromUniChars((*C.ushort)(chars), C.ZRLong(start),
		C.ZRLong(length), out))
}

func ZRMutableStringCreateCopy(source ZRStringRef, out *ZRMutableStringRef) int32 {
	return int32(C.ZRMutableStringCreateCopy(source, out))
}

func ZRMutableStringCreateCopyRange(source ZRStringRef, start int32, length int32,
	out *ZRMutableStringRef) int32 {
	return int32(C.ZRMutableStringCreateCopyRange(source, C.ZRLong(start), C.ZRLong(length), out))
}

func ZRMutableStringCreateFromLocalString(text *byte, start int32, length int32,
	out *ZRMutableStringRef) int32 {
	return int32(C.ZRMutableStringCreateFromLocalString((*C.uchar)(text), C.ZRLong(start),
		C.ZRLong(length), out))
}

func ZRMutableStringCreateFromCString(text *byte, start int32, length int32,
	out *ZRMutableStringRef) int32 {
	return int32(C.ZRMutableStringCreateFromCString((*C.char)(unsafe.Pointer(text)), C.ZRLong(start),
		C.ZRLong(length), out))
}

func ZRMutableStringDestroy(string ZRMutableStringRef) int32 {
	return int32(C.ZRMutableStringDestroy(string))
}

func ZRMutableStringSetUniCharAt(string ZRMutableStringRef, index int32, unit uint16) int32 {
	return int32(C.ZRMutableStringSetUniCharAt(string, C.ZRLong(index), C.ushort(unit)))
}

func ZRMutableStringSetToZRString(string ZRMutableStringRef, src ZRStringRef, srcStart int32,
	srcLength int32) int32 {
	return int32(C.ZRMutableStringSetToZRString(string, src, C.ZRLong(srcStart), C.ZRLong(srcLength)))
}

func ZRMutableStringAppend(string ZRMutableStringRef, src ZRStringRef) int32 {
	return int32(C.ZRMutableStringAppend(string, src))
}

func ZRMutableStringAppendUniChars(string ZRMutableStringRef, chars *uint16, srcStart int32,
	srcLength int32) int32 {
	return int32(C.ZRMutableStringAppendUniChars(string, (*C.ushort)(chars), C.ZRLong(srcStart),
		C.ZRLong(srcLength)))
}

func ZRMutableStringInsert(string ZRMutableStringRef, position int32, src ZRStringRef,
	srcStart int32, srcLength int32) int32 {
	return int32(C.ZRMutableStringInsert(string, C.ZRLong(position), src, C.ZRLong(srcStart),
		C.ZRLong(srcLength)))
}

func ZRMutableStringInsertUniChars(string ZRMutableStringRef, position int32, chars *uint16,
	srcStart int32, srcLength int32) int32 {
	return int32(C.ZRMutableStringInsertUniChars(string, C.ZRLong(position), (*C.ushort)(chars),
		C.ZRLong(srcStart), C.ZRLong(srcLength)))
}

func ZRMutableStringReplaceBetween(string ZRMutableStringRef, start int32, length int32,
	replacement ZRStringRef) int32 {
	return int32(C.ZRMutableStringReplaceBetween(string, C.ZRLong(start), C.ZRLong(length),
		replacement))
}

func ZRMutableStringReplaceWithUniChars(string ZRMutableStringRef, start int32, length int32,
	chars *uint16, srcStart int32, srcLength int32) int32 {
	return int32(C.ZRMutableStringReplaceWithUniChars(string, C.ZRLong(start), C.ZRLong(length),
		(*C.ushort)(chars), C.ZRLong(srcStart), C.ZRLong(srcLength)))
}

func ZRMutableStringFindAndReplace(string ZRMutableStringRef, start int32, length int32,
	find ZRStringRef, replacement ZRStringRef) int32 {
	return int32(C.ZRMutableStringFindAndReplace(string, C.ZRLong(start), C.ZRLong(length), find,
		replacement))
}

func ZRMutableStringRemoveBetween(string ZRMutableStringRef, start int32, end int32) int32 {
	return int32(C.ZRMutableStringRemoveBetween(string, C.ZRLong(start), C.ZRLong(end)))
}

func ZRMutableStringPadLeading(string ZRMutableStringRef, targetLength int32, padUnit uint16,
	padded *byte) int32 {
	return int32(C.ZRMutableStringPadLeading(string, C.ZRLong(targetLength), C.ushort(padUnit),
		(*C.uchar)(padded)))
}

func ZRMutableStringPadTrailing(string ZRMutableStringRef, targetLength int32, padUnit uint16,
	padded *byte) int32 {
	return int32(C.ZRMutableStringPadTrailing(string, C.ZRLong(targetLength), C.ushort(padUnit),
		(*C.uchar)(padded)))
}

func ZRMutableStringTruncate(string ZRMutableStringRef, targetLength int32, truncated *byte) int32 {
	return int32(C.ZRMutableStringTruncate(string, C.ZRLong(targetLength), (*C.uchar)(truncated)))
}

func ZRMutableStringTrim(string ZRMutableStringRef) int32 {
	return int32(C.ZRMutableStringTrim(string))
}

func ZRMutableStringToUpper(string ZRMutableStringRef) int32 {
	return int32(C.ZRMutableStringToUpper(string))
}

func ZRMutableStringToLower(string ZRMutableStringRef) int32 {
	return int32(C.ZRMutableStringToLower(string))
}

func ZRMutableStringGetBufferWithCapacity(string ZRMutableStringRef, minCapacity int32,
	buffer **uint16) int32 {
	return int32(C.ZRMutableStringGetBufferWithCapacity(string, C.ZRLong(minCapacity),
		(**C.ushort)(unsafe.Pointer(buffer))))
}

func ZRMutableStringGetCapacity(string ZRMutableStringRef, capacity *int32) int32 {
	return int32(C.ZRMutableStringGetCapacity(string, (*C.ZRLong)(capacity)))
}

func ZRMutableStringReleaseBuffer(string ZRMutableStringRef, newLength int32) int32 {
	return int32(C.ZRMutableStringReleaseBuffer(string, C.ZRLong(newLength)))
}

func ZRMutableStringReverse(string ZRMutableStringRef, start int32, length int32) int32 {
	return int32(C.ZRMutableStringReverse(string, C.ZRLong(start), C.ZRLong(length)))
}

func ZRMutableStringAddStrings(first ZRStringRef, second ZRStringRef,
	out *ZRMutableStringRef) int32 {
	return int32(C.ZRMutableStringAddStrings(first, second, out))
}

func ZRMutableStringLastIndexOf(string ZRMutableStringRef, unit uint16, index *int32) int32 {
	return int32(C.ZRMutableStringLastIndexOf(string, C.ushort(unit), (*C.ZRLong)(index)))
}

func ZRStringPtrArrayCreate(out *ZRStringPtrArrayRef) int32 {
	return int32(C.ZRStringPtrArrayCreate(out))
}

func ZRStrPtrArrCreateFromZRStrPtrArr(source ZRStringPtrArrayRef, out *ZRStringPtrArrayRef) int32 {
	return int32(C.ZRStrPtrArrCreateFromZRStrPtrArr(source, out))
}

func ZRStringPtrArrayDestroy(array ZRStringPtrArrayRef) int32 {
	return int32(C.ZRStringPtrArrayDestroy(array))
}

func ZRStringPtrArraySize(array ZRStringPtrArrayRef, size *uint32) int32 {
	return int32(C.ZRStringPtrArraySize(array, (*C.ZRULong)(size)))
}

func ZRStringPtrArrayIsEmpty(array ZRStringPtrArrayRef, isEmpty *byte) int32 {
	return int32(C.ZRStringPtrArrayIsEmpty(array, (*C.uchar)(isEmpty)))
}

func GetZRStringRefAt(array ZRStringPtrArrayRef, index int32, string *ZRStringRef) int32 {
	return int32(C.GetZRStringRefAt(array, C.ZRLong(index), string))
}

func SetZRStringRefAt(array ZRStringPtrArrayRef, index int32, string ZRStringRef) int32 {
	return int32(C.SetZRStringRefAt(array, C.ZRLong(index), string))
}

func InsertZRStringRefAt(array ZRStringPtrArrayRef, index int32, string ZRStringRef) int32 {
	return int32(C.InsertZRStringRefAt(array, C.ZRLong(index), string))
}

func ZRStringPtrArrayPushBack(array ZRStringPtrArrayRef, string ZRStringRef) int32 {
	return int32(C.ZRStringPtrArrayPushBack(array, string))
}

func ZRStringPtrArrayErase(array ZRStringPtrArrayRef, index int32) int32 {
	return int32(C.ZRStringPtrArrayErase(array, C.ZRLong(index)))
}

func ZRStringPtrArrayEraseAll(array ZRStringPtrArrayRef) int32 {
	return int32(C.ZRStringPtrArrayEraseAll(array))
}

func ZRStringPtrArrayDeleteAll(array ZRStringPtrArrayRef) int32 {
	return int32(C.ZRStringPtrArrayDeleteAll(array))
}
