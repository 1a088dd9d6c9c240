#ifndef ZRSTRING_STRING_ZRSTRINGIMPLEMENTATION_H
#define ZRSTRING_STRING_ZRSTRINGIMPLEMENTATION_H

#include <unicode/unistr.h>

#include <cstdint>
#include <new>
#include <utility>

/// The body that strings share: one allocation that holds the count and the text.
///
/// The count is the number of strings that hold the body; it is 1 at birth and a plain integer.
/// Edits happen at a count of 1. What may change a shared body is a writable buffer that was opened
/// before the body was shared; and its units may move when a terminated buffer is asked for. No two
/// bodies share ICU's storage, so nothing that ICU does to one needs memory because of another.
struct ZRStringImplementation {
 public:
  /// An empty body.
  ZRStringImplementation() : count_(1) {}

  /// A body with the text of `source`, ICU's error state included. Throws std::bad_alloc where the
  /// text cannot be copied.
  explicit ZRStringImplementation(const icu::UnicodeString& source) : count_(1), text(source) {
    // ICU's copies of a long text share its storage. What one of them then does in storage of its
    // own needs memory, and without memory ICU loses the text.
    if (text.getBuffer() == source.getBuffer() && !text.isEmpty()) {
      text.setTo(source.getBuffer(), source.length());
      if (text.isBogus())
        throw std::bad_alloc();
    }
  }

  /// A body that takes over the text of `source`, ICU's error state included.
  explicit ZRStringImplementation(icu::UnicodeString&& source)
      : count_(1), text(std::move(source)) {}

  /// A body with the text that an icu::UnicodeString constructor makes of these arguments. Throws
  /// std::bad_alloc where that leaves ICU's error state, for want of memory or for a text that is
  /// longer than ICU can hold.
  template <typename First, typename Second, typename... Others>
  ZRStringImplementation(First&& first, Second&& second, Others&&... others)
      : count_(1),
        text(std::forward<First>(first), std::forward<Second>(second),
             std::forward<Others>(others)...) {
    if (text.isBogus())
      throw std::bad_alloc();
  }

  ZRStringImplementation(const ZRStringImplementation&) = delete;
  ZRStringImplementation& operator=(const ZRStringImplementation&) = delete;

  bool IsShared() const { return count_ > 1; }

  ZRStringImplementation* TakeShare() {
    ++count_;
    return this;
  }

  /// Ends the caller's use of this body.
  void GiveUpShare() {
    if (count_ < 2)
      delete this;
    else
      --count_;
  }

 private:
  ~ZRStringImplementation() = default;

  std::int32_t count_;

 public:
  icu::UnicodeString text;
};

#endif
