#include <benchmark/benchmark.h>
#include <unicode/uvernum.h>
#ifdef __GLIBC__
#include <malloc.h>
#endif

#include <cstdio>
#include <fstream>
#include <functional>
#include <random>
#include <utility>

#include "Peers.h"

// Times what users do with strings, with this library's and with its peers. Every benchmark is
// named "row|peer"; report-peers.py makes the tables and the picture from a run's output.

namespace {

constexpr const char* kWordList = "/usr/share/dict/french";
constexpr std::size_t kWords = 100'000;
constexpr int kAppended = 1'000;

/// One cache line: an ICU string that lies across two is copied in twice the time.
constexpr std::size_t kAligned = 64;

/// `length` units of a sentence, the last ones replaced by `end`.
std::u16string Text(std::size_t length, std::u16string_view end) {
  constexpr std::u16string_view kSentence = u"the brown fox jumps over lazy dogs ";
  std::u16string text;
  while (text.size() < length)
    text += kSentence;
  return text.replace(length - end.size(), std::u16string::npos, end);
}

/// The words in a random order that is the same in every run; empty without the list. They are in
/// one piece of memory: strings that are freed before the peers make theirs would leave holes, and
/// the first peer's words would fill them in random order, far from each other.
std::vector<std::u16string_view> Words() {
  static std::u16string text;
  std::vector<std::u16string_view> words;
  std::vector<std::size_t> ends;
  std::ifstream file(kWordList);
  for (std::string line; std::getline(file, line); ends.push_back(text.size())) {
    const icu::UnicodeString word = icu::UnicodeString::fromUTF8(line);
    text.append(word.getBuffer(), static_cast<std::size_t>(word.length()));
  }
  std::size_t start = 0;
  for (const std::size_t end : ends) {
    words.push_back(std::u16string_view(text).substr(start, end - start));
    start = end;
  }
  std::mt19937 random;
  for (std::size_t i = words.size(); i > 1; --i)
    std::swap(words[i - 1], words[random() % i]);
  if (words.size() < kWords)
    return {};
  words.resize(kWords);
  return words;
}

/// `text` again and again, at least `bytes` bytes of it in UTF-8.
std::u16string Repeated(std::u16string_view text, std::size_t bytes) {
  std::u16string repeated;
  while (ToUtf8(repeated).size() < bytes)
    repeated += text;
  return repeated;
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

template <typename String, typename Peer>
void AddCopy(const char* row, std::u16string_view text) {
  Add<Peer>(row, [string = String(Peer::Make(text))] {
    alignas(kAligned) String copy(string);
    benchmark::DoNotOptimize(copy);
  });
}

/// A row of memory instead of time: the heap's share of a string, without the object itself.
template <typename Peer>
void AddHeap(const char* row, std::size_t length) {
#ifdef __GLIBC__
  const std::string name = std::string(row) + "|" + Peer::kName;
  benchmark::RegisterBenchmark(name.c_str(), [text = Text(length, u"quay")](auto& state) {
    constexpr std::size_t kStrings = 10000;
    for (auto _ : state) {
      std::vector<typename Peer::Constant> strings;
      strings.reserve(kStrings);
      const std::size_t before = mallinfo2().uordblks;
      for (std::size_t i = 0; i < kStrings; ++i)
        strings.emplace_back(Peer::Make(text));
      state.counters["bytes"] = static_cast<double>(mallinfo2().uordblks - before) / kStrings;
    }
  });
#endif
}

template <typename Peer>
void AddUtf8(const char* rowFrom, const char* rowTo, const std::u16string& text) {
  const std::string bytes = ToUtf8(text);
  Add<Peer>(rowFrom, [bytes] { benchmark::DoNotOptimize(Peer::FromUtf8(bytes)); });
  Add<Peer>(rowTo, [text = Peer::Make(text)] { benchmark::DoNotOptimize(Peer::ToUtf8(text)); });
}

template <typename Peer>
void AddPeer(const std::vector<std::u16string_view>& texts) {
  using String = typename Peer::String;
  const std::u16string shortText = Text(20, u"quay");
  AddCopy<typename Peer::Constant, Peer>("copy and destroy, 20 units", shortText);
  AddCopy<typename Peer::Constant, Peer>("copy and destroy, 2,000 units", Text(2000, u"quay"));
  AddCopy<String, Peer>("copy and destroy an editable string", shortText);
  Add<Peer>("create from 20 units", [shortText] {
    alignas(kAligned) String string = Peer::Make(shortText);
    benchmark::DoNotOptimize(string);
  });
  AddHeap<Peer>("heap for 20 units", 20);
  AddHeap<Peer>("heap for 28 units", 28);
  AddHeap<Peer>("heap for 1,000 units", 1000);
  if constexpr (Peer::kCodePage) {
    const std::string bytes = "d\xE9j\xE0 vu, ici";
    Add<Peer>("create from 12 bytes of 8-bit text",
              [bytes] { benchmark::DoNotOptimize(Peer::FromBytes(bytes)); });
  }
  if constexpr (Peer::kUnicode) {
    AddUtf8<Peer>("create from 20 bytes of UTF-8", "20 units to UTF-8", shortText);
    AddUtf8<Peer>("create from 1,000 bytes of UTF-8", "1,000 units to UTF-8", Text(1000, u"quay"));
    AddUtf8<Peer>("create from 1 KB of French UTF-8", "French text to UTF-8",
                  Repeated(u"Voix ambigu\u00EB d\u2019un c\u0153ur qui, au z\u00E9phyr, ", 1000));
    AddUtf8<Peer>("create from 1 KB of Greek UTF-8", "Greek text to UTF-8",
                  Repeated(u"\u03A4\u03AC\u03C7\u03B9\u03C3\u03C4\u03B7 "
                           u"\u03B1\u03BB\u03CE\u03C0\u03B7\u03BE, ",
                           1000));
    AddUtf8<Peer>("create from 1 KB of Chinese UTF-8", "Chinese text to UTF-8",
                  Repeated(u"\u8996\u91CE\u7121\u9650\u5EE3\uFF0C", 1000));
  }
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
  AddFor<Peer>("find in 4,096 units", Text(4096, u"jumped"), u"jumped", Peer::Find);
  AddFor<Peer>("compare 1,024 units", Text(1024, u"quay"), Text(1024, u"quaz"), Peer::Compare);
  if constexpr (Peer::kUnicode) {
    const auto upper = [](const auto& text, const auto&) { return Peer::Upper(text); };
    const auto nfc = [](const auto& text, const auto&) { return Peer::Nfc(text); };
    AddFor<Peer>("compare 20 units without case", shortText, u"THE BROWN FOX JUQUAY",
                 Peer::ICompare);
    AddFor<Peer>("upper case of 20 units", shortText, u"", upper);
    AddFor<Peer>("NFC of 20 composed units", shortText, u"", nfc);
    AddFor<Peer>("NFC of 20 decomposed units",
                 u"xe\u0301xe\u0301xe\u0301xe\u0301xe\u0301xe\u0301xe", u"", nfc);
  }
  if (texts.empty())
    return;
  static std::vector<String> words;
  for (const std::u16string_view text : texts)
    words.push_back(Peer::Make(text));
  AddSort<Peer>("sort 100,000 words by units", words, std::less<String>());
  if constexpr (Peer::kUnicode)
    AddSort<Peer>("sort 100,000 words by collation", words, typename Peer::Collated());
  if constexpr (Peer::kRecords) {
    const auto records = std::make_shared<typename Peer::Records>(words);
    Add<Peer>("write 100,000 records", [records] { records->Write(); });
    Add<Peer>("read 100,000 records", [records] { records->Read(); });
  }
}

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv))
    return 1;

  UErrorCode status = U_ZERO_ERROR;
  icu::Locale::setDefault(icu::Locale(kLocale), status);
  const std::vector<std::u16string_view> words = Words();
  if (words.empty())
    std::fprintf(stderr, "%s not found or too short: no sorting, no records\n", kWordList);
  std::string versions = std::string("GCC ") + __VERSION__ + ", ICU " U_ICU_VERSION;
  AddPeer<ZRPeer>(words);
  AddPeer<IcuPeer>(words);
#ifdef ZRSTRING_HAVE_QT
  AddPeer<QtPeer>(words);
  versions += ", Qt " QT_VERSION_STR;
#endif
  AddPeer<StdPeer>(words);
  benchmark::AddCustomContext("versions", versions);
  benchmark::RunSpecifiedBenchmarks();
}
