#ifndef ZRSTRING_ZRSTRINGSTREAM_H
#define ZRSTRING_ZRSTRINGSTREAM_H

#include <Velmar/IStream.h>
#include <ZRString/ZRString.h>
#include <ZRString/ZRStringMutator.h>
#include <ZRString/ZRStringPtrArray.h>

/// @file
/// Strings and arrays saved to and restored from a binary stream of the host.
///
/// A **string record** is the string's length as a `ZRLong`, then each of its units as an
/// `unsigned short`, one call of the stream each. An **array record** is the number of entries as a
/// `ZRULong`, then the string record of each. Units move as they are, zero units and unpaired
/// surrogates included.
///
/// Every operator returns its stream. Data flow with the arrow. What the stream throws passes
/// through, and `std::bad_alloc` may be thrown when reading; both leave the mutator as it was, and
/// the array with the entries that were complete. Reading into a mutator ends in an edit, with what
/// that means when ICU runs out of memory.
///
/// Lengths and counts are trusted. A damaged length makes a reader allocate for it, and a damaged
/// count makes it ask the stream for as many strings.

/// Writes the record of `string`.
ZR_API Velmar::IStream& ZR_CALL operator<<(Velmar::IStream& stream, const ZRString& string);

/// Writes the record of `string`.
ZR_API Velmar::IStream& ZR_CALL operator>>(const ZRString& string, Velmar::IStream& stream);

/// Reads a string record into `string`, which detaches. A record of length 0 or less, of which
/// only the length is read, leaves `string` as it was.
ZR_API Velmar::IStream& ZR_CALL operator>>(Velmar::IStream& stream, ZRStringMutator& string);

/// The same.
ZR_API Velmar::IStream& ZR_CALL operator<<(ZRStringMutator& string, Velmar::IStream& stream);

/// Writes the record of `array`, which must hold no null entry and is not changed.
ZR_API Velmar::IStream& ZR_CALL operator<<(Velmar::IStream& stream, ZRStringPtrArray& array);

/// Reads an array record and appends its strings to `array`, behind what it holds.
///
/// The strings are made with `new` and belong to the owner of the array, who normally releases
/// them with ZRStringPtrArray::DeleteAll(). A record of length 0 gives an empty string; a negative
/// length throws `std::bad_alloc`.
ZR_API Velmar::IStream& ZR_CALL operator>>(Velmar::IStream& stream, ZRStringPtrArray& array);

#endif
