#ifndef ZRSTRING_STRING_ZRSTRINGIMPLEMENTATION_H
#define ZRSTRING_STRING_ZRSTRINGIMPLEMENTATION_H

#include <ZRString/ZRString.h>
#include <unicode/unistr.h>

#include <utility>

/// Throws std::bad_alloc. A function, because some files that include this one are compiled without
/// exceptions.
[[noreturn]] void ThrowBadAlloc();

/// The body that strings share: one allocation that holds the count and the text.
///
/// Edits happen at a count of 1. A shared body changes in two cases only: through a writable buffer
/// that was open already when the body was shared, and when a terminated buffer is asked for, which
/// may move the units. No two bodies share storage inside ICU, so nothing that is done to one needs
/// memory because of another.
struct ZRStringImplementation : ZRStringHolderCount {
  /// An empty body.
  ZRStringImplementation() = default;

  /// A body with the text of `source`, ICU's error state included. Throws std::bad_alloc where the
  /// text cannot be copied.
  explicit ZRStringImplementation(const icu::UnicodeString& source) : text(source) {
    // ICU's copies of a long text share its storage. What one of them then does in storage of its
    // own needs memory, and without memory ICU loses the text.
    if (text.getBuffer() == source.getBuffer() && !text.isEmpty()) {
      text.setTo(source.getBuffer(), source.length());
      if (text.isBogus())
        ThrowBadAlloc();
    }
  }

  /// A body that takes over the text of `source`, ICU's error state included.
  explicit ZRStringImplementation(icu::UnicodeString&& source) : text(std::move(source)) {}

  /// A body with the text that an icu::UnicodeString constructor makes of these arguments. Throws
  /// std::bad_alloc where that leaves ICU's error state, for want of memory or for a text that is
  /// longer than ICU can hold.
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
