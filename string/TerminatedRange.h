#ifndef ZRSTRING_STRING_TERMINATEDRANGE_H
#define ZRSTRING_STRING_TERMINATEDRANGE_H

#include <unicode/ustring.h>

#include "string/CodeUnits.h"
#include "string/Range.h"

/// A copy of a range of a raw text, cut to that text, which ends before its first zero unit.
inline icu::UnicodeString TerminatedRange(const unsigned short* text, ZRLong start, ZRLong length) {
  if (!text)
    return icu::UnicodeString();
  const icu::UnicodeString whole(true, icu::ConstChar16Ptr(text), -1);  // an alias, not a copy
  return length == kToEnd ? icu::UnicodeString(whole, start)
                          : icu::UnicodeString(whole, start, length);
}

#endif
