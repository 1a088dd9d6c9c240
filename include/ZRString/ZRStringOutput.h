#ifndef ZRSTRING_ZRSTRINGOUTPUT_H
#define ZRSTRING_ZRSTRINGOUTPUT_H

#include <ZRString/ZRString.h>

#include <ios>
#include <ostream>
#include <sstream>

/// @file
/// Writes strings to standard streams of `unsigned short`, such as string streams. (Standard file
/// streams cannot convert its units to bytes.) Binary records are in ZRStringStream.h.
///
/// A string is inserted like a null-terminated character string: the text ends at its first zero
/// unit, field width and fill character apply, the width is reset to 0, and failures are reported
/// in the stream's state. `std::bad_alloc` may be thrown before anything is written.
///
/// Every file of a program that uses a stream of `unsigned short` must include this header before
/// it uses one. Inserting strings works without that, but `fill()`, `std::setfill` and `std::endl`
/// do not: they call the specialization below, and one file that does not include it can replace it
/// in the whole program by the standard library's version, which throws `std::bad_cast`. Numbers
/// and single characters cannot be inserted: there is no facet that formats numbers for this type,
/// and a unit is a number. A text of `const unsigned short*` can be inserted into a
/// `std::basic_ostream<unsigned short>&`; into a string stream it is ambiguous.
/// @code
/// std::basic_ostringstream<unsigned short> out;
/// out.width(4);
/// out << ZRString("un", 0, kZRToEnd);
/// assert(out.str().size() == 4 && out.str()[0] == ' ' && out.str()[2] == 'u');
/// @endcode

/// Widens an ASCII character, such as the default fill character, to a code unit.
///
/// Streams widen through the locale's `std::ctype` facet, which libstdc++ does not provide for
/// `unsigned short`. This is a specialization of a standard class's member for a fundamental type,
/// which the C++ standard does not allow and libstdc++ accepts.
template <>
inline unsigned short std::basic_ios<unsigned short>::widen(char character) const {
  return static_cast<unsigned char>(character);
}

/// Inserts `string` into `stream`.
/// @return `stream`
ZR_API std::basic_ostream<unsigned short>& ZR_CALL
SerializeBasicStream(const ZRString& string, std::basic_ostream<unsigned short>& stream);

/// Inserts `string` into `stream`.
/// @return `stream`
ZR_API std::basic_ostream<unsigned short>& ZR_CALL
operator<<(std::basic_ostream<unsigned short>& stream, const ZRString& string);

/// Inserts `string` into `stream`.
/// @return `stream`, as a string stream
ZR_API std::basic_ostringstream<unsigned short>& ZR_CALL
operator<<(std::basic_ostringstream<unsigned short>& stream, const ZRString& string);

/// Inserts a zero-terminated 8-bit text, decoded from the code page windows-1252. A null `text` is
/// an empty text.
///
/// `o << "\x80"` inserts U+20AC. The standard operator, which widens the byte to U+0080, is taken
/// after a manipulator (`o << std::setw(4) << "\x80"`), for a temporary stream, and in a namespace
/// that has an operator<< of its own, which hides this one.
/// @return `stream`, as a string stream
ZR_API std::basic_ostringstream<unsigned short>& ZR_CALL
operator<<(std::basic_ostringstream<unsigned short>& stream, const char* text);

#endif
