#include "string/ProcessCollator.h"

#include <unicode/coll.h>
#include <unicode/locid.h>

#include <atomic>
#include <memory>
#include <mutex>

namespace {

/// Set when the collator has been destroyed. A static object of the host may still compare strings
/// in its destructor.
std::atomic<bool> released{false};

/// The pointer is written once, with `creation` locked, and read without the lock.
struct CollatorOwner {
  ~CollatorOwner() {
    released = true;
    delete collator.load(std::memory_order_relaxed);
  }

  std::mutex creation;
  std::atomic<const icu::Collator*> collator{nullptr};
};

const icu::Collator* ProcessCollator() {
  if (released.load(std::memory_order_relaxed))
    return nullptr;
  // Local statics are destroyed in reverse order: the locale first, then the collator.
  static CollatorOwner owner;
  if (const icu::Collator* existing = owner.collator.load(std::memory_order_acquire))
    return existing;
  static const icu::Locale locale;

  const std::lock_guard<std::mutex> lock(owner.creation);
  if (const icu::Collator* existing = owner.collator.load(std::memory_order_relaxed))
    return existing;
  UErrorCode status = U_ZERO_ERROR;
  std::unique_ptr<icu::Collator> created(icu::Collator::createInstance(locale, status));
  if (U_FAILURE(status))
    return nullptr;
  owner.collator.store(created.get(), std::memory_order_release);
  return created.release();
}

}  // namespace

signed char Collate(const icu::UnicodeString& first, const icu::UnicodeString& second) {
  const icu::Collator* const collator = ProcessCollator();
  UErrorCode status = U_ZERO_ERROR;
  return static_cast<signed char>(collator ? collator->compare(first, second, status) : UCOL_EQUAL);
}

signed char Collate(Units first, Units second) {
  const icu::Collator* const collator = ProcessCollator();
  UErrorCode status = U_ZERO_ERROR;
  return static_cast<signed char>(
      collator ? collator->compare(first.first, first.count, second.first, second.count, status)
               : UCOL_EQUAL);
}
