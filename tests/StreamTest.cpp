#include <ZRString/ZRStringStream.h>
#include <gtest/gtest.h>

#include <functional>
#include <new>
#include <stdexcept>
#include <typeinfo>
#include <vector>

#include "Text.h"

namespace {

/// One call of a stream: which transfer interface, and the value.
struct Call {
  char type;  // 'l' ZRLong, 'u' ZRULong, 's' unsigned short
  long long value;
  bool operator==(const Call& other) const { return type == other.type && value == other.value; }
};

std::ostream& operator<<(std::ostream& out, const Call& call) {
  return out << call.type << call.value;
}

using Calls = std::vector<Call>;

/// Records what is written and plays back what is to be read, exhausted: nothing is stored.
class Recorder : public Velmar::IStream {
 public:
  explicit Recorder(Calls played = {}) : input(std::move(played)) {}

  void Write(const ZRLong* value) override { Put({'l', *value}); }
  void Write(const ZRULong* value) override { Put({'u', *value}); }
  void Write(const unsigned short* value) override {
    Put({'s', *value});
    addresses.push_back(value);
  }
  void Read(ZRLong* value) override { Get('l', value); }
  void Read(ZRULong* value) override { Get('u', value); }
  void Read(unsigned short* value) override { Get('s', value); }

  Calls input;
  Calls output;
  std::vector<const unsigned short*> addresses;  // of the units written
  std::size_t consumed = 0;
  std::size_t throwAt = SIZE_MAX;

 private:
  void Put(const Call& call) {
    if (output.size() == throwAt)
      throw std::runtime_error("stream");
    output.push_back(call);
  }

  template <typename Value>
  void Get(char type, Value* value) {
    if (consumed == throwAt)
      throw std::runtime_error("stream");
    EXPECT_EQ(*value, 0) << "a variable holds 0 before it is read";
    if (consumed < input.size()) {
      EXPECT_EQ(input[consumed].type, type);
      *value = static_cast<Value>(input[consumed].value);
    }
    ++consumed;
  }
};

/// Entries are the array's own.
struct OwningArray : ZRStringPtrArray {
  ~OwningArray() { DeleteAll(); }
};

std::vector<std::u16string> Texts(const ZRStringPtrArray& array) {
  std::vector<std::u16string> texts;
  for (auto entry = array.Begin(); entry != array.End(); ++entry)
    texts.push_back(TextOf(**entry));
  return texts;
}

}  // namespace

TEST(Stream, WritesExactlyTheseCalls) {
  const struct {
    const char* name;
    std::u16string text;
    Calls calls;
  } rows[] = {
      {"empty", u"", {{'l', 0}}},
      {"text", u"abc", {{'l', 3}, {'s', 0x61}, {'s', 0x62}, {'s', 0x63}}},
      {"zero unit", std::u16string(u"a\0b", 3), {{'l', 3}, {'s', 0x61}, {'s', 0}, {'s', 0x62}}},
      {"unpaired surrogate", {0xDC00, 0xD800}, {{'l', 2}, {'s', 0xDC00}, {'s', 0xD800}}},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    const ZRString string = Make(row.text);
    const ZRStringMutator mutator(string);
    for (const ZRString* const each : {&string, static_cast<const ZRString*>(&mutator)}) {
      Recorder stream;
      EXPECT_EQ(&(stream << *each), &stream);
      EXPECT_EQ(stream.output, row.calls);
      for (std::size_t i = 0; i < stream.addresses.size(); ++i)
        EXPECT_EQ(stream.addresses[i], each->GetBuffer() + i);
      Recorder other;
      EXPECT_EQ(&(*each >> other), &other);
      EXPECT_EQ(other.output, row.calls);
    }
    if (row.text.empty())
      continue;
    Recorder stream(row.calls);
    ZRStringMutator target(Make(u"old"));
    EXPECT_EQ(&(stream >> target), &stream);
    EXPECT_EQ(TextOf(target), row.text);
  }
  OwningArray array;
  Recorder empty;
  EXPECT_EQ(&(empty << array), &empty);
  EXPECT_EQ(empty.output, (Calls{{'u', 0}}));
  array.PushBack(new ZRString(Make(u"")));
  array.PushBack(new ZRStringMutator(Make(u"ab")));
  Recorder two;
  two << array;
  EXPECT_EQ(two.output, (Calls{{'u', 2}, {'l', 0}, {'l', 2}, {'s', 0x61}, {'s', 0x62}}));
}

