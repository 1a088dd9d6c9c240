#ifndef ZRSTRING_ZRTYPES_H
#define ZRSTRING_ZRTYPES_H

#include <limits.h>

/// @file
/// The integer types of the interface, names for its special values, the `UniStr255` record, and
/// the macros of exported declarations. Plain C.

/// @def ZR_API
/// Marks what the shared library exports. Programs that use the library see it as an import.
#if defined(_WIN32)
#if defined(ZRString_EXPORTS)
#define ZR_API __declspec(dllexport)
#else
#define ZR_API __declspec(dllimport)
#endif
#else
#define ZR_API __attribute__((visibility("default")))
#endif

/// @def ZR_CALL
/// The calling convention of every exported function that is not a member of a class: `__cdecl` on
/// Windows, even where the compiler's default is another one; the compiler's default elsewhere.
/// @since 1.1
#if defined(_WIN32)
#define ZR_CALL __cdecl
#else
#define ZR_CALL
#endif

/// @typedef ZRLong
/// Signed, 32 bits on every platform: `long` where that has 32 bits (Windows, 32-bit Unix), `int`
/// elsewhere.

/// @typedef ZRULong
/// Unsigned, 32 bits on every platform.
#if LONG_MAX == 2147483647L
typedef long ZRLong;
typedef unsigned long ZRULong;
#else
typedef int ZRLong;
typedef unsigned int ZRULong;
#endif

/// Names for special values.
/// @since 1.1; older headers have the values without names
enum {
  kZRToEnd = -1,      ///< A length: to the end of the text.
  kZRNotFound = -1,   ///< The result of a search that finds nothing.
  kZRNoUnit = 0xFFFF  ///< The unit at an index outside the string; not a character.
};

/// The kinds of comparison that ZRString::ICompare and ZRStringICompare() offer. Other values are
/// option bits for ICU's case-insensitive comparison.
/// @since 1.1; older headers have the values without names
enum {
  kZRCompareIgnoreCase = 0,                ///< By default case folding, in code unit order.
  kZRCompareIgnoreCaseTurkic = 1,          ///< As 0, with the Turkic dotted and dotless i.
  kZRCompareIgnoreCaseCodePointOrder = 2,  ///< As 0, in code point order.
  kZRCompareCollated = 3  ///< In the linguistic order of the default locale, case included.
};

/// A caller-owned, length-prefixed run of UTF-16 code units, from which a string can be built.
///
/// The units begin 8 bytes after the start of the record. A caller may allocate a record with room
/// for more or fewer units: only `length` units are read.
/// @code
/// UniStr255 record = {2, 0, {'u', 'n'}};
/// assert(ZRString(record).GetLength() == 2);
/// @endcode
typedef struct UniStr255 {
  ZRLong length;              ///< Number of units; -1: up to the first zero unit.
  ZRULong reserved;           ///< Neither read nor written by this library.
  unsigned short units[255];  ///< UTF-16 code units; no terminating zero is needed.
} UniStr255;

#endif
