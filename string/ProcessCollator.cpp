#include "string/ProcessCollator.h"

#include <unicode/coll.h>
#include <unicode/locid.h>

#include <atomic>
#include <memory>
#include <mutex>

namespace {

/// Created with the owner's lock, and read without it. Null until it has been created, and
/// again when it has been destroyed.
std::atomic<const icu::Collator*> processCollator{nullptr};

/// Set at exit or unloading. A static object of the host may still compare strings in its
/// destructor.
std::atomic<bool> released{false};

struct CollatorOwner {
  ~CollatorOwner() {
    released = true;
    delete processCollator.exchange(nullptr, std::memory_order_relaxed);
  }

  std::mutex creation;
};

const icu::Collator* CreatedCollator() {
  if (released.load(std::memory_order_relaxed))
    return nullptr;
  static CollatorOwner owner;
  static const icu::Locale locale;

  const std::lock_guard<std::mutex> lock(owner.creation);
  if (const icu::Collator* existing = processCollator.load(std::memory_order_relaxed))
    return existing;
  UErrorCode status = U_ZERO_ERROR;
  std::unique_ptr<icu::Collator> created(icu::Collator::createInstance(locale, status));
  if (U_FAILURE(status))
    return nullptr;
  processCollator.store(created.get(), std::memory_order_release);
  return created.release();
}

signed char CollateBy(const icu::Collator& collator, const icu::UnicodeString& first,
                      const icu::UnicodeString& second) {
  if (&first == &second && first.getBuffer())
    return 0;
  UErrorCode status = U_ZERO_ERROR;
  return static_cast<signed char>(collator.compare(first, second, status));
}

signed char CollateBy(const icu::Collator& collator, const Units& first, const Units& second) {
  if (first.first && first.first == second.first && first.count == second.count)
    return 0;
  UErrorCode status = U_ZERO_ERROR;
  return static_cast<signed char>(
      collator.compare(first.first, first.count, second.first, second.count, status));
}

/// Creates the collator, even for equal texts: its locale is the default one at the first call.
template <typename Text>
[[gnu::noinline, gnu::cold]] signed char CollateFirst(const Text& first, const Text& second) {
  const icu::Collator* const collator = CreatedCollator();
  return collator ? CollateBy(*collator, first, second) : 0;
}

template <typename Text>
signed char CollateAny(const Text& first, const Text& second) {
  const icu::Collator* const collator = processCollator.load(std::memory_order_acquire);
  return collator ? CollateBy(*collator, first, second) : CollateFirst(first, second);
}

}  // namespace

signed char Collate(const icu::UnicodeString& first, const icu::UnicodeString& second) {
  return CollateAny(first, second);
}

signed char Collate(Units first, Units second) { return CollateAny(first, second); }
