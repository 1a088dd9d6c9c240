// Guards the handle functions: every status, what each calls, and that a refused call changes
// nothing.
#include <ZRString/ZRStringInterfaces.h>
#include <ZRString/ZRStringMutator.h>
#include <ZRString/ZRStringOutput.h>
#include <ZRString/ZRStringPtrArray.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <set>
#include <sstream>
#include <vector>

#include "Text.h"

namespace {

using Immutable = ZRAccessorStringDKInterfaceImpl;
using Mutable = ZRMutableStringDKInterfaceImpl;
using Array = ZRStringCDKInterfaceImpl;

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

Word W(ZRLong value) { return static_cast<Word>(value); }
Word W(const volatile void* pointer) { return reinterpret_cast<Word>(pointer); }

struct Row {
  const char* name;  // of the plain function
  Function plain, member;
  const char* parameters;  // their kinds
};

#define ZR_BOTH(family, name) #name, Erased(&::name), Erased(&family::name)
#define ZR_ARRAY(name, member) #name, Erased(&::name), Erased(&Array::member)

const Row kRows[] = {
    {ZR_BOTH(Immutable, ZRStringCreateFromUniChars), "units start toEnd out"},
    {ZR_BOTH(Immutable, ZRStringCreateFromLocalString), "bytes start toEnd out"},
    {ZR_BOTH(Immutable, ZRStringCreateFromCString), "bytes start length out"},
    {ZR_BOTH(Immutable, ZRStringCreateCopy), "string out"},
    {ZR_BOTH(Immutable, ZRStringCreateCopyRange), "string start toEnd out"},
    {ZR_BOTH(Immutable, ZRStringDestroy), "string"},
    {ZR_BOTH(Immutable, ZRStringCompare), "string start toEnd string start toEnd out"},
    {ZR_BOTH(Immutable, ZRStringCompareCodePointOrder),
     "string start toEnd string start toEnd out"},
    {ZR_BOTH(Immutable, ZRStringICompare), "string start toEnd string start toEnd any out"},
    {ZR_BOTH(Immutable, ZRStringFind), "string start toEnd string out"},
    {ZR_BOTH(Immutable, ZRStringFindUniChars), "string start toEnd any length out"},
    {ZR_BOTH(Immutable, ZRStringRFind), "string start toEnd string out"},
    {ZR_BOTH(Immutable, ZRStringRFindUniChars), "string start toEnd any length out"},
    {ZR_BOTH(Immutable, ZRStringGetUniCharsAt), "string any count out"},
    {ZR_BOTH(Immutable, ZRStringExtractIntoUniChars), "string start toEnd out start"},
    {ZR_BOTH(Immutable, ZRStringGetLength), "string out"},
    {ZR_BOTH(Immutable, ZRStringIsEmpty), "string out"},
    {ZR_BOTH(Immutable, ZRStringGetBuffer), "string out"},
    {ZR_BOTH(Immutable, ZRStringLastIndexOf), "string any out"},

    {ZR_BOTH(Mutable, ZRMutableStringCreateEmpty), "out"},
    {ZR_BOTH(Mutable, ZRMutableStringCreateFromUniChars), "units start length out"},
    {ZR_BOTH(Mutable, ZRMutableStringCreateCopy), "string out"},
    {ZR_BOTH(Mutable, ZRMutableStringCreateCopyRange), "string start toEnd out"},
    {ZR_BOTH(Mutable, ZRMutableStringCreateFromLocalString), "bytes start length out"},
    {ZR_BOTH(Mutable, ZRMutableStringCreateFromCString), "bytes start length out"},
    {ZR_BOTH(Mutable, ZRMutableStringDestroy), "mutable"},
    {ZR_BOTH(Mutable, ZRMutableStringSetUniCharAt), "mutable start any"},
    {ZR_BOTH(Mutable, ZRMutableStringSetToZRString), "mutable string start toEnd"},
    {ZR_BOTH(Mutable, ZRMutableStringAppend), "mutable string"},
    {ZR_BOTH(Mutable, ZRMutableStringAppendUniChars), "mutable units start length"},
    {ZR_BOTH(Mutable, ZRMutableStringInsert), "mutable start string start toEnd"},
    {ZR_BOTH(Mutable, ZRMutableStringInsertUniChars), "mutable start units start length"},
    {ZR_BOTH(Mutable, ZRMutableStringReplaceBetween), "mutable start toEnd string"},
    {ZR_BOTH(Mutable, ZRMutableStringReplaceWithUniChars),
     "mutable start toEnd units start length"},
    {ZR_BOTH(Mutable, ZRMutableStringFindAndReplace), "mutable start toEnd string string"},
    {ZR_BOTH(Mutable, ZRMutableStringRemoveBetween), "mutable start toEnd"},
    {ZR_BOTH(Mutable, ZRMutableStringPadLeading), "mutable start any out"},
    {ZR_BOTH(Mutable, ZRMutableStringPadTrailing), "mutable start any out"},
    {ZR_BOTH(Mutable, ZRMutableStringTruncate), "mutable start out"},
    {ZR_BOTH(Mutable, ZRMutableStringTrim), "mutable"},
    {ZR_BOTH(Mutable, ZRMutableStringToUpper), "mutable"},
    {ZR_BOTH(Mutable, ZRMutableStringToLower), "mutable"},
    {ZR_BOTH(Mutable, ZRMutableStringGetBufferWithCapacity), "mutable toEnd out"},
    {ZR_BOTH(Mutable, ZRMutableStringGetCapacity), "mutable out"},
    {ZR_BOTH(Mutable, ZRMutableStringReleaseBuffer), "mutable toEnd"},
    {ZR_BOTH(Mutable, ZRMutableStringReverse), "mutable start toEnd"},
    {ZR_BOTH(Mutable, ZRMutableStringAddStrings), "string string out"},
    {ZR_BOTH(Mutable, ZRMutableStringLastIndexOf), "mutable any out"},

    {ZR_ARRAY(ZRStringPtrArrayCreate, ZRSPtrArrayCreate), "out"},
    {ZR_ARRAY(ZRStrPtrArrCreateFromZRStrPtrArr, ZRSPtrArrayCreateFromZRSPtrArray), "array out"},
    {ZR_ARRAY(ZRStringPtrArrayDestroy, ZRSPtrArrayDestroy), "array"},
    {ZR_ARRAY(ZRStringPtrArraySize, ZRSPtrArraySize), "array out"},
    {ZR_ARRAY(ZRStringPtrArrayIsEmpty, ZRSPtrArrayIsEmpty), "array out"},
    {ZR_ARRAY(GetZRStringRefAt, ZRSPtrArrayGetZRStringRefAt), "array any out"},
    {ZR_ARRAY(SetZRStringRefAt, ZRSPtrArraySetZRStringRefAt), "array any string"},
    {ZR_ARRAY(InsertZRStringRefAt, ZRSPtrArrayInsertZRStringRefAt), "array any string"},
    {ZR_ARRAY(ZRStringPtrArrayPushBack, ZRSPtrArrayPushBack), "array string"},
    {ZR_ARRAY(ZRStringPtrArrayErase, ZRSPtrArrayErase), "array index"},
    {ZR_ARRAY(ZRStringPtrArrayEraseAll, ZRSPtrArrayEraseAll), "array"},
    {ZR_ARRAY(ZRStringPtrArrayDeleteAll, ZRSPtrArrayDeleteAll), "array"},
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
      {"start", {W(0), {W(-1), W(INT_MIN)}}},
      {"toEnd", {W(-1), {W(-2), W(INT_MIN)}}},
      {"length", {W(1), {W(-1), W(-2), W(INT_MIN)}}},
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
  EXPECT_EQ(exported.size(), 60u);
  EXPECT_EQ(names, exported);
}

TEST(Handles, ImmutableStrings) {
  const std::u16string text = u"abab";
  ZRStringRef__* a = nullptr;
  ZRStringRef__* b = nullptr;
  ASSERT_EQ(ZRStringCreateFromUniChars(Raw(text), 0, -1, &a), 0);
  EXPECT_EQ(TextOf(ZRString(a)), text);
  ASSERT_EQ(ZRStringCreateCopyRange(a, 2, -1, &b), 0);
  EXPECT_EQ(TextOf(ZRString(b)), u"ab");

  const auto made = [](ZRLong status, ZRStringRef__*& handle) {
    EXPECT_EQ(status, 0);
    const std::u16string result = TextOf(GetZRStringFromRef(handle));
    EXPECT_EQ(ZRStringDestroy(handle), 0);
    return result;
  };
  const auto bytes = reinterpret_cast<const unsigned char*>("x\x80z");
  ZRStringRef__* c = nullptr;
  EXPECT_EQ(made(ZRStringCreateFromLocalString(bytes, 1, -1, &c), c), u"\u20ACz");
  EXPECT_EQ(made(ZRStringCreateFromCString("x\x80z", 1, 1, &c), c), u"\u20AC");
  EXPECT_EQ(made(ZRStringCreateFromUniChars(Raw(text), 1, 2, &c), c), u"ba");
  EXPECT_EQ(made(ZRStringCreateCopyRange(a, 1, 2, &c), c), u"ba");
  ASSERT_EQ(ZRStringCreateCopy(a, &c), 0);
  EXPECT_EQ(BodyOf(GetZRStringFromRef(c)), BodyOf(GetZRStringFromRef(a)));
  EXPECT_EQ(made(0, c), text);

  ZRLong n = 9;
  const struct {
    ZRLong start, length, srcStart, srcLength, expected;
  } ranges[] = {
      {0, -1, 0, -1, 1},
      {2, -1, 0, -1, 0},
      {0, 2, 0, 2, 0},
      {1, 0, 1, 0, 0},
      {1, 1, 0, 1, 1},
      {0, 1, 0, -1, -1},
      {9, INT_MAX, 0, 0, 0},
      {INT_MAX, INT_MAX, 9, 0, 0},
      {2, INT_MAX, 0, INT_MAX, 0},
      {0, 1, INT_MAX, -1, 1},
  };
  for (const auto& [start, length, srcStart, srcLength, expected] : ranges) {
    SCOPED_TRACE(testing::Message() << start << ' ' << length);
    EXPECT_EQ(ZRStringCompare(a, start, length, b, srcStart, srcLength, &n), 0);
    EXPECT_EQ(n, expected);
    EXPECT_EQ(ZRStringCompareCodePointOrder(a, start, length, b, srcStart, srcLength, &n), 0);
    EXPECT_EQ(n, expected);
    for (const ZRULong options : {0u, 3u, 0xFFFF8000u}) {
      EXPECT_EQ(ZRStringICompare(a, start, length, b, srcStart, srcLength, options, &n), 0);
      EXPECT_EQ(n, expected);
    }
  }

  unsigned short pattern[] = {'b', 'x'};
  const auto found = [&](ZRLong status) {
    EXPECT_EQ(status, 0);
    return n;
  };
  EXPECT_EQ(found(ZRStringFind(a, 0, -1, b, &n)), 0);
  EXPECT_EQ(found(ZRStringFind(a, 1, -1, b, &n)), 2);
  EXPECT_EQ(found(ZRStringFind(b, 0, -1, a, &n)), -1);
  EXPECT_EQ(found(ZRStringRFind(a, 0, -1, b, &n)), 2);
  EXPECT_EQ(found(ZRStringRFind(a, 0, 3, b, &n)), 0);
  EXPECT_EQ(found(ZRStringFindUniChars(a, 0, -1, pattern, 1, &n)), 1);
  EXPECT_EQ(found(ZRStringRFindUniChars(a, 0, -1, pattern, 1, &n)), 3);
  EXPECT_EQ(found(ZRStringFindUniChars(a, 2, -1, pattern, 1, &n)), 3);
  EXPECT_EQ(found(ZRStringRFindUniChars(a, 0, 2, pattern, 1, &n)), 1);
  EXPECT_EQ(found(ZRStringRFind(a, 3, -1, b, &n)), -1);
  const ZRString replacement = Make(u"\uFFFD"), smile = Make(u"\U0001F600");
  ZRStringRef__* const r = replacement.GetZRStringRef();
  ZRStringRef__* const p = smile.GetZRStringRef();
  EXPECT_EQ(found(ZRStringCompare(r, 0, -1, p, 0, -1, &n)), 1);
  EXPECT_EQ(found(ZRStringCompareCodePointOrder(r, 0, -1, p, 0, -1, &n)), -1);
  EXPECT_EQ(found(ZRStringICompare(r, 0, -1, p, 0, -1, 0, &n)), 1);
  EXPECT_EQ(found(ZRStringICompare(r, 0, -1, p, 0, -1, 2, &n)), -1);
  EXPECT_EQ(found(ZRStringFindUniChars(a, 0, -1, pattern, 0, &n)), -1);
  EXPECT_EQ(found(ZRStringFindUniChars(a, 0, -1, nullptr, 1, &n)), -1);
  EXPECT_EQ(found(ZRStringRFindUniChars(a, 0, -1, nullptr, 1, &n)), -1);
  EXPECT_EQ(found(ZRStringLastIndexOf(a, 'a', &n)), 2);
  EXPECT_EQ(found(ZRStringGetLength(a, &n)), 4);
  unsigned char empty = 9;
  EXPECT_EQ(ZRStringIsEmpty(a, &empty), 0);
  EXPECT_EQ(empty, 0);
  unsigned short* buffer = nullptr;
  EXPECT_EQ(ZRStringGetBuffer(a, &buffer), 0);
  EXPECT_EQ(buffer, GetZRStringFromRef(a).GetBuffer());

  const std::u16string untouched = u"########";
  const auto written = [&](auto call) {
    std::u16string units = untouched;
    EXPECT_EQ(call(reinterpret_cast<unsigned short*>(units.data())), 0);
    return units;
  };
  const auto fetched = [&](ZRLong index, ZRLong count) {
    return written([=](auto units) { return ZRStringGetUniCharsAt(a, index, count, units); });
  };
  EXPECT_EQ(fetched(1, 2), std::u16string(u"ba\0#####", 8));
  EXPECT_EQ(fetched(2, INT_MAX), std::u16string(u"ab\0#####", 8));
  for (const ZRLong index : {INT_MIN, -7, 4, INT_MAX})
    EXPECT_EQ(fetched(index, 2), u"\uFFFF#######");
  const auto extracted = [&](ZRLong start, ZRLong length, ZRLong dstStart) {
    return written(
        [=](auto units) { return ZRStringExtractIntoUniChars(a, start, length, units, dstStart); });
  };
  EXPECT_EQ(extracted(2, -1, 2), std::u16string(u"##ab\0###", 8));
  EXPECT_EQ(extracted(4, 3, 1), std::u16string(u"#\0######", 8));
  EXPECT_EQ(extracted(5, -1, 0), untouched);
  EXPECT_EQ(ZRStringDestroy(a), 0);
  EXPECT_EQ(ZRStringDestroy(b), 0);
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
}

TEST(Handles, MutableStrings) {
  const ZRString source = Make(u"abc");
  ZRStringRef__* const s = source.GetZRStringRef();
  const ZRString foundString = Make(u"b"), replacementString = Make(u"x");
  ZRStringRef__* const b = foundString.GetZRStringRef();
  ZRStringRef__* const x = replacementString.GetZRStringRef();
  const std::u16string chars = u"xyz";
  const auto bytes = reinterpret_cast<const unsigned char*>("x\x80z");
  using M = ZRMutableStringRef__*;
  M made = nullptr;
  unsigned char flag = 0;
  const struct {
    const char* name;
    std::function<ZRLong(M)> call;  // on a mutable copy of abc
    const char16_t* expected;
  } edits[] = {
      {"set unit", [&](M m) { return ZRMutableStringSetUniCharAt(m, 1, 'Z'); }, u"aZc"},
      {"set unit past the end", [&](M m) { return ZRMutableStringSetUniCharAt(m, 9, 'Z'); },
       u"abZ"},
      {"set", [&](M m) { return ZRMutableStringSetToZRString(m, s, 1, -1); }, u"bc"},
      {"set range", [&](M m) { return ZRMutableStringSetToZRString(m, s, 0, 2); }, u"ab"},
      {"append", [&](M m) { return ZRMutableStringAppend(m, s); }, u"abcabc"},
      {"append chars", [&](M m) { return ZRMutableStringAppendUniChars(m, Raw(chars), 1, 1); },
       u"abcy"},
      {"insert", [&](M m) { return ZRMutableStringInsert(m, 1, s, 1, -1); }, u"abcbc"},
      {"insert range", [&](M m) { return ZRMutableStringInsert(m, 1, s, 1, 1); }, u"abbc"},
      {"insert past the source", [&](M m) { return ZRMutableStringInsert(m, 1, s, INT_MAX, -1); },
       u"abc"},
      {"insert chars", [&](M m) { return ZRMutableStringInsertUniChars(m, 1, Raw(chars), 1, 2); },
       u"ayzbc"},
      {"replace", [&](M m) { return ZRMutableStringReplaceBetween(m, 1, 1, s); }, u"aabcc"},
      {"replace the rest", [&](M m) { return ZRMutableStringReplaceBetween(m, 1, -1, s); },
       u"aabc"},
      {"replace chars",
       [&](M m) { return ZRMutableStringReplaceWithUniChars(m, 1, 1, Raw(chars), 1, 2); }, u"ayzc"},
      {"replace the rest by chars",
       [&](M m) { return ZRMutableStringReplaceWithUniChars(m, 1, -1, Raw(chars), 0, 1); }, u"ax"},
      {"find and replace", [&](M m) { return ZRMutableStringFindAndReplace(m, 0, -1, s, s); },
       u"abc"},
      {"find and replace b", [&](M m) { return ZRMutableStringFindAndReplace(m, 1, 1, b, x); },
       u"axc"},
      {"find past b", [&](M m) { return ZRMutableStringFindAndReplace(m, 2, -1, b, x); }, u"abc"},
      {"find before b", [&](M m) { return ZRMutableStringFindAndReplace(m, 0, 1, b, x); }, u"abc"},
      {"reverse range", [&](M m) { return ZRMutableStringReverse(m, 0, 2); }, u"bac"},
      {"remove", [&](M m) { return ZRMutableStringRemoveBetween(m, 0, 0); }, u"bc"},
      {"remove the rest", [&](M m) { return ZRMutableStringRemoveBetween(m, 1, -1); }, u"a"},
      {"remove to the greatest index",
       [&](M m) { return ZRMutableStringRemoveBetween(m, 1, INT_MAX); }, u"a"},
      {"pad leading", [&](M m) { return ZRMutableStringPadLeading(m, 5, '0', &flag) + !flag; },
       u"00abc"},
      {"pad trailing", [&](M m) { return ZRMutableStringPadTrailing(m, 5, '0', &flag) + !flag; },
       u"abc00"},
      {"pad to less", [&](M m) { return ZRMutableStringPadTrailing(m, 2, '0', &flag) + flag; },
       u"abc"},
      {"truncate", [&](M m) { return ZRMutableStringTruncate(m, 1, &flag) + !flag; }, u"a"},
      {"trim", [&](M m) { return ZRMutableStringSetUniCharAt(m, 2, ' ') + ZRMutableStringTrim(m); },
       u"ab"},
      {"upper", [&](M m) { return ZRMutableStringToUpper(m); }, u"ABC"},
      {"lower", [&](M m) { return ZRMutableStringToUpper(m) + ZRMutableStringToLower(m); }, u"abc"},
      {"reverse", [&](M m) { return ZRMutableStringReverse(m, 1, -1); }, u"acb"},
      {"buffer",
       [&](M m) {
         unsigned short* units = nullptr;
         ZRLong capacity = 0;
         const ZRLong status = ZRMutableStringGetBufferWithCapacity(m, 40, &units) +
                               ZRMutableStringGetCapacity(m, &capacity);
         EXPECT_GE(capacity, 40);
         units[0] = 'Z';
         return status + ZRMutableStringReleaseBuffer(m, 2);
       },
       u"Zb"},
      {"sum",
       [&](M m) {
         const ZRLong status =
             ZRMutableStringAddStrings(x, s, &made) +
             ZRMutableStringSetToZRString(m, Mutable::ZRStringRefConst(made), 0, -1);
         return status + ZRMutableStringDestroy(made);
       },
       u"xabc"},
      {"empty",
       [&](M m) {
         const ZRLong status =
             ZRMutableStringCreateEmpty(&made) +
             ZRMutableStringSetToZRString(m, Mutable::ZRStringRefConst(made), 0, -1);
         return status + ZRStringDestroy(Mutable::ZRStringRefConst(made));
       },
       u""},
  };
  for (const auto& edit : edits) {
    SCOPED_TRACE(edit.name);
    M copy = nullptr;
    ASSERT_EQ(ZRMutableStringCreateCopy(s, &copy), 0);
    ZRStringRef__* const seen = Mutable::ZRStringRefConst(copy);
    EXPECT_EQ(static_cast<void*>(seen), copy);
    EXPECT_EQ(edit.call(copy), 0);
    EXPECT_EQ(TextOf(GetZRStringFromRef(seen)), edit.expected);
    EXPECT_EQ(TextOf(source), u"abc");
    EXPECT_EQ(ZRMutableStringDestroy(copy), 0);
    EXPECT_EQ(Holders(source), 1);
  }
  EXPECT_EQ(Mutable::ZRStringRefConst(nullptr), nullptr);

  const auto text = [&](ZRLong status) {
    EXPECT_EQ(status, 0);
    const std::u16string result = TextOf(GetZRStringMutatorFromRef(made));
    EXPECT_EQ(ZRMutableStringDestroy(made), 0);
    return result;
  };
  EXPECT_EQ(text(ZRMutableStringCreateFromUniChars(Raw(chars), 1, 2, &made)), u"yz");
  EXPECT_EQ(text(ZRMutableStringCreateFromLocalString(bytes, 1, 2, &made)), u"\u20ACz");
  EXPECT_EQ(text(ZRMutableStringCreateFromCString("x\x80z", 1, 1, &made)), u"\u20AC");
  EXPECT_EQ(text(ZRMutableStringCreateCopyRange(s, 1, -1, &made)), u"bc");
  EXPECT_EQ(text(ZRMutableStringCreateCopyRange(s, 1, 1, &made)), u"b");
  ZRStringMutator mutator(source);
  ZRLong index = 9;
  EXPECT_EQ(ZRMutableStringLastIndexOf(mutator.GetZRMutableStringRef(), 'b', &index), 0);
  EXPECT_EQ(index, 1);
}

TEST(Handles, Arrays) {
  ZRStringPtrArrayRef__* array = nullptr;
  ZRStringPtrArrayRef__* copy = nullptr;
  ZRStringRef__* const untouched = reinterpret_cast<ZRStringRef__*>(8);
  ZRStringRef__* entry = untouched;
  ZRULong size = 9;
  unsigned char empty = 9;
  std::vector<ZRStringRef__*> s(4);
  for (auto& handle : s)
    handle = (new ZRString(Make(u"s")))->GetZRStringRef();
  ASSERT_EQ(ZRStringPtrArrayCreate(&array), 0);
  EXPECT_EQ(ZRStringPtrArraySize(array, &size) + static_cast<ZRLong>(size), 0);
  EXPECT_EQ(ZRStringPtrArrayIsEmpty(array, &empty) + empty, 1);
  for (const ZRLong index : {INT_MIN, -1, 0, 1, INT_MAX}) {
    EXPECT_EQ(GetZRStringRefAt(array, index, &entry), 12);
    EXPECT_EQ(Array::ZRSPtrArrayGetZRStringRefAt(array, index, &entry), 12);
    EXPECT_EQ(SetZRStringRefAt(array, index, s[0]), 12);
    EXPECT_EQ(InsertZRStringRefAt(array, index, s[0]), 12);
    EXPECT_EQ(Array::ZRSPtrArrayInsertZRStringRefAt(array, index, s[0]), 12);
    EXPECT_EQ(ZRStringPtrArrayErase(array, index), 12);
    EXPECT_EQ(InsertZRStringRefAt(array, index, nullptr), 5);
    EXPECT_EQ(Array::ZRSPtrArrayInsertZRStringRefAt(array, index, nullptr), 6);
  }
  EXPECT_EQ(entry, untouched);

  const auto entries = [&](ZRStringPtrArrayRef__* of) {
    const ZRStringPtrArray& strings = *GetZRStringPtrArrayFromRef(of);
    std::vector<ZRStringRef__*> result;
    for (auto i = strings.Begin(); i != strings.End(); ++i)
      result.push_back(*i ? (*i)->GetZRStringRef() : nullptr);
    return result;
  };
  using Entries = std::vector<ZRStringRef__*>;
  EXPECT_EQ(ZRStringPtrArrayPushBack(array, s[1]), 0);
  EXPECT_EQ(ZRStringPtrArrayPushBack(array, s[2]), 0);
  EXPECT_EQ(InsertZRStringRefAt(array, 0, s[0]), 0);
  EXPECT_EQ(entries(array), (Entries{s[0], s[1], s[2]}));
  EXPECT_EQ(InsertZRStringRefAt(array, 3, s[3]), 12);
  EXPECT_EQ(SetZRStringRefAt(array, 3, s[3]), 12);
  EXPECT_EQ(ZRStringPtrArrayErase(array, 3), 12);
  for (const ZRLong index : {INT_MIN, -1, 0, 1, 2, 3, INT_MAX}) {
    ZRStringRef__* const expected = s[index >= 0 && index < 3 ? index : 2];
    EXPECT_EQ(GetZRStringRefAt(array, index, &entry), 0);
    EXPECT_EQ(entry, expected);
    EXPECT_EQ(Array::ZRSPtrArrayGetZRStringRefAt(array, index, &entry), 0);
    EXPECT_EQ(entry, expected);
  }
  EXPECT_EQ(SetZRStringRefAt(array, 2, s[3]), 0);
  EXPECT_EQ(ZRStringPtrArrayErase(array, 1), 0);
  EXPECT_EQ(entries(array), (Entries{s[0], s[3]}));
  ASSERT_EQ(ZRStrPtrArrCreateFromZRStrPtrArr(array, &copy), 0);
  EXPECT_EQ(entries(copy), entries(array));
  EXPECT_EQ(ZRStringPtrArrayEraseAll(copy), 0);
  EXPECT_EQ(entries(copy), Entries());
  GetZRStringPtrArrayFromRef(copy)->PushBack(nullptr);
  EXPECT_EQ(GetZRStringRefAt(copy, 0, &entry), 0);
  EXPECT_EQ(entry, nullptr);
  EXPECT_EQ(ZRStringPtrArrayDestroy(copy), 0);
  EXPECT_EQ(ZRStringPtrArrayDeleteAll(array), 0);
  EXPECT_EQ(entries(array), Entries());
  EXPECT_EQ(ZRStringPtrArrayDestroy(array), 0);
  EXPECT_EQ(ZRStringDestroy(s[1]) + ZRStringDestroy(s[2]), 0);  // erased and replaced, still alive
}
