#ifndef ZRSTRING_ZRSTRINGUTF8_H
#define ZRSTRING_ZRSTRINGUTF8_H

#include <ZRString/ZRStringHandles.h>

#include <stddef.h>
#include <stdint.h>

/// @file
/// Strings and UTF-8, for C: functions of the program that includes this header, written with the
/// handle interface. The shared library contains none of them.
///
/// The conventions are those of ZRStringHandles.h, with these additions:
///
/// - **Sizes** count bytes. The size of a text that is passed in may be #ZR_TO_ZERO_BYTE. Otherwise
///   zero bytes are characters like any other.
/// - **Ill-formed text.** In UTF-8, each maximal subpart of an ill-formed sequence becomes one
///   U+FFFD, as the Unicode standard recommends and ICU does. In a string, each unpaired surrogate
///   becomes U+FFFD.
/// - **Failures.** #kZRStatusNoMemory and #kZRStatusTextLost say what failed. What the handle
///   functions throw passes through: creating a string, and the first edit of a shared text, throw
///   `std::bad_alloc`. No memory is leaked then.
/// - **Open buffers.** A string with an open writable buffer, or in ICU's error state, reads as
///   empty.
///
/// C++ programs may use these functions, too; ZRStringInterop.h has simpler ones.
///
/// @code{.c}
/// ZRMutableStringRef__* text;
/// char utf8[8];
/// size_t size;
/// ZRLong status = ZRMutableStringCreateFromUtf8("d\xC3\xA9", ZR_TO_ZERO_BYTE, &text);
/// if (status == 0)
///   status = ZRMutableStringAppendUtf8(text, "j\xC3\xA0 vu", 4);  // four bytes: "jà "
/// if (status == 0)
///   status = ZRStringExtractIntoUtf8((ZRStringRef__*)text, utf8, sizeof utf8, &size);
/// assert(status == 0 && size == 7 && utf8[7] == 0);
/// ZRMutableStringDestroy(text);
/// @endcode
/// @since 1.1

/// The size of a text that ends before its first zero byte.
#define ZR_TO_ZERO_BYTE ((size_t)-1)

/// Statuses of the functions of this header, beside those of ZRStringHandles.h.
enum {
  kZRStatusNoMemory = 13,  ///< Memory ran out, or ICU cannot hold the text; nothing was written.
  kZRStatusTextLost = 14   ///< ICU could not hold the edited text, which is lost; or nothing was
                           ///< appended, to an open buffer or a text already lost.
};

/// @cond

// Compilers for systems whose C library is not installed have only the freestanding headers.
#if !defined(__has_include)
#define ZR_UTF8_HOSTED 1
#elif __has_include(<stdlib.h>)
#define ZR_UTF8_HOSTED 1
#else
#define ZR_UTF8_HOSTED 0
#endif

#if ZR_UTF8_HOSTED
#include <stdlib.h>
#include <string.h>
#define ZR_UTF8_COPY memcpy
#else
#define ZR_UTF8_COPY __builtin_memcpy
#endif

#if ZR_UTF8_HOSTED && defined(__GNUC__) && defined(__SSE2__)
#define ZR_UTF8_SSE2 1
#include <emmintrin.h>
#elif ZR_UTF8_HOSTED && defined(__GNUC__) && defined(__aarch64__) && defined(__ARM_NEON)
#define ZR_UTF8_NEON 1
#include <arm_neon.h>
#endif

// In C++, where inline functions of programs call these, all files must mean the same function.
#ifdef __cplusplus
#define ZR_UTF8_INLINE inline
#else
#define ZR_UTF8_INLINE static inline
#endif

// Units that a C++ program may have stored as char16_t.
#ifdef __GNUC__
typedef unsigned short __attribute__((__may_alias__)) ZRUtf8Unit;
#else
typedef unsigned short ZRUtf8Unit;
#endif

