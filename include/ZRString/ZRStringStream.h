#ifndef ZRSTRING_ZRSTRINGSTREAM_H
#define ZRSTRING_ZRSTRINGSTREAM_H

#include <Velmar/IStream.h>
#include <ZRString/ZRString.h>
#include <ZRString/ZRStringMutator.h>
#include <ZRString/ZRStringPtrArray.h>

/// @file
/// Saves strings and arrays to a binary stream of the host, a Velmar::IStream, and restores them.
/// Output to standard streams is in ZRStringOutput.h and ZRStringInterop.h.
///
/// A **string record** is the string's length as a `ZRLong`, then each of its units as an
/// `unsigned short`. An **array record** is the number of entries as a `ZRULong`, then the string
/// record of each entry. Every value is one call of the stream. Units are moved unchanged, zero
/// units and unpaired surrogates included.
///
/// @code
/// struct Numbers : Velmar::IStream {  // a stream in memory, of numbers
///   std::vector<ZRULong> values;
///   std::size_t next = 0;
///   void Write(const ZRLong* value) override { values.push_back(static_cast<ZRULong>(*value)); }
///   void Write(const ZRULong* value) override { values.push_back(*value); }
///   void Write(const unsigned short* value) override { values.push_back(*value); }
///   void Read(ZRLong* value) override { *value = static_cast<ZRLong>(values[next++]); }
///   void Read(ZRULong* value) override { *value = values[next++]; }
///   void Read(unsigned short* value) override {
///     *value = static_cast<unsigned short>(values[next++]);
///   }
/// } stream;
/// stream << ZRString("un", 0, kZRToEnd);
/// assert(stream.values.size() == 3 && stream.values[0] == 2 && stream.values[1] == 'u');
/// ZRStringMutator text;
/// stream >> text;
/// assert(text == ZRString("un", 0, kZRToEnd));
/// @endcode
///
/// Data flows in the direction of the arrows, and every operator returns its stream. Exceptions of
/// the stream pass through, and reading may throw `std::bad_alloc`. Either leaves a mutator as it
/// was, and an array with the entries that were complete. Reading into a mutator ends with SetTo():
/// if ICU has no memory for the text or cannot hold it, the mutator is left in ICU's error state,
/// which ZRStringMutator describes.
///
/// Lengths and counts are trusted: a reader allocates as many units as a length says, and asks the
/// stream for as many strings as a count says.

/// Writes the record of `string`.
ZR_API Velmar::IStream& ZR_CALL operator<<(Velmar::IStream& stream, const ZRString& string);

/// Writes the record of `string`.
ZR_API Velmar::IStream& ZR_CALL operator>>(const ZRString& string, Velmar::IStream& stream);

/// Reads a string record into `string`, which detaches. If the length is 0 or less, reads nothing
/// more and leaves `string` as it was.
ZR_API Velmar::IStream& ZR_CALL operator>>(Velmar::IStream& stream, ZRStringMutator& string);

/// Reads a string record into `string`, as `stream >> string`.
ZR_API Velmar::IStream& ZR_CALL operator<<(ZRStringMutator& string, Velmar::IStream& stream);

/// Writes the record of `array`, which must not hold null entries and is not changed.
ZR_API Velmar::IStream& ZR_CALL operator<<(Velmar::IStream& stream, ZRStringPtrArray& array);

/// Reads an array record and appends its strings to the entries of `array`.
///
/// The strings are created with `new` and belong to the owner of the array, who normally deletes
/// them with ZRStringPtrArray::DeleteAll(). A length of 0 gives an empty string; a negative length
/// throws `std::bad_alloc`.
ZR_API Velmar::IStream& ZR_CALL operator>>(Velmar::IStream& stream, ZRStringPtrArray& array);

#endif
