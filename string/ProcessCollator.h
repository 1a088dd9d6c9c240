#ifndef ZRSTRING_STRING_PROCESSCOLLATOR_H
#define ZRSTRING_STRING_PROCESSCOLLATOR_H

#include <unicode/unistr.h>

#include "string/CodeUnits.h"

/// Compares two texts in the order of the process collator: -1, 0 or +1. Texts with the same units
/// in memory are equal without reading them.
///
/// The process collator is created for the locale that is the default at the first call, and kept
/// until the library is unloaded. If it cannot be created, the result is 0 and the next call tries
/// again. Several threads may call this at once, the first time too.
[[gnu::noinline]] signed char Collate(const icu::UnicodeString& first,
                                      const icu::UnicodeString& second);

/// Compares units as above. A count of -1 in `second` means up to its terminating zero unit.
[[gnu::noinline]] signed char Collate(Units first, Units second);

#endif
