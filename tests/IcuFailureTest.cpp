// What a failing ICU leaves, and several threads at the first and later uses of the collator.
#include <ZRString/ZRStringMutator.h>
#include <gtest/gtest.h>
#include <unicode/locid.h>
#include <unicode/normlzr.h>
#include <unicode/tblcoll.h>

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <thread>
#include <vector>

#include "Text.h"

namespace {

std::atomic<int> creations{0};
bool failing = true;

int Collated() { return Make(u"a").ICompare(0, -1, Make(u"z"), 0, -1, 3); }

/// Collates in four threads: in two at once, and in two when one of these has. The counter orders
/// nothing else, so the thread sanitizer still sees what the library does not order.
void CollateInThreads(int expected) {
  std::atomic<int> done{0};
  std::vector<std::thread> threads;
  for (const bool late : {false, false, true, true})
    threads.emplace_back([&done, late, expected] {
      while (late && done.load(std::memory_order_relaxed) == 0)
        std::this_thread::yield();
      EXPECT_EQ(Collated(), expected);
      done.fetch_add(1, std::memory_order_relaxed);
    });
  for (std::thread& thread : threads)
    thread.join();
}

}  // namespace

/// Replaces ICU's function, for the library too. In Swedish, A is after Z here.
icu::Collator* icu::Collator::createInstance(const icu::Locale& locale, UErrorCode& status) {
  ++creations;
  std::this_thread::sleep_for(std::chrono::milliseconds(50));  // lets first uses overlap
  if (failing)
    status = U_MEMORY_ALLOCATION_ERROR;
  const bool swedish = locale == icu::Locale("sv");
  return failing ? nullptr : new icu::RuleBasedCollator(swedish ? u"&z<a" : u"", status);
}

/// Replaces ICU's function and always fails.
void icu::Normalizer::normalize(const icu::UnicodeString&, UNormalizationMode, std::int32_t,
                                icu::UnicodeString&, UErrorCode& status) {
  status = U_MEMORY_ALLOCATION_ERROR;
}

TEST(Normalize, LeavesTheStringWhenIcuFails) {
  ZRStringMutator string(Make(u"e\u0301"));
  EXPECT_EQ(string.Normalize(kZRNormalizationNFC), 0);
  EXPECT_EQ(TextOf(string), u"e\u0301");
}

TEST(ProcessCollator, IsMadeOnceForTheFirstDefaultLocaleAndTriedAgainAfterFailure) {
  std::atexit([] {  // after the destruction of the collator, which is still to be made
    if (Collated() != 0)
      std::_Exit(1);
  });
  UErrorCode status = U_ZERO_ERROR;
  icu::Locale::setDefault(icu::Locale("sv"), status);
  EXPECT_EQ(Make(u"a").ICompare(0, -1, Make(u"A"), 0, -1, 0), 0);  // needs no collator
  const ZRString same = Make(u"a");
  EXPECT_EQ(same.ICompare(0, -1, same, 0, -1, 3), 0);
  EXPECT_EQ(creations, 1);  // tried, although the texts are equal
  CollateInThreads(0);
  EXPECT_EQ(creations, 5);
  icu::Locale::setDefault(icu::Locale("en_US"), status);
  failing = false;
  CollateInThreads(1);
  EXPECT_EQ(creations, 6);
}
