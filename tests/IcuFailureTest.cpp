// What a failing ICU leaves: the text of a string, and a collator that is still to be made.
#include <ZRString/ZRStringMutator.h>
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <unicode/coll.h>
#include <unicode/locid.h>
#include <unicode/normlzr.h>

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <string>
#include <thread>

#include "Text.h"

#define ZR_STRING(text) #text
#define ZR_EXPANDED(text) ZR_STRING(text)

namespace {

std::atomic<int> creations{0};
bool failing = true;
std::string createdFor;

int Collated(const char16_t* left, const char16_t* right) {
  return Make(left).ICompare(0, -1, Make(right), 0, -1, 3);
}

/// Created before the process collator, and so destroyed after it.
struct LastComparison {
  ~LastComparison() {
    if (Collated(u"a", u"b") != 0)
      std::_Exit(1);
  }
} lastComparison;

}  // namespace

/// Replaces ICU's function, for the library too, and can fail.
icu::Collator* icu::Collator::createInstance(const icu::Locale& locale, UErrorCode& status) {
  ++creations;
  std::this_thread::sleep_for(std::chrono::milliseconds(50));  // lets first uses overlap
  createdFor = locale.getName();
  if (failing) {
    status = U_MEMORY_ALLOCATION_ERROR;
    return nullptr;
  }
  using Original = icu::Collator* (*)(const icu::Locale&, UErrorCode&);
  const std::string icuNamespace = ZR_EXPANDED(U_ICU_NAMESPACE);
  const std::string symbol = "_ZN" + std::to_string(icuNamespace.size()) + icuNamespace +
                             "8Collator14createInstanceERKNS_6LocaleER10UErrorCode";
  static const auto original = reinterpret_cast<Original>(dlsym(RTLD_NEXT, symbol.c_str()));
  return original(locale, status);
}

/// Replaces ICU's function and always fails.
void icu::Normalizer::normalize(const icu::UnicodeString&, UNormalizationMode, std::int32_t,
                                icu::UnicodeString& result, UErrorCode& status) {
  result.remove();
  status = U_MEMORY_ALLOCATION_ERROR;
}

TEST(Normalize, LeavesTheStringWhenIcuFails) {
  ZRStringMutator string(Make(u"e\u0301"));
  const ZRString sharer(string);
  EXPECT_EQ(string.Normalize(kZRNormalizationNFC), 0);
  EXPECT_EQ(TextOf(string), u"e\u0301");
  EXPECT_EQ(BodyOf(string), BodyOf(sharer));
}

TEST(ProcessCollator, IsMadeOnceForTheFirstDefaultLocaleAndTriedAgainAfterFailure) {
  UErrorCode status = U_ZERO_ERROR;
  icu::Locale::setDefault(icu::Locale("sv"), status);
  EXPECT_EQ(Make(u"a").ICompare(0, -1, Make(u"A"), 0, -1, 0), 0);
  EXPECT_EQ(creations, 0);
  EXPECT_EQ(Collated(u"\u00E4", u"z"), 0);
  icu::Locale::setDefault(icu::Locale("en_US"), status);
  EXPECT_EQ(Collated(u"a", u"b"), 0);
  EXPECT_EQ(creations, 2);
  failing = false;
  std::thread other([] { EXPECT_EQ(Collated(u"a", u"b"), -1); });
  EXPECT_EQ(Collated(u"\u00E4", u"z"), 1);  // Swedish order
  EXPECT_EQ(Collated(u"a", u"b"), -1);
  other.join();
  EXPECT_EQ(creations, 3);
  EXPECT_EQ(createdFor, "sv");
}
