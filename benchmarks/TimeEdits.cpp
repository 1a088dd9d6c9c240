#include <benchmark/benchmark.h>
#include <unicode/normlzr.h>

#include <string>
#include <vector>

#include "Operations.h"
#include "TimeCalls.h"

namespace {

void NormalizeIcu(icu::UnicodeString& text) {
  UErrorCode status = U_ZERO_ERROR;
  if (icu::Normalizer::quickCheck(text, UNORM_NFC, status) == UNORM_YES)
    return;
  icu::UnicodeString normalized;
  icu::Normalizer::normalize(text, UNORM_NFC, 0, normalized, status);
  text.setTo(normalized.getBuffer(), normalized.length());
}

/// Each leaves the text as it found it, so that it can be repeated without a pause of the clock.
const std::vector<Operation> kEdits = {
    {"append unit by unit",
     [](Texts& t) -> ZRLong {
       t.edited.truncate(0);
       for (ZRLong i = 0; i < t.length; ++i)
         t.edited += static_cast<char16_t>(t.unit);
       return 0;
     },
     [](Texts& t) -> ZRLong {
       t.editedString.Truncate(0);
       for (ZRLong i = 0; i < t.length; ++i)
         t.editedString += t.unit;
       return 0;
     }},
    {"insert and remove",
     [](Texts& t) -> ZRLong {
       t.edited.insert(t.middle, t.pattern.icu, t.start, t.pattern.length);
       t.edited.remove(t.middle, t.pattern.length);
       return 0;
     },
     [](Texts& t) -> ZRLong {
       t.editedString.Insert(t.middle, t.pattern.string, t.start, kToEnd);
       t.editedString.Remove(t.middle, t.pattern.length);
       return 0;
     }},
    {"replace, longer then shorter",
     [](Texts& t) -> ZRLong {
       t.edited.replace(t.middle, t.word.length, t.pattern.icu, t.start, t.pattern.length);
       t.edited.replace(t.middle, t.pattern.length, t.word.icu, t.start, t.word.length);
       return 0;
     },
     [](Texts& t) -> ZRLong {
       t.editedString.Replace(t.middle, t.word.length, t.pattern.string, t.start, kToEnd);
       t.editedString.Replace(t.middle, t.pattern.length, t.word.string, t.start, kToEnd);
       return 0;
     }},
    {"find and replace",
     [](Texts& t) -> ZRLong {
       t.edited.findAndReplace(t.start, t.length, t.word.icu, t.start, t.word.length, t.word.icu,
                               t.start, t.word.length);
       return 0;
     },
     [](Texts& t) -> ZRLong {
       t.editedString.FindAndReplace(t.start, kToEnd, t.word.string, t.start, kToEnd, t.word.string,
                                     t.start, kToEnd);
       return 0;
     }},
    {"copy, then edit the copy",
     [](Texts& t) -> ZRLong {
       icu::UnicodeString copy(t.edited);
       copy.setCharAt(t.middle, t.unit);
       return copy.length();
     },
     [](Texts& t) -> ZRLong {
       ZRStringMutator copy(t.editedString);
       copy.SetCharAt(t.middle, t.unit);
       return copy.GetLength();
     }},
    {"set to decomposed text, normalize",
     [](Texts& t) -> ZRLong {
       t.edited.setTo(t.decomposed.icu, t.start, t.decomposed.length);
       NormalizeIcu(t.edited);
       return 0;
     },
     [](Texts& t) -> ZRLong {
       t.editedString.SetTo(t.decomposed.string, t.start, kToEnd);
       return t.editedString.Normalize(kZRNormalizationNFC);
     }},
    {"normalize composed text",
     [](Texts& t) -> ZRLong {
       NormalizeIcu(t.edited);
       return 0;
     },
     [](Texts& t) -> ZRLong { return t.editedString.Normalize(kZRNormalizationNFC); }},
};

void TimeEdit(benchmark::State& state, ZRLong (*edit)(Texts&), int length) {
  Texts texts(length);
  for (auto _ : state)
    benchmark::DoNotOptimize(edit(texts));
}

}  // namespace

void RegisterEdits() {
  for (const Operation& edit : kEdits) {
    for (const int length : kTextLengths) {
      const std::string name = std::string(edit.name) + "/" + std::to_string(length) + "/";
      benchmark::RegisterBenchmark((name + "icu").c_str(), TimeEdit, edit.icu, length);
      benchmark::RegisterBenchmark((name + "ZRString").c_str(), TimeEdit, edit.library, length);
    }
  }
}
