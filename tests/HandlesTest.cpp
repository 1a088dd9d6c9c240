// Every status of every handle function, and calls of overridden virtual members.
#include <ZRString/ZRStringInterfaces.h>
#include <ZRString/ZRStringMutator.h>
#include <ZRString/ZRStringOutput.h>
#include <ZRString/ZRStringPtrArray.h>
#include <ZRString/ZRStringStream.h>
#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <set>
#include <sstream>
#include <vector>

#include "Recorder.h"
#include "Text.h"

namespace {

/// An argument without its type: a pointer or an integer.
using Word = std::uintptr_t;

/// A handle function without the types of its parameters.
using Function = std::function<ZRLong(const std::vector<Word>&)>;

template <typename... Types, std::size_t... Index>
Function Erased(ZRLong (*function)(Types...), std::index_sequence<Index...>) {
  return [function](const std::vector<Word>& words) {
    EXPECT_EQ(words.size(), sizeof...(Types));
    return function((Types)(words[Index])...);  // a static or a reinterpret cast
  };
}

template <typename... Types>
Function Erased(ZRLong (*function)(Types...)) {
  return Erased(function, std::index_sequence_for<Types...>());
}

Word W(int value) { return static_cast<Word>(value); }
Word W(const volatile void* pointer) { return reinterpret_cast<Word>(pointer); }

/// A parameter: a valid argument, invalid ones, and their status unless the position gives it.
struct Parameter {
  Word valid;
  std::vector<Word> invalid;
  ZRLong status = 0;
};

const struct {
  const char* name;  // of the plain function
  Function plain, member;
  const char* parameters;  // the kind of each
} kRows[] = {
#define ZR_ROW(name, member, parameters) {#name, Erased(&::name), Erased(&member), parameters},
#define ZR_IMMUTABLE(name, ...) ZR_ROW(name, ZRAccessorStringDKInterfaceImpl::name, __VA_ARGS__)
#define ZR_MUTABLE(name, ...) ZR_ROW(name, ZRMutableStringDKInterfaceImpl::name, __VA_ARGS__)
#define ZR_ARRAY(name, member, ...) ZR_ROW(name, ZRStringCDKInterfaceImpl::member, __VA_ARGS__)
#include "HandleRows.inc"
};

}  // namespace

// Each parameter is invalid in turn, alone and together with all later ones.
TEST(Handles, TheFirstInvalidParameterCountsAndNothingIsWritten) {
  const Word untouched = 0x5A5A5A5A;
  const std::vector<Word> before(4, untouched);
  std::vector<Word> out = before;  // what every out-parameter points to
  ZRString string = Make(u"abc");
  ZRStringMutator mutableString(string);
  ZRStringPtrArray array;
  array.PushBack(&string);
  const std::map<std::string, Parameter> kinds = {
      {"string", {W(&string), {0}}},
      {"mutable", {W(&mutableString), {0}}},
      {"array", {W(&array), {0}}},
      {"units", {W(string.GetBuffer()), {0}}},
      {"bytes", {W("abc"), {0}}},
      {"out", {W(out.data()), {0}}},
      {"notNegative", {W(0), {W(-1), W(-2), W(INT_MIN)}}},
      {"toEnd", {W(-1), {W(-2), W(INT_MIN)}}},
      {"count", {W(1), {W(0), W(-1), W(INT_MIN)}}},
      {"index", {W(0), {W(-1), W(1), W(INT_MIN), W(INT_MAX)}, 12}},
      {"any", {W(-7), {}}},
  };
  std::set<std::string> names;
  for (const auto& row : kRows) {
    names.insert(row.name);
    std::istringstream words(row.parameters);
    std::vector<Parameter> parameters;
    for (std::string kind; words >> kind;)
      parameters.push_back(kinds.at(kind));
    std::vector<Word> valid, invalid;
    for (const Parameter& each : parameters) {
      valid.push_back(each.valid);
      invalid.push_back(each.invalid.empty() ? each.valid : each.invalid[0]);
    }
    for (std::size_t position = 0; position < parameters.size(); ++position) {
      for (const Word value : parameters[position].invalid) {
        for (const auto& others : {valid, invalid}) {
          SCOPED_TRACE(testing::Message() << row.name << ", parameter " << position + 1);
          std::vector<Word> arguments(valid.begin(), valid.begin() + position);
          arguments.push_back(value);
          arguments.insert(arguments.end(), others.begin() + position + 1, others.end());
          const ZRLong otherwise = parameters[position].status;
          const ZRLong status = otherwise ? otherwise : static_cast<ZRLong>(position) + 4;
          const bool differs = position == 2 && row.name == std::string("InsertZRStringRefAt");
          EXPECT_EQ(row.plain(arguments), differs ? 5 : status);
          EXPECT_EQ(row.member(arguments), status);
          EXPECT_EQ(out, before);
          EXPECT_EQ(TextOf(string) + TextOf(mutableString), u"abcabc");
          EXPECT_EQ(array.Size(), 1u);
        }
      }
    }
  }
  std::ifstream list(ZRSTRING_PLAIN_EXPORTS);
  EXPECT_EQ(names, std::set<std::string>(std::istream_iterator<std::string>(list), {}));
}

namespace {

/// A string class of a host, which overrides the virtual members.
struct Overriding : ZRString {
  Overriding() : ZRString(Make(u"abc")) {}
  const unsigned short* GetBuffer() const override { return Raw(u"xyz"); }
  void Extract(ZRLong, ZRLong, unsigned short* dst, ZRLong dstStart) const override {
    dst[dstStart] = 'E';
    dst[dstStart + 1] = 0;
  }
};

}  // namespace

TEST(Handles, OverriddenMembersAreCalled) {
  const Overriding string;
  unsigned short* buffer = nullptr;
  EXPECT_EQ(ZRStringGetBuffer(string.GetZRStringRef(), &buffer), 0);
  EXPECT_EQ(buffer[0], 'x');
  unsigned short units[4] = {};
  EXPECT_EQ(ZRStringGetUniCharsAt(string.GetZRStringRef(), 0, 2, units), 0);
  EXPECT_EQ(units[0], 'E');
  EXPECT_EQ(ZRStringExtractIntoUniChars(string.GetZRStringRef(), 0, 2, units, 1), 0);
  EXPECT_EQ(units[1], 'E');
  std::basic_ostringstream<unsigned short> stream;
  stream << string;
  EXPECT_EQ(stream.str()[0], 'E');
  Recorder record;
  record << string;
  EXPECT_EQ(record.output, (Calls{{'l', 3}, {'s', 'x'}, {'s', 'y'}, {'s', 'z'}}));
}
