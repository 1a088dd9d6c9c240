// Guards the handle functions: every status, what each calls, and that a refused call changes
// nothing.
#include <ZRString/ZRStringInterfaces.h>
#include <ZRString/ZRStringMutator.h>
#include <ZRString/ZRStringOutput.h>
#include <ZRString/ZRStringPtrArray.h>
#include <ZRString/ZRStringStream.h>
#include <gtest/gtest.h>

#include <algorithm>
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

/// An argument with its type taken away: a pointer or an integer.
using Word = std::uintptr_t;

/// A handle function with the types of its parameters taken away.
struct Function {
  std::size_t parameters;
  std::function<ZRLong(const Word*)> call;
};

template <typename... Types, std::size_t... Index>
ZRLong CallWith(ZRLong (*function)(Types...), const Word* words, std::index_sequence<Index...>) {
  // A C cast is both the static and the reinterpreting one.
  return function((Types)(words[Index])...);
}

template <typename... Types>
Function Erased(ZRLong (*function)(Types...)) {
  return {sizeof...(Types), [function](const Word* words) {
            return CallWith(function, words, std::index_sequence_for<Types...>());
          }};
}

/// A parameter: a valid argument, the invalid ones, and the status then.
struct Parameter {
  Word valid;
  std::vector<Word> invalid;
  ZRLong status = 0;  // 0: 3 + position
};

Word W(int value) { return static_cast<Word>(value); }
Word W(const volatile void* pointer) { return reinterpret_cast<Word>(pointer); }

struct Row {
  const char* name;  // of the plain function
  Function plain, member;
  const char* parameters;  // their kinds
};

#define ZR_ROW(name, member, parameters) {#name, Erased(&::name), Erased(&member), parameters},
#define ZR_IMMUTABLE(name, ...) ZR_ROW(name, ZRAccessorStringDKInterfaceImpl::name, __VA_ARGS__)
#define ZR_MUTABLE(name, ...) ZR_ROW(name, ZRMutableStringDKInterfaceImpl::name, __VA_ARGS__)
#define ZR_ARRAY(name, member, ...) ZR_ROW(name, ZRStringCDKInterfaceImpl::member, __VA_ARGS__)

const Row kRows[] = {
#include "HandleRows.inc"
};

class Statuses : public testing::Test {
 protected:
  Statuses() {
    array.PushBack(&string);
    std::fill(std::begin(out), std::end(out), untouched);
  }

  /// Makes each parameter invalid in turn, alone and together with all later ones.
  void Check(const Function& function, const std::vector<const Parameter*>& parameters,
             bool nullStringIs5) {
    for (std::size_t position = 0; position < parameters.size(); ++position) {
      for (const Word value : parameters[position]->invalid) {
        for (const bool alone : {true, false}) {
          std::vector<Word> words;
          for (const Parameter* const each : parameters)
            words.push_back(alone || words.size() < position || each->invalid.empty()
                                ? each->valid
                                : each->invalid[0]);
          words[position] = value;
          SCOPED_TRACE(testing::Message()
                       << "parameter " << position + 1 << (alone ? "" : " and all later ones"));
          const ZRLong byPosition =
              nullStringIs5 && position == 2 ? 5 : static_cast<ZRLong>(position) + 4;
          const ZRLong status = parameters[position]->status;
          EXPECT_EQ(function.call(words.data()), status ? status : byPosition);
          EXPECT_EQ(std::count(std::begin(out), std::end(out), untouched), std::end(out) - out);
          EXPECT_EQ(TextOf(string), u"abc");
          EXPECT_EQ(TextOf(mutableString), u"abc");
          EXPECT_EQ(array.Size(), 1u);
        }
      }
    }
  }

  static constexpr Word untouched = 0x5A5A5A5A;
  Word out[4];  // what every out-parameter points to
  ZRString string = Make(u"abc");
  ZRStringMutator mutableString{string};
  ZRStringPtrArray array;

  const std::map<std::string, Parameter> kinds = {
      {"string", {W(&string), {0}}},
      {"mutable", {W(&mutableString), {0}}},
      {"array", {W(&array), {0}}},
      {"units", {W(string.GetBuffer()), {0}}},
      {"bytes", {W("abc"), {0}}},
      {"out", {W(out), {0}}},
      {"notNegative", {W(0), {W(-1), W(-2), W(INT_MIN)}}},
      {"toEnd", {W(-1), {W(-2), W(INT_MIN)}}},
      {"count", {W(1), {W(0), W(-1), W(INT_MIN)}}},
      {"index", {W(0), {W(-1), W(1), W(INT_MIN), W(INT_MAX)}, 12}},
      {"any", {W(0), {}}},
  };
};

}  // namespace

TEST_F(Statuses, TheFirstInvalidParameterCountsAndNothingIsWritten) {
  std::set<std::string> names;
  for (const Row& row : kRows) {
    names.insert(row.name);
    std::istringstream words(row.parameters);
    std::vector<const Parameter*> parameters;
    for (std::string kind; words >> kind;)
      parameters.push_back(&kinds.at(kind));
    ASSERT_EQ(parameters.size(), row.plain.parameters) << row.name;
    SCOPED_TRACE(row.name);
    Check(row.plain, parameters, row.name == std::string("InsertZRStringRefAt"));
    SCOPED_TRACE("the member");
    Check(row.member, parameters, false);
  }
  std::ifstream list(ZRSTRING_PLAIN_EXPORTS);
  const std::set<std::string> exported{std::istream_iterator<std::string>(list), {}};
  EXPECT_EQ(names, exported);
}

namespace {

/// A host's own string, which the virtual operations reach.
struct Overriding : ZRString {
  Overriding() : ZRString(Make(u"abc")) {}
  const unsigned short* GetBuffer() const override { return Raw(u"xyz"); }
  void Extract(ZRLong, ZRLong, unsigned short* dst, ZRLong dstStart) const override {
    dst[dstStart] = 'E';
    dst[dstStart + 1] = 0;
  }
};

}  // namespace

TEST(Handles, VirtualOperationsReachTheObjectsOwn) {
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
