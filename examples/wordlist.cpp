// Sorts a word list in windows-1252, one entry a line, in linguistic order, drops the entries that
// are equal without regard to case, keeps the list in a file and looks a word up in it.

#include <ZRString/ZRStringMutator.h>
#include <ZRString/ZRStringOutput.h>
#include <ZRString/ZRStringPtrArray.h>
#include <ZRString/ZRStringStream.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <iterator>
#include <memory>
#include <optional>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>

#include "FileStream.h"
#include "Progress.h"
#include "Utf8.h"

namespace {

constexpr ZRULong kIgnoreCase = 0;
constexpr ZRULong kCollated = 3;
constexpr ZRLong kToEnd = -1;
constexpr ZRLong kShown = 5;

constexpr const char* kUsage =
    "usage: wordlist FILE [--replace OLD NEW] [--save LIST] [--find WORD]\n"
    "       wordlist --load LIST [--find WORD]\n";

struct UsageError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

struct Options {
  std::string source;
  std::string load;
  std::string save;
  std::optional<ZRString> find;
  std::optional<ZRString> oldText;
  std::optional<ZRString> newText;
};

Options Parse(int argc, char** argv) {
  Options options;
  for (int i = 1; i < argc; ++i) {
    const std::string argument = argv[i];
    const auto next = [&]() -> std::string {
      if (++i >= argc)
        throw UsageError(argument + " needs more after it");
      return argv[i];
    };
    if (argument == "--find") {
      options.find.emplace(FromUtf8(next()));
    } else if (argument == "--replace") {
      options.oldText.emplace(FromUtf8(next()));
      options.newText.emplace(FromUtf8(next()));
    } else if (argument == "--save") {
      options.save = next();
    } else if (argument == "--load") {
      options.load = next();
    } else if (argument.rfind("--", 0) == 0) {
      throw UsageError("unknown option " + argument);
    } else if (options.source.empty()) {
      options.source = argument;
    } else {
      throw UsageError("one file at a time");
    }
  }
  if (options.source.empty() == options.load.empty())
    throw UsageError("either a word list or --load");
  if (!options.load.empty() && (!options.save.empty() || options.oldText))
    throw UsageError("--save and --replace go with a word list");
  return options;
}

/// The strings of the list; they belong to it.
class WordList : public ZRStringPtrArray {
 public:
  WordList() = default;
  WordList(const WordList&) = delete;
  WordList& operator=(const WordList&) = delete;
  ~WordList() { DeleteAll(); }

  void Add(std::unique_ptr<ZRString> entry) {
    PushBack(entry.get());
    entry.release();
  }
};

signed char Compare(const ZRString& left, const ZRString& right, ZRULong options) {
  return left.ICompare(0, kToEnd, right, 0, kToEnd, options);
}

/// Prints to standard output as UTF-8, and the time since the last stage with each stage.
class Report {
 public:
  Report() : buffer_(*std::cout.rdbuf()), out_(&buffer_) {}

  std::basic_ostream<unsigned short>& Out() { return out_; }

  void Stage(const char* name, ZRULong count) {
    const auto now = std::chrono::steady_clock::now();
    const double milliseconds = std::chrono::duration<double, std::milli>(now - last_).count();
    char number[32];
    out_ << std::left << std::setw(12) << Text(name) << std::right;
    std::snprintf(number, sizeof number, "%lu", static_cast<unsigned long>(count));
    out_ << std::setw(9) << Text(number);
    std::snprintf(number, sizeof number, "%.1f ms", milliseconds);
    out_ << std::setw(14) << Text(number) << std::endl;
    last_ = std::chrono::steady_clock::now();
  }

  static ZRString Text(const char* text) { return ZRString(text, 0, kToEnd); }

 private:
  Utf8Buffer buffer_;
  std::basic_ostream<unsigned short> out_;
  std::chrono::steady_clock::time_point last_ = std::chrono::steady_clock::now();
};

std::string ReadFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream bytes;
  // A folder can be opened on some systems, but not read.
  if (!file || (file.peek() != EOF && !(bytes << file.rdbuf())) || file.bad())
    throw std::runtime_error("cannot read " + path);
  return bytes.str();
}

/// One entry for each line that is not empty. A line ends in LF or CR LF, the last one also in the
/// file's end.
ZRULong Decode(const std::string& bytes, WordList& words) {
  ZRULong lines = 0;
  for (std::size_t start = 0; start < bytes.size(); ++lines) {
    const std::size_t limit = std::min(bytes.find('\n', start), bytes.size());
    const bool hasReturn = limit > start && bytes[limit - 1] == '\r';
    const auto length = static_cast<ZRLong>(limit - start - hasReturn);
    if (length > 0)
      words.Add(std::make_unique<ZRStringMutator>(bytes.data() + start, 0, length));
    start = limit + 1;
  }
  return lines;
}

