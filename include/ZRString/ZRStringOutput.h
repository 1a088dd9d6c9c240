#ifndef ZRSTRING_ZRSTRINGOUTPUT_H
#define ZRSTRING_ZRSTRINGOUTPUT_H

#include <ZRString/ZRString.h>

#include <ios>
#include <ostream>
#include <sstream>

/// @file
/// Strings in standard output streams whose characters are UTF-16 code units.
///
/// Inserting strings works on any such stream. Everything else that a stream does with characters
/// of its own (padding, `fill()`, `std::endl`) needs this header in *every* file of the program
/// that uses a stream of `unsigned short`, before its first use there: one file without it can
/// bring in the standard library's own version of the function below, for the whole program, and
/// `std::endl` then throws `std::bad_cast`.
///
/// Insertion is that of a null-terminated character string: the text ends at its first zero unit,
/// width and fill apply, the width is reset to 0, and failures are found in the stream's state.
/// `std::bad_alloc` may be thrown before anything is written. Numbers still cannot be inserted:
/// standard libraries have no facet that formats them for this type.

/// Widens an ASCII character, as a fill or as a line's end, to a code unit.
///
/// Streams widen through the locale's `std::ctype` facet, which no standard library provides for
/// `unsigned short`: without this specialization padding fails, and `fill()` and `std::endl` throw.
/// The standard does not allow a program to specialize a member of its classes for a fundamental
/// type; the known standard libraries accept it. The alternative, a facet of our own, would have to
/// be put into each stream's locale, also into those made before the host's next change of the
/// global locale.
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