enum {
  kZRUtf8Block = 16,   // ASCII is converted in blocks of this many characters.
  kZRUtf8Chunk = 256,  // Texts of up to so many units or bytes are converted on the stack.
  kZRUtf8Short = 24    // ICU stores texts of this length inside the body, whatever their room.
};

/// Writes 16 bytes as units and returns how many of them, from the first on, are ASCII. The units
/// behind those mean nothing.
ZR_UTF8_INLINE size_t ZRUtf8WidenBlock(const unsigned char* bytes, ZRUtf8Unit* units) {
#ifdef ZR_UTF8_SSE2
  const __m128i block = _mm_loadu_si128((const __m128i*)bytes);
  const __m128i zero = _mm_setzero_si128();
  _mm_storeu_si128((__m128i*)units, _mm_unpacklo_epi8(block, zero));
  _mm_storeu_si128((__m128i*)(units + 8), _mm_unpackhi_epi8(block, zero));
  const unsigned wider = (unsigned)_mm_movemask_epi8(block);
  return wider == 0 ? (size_t)kZRUtf8Block : (size_t)__builtin_ctz(wider);
#else
  size_t ascii = 0;
#ifdef ZR_UTF8_NEON
  const uint8x16_t block = vld1q_u8(bytes);
  vst1q_u16((uint16_t*)units, vmovl_u8(vget_low_u8(block)));
  vst1q_u16((uint16_t*)units + 8, vmovl_u8(vget_high_u8(block)));
  if (vmaxvq_u8(block) < 0x80)
    return kZRUtf8Block;
#else
  uint64_t halves[2];
  int i;
  ZR_UTF8_COPY(halves, bytes, sizeof halves);
  for (i = 0; i < kZRUtf8Block; ++i)
    units[i] = bytes[i];
  if (((halves[0] | halves[1]) & 0x8080808080808080u) == 0)
    return kZRUtf8Block;
#endif
  while (bytes[ascii] < 0x80)
    ++ascii;
  return ascii;
#endif
}

/// Writes 16 units as bytes and returns how many of them, from the first on, are known to be ASCII.
/// The bytes behind those mean nothing.
ZR_UTF8_INLINE size_t ZRUtf8NarrowBlock(const ZRUtf8Unit* units, unsigned char* bytes) {
#ifdef ZR_UTF8_SSE2
  const __m128i first = _mm_loadu_si128((const __m128i*)units);
  const __m128i second = _mm_loadu_si128((const __m128i*)(units + 8));
  // Units from 0x80 on become negative bytes or 0. U+0000, also 0, is not known to be ASCII here.
  const __m128i packed = _mm_packus_epi16(first, second);
  const __m128i ascii = _mm_cmpgt_epi8(packed, _mm_setzero_si128());
  const unsigned wider = (unsigned)_mm_movemask_epi8(ascii) ^ 0xFFFF;
  _mm_storeu_si128((__m128i*)bytes, packed);
  return wider == 0 ? (size_t)kZRUtf8Block : (size_t)__builtin_ctz(wider);
#else
  size_t ascii = 0;
#ifdef ZR_UTF8_NEON
  const uint16x8_t first = vld1q_u16((const uint16_t*)units);
  const uint16x8_t second = vld1q_u16((const uint16_t*)units + 8);
  vst1q_u8(bytes, vcombine_u8(vmovn_u16(first), vmovn_u16(second)));
  if (vmaxvq_u16(vorrq_u16(first, second)) < 0x80)
    return kZRUtf8Block;
#else
  uint64_t quarters[4];
  int i;
  ZR_UTF8_COPY(quarters, units, sizeof quarters);
  for (i = 0; i < kZRUtf8Block; ++i)
    bytes[i] = (unsigned char)units[i];
  if (((quarters[0] | quarters[1] | quarters[2] | quarters[3]) & 0xFF80FF80FF80FF80u) == 0)
    return kZRUtf8Block;
#endif
  while (units[ascii] < 0x80)
    ++ascii;
  return ascii;
#endif
}

