#ifndef ZRSTRING_STRING_WINDOWS1252_H
#define ZRSTRING_STRING_WINDOWS1252_H

#include <cstdint>

/// Decodes `count` bytes of the code page windows-1252 into as many units.
///
/// The units are those of ICU's converter of that name. The code page has one unit for each byte,
/// so a table does without opening a converter, which costs more than a short text and needs
/// memory, and without the converter's limit of 0x33333332 bytes in ICU 72.
void DecodeWindows1252(const char* bytes, std::int32_t count, char16_t* units);

#endif
