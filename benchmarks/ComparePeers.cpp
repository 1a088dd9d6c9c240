#include <benchmark/benchmark.h>
#include <unicode/uvernum.h>

#include <cstdio>
#include <fstream>
#include <functional>
#include <random>
#include <utility>

#include "Peers.h"

// Times what users do with strings, with this library's and with its peers. Every benchmark is
// named "row|peer"; report.py makes the table and the picture of a run's output.

namespace {

constexpr const char* kWordList = "/usr/share/dict/french";
constexpr std::size_t kWords = 100'000;
constexpr int kAppended = 1'000;

/// `length` units of a sentence, the last ones replaced by `end`.
std::u16string Text(std::size_t length, std::u16string_view end) {
  constexpr std::u16string_view kSentence = u"the brown fox jumps over lazy dogs ";
  std::u16string text;
  while (text.size() < length)
    text += kSentence;
  return text.replace(length - end.size(), std::u16string::npos, end);
}

/// The words in an order that is random, but the same in every run; none without the list.
std::vector<std::u16string> Words() {
  std::vector<std::u16string> words;
  std::ifstream file(kWordList);
  for (std::string line; std::getline(file, line);) {
    const icu::UnicodeString word = icu::UnicodeString::fromUTF8(line);
    words.emplace_back(word.getBuffer(), word.length());
  }
  std::mt19937 random;
  for (std::size_t i = words.size(); i > 1; --i)
    std::swap(words[i - 1], words[random() % i]);
  if (words.size() < kWords)
    return {};
  words.resize(kWords);
  return words;
}

template <typename Peer, typename Function>
void Add(const char* row, Function function) {
  const std::string name = std::string(row) + "|" + Peer::kName;
  benchmark::RegisterBenchmark(name.c_str(), [function](benchmark::State& state) {
    for (auto _ : state)
      function();
  });
}

/// A row whose function makes a value of two texts.
template <typename Peer, typename Function>
void AddFor(const char* row, std::u16string_view first, std::u16string_view second, Function make) {
  Add<Peer>(row, [first = Peer::Make(first), second = Peer::Make(second), make] {
    benchmark::DoNotOptimize(make(first, second));
  });
}

template <typename Peer, typename Order>
void AddSort(const char* row, const std::vector<typename Peer::String>& words, Order order) {
  const std::string name = std::string(row) + "|" + Peer::kName;
  benchmark::RegisterBenchmark(name.c_str(), [&words, order](benchmark::State& state) {
    for (auto _ : state) {
      state.PauseTiming();
      std::vector<typename Peer::String> sorted(words);
      state.ResumeTiming();
      std::sort(sorted.begin(), sorted.end(), order);
      state.PauseTiming();
      sorted.clear();
      state.ResumeTiming();
    }
  });
}

const std::u16string kShort = Text(20, u"quay");

template <typename String>
void CopyAndDestroy(const String& text) {
  String copy(text);
  benchmark::DoNotOptimize(copy);
}

template <typename Peer>
void AddStrings(const std::vector<typename Peer::String>& words) {
  using String = typename Peer::String;
  Add<Peer>("copy and destroy, 20 units", [text = Peer::Make(kShort)] { CopyAndDestroy(text); });
  Add<Peer>("copy and destroy, 2,000 units",
            [text = Peer::Make(Text(2000, u"quay"))] { CopyAndDestroy(text); });
  Add<Peer>("create from 20 units", [] { benchmark::DoNotOptimize(Peer::Make(kShort)); });
  AddFor<Peer>("find in 4,096 units", Text(4096, u"jumped"), u"jumped", Peer::Find);
  AddFor<Peer>("compare 1,024 units", Text(1024, u"quay"), Text(1024, u"quaz"), Peer::Compare);
  Add<Peer>("append 1,000 units one by one", [] {
    String text;
    for (int i = 0; i < kAppended; ++i)
      Peer::Append(text, static_cast<char16_t>('a' + i % 16));
    benchmark::DoNotOptimize(text);
  });
  Add<Peer>("write 1,000 units into a buffer", [] {
    String text;
    Peer::Build(text, kAppended, [](auto* units) {
      for (int i = 0; i < kAppended; ++i)
        units[i] = static_cast<char16_t>('a' + i % 16);
    });
    benchmark::DoNotOptimize(text);
  });
  if (!words.empty())
    AddSort<Peer>("sort 100,000 words by units", words, std::less<String>());
}

template <typename Peer>
void AddUnicode(const std::vector<typename Peer::String>& words) {
  const auto nfc = [](const auto& text, const auto&) { return Peer::Nfc(text); };
  const auto upper = [](const auto& text, const auto&) { return Peer::Upper(text); };
  AddFor<Peer>("compare 20 units without case", kShort, u"THE BROWN FOX JUQUAY", Peer::ICompare);
  AddFor<Peer>("20 units in upper case", kShort, u"", upper);
  AddFor<Peer>("NFC of 20 composed units", kShort, u"", nfc);
  AddFor<Peer>("NFC of 20 decomposed units", u"xe\u0301xe\u0301xe\u0301xe\u0301xe\u0301xe\u0301xe",
               u"", nfc);
  if (!words.empty())
    AddSort<Peer>("sort 100,000 words by collation", words, typename Peer::Collated());
}

template <typename Peer>
void AddRecords(const std::vector<typename Peer::String>& words) {
  if (words.empty())
    return;
  const auto records = std::make_shared<typename Peer::Records>(words);
  Add<Peer>("write 100,000 records", [records] { records->Write(); });
  Add<Peer>("read 100,000 records", [records] { records->Read(); });
}

template <typename Peer, typename... Adds>
void AddPeer(const std::vector<std::u16string>& words, Adds... adds) {
  static std::vector<typename Peer::String> strings;
  for (const std::u16string& word : words)
    strings.push_back(Peer::Make(word));
  (adds(strings), ...);
}

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv))
    return 1;

  UErrorCode status = U_ZERO_ERROR;
  icu::Locale::setDefault(icu::Locale(kLocale), status);
  const std::vector<std::u16string> words = Words();
  if (words.empty())
    std::fprintf(stderr, "%s not found or too short: no sorting, no records\n", kWordList);
  std::string versions = std::string("GCC ") + __VERSION__ + ", ICU " U_ICU_VERSION;
  AddPeer<ZRPeer>(words, AddStrings<ZRPeer>, AddUnicode<ZRPeer>, AddRecords<ZRPeer>);
  AddPeer<IcuPeer>(words, AddStrings<IcuPeer>, AddUnicode<IcuPeer>);
#ifdef ZRSTRING_HAVE_QT
  AddPeer<QtPeer>(words, AddStrings<QtPeer>, AddUnicode<QtPeer>, AddRecords<QtPeer>);
  versions += ", Qt " QT_VERSION_STR;
#endif
  AddPeer<StdPeer>(words, AddStrings<StdPeer>);
  benchmark::AddCustomContext("versions", versions);
  benchmark::RunSpecifiedBenchmarks();
}