/// Reads the code point at `*next`, which is not ASCII, and moves `*next` behind it. If it is
/// ill-formed, moves `*next` behind its maximal subpart and returns U+FFFD.
ZR_UTF8_INLINE uint32_t ZRUtf8CodePoint(const unsigned char** next, const unsigned char* end) {
  const unsigned lead = *(*next)++;
  const int trails = lead < 0xC2 || lead > 0xF4 ? 0 : lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
  // The range of the second byte excludes overlong forms, surrogates and what is above U+10FFFF.
  unsigned least = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
  unsigned greatest = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
  uint32_t codePoint = lead & (0x3Fu >> trails);
  int i;
  if (trails == 0)
    return 0xFFFD;
  for (i = 0; i < trails; ++i) {
    const unsigned trail = *next == end ? 0 : **next;
    if (trail < least || trail > greatest)
      return 0xFFFD;
    codePoint = codePoint << 6 | (trail & 0x3F);
    least = 0x80;
    greatest = 0xBF;
    ++*next;
  }
  return codePoint;
}

/// Writes the characters that begin before `limit` as UTF-16 and returns the number of units: at
/// most one per byte, and one more if `limit` splits a character. Units behind them, up to one per
/// byte, may be overwritten. Moves `*next` behind the last byte converted; none is read at or
/// past `end`.
ZR_UTF8_INLINE size_t ZRUtf8Decode(const unsigned char** next, const unsigned char* limit,
                                   const unsigned char* end, ZRUtf8Unit* units) {
  const unsigned char* from = *next;
  ZRUtf8Unit* to = units;
  while (from < limit) {
    size_t blocks = (size_t)(limit - from) / kZRUtf8Block;
    for (; blocks > 0; --blocks) {
      const size_t ascii = ZRUtf8WidenBlock(from, to);
      from += ascii;
      to += ascii;
      if (ascii < kZRUtf8Block)
        break;
    }
    while (from < limit && *from < 0x80)
      *to++ = *from++;
    while (from < limit) {
      const unsigned lead = *from;
      uint32_t codePoint;
      // Two and three bytes, unless the second one's range depends on the first.
      if (lead - 0xC2 < 0xE0 - 0xC2 && end - from >= 2 && (from[1] & 0xC0) == 0x80) {
        *to++ = (unsigned short)((lead & 0x1F) << 6 | (from[1] & 0x3Fu));
        from += 2;
        continue;
      }
      if (lead - 0xE1 < 0xF0 - 0xE1 && lead != 0xED && end - from >= 3 &&
          (from[1] & 0xC0) == 0x80 && (from[2] & 0xC0) == 0x80) {
        *to++ = (unsigned short)((lead & 0x0F) << 12 | (from[1] & 0x3Fu) << 6 | (from[2] & 0x3Fu));
        from += 3;
        continue;
      }
      if (lead < 0x80) {
        // A block is not worth its while for one character, such as a space between words.
        if (limit - from < 2 || from[1] < 0x80)
          break;
        *to++ = (unsigned short)lead;
        ++from;
        continue;
      }
      codePoint = ZRUtf8CodePoint(&from, end);
      if (codePoint > 0xFFFF) {
        *to++ = (unsigned short)(0xD7C0 + (codePoint >> 10));
        *to++ = (unsigned short)(0xDC00 | (codePoint & 0x3FF));
      } else {
        *to++ = (unsigned short)codePoint;
      }
    }
  }
  *next = from;
  return (size_t)(to - units);
}

