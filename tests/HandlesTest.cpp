// The status of every invalid parameter of every handle function, and calls of overridden virtual
// members. Operations.cpp has the indexes that are outside an array.
#include <ZRString/ZRStringInterfaces.h>
#include <ZRString/ZRStringMutator.h>
#include <ZRString/ZRStringOutput.h>
#include <ZRString/ZRStringPtrArray.h>
#include <ZRString/ZRStringStream.h>
#include <ZRString/ZRStringUtf8.h>
#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <set>
#include <tuple>
#include <vector>

#include "Recorder.h"
#include "Text.h"

namespace {

/// An argument without its type: a pointer or an integer.
using Word = std::uintptr_t;

Word W(int value) { return static_cast<Word>(value); }
Word W(const volatile void* pointer) { return reinterpret_cast<Word>(pointer); }

/// A handle function without the types of its parameters.
using Function = std::function<ZRLong(const std::vector<Word>&)>;

template <typename... Types>
Function Erased(ZRLong (*function)(Types...)) {
  return [function](const std::vector<Word>& words) {
    EXPECT_EQ(words.size(), sizeof...(Types));
    auto word = words.begin();
    return std::apply(function, std::tuple<Types...>{(Types)(*word++)...});  // in this order
  };
}

/// A parameter: a valid argument, invalid ones, and their status unless the position gives it.
struct Parameter {
  Word valid;
  std::vector<Word> invalid;
  ZRLong status = 0;
};

}  // namespace

// Each parameter is invalid in turn, alone and together with all later ones.
TEST(Handles, TheFirstInvalidParameterCountsAndNothingIsWritten) {
  const std::vector<Word> before(4, 0x5A5A5A5A);
  std::vector<Word> written = before;  // what every out-parameter points to
  ZRString text = Make(u"abc");
  ZRStringMutator mutableText(text);
  ZRStringPtrArray strings;
  strings.PushBack(&text);
  const Parameter string = {W(&text), {0}}, mutableString = {W(&mutableText), {0}},
                  array = {W(&strings), {0}}, units = {W(text.GetBuffer()), {0}},
                  out = {W(written.data()), {0}}, any = {W(-7), {}},
                  notNegative = {W(0), {W(-1), W(-2), W(INT_MIN)}},
                  toEnd = {W(-1), {W(-2), W(INT_MIN)}}, count = {W(1), {W(0), W(-1), W(INT_MIN)}},
                  index = {W(0), {W(-1), W(1), W(INT_MIN), W(INT_MAX)}, kZRStatusIndexOutside},
                  utf8 = {W("abc"), {0}}, size = {W(3), {}};
  const struct {
    std::string name;  // of the plain function
    Function plain, member;
    std::vector<Parameter> parameters;
  } rows[] = {
#define ZR_ROW(function, member, ...) \
  {#function, Erased(&::function), Erased(&member), {__VA_ARGS__}},
#include "HandleRows.inc"
#define ZR_UTF8(name) #name, Erased(&name), Erased(&name)
      {ZR_UTF8(ZRStringCreateFromUtf8), {utf8, size, out}},
      {ZR_UTF8(ZRMutableStringCreateFromUtf8), {utf8, size, out}},
      {ZR_UTF8(ZRMutableStringAppendUtf8), {mutableString, utf8, size}},
      {ZR_UTF8(ZRStringGetUtf8Size), {string, out}},
      {ZR_UTF8(ZRStringExtractIntoUtf8), {string, out, size, out}},
      {ZR_UTF8(ZRStringAllocateUtf8), {string, out, any}},
  };
  std::ifstream exports(ZRSTRING_PLAIN_EXPORTS);
  std::set<std::string> untested;
  for (std::string name; exports >> name; exports.ignore(99, '\n'))  // past its symbol version
    untested.insert(name);
  for (const auto& [name, plain, member, parameters] : rows)
    for (std::size_t position = 0; position < parameters.size(); ++position)
      for (const Word value : parameters[position].invalid)
        for (const bool alone : {true, false}) {
          SCOPED_TRACE(testing::Message() << name << ", parameter " << position + 1);
          std::vector<Word> arguments;
          for (const Parameter& each : parameters) {
            const bool later = arguments.size() > position && !each.invalid.empty();
            arguments.push_back(later && !alone ? each.invalid[0] : each.valid);
          }
          arguments[position] = value;
          const ZRLong named = parameters[position].status;
          const ZRLong status = named ? named : kZRStatusFirstParameter + position;
          EXPECT_EQ(plain(arguments), name == "InsertZRStringRefAt" && position == 2 ? 5 : status);
          EXPECT_EQ(member(arguments), status);
          EXPECT_EQ(written, before);
          EXPECT_EQ(TextOf(text) + TextOf(mutableText), u"abcabc");
          EXPECT_EQ(strings.Size(), 1u);
          untested.erase(name);
        }
  EXPECT_EQ(untested, std::set<std::string>());
}

TEST(Handles, OverriddenMembersAreCalled) {
  const struct Overriding : ZRString {
    Overriding() : ZRString(Make(u"abc")) {}
    const unsigned short* GetBuffer() const override { return Raw(u"xyz"); }
    void Extract(ZRLong, ZRLong, unsigned short* dst, ZRLong dstStart) const override {
      std::copy_n(Raw(u"E"), 2, dst + dstStart);
    }
  } string;
  unsigned short *buffer = nullptr, units[4] = {};
  ZRStringGetBuffer(string.GetZRStringRef(), &buffer);
  ZRStringGetUniCharsAt(string.GetZRStringRef(), 0, 2, units);
  ZRStringExtractIntoUniChars(string.GetZRStringRef(), 0, 2, units, 1);
  std::basic_ostringstream<unsigned short> stream;
  stream << string;
  EXPECT_EQ(Text({buffer[0], units[0], units[1], stream.str()[0]}), u"xEEE");
  Recorder record;
  record << string;
  EXPECT_EQ(record.output, (Calls{{'l', 3}, {'s', 'x'}, {'s', 'y'}, {'s', 'z'}}));
}