TEST(Stream, ReadsIntoAMutator) {
  const struct {
    const char* name;
    Calls input;
    std::u16string expected;
    std::size_t consumed;
  } rows[] = {
      {"two units", {{'l', 2}, {'s', 'x'}, {'s', 'y'}, {'s', 'z'}}, u"xy", 3},
      {"length 0", {{'l', 0}, {'s', 'x'}}, u"abc", 1},
      {"negative length", {{'l', -1}, {'s', 'x'}}, u"abc", 1},
      {"nothing stored", {}, u"abc", 1},
      {"units not stored", {{'l', 3}, {'s', 'x'}}, std::u16string(u"x\0\0", 3), 4},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    for (const bool reversed : {false, true}) {
      ZRStringMutator target(Make(u"abc"));
      const ZRString sharer(target);
      Recorder stream(row.input);
      Velmar::IStream& result = reversed ? target << stream : stream >> target;
      EXPECT_EQ(&result, &stream);
      EXPECT_EQ(TextOf(target), row.expected);
      EXPECT_EQ(stream.consumed, row.consumed);
      EXPECT_EQ(TextOf(sharer), u"abc");
    }
  }
}

TEST(Stream, AppendsToAnArray) {
  const struct {
    const char* name;
    Calls input;
    std::vector<std::u16string> appended;
  } rows[] = {
      {"no entries", {{'u', 0}, {'l', 1}}, {}},
      {"nothing stored", {}, {}},
      {"empty and two units", {{'u', 2}, {'l', 0}, {'l', 2}, {'s', 'x'}, {'s', 'y'}}, {u"", u"xy"}},
      {"lengths not stored", {{'u', 2}}, {u"", u""}},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    OwningArray array;
    array.PushBack(new ZRString(Make(u"old")));
    Recorder stream(row.input);
    EXPECT_EQ(&(stream >> array), &stream);
    std::vector<std::u16string> expected = {u"old"};
    expected.insert(expected.end(), row.appended.begin(), row.appended.end());
    EXPECT_EQ(Texts(array), expected);
    for (auto entry = array.Begin(); entry != array.End(); ++entry) {
      const ZRString& string = **entry;
      EXPECT_EQ(typeid(string), typeid(ZRString));
    }
  }
  OwningArray array;
  Recorder damaged({{'u', 3}, {'l', 1}, {'s', 'x'}, {'l', -1}, {'s', 'y'}});
  EXPECT_THROW(damaged >> array, std::bad_alloc);
  EXPECT_EQ(Texts(array), std::vector<std::u16string>{u"x"});
  EXPECT_EQ(damaged.consumed, 4u);
}

TEST(Stream, AnExceptionAtAnyCallLeaksNothing) {
  const Calls record = {{'u', 2}, {'l', 1}, {'s', 'x'}, {'l', 2}, {'s', 'y'}, {'s', 'z'}};
  for (std::size_t n = 0; n < record.size(); ++n) {
    SCOPED_TRACE(n);
    OwningArray array;
    Recorder reader(record);
    reader.throwAt = n;
    EXPECT_THROW(reader >> array, std::runtime_error);
    EXPECT_EQ(array.Size(), n < 3 ? 0u : 1u);

    ZRStringMutator target(Make(u"abc"));
    Recorder string(Calls(record.begin() + 3, record.end()));
    string.throwAt = n;
    if (n < 3) {
      EXPECT_THROW(string >> target, std::runtime_error);
    }
    EXPECT_EQ(TextOf(target), u"abc");

    OwningArray full;
    full.PushBack(new ZRString(Make(u"x")));
    full.PushBack(new ZRString(Make(u"yz")));
    Recorder writer;
    writer.throwAt = n;
    EXPECT_THROW(writer << full, std::runtime_error);
    EXPECT_EQ(writer.output, Calls(record.begin(), record.begin() + n));
  }
}