/// Writes the characters that begin before `limit` as UTF-8 and returns the number of bytes: at
/// most three per unit, and one more if `limit` splits a surrogate pair. Moves `*next` behind the
/// last unit read; none is read at or past `end`.
ZR_UTF8_INLINE size_t ZRUtf8Encode(const ZRUtf8Unit** next, const ZRUtf8Unit* limit,
                                   const ZRUtf8Unit* end, char* bytes) {
  const ZRUtf8Unit* from = *next;
  unsigned char* to = (unsigned char*)bytes;
  while (from < limit) {
    size_t blocks = (size_t)(limit - from) / kZRUtf8Block;
    for (; blocks > 0; --blocks) {
      const size_t ascii = ZRUtf8NarrowBlock(from, to);
      from += ascii;
      to += ascii;
      if (ascii < kZRUtf8Block)
        break;
    }
    while (from < limit && *from < 0x80)
      *to++ = (unsigned char)*from++;
    while (from < limit) {
      uint32_t codePoint = *from;
      if (codePoint - 0x80 < 0x800 - 0x80) {
        *to++ = (unsigned char)(0xC0 | codePoint >> 6);
        *to++ = (unsigned char)(0x80 | (codePoint & 0x3F));
        ++from;
        continue;
      }
      if (codePoint < 0x80) {
        if (limit - from < 2 || from[1] < 0x80)
          break;
        *to++ = (unsigned char)codePoint;
        ++from;
        continue;
      }
      ++from;
      if ((codePoint & 0xF800) == 0xD800) {
        if (codePoint < 0xDC00 && from != end && (*from & 0xFC00) == 0xDC00) {
          codePoint = 0x10000 + ((codePoint & 0x3FF) << 10) + (*from++ & 0x3FFu);
          *to++ = (unsigned char)(0xF0 | codePoint >> 18);
          *to++ = (unsigned char)(0x80 | (codePoint >> 12 & 0x3F));
          *to++ = (unsigned char)(0x80 | (codePoint >> 6 & 0x3F));
          *to++ = (unsigned char)(0x80 | (codePoint & 0x3F));
          continue;
        }
        codePoint = 0xFFFD;
      }
      *to++ = (unsigned char)(0xE0 | codePoint >> 12);
      *to++ = (unsigned char)(0x80 | (codePoint >> 6 & 0x3F));
      *to++ = (unsigned char)(0x80 | (codePoint & 0x3F));
    }
  }
  *next = from;
  return (size_t)(to - (unsigned char*)bytes);
}

/// The end of the text of `size` bytes, which may be #ZR_TO_ZERO_BYTE.
ZR_UTF8_INLINE const unsigned char* ZRUtf8End(const char* text, size_t size) {
  const char* end = text;
  if (size != ZR_TO_ZERO_BYTE)
    return (const unsigned char*)text + size;
  while (*end != 0)
    ++end;
  return (const unsigned char*)end;
}

/// The number of units that ZRUtf8Decode() writes for a whole text.
ZR_UTF8_INLINE size_t ZRUtf8CountUnits(const unsigned char* next, const unsigned char* end) {
  ZRUtf8Unit units[kZRUtf8Chunk + 1];
  size_t count = 0;
  while (next != end)
    count += ZRUtf8Decode(&next, end - next < kZRUtf8Chunk ? end : next + kZRUtf8Chunk, end, units);
  return count;
}

/// The room that ZRUtf8Decode() needs to write a whole text of so many bytes and units, of which
/// there are at most 0x7FFFFFFF. The last block is written in full, unless every byte is a unit.
ZR_UTF8_INLINE ZRLong ZRUtf8Room(size_t bytes, size_t units) {
  const size_t room = units + kZRUtf8Block < bytes ? units + kZRUtf8Block : bytes;
  return room < 0x7FFFFFFF ? (ZRLong)room : 0x7FFFFFFF;
}

/// The number of bytes that ZRUtf8Encode() writes for a whole text.
ZR_UTF8_INLINE size_t ZRUtf8CountBytes(const ZRUtf8Unit* next, const ZRUtf8Unit* end) {
  char bytes[3 * kZRUtf8Chunk + 1];
  size_t count = 0;
  while (next != end)
    count += ZRUtf8Encode(&next, end - next < kZRUtf8Chunk ? end : next + kZRUtf8Chunk, end, bytes);
  return count;
}

