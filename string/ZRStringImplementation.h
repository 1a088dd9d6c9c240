#ifndef ZRSTRING_STRING_ZRSTRINGIMPLEMENTATION_H
#define ZRSTRING_STRING_ZRSTRINGIMPLEMENTATION_H

#include <unicode/unistr.h>

#include <cstdint>
#include <utility>

/// The body that strings share: one allocation that holds the count and the text.
///
/// The count is the number of strings that hold the body; it is 1 at birth and a plain integer.
/// While it is above 1 the units do not change.
struct ZRStringImplementation {
 public:
  /// A body with one holder; the arguments are those of one icu::UnicodeString constructor.
  template <typename... Arguments>
  explicit ZRStringImplementation(Arguments&&... arguments)
      : count_(1), text(std::forward<Arguments>(arguments)...) {}

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
