#include <Velmar/IStream.h>
#include <ZRString/ZRString.h>
#include <ZRString/ZRStringMutator.h>
#include <gtest/gtest.h>
#include <unicode/unistr.h>

#include <cstddef>
#include <cstring>
#include <numeric>
#include <string>
#include <vector>

#include "Text.h"

static_assert(sizeof(ZRString) == 2 * sizeof(void*));
static_assert(sizeof(ZRStringMutator) == sizeof(ZRString));
static_assert(sizeof(ZRLong) == 4 && sizeof(ZRULong) == 4);
static_assert(offsetof(UniStr255, units) == 8);

TEST(Lifetime, EveryByteDecodesAsByIcusConverter) {
  std::string bytes(256, '\0');
  std::iota(bytes.begin(), bytes.end(), '\0');
  const icu::UnicodeString expected(bytes.data(), 256, "windows-1252");
  EXPECT_EQ(TextOf(ZRString(bytes.data(), 0, 256)),
            std::u16string(expected.getBuffer(), expected.length()));
}

TEST(Lifetime, ConstructorsTakeTheNamedRange) {
  const auto record = [](ZRLong length, const std::u16string& text) {
    UniStr255 result{length, 7, {}};
    std::copy(text.begin(), text.end(), result.units);
    return result;
  };
  const unsigned short* const null16 = nullptr;
  const char* const null8 = nullptr;
  const std::u16string text = u"abcdef";
  const auto bytes = reinterpret_cast<const unsigned char*>("abcdef");
  const ZRString source = Make(u"abcde");
  const struct {
    const char* name;
    ZRString string;
    std::u16string expected;
  } rows[] = {
      {"terminated", ZRString(Raw(text)), u"abcdef"},
      {"prefix", ZRString(Raw(text), 2), u"ab"},
      {"prefix to the zero", ZRString(Raw(text), -1), u"abcdef"},
      {"range", ZRString(Raw(text), 2, 3), u"cde"},
      {"range to the zero", ZRString(Raw(text), 2, -1), u"cdef"},
      {"other negative length", ZRString(Raw(text), 2, INT_MIN), u"cdef"},
      {"units past a zero", ZRString(Raw(u"a"), 0, 2), std::u16string(u"a\0", 2)},
      {"null", ZRString(null16), u""},
      {"null with a length", ZRString(null16, 0, 5), u""},
      {"char", ZRString("abcdef", 2, 2), u"cd"},
      {"char to the zero", ZRString("abcdef", 2, -1), u"cdef"},
      {"unsigned char", ZRString(bytes, 2, 2), u"cd"},
      {"unsigned char to the zero", ZRString(bytes, 2, -1), u"cdef"},
      {"windows-1252", ZRString("\x80\xE9\x9F", 0, 3), u"\u20AC\u00E9\u0178"},
      {"no bytes", ZRString("abc", 1, 0), u""},
      {"a negative number of bytes", ZRString("abc", 1, -2), u""},
      {"null bytes", ZRString(null8, 5, 10), u""},
      {"null bytes to the zero", ZRString(null8, 5, -1), u""},
      {"record", ZRString(record(3, u"abcd")), u"abc"},
      {"record to the zero", ZRString(record(-1, u"abcd")), u"abcd"},
      {"prefix of a string", ZRString(source, 3), u"abc"},
      {"range of a string", ZRString(source, 1, 3), u"bcd"},
      {"rest of a string", ZRString(source, 1, -1), u"bcde"},
      {"range past the end", ZRString(source, 3, INT_MAX), u"de"},
      {"start past the end", ZRString(source, 6, -1), u""},
      {"negative start", ZRString(source, -2, 3), u"abc"},
      {"negative length", ZRString(source, 0, -2), u""},
      {"null handle", ZRString(static_cast<ZRStringRef__*>(nullptr)), u""},
      {"null mutable handle", ZRString(static_cast<ZRMutableStringRef__*>(nullptr)), u""},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(TextOf(row.string), row.expected);
    EXPECT_EQ(Holders(row.string), 1);
  }
}