/// The units of a string, from `*next` to `*end`.
ZR_UTF8_INLINE void ZRUtf8UnitsOf(ZRStringRef__* string, const ZRUtf8Unit** next,
                                  const ZRUtf8Unit** end) {
  unsigned short* units;
  ZRLong length;
  ZRStringGetBuffer(string, &units);
  ZRStringGetLength(string, &length);
  *next = units;
  *end = units ? units + length : units;
}

/// @endcond

/// Creates a mutable string from `size` bytes of UTF-8; #ZR_TO_ZERO_BYTE: up to the zero byte.
/// @return 0; 4 text is null; 5 the text has 2^31 units or more; 6 out is null; #kZRStatusNoMemory.
ZR_UTF8_INLINE ZRLong ZRMutableStringCreateFromUtf8(const char* text, size_t size,
                                                    ZRMutableStringRef__** out) {
  const unsigned char* next = (const unsigned char*)text;
  const unsigned char* end;
  ZRMutableStringRef__* string;
  unsigned short units[kZRUtf8Chunk];
  unsigned short* buffer;
  size_t length;
  int onStack;
  if (!text)
    return kZRStatusFirstParameter;
  end = ZRUtf8End(text, size);
  size = (size_t)(end - next);
  onStack = size <= kZRUtf8Chunk;
  length = onStack ? ZRUtf8Decode(&next, end, end, units) : ZRUtf8CountUnits(next, end);
  if (length > 0x7FFFFFFF)
    return kZRStatusFirstParameter + 1;
  if (!out)
    return kZRStatusFirstParameter + 2;
  if (length <= kZRUtf8Short)
    return ZRMutableStringCreateFromUniChars(units, 0, (ZRLong)length, out);
  // No more room than needed: what is left over would last as long as the string.
  ZRMutableStringCreateEmpty(&string);
  ZRMutableStringGetBufferWithCapacity(string, onStack ? (ZRLong)length : ZRUtf8Room(size, length),
                                       &buffer);
  if (!buffer) {
    ZRMutableStringDestroy(string);
    return kZRStatusNoMemory;
  }
  if (onStack)
    ZR_UTF8_COPY(buffer, units, length * sizeof *units);
  else
    ZRUtf8Decode(&next, end, end, buffer);
  ZRMutableStringReleaseBuffer(string, (ZRLong)length);
  *out = string;
  return kZRStatusSuccess;
}

/// Creates a string from `size` bytes of UTF-8; #ZR_TO_ZERO_BYTE: up to the zero byte.
/// @return 0; 4 text is null; 5 the text has 2^31 units or more; 6 out is null; #kZRStatusNoMemory.
ZR_UTF8_INLINE ZRLong ZRStringCreateFromUtf8(const char* text, size_t size, ZRStringRef__** out) {
  ZRMutableStringRef__* string;
  const ZRLong status = ZRMutableStringCreateFromUtf8(text, size, out ? &string : NULL);
  if (status == kZRStatusSuccess)
    *out = (ZRStringRef__*)string;
  return status;
}

/// Appends `size` bytes of UTF-8; #ZR_TO_ZERO_BYTE: up to the zero byte.
/// @return 0; 4 string is null; 5 text is null; #kZRStatusTextLost: ICU could not append the text,
///         or `string` had no text before.
ZR_UTF8_INLINE ZRLong ZRMutableStringAppendUtf8(ZRMutableStringRef__* string, const char* text,
                                                size_t size) {
  const unsigned char* next = (const unsigned char*)text;
  const unsigned char* end;
  unsigned short units[kZRUtf8Chunk + 1];
  unsigned short* buffer;
  size_t length;
  if (!string)
    return kZRStatusFirstParameter;
  if (!text)
    return kZRStatusFirstParameter + 1;
  end = ZRUtf8End(text, size);
  do {
    length = ZRUtf8Decode(&next, end - next < kZRUtf8Chunk ? end : next + kZRUtf8Chunk, end, units);
    ZRMutableStringAppendUniChars(string, units, 0, (ZRLong)length);
    ZRStringGetBuffer((ZRStringRef__*)string, &buffer);
  } while (buffer && next != end);
  if (!buffer)
    return kZRStatusTextLost;
  return kZRStatusSuccess;
}

