#include <benchmark/benchmark.h>

#include <string>

#include "Texts.h"
#include "TimeCalls.h"

#ifdef ZRSTRING_HAVE_QT
#include <QString>
#endif

namespace {

template <typename String>
void CopyAndDestroy(benchmark::State& state, const String& source) {
  for (auto _ : state) {
    String copy(source);
    benchmark::DoNotOptimize(copy);
  }
}

template <typename String>
void Register(int length, const char* side, const String& source) {
  const std::string name = "copy and destroy/" + std::to_string(length) + "/" + side;
  benchmark::RegisterBenchmark(
      name.c_str(), [source](benchmark::State& state) { CopyAndDestroy(state, source); });
}

}  // namespace

void RegisterCopies() {
  for (const int length : kTextLengths) {
    const Texts texts(length);
    const Text& text = texts.text;
    Register(length, "icu", text.icu);
    Register(length, "ZRString", text.string);
    Register(length, "u16string", std::u16string(text.RawIcu(), text.units.size() - 1));
#ifdef ZRSTRING_HAVE_QT
    Register(length, "QString", QString(reinterpret_cast<const QChar*>(text.Raw()), text.length));
#endif
  }
}
