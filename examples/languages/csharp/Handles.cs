using System;
using System.Runtime.InteropServices;

namespace ZRString
{
    /// <summary>The handle of a string, mutable or not.</summary>
    public struct ZRStringRef
    {
        public IntPtr Address;
    }

    /// <summary>The handle of a mutable string.</summary>
    public struct ZRMutableStringRef
    {
        public IntPtr Address;

        /// <summary>The handle of the same object as a string.</summary>
        public static implicit operator ZRStringRef(ZRMutableStringRef mutable)
        {
            return new ZRStringRef { Address = mutable.Address };
        }
    }

    /// <summary>The handle of an array of strings.</summary>
    public struct ZRStringPtrArrayRef
    {
        public IntPtr Address;
    }

    /// <summary>
    /// The functions and constants of ZRStringHandles.h and ZRTypes.h, which say what each means.
    /// </summary>
    public static class Handles
    {
        private const string Library = "ZRString"; // ZRString.dll, libZRString.so
        private const CallingConvention Cdecl = CallingConvention.Cdecl;
        private const CharSet Utf16 = CharSet.Unicode; // a char is a unit

        // Written by tools/write-derived.py from here on: edit the C headers and run that.
        public const int kZRToEnd = -1;
        public const int kZRNotFound = -1;
        public const char kZRNoUnit = (char)65535;
        public const uint kZRCompareIgnoreCase = 0;
        public const uint kZRCompareIgnoreCaseTurkic = 1;
        public const uint kZRCompareIgnoreCaseCodePointOrder = 2;
        public const uint kZRCompareCollated = 3;
        public const int kZRStatusSuccess = 0;
        public const int kZRStatusFirstParameter = 4;
        public const int kZRStatusIndexOutside = 12;

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRStringCreateFromUniChars(char[] chars, int start, int length,
            out ZRStringRef @out);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRStringCreateFromLocalString(byte[] text, int start, int length,
            out ZRStringRef @out);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRStringCreateFromCString(byte[] text, int start, int length,
            out ZRStringRef @out);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRStringCreateCopy(ZRStringRef source, out ZRStringRef @out);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRStringCreateCopyRange(ZRStringRef source, int start, int length,
            out ZRStringRef @out);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRStringDestroy(ZRStringRef @string);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRStringCompare(ZRStringRef @string, int start, int length,
            ZRStringRef src, int srcStart, int srcLength, out int result);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRStringCompareCodePointOrder(ZRStringRef @string, int start,
            int length, ZRStringRef src, int srcStart, int srcLength, out int result);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRStringICompare(ZRStringRef @string, int start, int length,
            ZRStringRef src, int srcStart, int srcLength, uint options, out int result);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRStringFind(ZRStringRef @string, int start, int length,
            ZRStringRef pattern, out int index);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRStringFindUniChars(ZRStringRef @string, int start, int length,
            [In, Out] char[] pattern, int patternLength, out int index);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRStringRFind(ZRStringRef @string, int start, int length,
            ZRStringRef pattern, out int index);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRStringRFindUniChars(ZRStringRef @string, int start, int length,
            [In, Out] char[] pattern, int patternLength, out int index);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRStringGetUniCharsAt(ZRStringRef @string, int index, int count,
            [In, Out] char[] units);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRStringExtractIntoUniChars(ZRStringRef @string, int start,
            int length, [In, Out] char[] dst, int dstStart);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRStringGetLength(ZRStringRef @string, out int length);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRStringIsEmpty(ZRStringRef @string, out byte isEmpty);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRStringGetBuffer(ZRStringRef @string, out IntPtr buffer);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRStringLastIndexOf(ZRStringRef @string, char unit, out int index);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRMutableStringCreateEmpty(out ZRMutableStringRef @out);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRMutableStringCreateFromUniChars(char[] chars, int start,
            int length, out ZRMutableStringRef @out);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRMutableStringCreateCopy(ZRStringRef source,
            out ZRMutableStringRef @out);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRMutableStringCreateCopyRange(ZRStringRef source, int start,
            int length, out ZRMutableStringRef @out);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRMutableStringCreateFromLocalString(byte[] text, int start,
            int length, out ZRMutableStringRef @out);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRMutableStringCreateFromCString(byte[] text, int start,
            int length, out ZRMutableStringRef @out);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRMutableStringDestroy(ZRMutableStringRef @string);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRMutableStringSetUniCharAt(ZRMutableStringRef @string, int index,
            char unit);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRMutableStringSetToZRString(ZRMutableStringRef @string,
            ZRStringRef src, int srcStart, int srcLength);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRMutableStringAppend(ZRMutableStringRef @string, ZRStringRef src);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRMutableStringAppendUniChars(ZRMutableStringRef @string,
            char[] chars, int srcStart, int srcLength);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRMutableStringInsert(ZRMutableStringRef @string, int position,
            ZRStringRef src, int srcStart, int srcLength);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRMutableStringInsertUniChars(ZRMutableStringRef @string,
            int position, char[] chars, int srcStart, int srcLength);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRMutableStringReplaceBetween(ZRMutableStringRef @string,
            int start, int length, ZRStringRef replacement);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRMutableStringReplaceWithUniChars(ZRMutableStringRef @string,
            int start, int length, char[] chars, int srcStart, int srcLength);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRMutableStringFindAndReplace(ZRMutableStringRef @string,
            int start, int length, ZRStringRef find, ZRStringRef replacement);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRMutableStringRemoveBetween(ZRMutableStringRef @string, int start,
            int end);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRMutableStringPadLeading(ZRMutableStringRef @string,
            int targetLength, char padUnit, out byte padded);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRMutableStringPadTrailing(ZRMutableStringRef @string,
            int targetLength, char padUnit, out byte padded);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRMutableStringTruncate(ZRMutableStringRef @string,
            int targetLength, out byte truncated);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRMutableStringTrim(ZRMutableStringRef @string);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRMutableStringToUpper(ZRMutableStringRef @string);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRMutableStringToLower(ZRMutableStringRef @string);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRMutableStringGetBufferWithCapacity(ZRMutableStringRef @string,
            int minCapacity, out IntPtr buffer);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRMutableStringGetCapacity(ZRMutableStringRef @string,
            out int capacity);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRMutableStringReleaseBuffer(ZRMutableStringRef @string,
            int newLength);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRMutableStringReverse(ZRMutableStringRef @string, int start,
            int length);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRMutableStringAddStrings(ZRStringRef first, ZRStringRef second,
            out ZRMutableStringRef @out);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRMutableStringLastIndexOf(ZRMutableStringRef @string, char unit,
            out int index);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRStringPtrArrayCreate(out ZRStringPtrArrayRef @out);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRStrPtrArrCreateFromZRStrPtrArr(ZRStringPtrArrayRef source,
            out ZRStringPtrArrayRef @out);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRStringPtrArrayDestroy(ZRStringPtrArrayRef array);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRStringPtrArraySize(ZRStringPtrArrayRef array, out uint size);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRStringPtrArrayIsEmpty(ZRStringPtrArrayRef array,
            out byte isEmpty);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int GetZRStringRefAt(ZRStringPtrArrayRef array, int index,
            out ZRStringRef @string);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int SetZRStringRefAt(ZRStringPtrArrayRef array, int index,
            ZRStringRef @string);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int InsertZRStringRefAt(ZRStringPtrArrayRef array, int index,
            ZRStringRef @string);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRStringPtrArrayPushBack(ZRStringPtrArrayRef array,
            ZRStringRef @string);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRStringPtrArrayErase(ZRStringPtrArrayRef array, int index);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRStringPtrArrayEraseAll(ZRStringPtrArrayRef array);

        [DllImport(Library, CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true)]
        public static extern int ZRStringPtrArrayDeleteAll(ZRStringPtrArrayRef array);
    }
}
