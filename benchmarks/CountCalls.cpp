#include <unicode/uvernum.h>
#include <valgrind/callgrind.h>

#include <cstdio>
#include <string>

#include "Calls.h"

// Makes every call a fixed number of times and has callgrind dump the instructions of each: a dump
// named "name|icu" for an ICU call, then one named "name|library" for each call that maps to it.
// Only the code between the two toggles is counted; run it with --collect-atstart=no.

namespace {

// The first calls bind symbols, load ICU's data and make buffers as large as they need to be.
constexpr int kWarmUp = 16;
constexpr int kCalls = 1000;

template <typename Texts>
void Count(const std::string& dump, Texts& texts, Before before, const Call<Texts>& call) {
  const auto& text = before == Before::kText         ? texts.whole
                     : before == Before::kDecomposed ? texts.decomposed
                     : before == Before::kGreek      ? texts.greek
                                                     : texts.spaced;
  texts.edited = decltype(texts.edited)();
  for (int i = 0; i < kWarmUp + kCalls; ++i) {
    if (i == kWarmUp)
      CALLGRIND_ZERO_STATS;
    texts.Restore(text);
    CALLGRIND_TOGGLE_COLLECT;
    call(texts);
    CALLGRIND_TOGGLE_COLLECT;
  }
  CALLGRIND_DUMP_STATS_AT(dump.c_str());
}

}  // namespace

int main() {
  std::printf("GCC %s, ICU %s\n", __VERSION__, U_ICU_VERSION);
  // Each side's strings are made once, those under edit last: which of two buffers has the higher
  // address decides how many instructions ICU needs to see that they do not overlap.
  IcuTexts icu;
  ZRTexts library;
  for (const auto& [name, icuCall, member, functionName, function, before] : AllCalls()) {
    Count(std::string(name) + "|icu", icu, before, icuCall);
    Count(std::string(name) + "|library", library, before, member);
    if (functionName)
      Count(std::string(functionName) + "|library", library, before, function);
  }
}
