#ifndef ZRSTRING_ZRSTRINGOUTPUT_H
#define ZRSTRING_ZRSTRINGOUTPUT_H

#include <ZRString/ZRString.h>

#include <ios>
#include <ostream>
#include <sstream>

/// @file
/// Strings in standard output streams whose characters are UTF-16 code units.
///
/// Including this header is all that such a stream needs: field width, fill, adjustment and
/// `std::endl` work on it whatever its locale. Include it before anything else uses a stream of
/// `unsigned short`.
///
/// Insertion is that of a null-terminated character string: the text ends at its first zero unit,
/// width and fill apply, the width is reset to 0, and failures are found in the stream's state.
/// `std::bad_alloc` may be thrown before anything is written. Numbers still cannot be inserted:
/// standard libraries have no facet that formats them for this type.

/// Widens an ASCII character, as a fill or as a line's end, to a code unit.
///
/// Standard libraries take this from the facet `std::ctype` of the stream's locale, which none has
/// for `unsigned short`: a stream then fails when it pads and throws on `fill()` and `std::endl`.
/// A facet of our own would have to be put into each stream's locale, also into those made before
/// the host's next change of the global locale. Widening needs no locale, so it is given here, once
/// for every stream of the type, and no locale is touched.
template <>
inline unsigned short std::basic_ios<unsigned short>::widen(char character) const {
  return static_cast<unsigned char>(character);
}

/// Inserts `string` into `stream`. @return `stream`
ZR_API std::basic_ostream<unsigned short>& ZR_CALL
SerializeBasicStream(const ZRString& string, std::basic_ostream<unsigned short>& stream);

/// Inserts `string`. @return `stream`
ZR_API std::basic_ostream<unsigned short>& ZR_CALL
operator<<(std::basic_ostream<unsigned short>& stream, const ZRString& string);

/// Inserts `string`. @return `stream`, still as a string stream
ZR_API std::basic_ostringstream<unsigned short>& ZR_CALL
operator<<(std::basic_ostringstream<unsigned short>& stream, const ZRString& string);

/// Inserts a zero-terminated 8-bit text, decoded from the code page windows-1252; a null `text` is
/// an empty one. @return `stream`, still as a string stream
ZR_API std::basic_ostringstream<unsigned short>& ZR_CALL
operator<<(std::basic_ostringstream<unsigned short>& stream, const char* text);

#endif