/// Trims, normalizes and replaces. What is empty then is no entry.
void Edit(WordList& words, const Options& options) {
  std::size_t kept = 0;
  for (auto entry = words.Begin(); entry != words.End(); ++entry) {
    auto& word = static_cast<ZRStringMutator&>(**entry);
    word.Trim();
    word.Normalize(kZRNormalizationNFC);
    if (options.oldText)
      word.FindAndReplace(0, kToEnd, *options.oldText, 0, kToEnd, *options.newText, 0, kToEnd);
    if (!word.IsEmpty())
      std::swap(words.Begin()[kept++], *entry);
  }
  while (words.Size() > kept) {
    delete words[static_cast<ZRLong>(kept)];
    words.Erase(static_cast<ZRLong>(kept));
  }
}

void Sort(WordList& words) {
  const double size = words.Size();
  Progress progress("sorting", size * std::log2(size + 1));
  std::stable_sort(words.Begin(), words.End(), [&](const ZRString* left, const ZRString* right) {
    progress.Step();
    return Compare(*left, *right, kCollated) < 0;
  });
}

/// Drops every entry that an earlier one equals but for case.
void DropRepeated(WordList& words) {
  const auto before = [](const ZRString* left, const ZRString* right) {
    return Compare(*left, *right, kIgnoreCase) < 0;
  };
  Progress progress("comparing", words.Size());
  std::set<ZRString*, decltype(before)> seen(before);
  auto kept = words.Begin();
  for (auto entry = words.Begin(); entry != words.End(); ++entry) {
    progress.Step();
    if (seen.insert(*entry).second)
      *kept++ = *entry;
    else
      delete *entry;
  }
  while (words.End() != kept)
    words.Erase(words.End() - 1);
}

void Load(const std::string& path, WordList& words) {
  FileStream stream(path, std::ios::in);
  try {
    stream >> words;
  } catch (const std::bad_alloc&) {
    throw std::runtime_error(path + " is damaged: a length in it is none, or there is no memory");
  }
  stream.ExpectEnd();
}

void Save(const std::string& path, WordList& words) {
  FileStream stream(path, std::ios::out | std::ios::trunc);
  stream << words;
  stream.Close();
}

bool SameEntries(const WordList& left, const WordList& right) {
  return std::equal(left.Begin(), left.End(), right.Begin(), right.End(),
                    [](const ZRString* a, const ZRString* b) { return *a == *b; });
}

void PrintEnds(Report& report, const WordList& words) {
  const auto print = [&](ZRLong index) {
    char number[16];
    std::snprintf(number, sizeof number, "%ld", static_cast<long>(index) + 1);
    report.Out() << std::setw(12) << Report::Text(number) << Report::Text("  ") << *words[index]
                 << std::endl;
  };
  const auto size = static_cast<ZRLong>(words.Size());
  for (ZRLong i = 0; i < std::min(size, kShown); ++i)
    print(i);
  if (size > 2 * kShown)
    report.Out() << std::setw(12) << Report::Text("...") << std::endl;
  for (ZRLong i = std::max(kShown, size - kShown); i < size; ++i)
    print(i);
}

void PrintPlace(Report& report, const WordList& words, const ZRString& word) {
  const auto place = std::lower_bound(words.Begin(), words.End(), &word,
                                      [](const ZRString* left, const ZRString* right) {
                                        return Compare(*left, *right, kCollated) < 0;
                                      });
  const bool found = place != words.End() && Compare(**place, word, kCollated) == 0;
  char number[64];
  std::snprintf(number, sizeof number,
                found ? " is entry %ld" : " is not there; it would be entry %ld",
                static_cast<long>(place - words.Begin()) + 1);
  report.Out() << word << Report::Text(number) << std::endl;
}

void Run(const Options& options) {
  Report report;
  WordList words;
  if (!options.load.empty()) {
    Load(options.load, words);
    report.Stage("loaded", words.Size());
  } else {
    const std::string bytes = ReadFile(options.source);
    report.Stage("read", Decode(bytes, words));
    Edit(words, options);
    report.Stage("edited", words.Size());
    Sort(words);
    report.Stage("sorted", words.Size());
    DropRepeated(words);
    report.Stage("kept", words.Size());
  }
  if (!options.save.empty()) {
    Save(options.save, words);
    report.Stage("saved", words.Size());
    WordList reloaded;
    Load(options.save, reloaded);
    if (!SameEntries(words, reloaded))
      throw std::runtime_error(options.save + " does not hold what was saved");
    report.Stage("reloaded", reloaded.Size());
  }
  PrintEnds(report, words);
  if (options.find)
    PrintPlace(report, words, *options.find);
}

}  // namespace

int main(int argc, char** argv) {
  try {
    Run(Parse(argc, argv));
    if (!std::cout.flush())
      throw std::runtime_error("cannot write to standard output");
    return 0;
  } catch (const UsageError& error) {
    std::cerr << "wordlist: " << error.what() << '\n' << kUsage;
  } catch (const std::exception& error) {
    std::cerr << "wordlist: " << error.what() << '\n';
  }
  return 2;
}
