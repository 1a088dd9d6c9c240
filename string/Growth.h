#ifndef ZRSTRING_STRING_GROWTH_H
#define ZRSTRING_STRING_GROWTH_H

#include <ZRString/ZRStringMutator.h>
#include <unicode/unistr.h>

#include <cstdint>

#include "string/Range.h"

// The guard of edits that add units. ICU 72 gives a text that grows to 0x7FFFFFF7 units or more
// room for 0x7FFFFFF6, and writes the rest past the end of it. Padding and case mapping ask ICU for
// the exact size, which it refuses; normalization uses no more than it gets.

/// The length of the longest text that an edit may make.
constexpr std::int32_t kMaxGrown = kMaxLength + 1;

/// Whether a text may become too long because `added` units join it, or a negative number of them,
/// which must be measured first. Cheap: for a sum that is too long, one of the two must be large.
inline bool MayOutgrow(const icu::UnicodeString& text, std::int32_t added) {
  return text.length() > kMaxGrown / 2 || static_cast<std::uint32_t>(added) > kMaxGrown / 2;
}

/// Replaces a range of `text` by other units. If the text would become too long, puts it into the
/// error state instead, where ICU puts it when it has no memory.
void ReplaceUnlessTooLong(icu::UnicodeString& text, ZRLong start, ZRLong length, Units added);

/// The edits for which MayOutgrow() is true, as replacements of a range of a string that is not
/// shared. They return the string, so that an edit can end in their call.
struct ZRStringLongEdit {
  [[gnu::noinline, gnu::cold]] static ZRStringMutator& Replace(ZRStringMutator& edited,
                                                               ZRLong start, ZRLong length,
                                                               const ZRString& source,
                                                               ZRLong srcStart, ZRLong srcLength);
  [[gnu::noinline, gnu::cold]] static ZRStringMutator& Replace(ZRStringMutator& edited,
                                                               ZRLong start, ZRLong length,
                                                               const unsigned short* text,
                                                               ZRLong srcStart, ZRLong srcLength);
};

#endif
