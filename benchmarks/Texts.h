#ifndef ZRSTRING_BENCHMARKS_TEXTS_H
#define ZRSTRING_BENCHMARKS_TEXTS_H

#include <ZRString/ZRString.h>
#include <ZRString/ZRStringMutator.h>
#include <unicode/coll.h>
#include <unicode/unistr.h>

#include <cstdint>
#include <memory>
#include <vector>

constexpr ZRLong kToEnd = -1;

using Units = std::vector<unsigned short>;

/// One text three times over: as units, as ICU's string and as this library's.
struct Text {
  /// `units` with a zero unit after them.
  explicit Text(Units units);
  Text(const Text&) = delete;
  Text& operator=(const Text&) = delete;

  Units units;
  icu::UnicodeString icu;
  ZRString string;
  ZRStringRef__* handle;  ///< that of `string`
  ZRLong length;

  const unsigned short* Raw() const { return units.data(); }
  const char16_t* RawIcu() const { return icu::ConstChar16Ptr(units.data()); }
};

/// What the strings under edit hold before a call.
enum class Before { kWhateverIsThere, kText, kDecomposed, kSpaced };

/// Everything that the calls read and write. No two strings in it share a body or a buffer, and no
/// range is a constant to the compiler.
struct Texts {
  explicit Texts(std::int32_t length);

  void RestoreIcu(Before before);
  void RestoreString(Before before);

  Text text;        ///< `length` units, ASCII
  Text twin;        ///< differs from `text` in the last unit
  Text upper;       ///< `text` in upper case
  Text prefix;      ///< the first half of `text`
  Text suffix;      ///< the second half of `text`
  Text pattern;     ///< occurs once in `text`, at its end
  Text word;        ///< occurs every 35 units in `text`
  Text decomposed;  ///< `length` units, every second letter with a combining accent
  Text spaced;      ///< `text` with four spaces at either end

  ZRLong start = 0;
  ZRLong length;  ///< of `text`
  ZRLong last;    ///< the last index of `text`
  ZRLong middle;
  ZRLong four = 4;
  unsigned short unit = 'q';

  icu::UnicodeString edited;
  ZRStringMutator editedString;
  ZRMutableStringRef__* editedHandle;  ///< that of `editedString`
  ZRStringMutator sourceString;        ///< `text`, for the members that copy from a mutator
  Units target;                        ///< room for `text` and a zero unit

  std::unique_ptr<icu::Collator> collator;
};

#endif
