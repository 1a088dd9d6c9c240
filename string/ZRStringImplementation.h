#ifndef ZRSTRING_STRING_ZRSTRINGIMPLEMENTATION_H
#define ZRSTRING_STRING_ZRSTRINGIMPLEMENTATION_H

#include <ZRString/ZRString.h>
#include <unicode/unistr.h>

#include <utility>

/// Throws std::bad_alloc. A function because Queries.cpp, which includes this file, is compiled
/// without exceptions.
[[noreturn]] void ThrowBadAlloc();

/// The body that strings share: one allocation that holds the count and ICU's string, to which a
/// long text adds another.
///
/// A body that is edited has one holder. A shared body changes in two cases only: through a
/// writable buffer that was already open when the body was shared, and by GetTerminatedBuffer(),
/// which may move the units. No two bodies share storage inside ICU.
struct ZRStringImplementation : public ZRStringHolderCount {
  /// An empty body.
  ZRStringImplementation() = default;

  /// Copies `source`, ICU's error state included. Throws std::bad_alloc if the text cannot be
  /// copied.
  explicit ZRStringImplementation(const icu::UnicodeString& source) : text(source) {
    // ICU's copies of a long text share its storage until one of them is changed or needs a
    // terminating zero. That copy then needs memory, and ICU 72 loses its text if there is none.
    if (text.getBuffer() == source.getBuffer() && !text.isEmpty()) {
      text.setTo(source.getBuffer(), source.length());
      if (text.isBogus())
        ThrowBadAlloc();
    }
  }

  /// Takes over the text of `source`, ICU's error state included.
  explicit ZRStringImplementation(icu::UnicodeString&& source) : text(std::move(source)) {}

  /// Holds the text that an icu::UnicodeString constructor makes of these arguments. Throws
  /// std::bad_alloc if ICU cannot allocate it or cannot hold a text of that length.
  template <typename First, typename Second, typename... Others>
  ZRStringImplementation(First&& first, Second&& second, Others&&... others)
      : text(std::forward<First>(first), std::forward<Second>(second),
             std::forward<Others>(others)...) {
    if (text.isBogus())
      ThrowBadAlloc();
  }

  ZRStringImplementation(const ZRStringImplementation&) = delete;
  ZRStringImplementation& operator=(const ZRStringImplementation&) = delete;

  icu::UnicodeString text;
};

inline icu::UnicodeString& TextOf(ZRStringHolderCount* body) {
  return static_cast<ZRStringImplementation*>(body)->text;
}

#endif
