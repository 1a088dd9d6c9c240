#ifndef ZRSTRING_STRING_WINDOWS1252_H
#define ZRSTRING_STRING_WINDOWS1252_H

#include <cstdint>

/// Decodes `count` bytes of the code page windows-1252 into as many units.
///
/// The units are those of ICU's converter of that name. Opening the converter for each string costs
/// more than converting a short text, and needs memory; in ICU 72 converting fails for 0x33333332
/// bytes and more. A table has none of these limits, as the code page has one unit for each byte.
void DecodeWindows1252(const char* bytes, std::int32_t count, char16_t* units);

#endif
