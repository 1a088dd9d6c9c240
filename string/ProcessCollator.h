#ifndef ZRSTRING_STRING_PROCESSCOLLATOR_H
#define ZRSTRING_STRING_PROCESSCOLLATOR_H

#include <unicode/unistr.h>

#include "string/CodeUnits.h"

/// Compares two texts in the order of the process collator: -1, 0 or +1.
///
/// The process collator is that of the default locale at the first call; it is kept until the
/// library is unloaded. Without one the result is 0, and the next call tries again to make it.
/// Safe for concurrent use, the first included.
[[gnu::noinline]] signed char Collate(const icu::UnicodeString& first,
                                      const icu::UnicodeString& second);

/// As above. A count of -1 in `second` means up to its terminating zero unit.
[[gnu::noinline]] signed char Collate(Units first, Units second);

#endif
