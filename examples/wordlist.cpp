// Trims and sorts a word list in windows-1252, with one entry per line, in linguistic order, drops
// empty entries and those that equal an earlier one without regard to case, saves the list to a
// file and looks up a word in it.

#include <ZRString/ZRStringInterop.h>
#include <ZRString/ZRStringMutator.h>
#include <ZRString/ZRStringPtrArray.h>
#include <ZRString/ZRStringStream.h>
#include <ZRString/ZRVersion.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <memory>
#include <new>
#include <optional>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "LittleEndianStream.h"
#include "Progress.h"

// In bytes. A string holds some 2^31 units.
#ifndef LONGEST_LINE
#define LONGEST_LINE 2000000000
#endif

namespace {

constexpr ZRLong kShown = 5;

constexpr const char* kUsage =
    "usage: wordlist FILE [--replace OLD NEW] [--save LIST] [--find WORD]\n"
    "       wordlist --load LIST [--find WORD]\n";

constexpr const char* kHelp =
    "\n"
    "Trims and sorts the lines of FILE, which are in windows-1252, in the linguistic order of\n"
    "the default locale, then drops empty ones and those that equal an earlier one without\n"
    "regard to case.\n"
    "\n"
    "  --replace OLD NEW  replace OLD by NEW in every line before sorting\n"
    "  --save LIST        save the result to the file LIST\n"
    "  --load LIST        start from a list that was saved in the same locale\n"
    "  --find WORD        print the place of WORD in the list\n"
    "  -h, --help         print this help\n"
    "\n"
    "An example program of ZRString " ZR_VERSION_STRING ".\n";

struct UsageError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

struct Options {
  bool help = false;
  std::string source;
  std::string load;
  std::string save;
  std::optional<ZRString> find;
  std::optional<ZRString> oldText;
  std::optional<ZRString> newText;
};

Options Parse(const std::vector<std::string>& arguments) {
  Options options;
  for (auto argument = arguments.begin(); argument != arguments.end(); ++argument) {
    const std::string& name = *argument;
    const auto next = [&] {
      if (++argument == arguments.end())
        throw UsageError("an argument is missing after " + name);
      return *argument;
    };
    if (name == "-h" || name == "--help") {
      options.help = true;
      return options;
    }
    if (name == "--find") {
      options.find.emplace(FromUtf8(next()));
    } else if (name == "--replace") {
      options.oldText.emplace(FromUtf8(next()));
      options.newText.emplace(FromUtf8(next()));
    } else if (name == "--save") {
      options.save = next();
    } else if (name == "--load") {
      options.load = next();
    } else if (name.rfind('-', 0) == 0) {
      throw UsageError("unknown option " + name);
    } else if (options.source.empty()) {
      options.source = name;
    } else {
      throw UsageError("more than one word list");
    }
  }
  if (options.source.empty() == options.load.empty())
    throw UsageError("give either a word list or --load");
  if (!options.load.empty() && (!options.save.empty() || options.oldText))
    throw UsageError("--save and --replace cannot be used with --load");
  return options;
}

/// A list that owns its strings.
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
  return left.ICompare(0, kZRToEnd, right, 0, kZRToEnd, options);
}

void FlushOutput() {
  if (!std::cout.flush())
    throw std::runtime_error("cannot write to standard output");
}

/// Prints each stage with its result and the time since the one before.
class Report {
 public:
  void Stage(const char* name, ZRULong count) {
    const auto now = std::chrono::steady_clock::now();
    const std::chrono::duration<double, std::milli> time = now - last_;
    std::cout << std::left << std::setw(12) << name << std::right << std::setw(9) << count
              << std::setw(11) << std::fixed << std::setprecision(1) << time.count() << " ms\n";
    FlushOutput();
    last_ = std::chrono::steady_clock::now();
  }

 private:
  std::chrono::steady_clock::time_point last_ = std::chrono::steady_clock::now();
};

std::filesystem::path PathOf(const std::string& name) {
  const auto path = std::filesystem::u8path(name);
  std::error_code ignored;
  if (std::filesystem::is_directory(path, ignored))
    throw std::runtime_error(name + " is a folder");
  return path;
}

std::string ReadFile(const std::string& name) {
  std::ifstream file(PathOf(name), std::ios::binary);
  std::ostringstream bytes;
  const bool empty = file && file.peek() == std::char_traits<char>::eof();
  if (!file.is_open() || file.bad() || !(empty || bytes << file.rdbuf()))
    throw std::runtime_error("cannot read " + name);
  return bytes.str();
}

/// Adds an entry for each line of a file that is not empty. Lines end in LF or CR LF; the last one
/// may end with the file.
ZRULong Decode(const std::string& name, WordList& words) {
  const std::string bytes = ReadFile(name);
  ZRULong lines = 0;
  for (std::size_t start = 0; start < bytes.size(); ++lines) {
    const std::size_t limit = std::min(bytes.find('\n', start), bytes.size());
    const bool hasReturn = limit > start && bytes[limit - 1] == '\r';
    const std::size_t length = limit - start - hasReturn;
    if (length > LONGEST_LINE)
      throw std::runtime_error("a line is too long in " + name);
    if (length > 0)
      words.Add(
          std::make_unique<ZRStringMutator>(bytes.data() + start, 0, static_cast<ZRLong>(length)));
    start = limit + 1;
  }
  return lines;
}