TEST(Lifetime, OnlyTheWholeOfASourceIsShared) {
  const ZRString source = Make(u"abc");
  const auto shares = [&](const ZRString& copy) {
    return BodyOf(copy) == BodyOf(source) && Holders(source) == 2;
  };
  ZRStringMutator mutableSource(source, 1, 1);
  EXPECT_TRUE(shares(ZRString(source)));
  EXPECT_TRUE(shares(ZRString(source, -1)));
  EXPECT_TRUE(shares(ZRString(source, 3)));
  EXPECT_TRUE(shares(ZRString(source, 0, -1)));
  EXPECT_TRUE(shares(ZRString(source, 0, 3)));
  EXPECT_TRUE(shares(ZRString(source.GetZRStringRef())));
  EXPECT_TRUE(shares(ZRStringMutator(source)));
  EXPECT_TRUE(shares(ZRStringMutator(source, 0, 3)));
  EXPECT_TRUE(shares(ZRStringMutator(source.GetZRStringRef())));
  EXPECT_FALSE(shares(ZRString(source, 0, 4)));
  EXPECT_FALSE(shares(ZRString(source, 2)));
  EXPECT_FALSE(shares(ZRString(source, -1, 3)));
  EXPECT_FALSE(shares(ZRString(source, 1, -1)));
  EXPECT_FALSE(shares(ZRStringMutator(source, 0, 4)));
  EXPECT_EQ(BodyOf(ZRString(mutableSource.GetZRMutableStringRef())), BodyOf(mutableSource));
  EXPECT_EQ(Holders(source), 1);
}

TEST(Lifetime, TheLastHolderKeepsTheText) {
  auto first = std::make_unique<ZRString>(Make(u"text"));
  auto second = std::make_unique<ZRString>(*first);
  const ZRString third(*second);
  EXPECT_EQ(Holders(third), 3);
  first.reset();
  second.reset();
  EXPECT_EQ(Holders(third), 1);
  EXPECT_EQ(TextOf(third), u"text");
}

TEST(Lifetime, AssignmentMovesOneShare) {
  const ZRString source = Make(u"new");
  ZRStringMutator target(Make(u"old"));
  const ZRString old(target);
  target = source;
  EXPECT_EQ(BodyOf(target), BodyOf(source));
  EXPECT_EQ(Holders(source), 2);
  EXPECT_EQ(Holders(old), 1);
  const ZRStringMutator& itself = target;
  target = itself;
  target = ZRStringMutator(source);
  EXPECT_EQ(Holders(source), 2);
  EXPECT_EQ(TextOf(old), u"old");
  ZRStringMutator alone(Make(u"alone"));
  const ZRString& same = alone;
  alone = same;
  EXPECT_EQ(Holders(alone), 1);
  EXPECT_EQ(TextOf(alone), u"alone");
}

namespace {

/// The slot of a virtual member function, as the C++ ABI of GCC and Clang keeps it in a pointer.
template <typename Pointer>
std::ptrdiff_t Slot(Pointer member) {
  std::ptrdiff_t value;
  std::memcpy(&value, &member, sizeof value);
  return (value - 1) / static_cast<std::ptrdiff_t>(sizeof(void*));
}

}  // namespace

TEST(Lifetime, VirtualOperationsKeepTheirSlots) {
  // The destructor has the first two there.
  EXPECT_EQ(Slot(&ZRString::GetBuffer), 2);
  EXPECT_EQ(Slot(&ZRString::Extract), 3);
  EXPECT_EQ(Slot(&ZRString::ExtractBetween), 4);
  EXPECT_EQ(Slot<unsigned short* (ZRStringMutator::*)(ZRLong)>(&ZRStringMutator::GetBuffer), 5);
  EXPECT_EQ(Slot(&Velmar::ITransfer<unsigned short>::Write), 2);
  EXPECT_EQ(Slot(&Velmar::ITransfer<unsigned short>::Read), 3);
}

TEST(Lifetime, HandlesAreAddresses) {
  const ZRString string = Make(u"a");
  ZRStringMutator mutator(string);
  EXPECT_EQ(static_cast<const void*>(string.GetZRStringRef()), &string);
  EXPECT_EQ(&GetZRStringFromRef(string.GetZRStringRef()), &string);
  EXPECT_EQ(static_cast<void*>(mutator.GetZRMutableStringRef()), &mutator);
  EXPECT_EQ(&GetZRStringMutatorFromRef(mutator.GetZRMutableStringRef()), &mutator);
  EXPECT_EQ(static_cast<void*>(mutator.GetZRStringRef()), &mutator);

  ZRString* const untouched = reinterpret_cast<ZRString*>(8);
  ZRString* result = untouched;
  EXPECT_EQ(ZRStringRefToZRString(nullptr, nullptr), 5);
  EXPECT_EQ(ZRStringRefToZRString(string.GetZRStringRef(), nullptr), 5);
  EXPECT_EQ(ZRStringRefToZRString(nullptr, &result), 4);
  EXPECT_EQ(result, untouched);
  EXPECT_EQ(ZRStringRefToZRString(string.GetZRStringRef(), &result), 0);
  EXPECT_EQ(result, &string);
}
