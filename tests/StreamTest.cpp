// Records: the exact calls made on the stream, and reading damaged and failing streams.
#include <ZRString/ZRStringStream.h>
#include <gtest/gtest.h>

#include <new>
#include <typeinfo>

#include "Recorder.h"
#include "Text.h"

namespace {

/// An array that owns its strings.
struct OwningArray : ZRStringPtrArray {
  OwningArray(const std::vector<Text>& texts = {}) {
    for (const Text& text : texts)
      PushBack(new ZRString(Make(text)));
  }
  ~OwningArray() { DeleteAll(); }

  std::vector<Text> Texts() const {
    std::vector<Text> texts;
    for (auto entry = Begin(); entry != End(); ++entry) {
      const ZRString& string = **entry;
      EXPECT_EQ(typeid(string), typeid(ZRString));
      texts.push_back(TextOf(string));
    }
    return texts;
  }
};

const Calls kArray = {{'u', 3}, {'l', 0}, {'l', 2}, {'s', 'x'}, {'s', 'y'}, {'l', 1}, {'s', 'z'}};

}  // namespace

TEST(Stream, WritesExactlyTheseCalls) {
  const struct {
    Text text;
    Calls calls;
  } rows[] = {
      {u"", {{'l', 0}}},
      {u"abc", {{'l', 3}, {'s', 0x61}, {'s', 0x62}, {'s', 0x63}}},
      {Text(u"a\0b", 3), {{'l', 3}, {'s', 0x61}, {'s', 0}, {'s', 0x62}}},
      {{0xDC00, 0xD800}, {{'l', 2}, {'s', 0xDC00}, {'s', 0xD800}}},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(testing::PrintToString(row.calls));
    const ZRString string = Make(row.text);
    const ZRStringMutator mutator(string);
    for (const ZRString* const each : {&string, static_cast<const ZRString*>(&mutator)}) {
      Recorder stream, other;
      EXPECT_EQ(&(stream << *each), &stream);
      EXPECT_EQ(stream.output, row.calls);
      EXPECT_EQ(&(*each >> other), &other);
      EXPECT_EQ(other.output, row.calls);
    }
  }
  OwningArray array({u"", u"xy", u"z"});
  Recorder stream;
  EXPECT_EQ(&(stream << array), &stream);
  EXPECT_EQ(stream.output, kArray);
}

TEST(Stream, ReadsIntoAMutator) {
  const struct {
    const char* name;
    Calls input;
    Text expected;
    std::size_t consumed;
  } rows[] = {
      {"two units", {{'l', 2}, {'s', 0}, {'s', 0xD800}, {'s', 'z'}}, {0, 0xD800}, 3},
      {"one unit", {{'l', 1}, {'s', 'x'}}, u"x", 2},
      {"length 0", {{'l', 0}, {'s', 'x'}}, u"abc", 1},
      {"negative length", {{'l', -1}, {'s', 'x'}}, u"abc", 1},
      {"nothing stored", {}, u"abc", 1},
      {"units not stored", {{'l', 3}, {'s', 'x'}}, Text(u"x\0\0", 3), 4},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    for (const bool reversed : {false, true}) {
      ZRStringMutator target(Make(u"abc"));
      Recorder stream(row.input);
      EXPECT_EQ(&(reversed ? target << stream : stream >> target), &stream);
      EXPECT_EQ(TextOf(target), row.expected);
      EXPECT_EQ(stream.consumed, row.consumed);
    }
  }
}

TEST(Stream, AppendsToAnArray) {
  const struct {
    const char* name;
    Calls input;
    std::vector<Text> expected;
    bool damaged = false;
  } rows[] = {
      {"entries", kArray, {u"old", u"", u"xy", u"z"}},
      {"none", {{'u', 0}, {'l', 1}}, {u"old"}},
      {"nothing stored", {}, {u"old"}},
      {"lengths not stored", {{'u', 2}}, {u"old", u"", u""}},
      {"a negative length", {{'u', 3}, {'l', 1}, {'s', 'x'}, {'l', -1}}, {u"old", u"x"}, true},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    OwningArray array({u"old"});
    Recorder stream(row.input);
    if (row.damaged)
      EXPECT_THROW(stream >> array, std::bad_alloc);
    else
      EXPECT_EQ(&(stream >> array), &stream);
    EXPECT_EQ(array.Texts(), row.expected);
    EXPECT_GE(stream.consumed, row.input.size() - (row.input.size() == 2));
  }
}

TEST(Stream, AnExceptionAtAnyCallKeepsWhatWasComplete) {
  const std::vector<Text> texts = {u"", u"xy", u"z"};
  for (std::size_t n = 0; n < kArray.size(); ++n) {
    SCOPED_TRACE(n);
    OwningArray array;
    Recorder reader(kArray);
    reader.throwAt = n;
    EXPECT_THROW(reader >> array, std::runtime_error);
    EXPECT_EQ(array.Texts(), std::vector<Text>(texts.begin(), texts.begin() + (n > 1) + (n > 4)));

    ZRStringMutator target(Make(u"abc"));
    Recorder string(Calls(kArray.begin() + 2, kArray.end()));
    string.throwAt = n % 3;
    EXPECT_THROW(string >> target, std::runtime_error);
    EXPECT_EQ(TextOf(target), u"abc");

    OwningArray full(texts);
    Recorder writer;
    writer.throwAt = n;
    EXPECT_THROW(writer << full, std::runtime_error);
    EXPECT_EQ(writer.output, Calls(kArray.begin(), kArray.begin() + n));
  }
}