/// Trims and normalizes every entry, replaces text in it, and deletes those that end up empty.
void Edit(WordList& words, const Options& options) {
  std::size_t kept = 0;
  for (auto entry = words.Begin(); entry != words.End(); ++entry) {
    auto& word = static_cast<ZRStringMutator&>(**entry);
    word.Trim();
    word.Normalize(kZRNormalizationNFC);
    if (options.oldText)
      word.FindAndReplace(0, kZRToEnd, *options.oldText, 0, kZRToEnd, *options.newText, 0,
                          kZRToEnd);
    if (!word.IsEmpty())
      std::swap(words.Begin()[kept++], *entry);
  }
  std::for_each(words.Begin() + kept, words.End(), [](const ZRString* word) { delete word; });
  while (words.Size() > kept)
    words.Erase(words.End() - 1);
}

void Sort(WordList& words) {
  const double size = words.Size();
  Progress progress("sorting", size * std::log2(size + 1));
  std::stable_sort(words.Begin(), words.End(), [&](const ZRString* left, const ZRString* right) {
    progress.Step();
    return Compare(*left, *right, kZRCompareCollated) < 0;
  });
}

/// Deletes every entry that equals an earlier one without regard to case.
void DropRepeated(WordList& words) {
  const auto before = [](const ZRString* left, const ZRString* right) {
    return Compare(*left, *right, kZRCompareIgnoreCase) < 0;
  };
  Progress progress("comparing", words.Size());
  std::set<ZRString*, decltype(before)> seen(before);
  auto kept = words.Begin();
  for (auto entry = words.Begin(); entry != words.End(); ++entry) {
    progress.Step();
    if (seen.insert(*entry).second) {
      std::swap(*kept++, *entry);
    } else {
      delete *entry;
      *entry = nullptr;
    }
  }
  while (words.End() != kept)
    words.Erase(words.End() - 1);
}

void Load(const std::string& name, WordList& words) {
  const std::string bytes = ReadFile(name);
  LittleEndianStream stream;
  stream.bytes.assign(bytes.begin(), bytes.end());
  try {
    stream >> words;
  } catch (const std::bad_alloc&) {
    throw std::runtime_error(name + " is damaged (negative length), or memory ran out");
  } catch (const std::runtime_error& error) {
    throw std::runtime_error(name + " is damaged: " + error.what());
  }
  if (!stream.AtEnd())
    throw std::runtime_error(name + " is damaged: there is data after the last record");
}

void Save(const std::string& name, WordList& words) {
  LittleEndianStream stream;
  stream << words;
  std::ofstream file(PathOf(name), std::ios::binary);
  if (!file)
    throw std::runtime_error("cannot open " + name);
  file.write(reinterpret_cast<const char*>(stream.bytes.data()),
             static_cast<std::streamsize>(stream.bytes.size()));
  file.close();
  if (!file)
    throw std::runtime_error("cannot write " + name);
}

bool SameEntries(const WordList& left, const WordList& right) {
  return std::equal(left.Begin(), left.End(), right.Begin(), right.End(),
                    [](const ZRString* a, const ZRString* b) { return *a == *b; });
}

void PrintEnds(const WordList& words) {
  const auto print = [&](ZRLong index) {
    std::cout << std::setw(12) << index + 1 << "  " << *words[index] << '\n';
  };
  const auto size = static_cast<ZRLong>(words.Size());
  for (ZRLong i = 0; i < std::min(size, kShown); ++i)
    print(i);
  if (size > 2 * kShown)
    std::cout << std::setw(12) << "..." << '\n';
  for (ZRLong i = std::max(kShown, size - kShown); i < size; ++i)
    print(i);
}

void PrintPlace(const WordList& words, const ZRString& word) {
  const auto place = std::lower_bound(words.Begin(), words.End(), &word,
                                      [](const ZRString* left, const ZRString* right) {
                                        return Compare(*left, *right, kZRCompareCollated) < 0;
                                      });
  const bool found = place != words.End() && Compare(**place, word, kZRCompareCollated) == 0;
  std::cout << word << (found ? " is entry " : " is not in the list; it would be entry ")
            << place - words.Begin() + 1 << '\n';
}

void Run(const Options& options) {
  Report report;
  WordList words;
  if (!options.load.empty()) {
    Load(options.load, words);
    report.Stage("loaded", words.Size());
  } else {
    report.Stage("read", Decode(options.source, words));
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
      throw std::runtime_error(options.save + " does not contain what was saved");
    report.Stage("reloaded", reloaded.Size());
  }
  PrintEnds(words);
  if (options.find)
    PrintPlace(words, *options.find);
}

int Main(const std::vector<std::string>& arguments) {
  try {
    const Options options = Parse(arguments);
    if (options.help)
      std::cout << kUsage << kHelp;
    else
      Run(options);
    FlushOutput();
    return 0;
  } catch (const UsageError& error) {
    std::cerr << "wordlist: " << error.what() << '\n' << kUsage;
  } catch (const std::exception& error) {
    std::cerr << "wordlist: " << error.what() << '\n';
  }
  return 2;
}

}  // namespace

#ifdef _WIN32
// The arguments of main() are in the system's code page, which lacks most characters. MinGW links
// wmain() with -municode.
int wmain(int argc, wchar_t** argv) {
  std::vector<std::string> arguments;
  for (int i = 1; i < argc; ++i)
    arguments.push_back(ToUtf8(FromWide(argv[i])));
  return Main(arguments);
}
#else
int main(int argc, char** argv) { return Main({argv + (argc > 0), argv + argc}); }
#endif