/// Gets the number of bytes that a string takes in UTF-8, without a zero byte at the end.
/// @return 0; 4 string is null; 5 size is null.
ZR_UTF8_INLINE ZRLong ZRStringGetUtf8Size(ZRStringRef__* string, size_t* size) {
  const ZRUtf8Unit *units, *end;
  if (!string)
    return kZRStatusFirstParameter;
  if (!size)
    return kZRStatusFirstParameter + 1;
  ZRUtf8UnitsOf(string, &units, &end);
  *size = ZRUtf8CountBytes(units, end);
  return kZRStatusSuccess;
}

/// Copies a string as UTF-8 to `dst`, which has room for `capacity` bytes, and adds a zero byte.
///
/// `*size` becomes the size of the whole text without the zero byte, as from
/// ZRStringGetUtf8Size(). If it is not below `capacity`, the text did not fit: as many whole
/// characters were copied as fit before the zero byte. With a capacity of 0, nothing is written to
/// `dst`, which may then be null.
/// @return 0; 4 string is null; 5 dst is null and capacity is not 0; 7 size is null.
ZR_UTF8_INLINE ZRLong ZRStringExtractIntoUtf8(ZRStringRef__* string, char* dst, size_t capacity,
                                              size_t* size) {
  const ZRUtf8Unit *units, *end;
  size_t needed;
  size_t written = 0;
  if (!string)
    return kZRStatusFirstParameter;
  if (!dst && capacity > 0)
    return kZRStatusFirstParameter + 1;
  if (!size)
    return kZRStatusFirstParameter + 3;
  ZRUtf8UnitsOf(string, &units, &end);
  needed = ZRUtf8CountBytes(units, end);
  if (needed < capacity) {
    written = ZRUtf8Encode(&units, end, end, dst);
  } else {
    while (written < capacity) {
      char character[4];
      const size_t more = ZRUtf8Encode(&units, units + 1, end, character);
      if (capacity - written <= more)
        break;
      ZR_UTF8_COPY(dst + written, character, more);
      written += more;
    }
  }
  if (capacity > 0)
    dst[written] = 0;
  *size = needed;
  return kZRStatusSuccess;
}

#if ZR_UTF8_HOSTED

/// Copies a string as UTF-8, with a zero byte at the end, into memory that the caller must `free`.
///
/// `*size`, unless `size` is null, becomes the size without that zero byte. Declared only where the
/// compiler finds `<stdlib.h>`.
/// @return 0; 4 string is null; 5 out is null; #kZRStatusNoMemory: `malloc` failed.
ZR_UTF8_INLINE ZRLong ZRStringAllocateUtf8(ZRStringRef__* string, char** out, size_t* size) {
  const ZRUtf8Unit *units, *end;
  size_t needed;
  char* text;
  if (!string)
    return kZRStatusFirstParameter;
  if (!out)
    return kZRStatusFirstParameter + 1;
  ZRUtf8UnitsOf(string, &units, &end);
  needed = ZRUtf8CountBytes(units, end);
  text = (char*)malloc(needed + 1);
  if (!text)
    return kZRStatusNoMemory;
  ZRUtf8Encode(&units, end, end, text);
  text[needed] = 0;
  *out = text;
  if (size)
    *size = needed;
  return kZRStatusSuccess;
}

#endif

/// @cond
#undef ZR_UTF8_INLINE
#undef ZR_UTF8_COPY
#undef ZR_UTF8_HOSTED
#undef ZR_UTF8_SSE2
#undef ZR_UTF8_NEON
/// @endcond

#endif
