#include <valgrind/callgrind.h>

#include <string>

#include "Operations.h"

// Runs every call a fixed number of times and has callgrind dump the instructions of each: one dump
// for the ICU call and one for the library's, named "kind|name|side". Only what lies between the
// two toggles is counted; run it with --collect-atstart=no.

namespace {

constexpr std::int32_t kTextLength = 20;
constexpr int kWarmUp =
    16;  // binds the symbols, loads ICU's data, makes buffers as large as needed
constexpr int kCalls = 1000;

template <typename Restore>
void Count(const std::string& dumpName, Texts& texts, ZRLong (*call)(Texts&), Restore restore) {
  for (int i = 0; i < kWarmUp + kCalls; ++i) {
    if (i == kWarmUp)
      CALLGRIND_ZERO_STATS;
    restore();
    CALLGRIND_TOGGLE_COLLECT;
    call(texts);
    CALLGRIND_TOGGLE_COLLECT;
  }
  CALLGRIND_DUMP_STATS_AT(dumpName.c_str());
}

void CountAll(const std::string& kind, const std::vector<Operation>& operations) {
  for (const Operation& operation : operations) {
    const std::string name = kind + "|" + operation.name;
    Texts texts(kTextLength);
    Count(name + "|icu", texts, operation.icu, [&] { texts.RestoreIcu(operation.before); });
    Count(name + "|library", texts, operation.library,
          [&] { texts.RestoreString(operation.before); });
  }
}

}  // namespace

int main() {
  CountAll("member", Queries());
  CountAll("member", Edits());
  CountAll("handle", HandleFunctions());
  CountAll("creation", Creations());
}
