#ifndef ZRSTRING_ZRTYPES_H
#define ZRSTRING_ZRTYPES_H

#include <limits.h>

/// @file
/// The integer types of the interface, the `UniStr255` record and the export macro. Plain C.

/// @def ZR_API
/// Marks what the shared library exports; the import side sees the same headers.
#if defined(_WIN32)
#if defined(ZRString_EXPORTS)
#define ZR_API __declspec(dllexport)
#else
#define ZR_API __declspec(dllimport)
#endif
#else
#define ZR_API __attribute__((visibility("default")))
#endif

/// @typedef ZRLong
/// Signed, 32 bits on every platform: every start, length, index, position, status and result.
/// `long` where that has 32 bits (Windows, 32-bit Unix), `int` elsewhere.

/// @typedef ZRULong
/// Unsigned, 32 bits on every platform: counts of array entries and comparison options.
#if LONG_MAX == 2147483647L
typedef long ZRLong;
typedef unsigned long ZRULong;
#else
typedef int ZRLong;
typedef unsigned int ZRULong;
#endif

/// A caller-owned, length-prefixed run of UTF-16 code units, from which a string can be built.
///
/// The units begin 8 bytes after the start of the record. A caller may place a record with room
/// for more or fewer units in memory of its own: only `length` units are read.
typedef struct UniStr255 {
  ZRLong length;              ///< number of units; -1: up to the first zero unit
  ZRULong reserved;           ///< neither read nor written by this library
  unsigned short units[255];  ///< UTF-16 code units; no terminating zero is needed
} UniStr255;

#endif
