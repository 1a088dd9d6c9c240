#include <ZRString/ZRStringInterfaces.h>
#include <ZRString/ZRStringMutator.h>
#include <ZRString/ZRStringOutput.h>
#include <ZRString/ZRStringPtrArray.h>
#include <gtest/gtest.h>

#include <cstring>
#include <fstream>
#include <functional>
#include <iterator>
#include <set>
#include <tuple>
#include <vector>

#include "Text.h"

namespace {

using Immutable = ZRAccessorStringDKInterfaceImpl;
using Mutable = ZRMutableStringDKInterfaceImpl;
using Array = ZRStringCDKInterfaceImpl;

/// The targets of every out-parameter, so that a write to any of them is seen.
struct Outputs {
  ZRLong number;
  ZRULong size;
  unsigned char flag;
  unsigned short units[8];
  unsigned short* buffer;
  ZRStringRef__* string;
  ZRMutableStringRef__* mutableString;
  ZRStringPtrArrayRef__* array;
};

class Statuses : public testing::Test {
 protected:
  Statuses() {
    std::memset(&out, 0x5A, sizeof out);
    untouched = out;
    array.PushBack(&string);
  }

  /// One parameter of a function: a valid value, what makes it invalid, and the status then.
  template <typename Type>
  struct Parameter {
    Type valid;
    std::vector<Type> invalid;
    ZRLong status = 0;  // 0: 3 + position
  };

  /// Keeps a parameter's type from being deduced, so that the function's own types count.
  template <typename Type>
  struct Exactly {
    using type = Type;
  };

  /// Makes each parameter invalid in turn, alone and together with all later ones.
  template <typename... Types>
  void Check(const char* name, ZRLong (*plain)(Types...), ZRLong (*member)(Types...),
             typename Exactly<Parameter<Types>>::type... parameters) {
    names.insert(name);
    CheckOne(name, plain, parameters...);
    CheckOne(std::string(name) + ", member", member, parameters...);
  }

  template <typename... Types>
  void CheckOne(const std::string& name, ZRLong (*function)(Types...),
                const Parameter<Types>&... parameters) {
    CheckEach(name, function, std::make_tuple(parameters...), std::index_sequence_for<Types...>());
  }

  template <typename Function, typename Parameters, std::size_t... Index>
  void CheckEach(const std::string& name, Function function, const Parameters& parameters,
                 std::index_sequence<Index...> all) {
    (CheckPosition<Index>(name, function, parameters, all), ...);
  }

  template <std::size_t Position, typename Function, typename Parameters, std::size_t... Index>
  void CheckPosition(const std::string& name, Function function, const Parameters& parameters,
                     std::index_sequence<Index...>) {
    const auto& tested = std::get<Position>(parameters);
    for (const auto& value : tested.invalid) {
      for (const bool alone : {true, false}) {
        const auto argument = [&](const auto& parameter, int index) {
          return alone || index < static_cast<int>(Position) || parameter.invalid.empty()
                     ? parameter.valid
                     : parameter.invalid[0];
        };
        auto arguments = std::make_tuple(argument(std::get<Index>(parameters), Index)...);
        std::get<Position>(arguments) = value;
        SCOPED_TRACE(testing::Message() << name << ", parameter " << Position + 1
                                        << (alone ? "" : " and all later ones"));
        EXPECT_EQ(std::apply(function, arguments),
                  tested.status ? tested.status : static_cast<ZRLong>(Position + 4));
        EXPECT_EQ(std::memcmp(&out, &untouched, sizeof out), 0);
        EXPECT_EQ(TextOf(string), u"abc");
        EXPECT_EQ(TextOf(mutableString), u"abc");
        EXPECT_EQ(array.Size(), 1u);
      }
    }
  }

  template <typename Type>
  static Parameter<Type> Pointer(Type valid, ZRLong status = 0) {
    return {valid, {nullptr}, status};
  }

  Outputs out;
  Outputs untouched;
  ZRString string = Make(u"abc");
  ZRStringMutator mutableString{string};
  ZRStringPtrArray array;
  std::set<std::string> names;
};

}  // namespace

#define ZR_BOTH(family, name) #name, &::name, &family::name

TEST_F(Statuses, TheFirstInvalidParameterCountsAndNothingIsWritten) {
  const auto s = Pointer(string.GetZRStringRef());
  const auto m = Pointer(mutableString.GetZRMutableStringRef());
  const auto a = Pointer(array.GetZRStringPtrArrayRef());
  const auto chars = Pointer<const unsigned short*>(string.GetBuffer());
  const auto text = Pointer("abc");
  const auto bytes = Pointer(reinterpret_cast<const unsigned char*>("abc"));
  const auto number = Pointer(&out.number);
  const auto flag = Pointer(&out.flag);
  const auto newS = Pointer(&out.string);
  const auto newM = Pointer(&out.mutableString);
  const auto newA = Pointer(&out.array);
  const auto units = Pointer<unsigned short*>(out.units);
  const Parameter<ZRLong> start{0, {-1, INT_MIN}};
  const Parameter<ZRLong> toEnd{-1, {-2, INT_MIN}};
  const Parameter<ZRLong> length{1, {-1, -2, INT_MIN}};
  const Parameter<unsigned short> unit{'a', {}};
  const Parameter<unsigned short*> pattern{out.units, {}};
  const Parameter<ZRLong> anyIndex{0, {}};
  const Parameter<ZRULong> options{0, {}};

  Check(ZR_BOTH(Immutable, ZRStringCreateFromUniChars), chars, start, toEnd, newS);
  Check(ZR_BOTH(Immutable, ZRStringCreateFromLocalString), bytes, start, toEnd, newS);
  Check(ZR_BOTH(Immutable, ZRStringCreateFromCString), text, start, length, newS);
  Check(ZR_BOTH(Immutable, ZRStringCreateCopy), s, newS);
  Check(ZR_BOTH(Immutable, ZRStringCreateCopyRange), s, start, toEnd, newS);
  Check(ZR_BOTH(Immutable, ZRStringDestroy), s);
  Check(ZR_BOTH(Immutable, ZRStringCompare), s, start, toEnd, s, start, toEnd, number);
  Check(ZR_BOTH(Immutable, ZRStringCompareCodePointOrder), s, start, toEnd, s, start, toEnd,
        number);
  Check(ZR_BOTH(Immutable, ZRStringICompare), s, start, toEnd, s, start, toEnd, options, number);
  Check(ZR_BOTH(Immutable, ZRStringFind), s, start, toEnd, s, number);
  Check(ZR_BOTH(Immutable, ZRStringFindUniChars), s, start, toEnd, pattern, length, number);
  Check(ZR_BOTH(Immutable, ZRStringRFind), s, start, toEnd, s, number);
  Check(ZR_BOTH(Immutable, ZRStringRFindUniChars), s, start, toEnd, pattern, length, number);
  Check(ZR_BOTH(Immutable, ZRStringGetUniCharsAt), s, anyIndex, {1, {0, -1, INT_MIN}}, units);
  Check(ZR_BOTH(Immutable, ZRStringExtractIntoUniChars), s, start, toEnd, units, start);
  Check(ZR_BOTH(Immutable, ZRStringGetLength), s, number);
  Check(ZR_BOTH(Immutable, ZRStringIsEmpty), s, flag);
  Check(ZR_BOTH(Immutable, ZRStringGetBuffer), s, Pointer(&out.buffer));
  Check(ZR_BOTH(Immutable, ZRStringLastIndexOf), s, unit, number);

  Check(ZR_BOTH(Mutable, ZRMutableStringCreateEmpty), newM);
  Check(ZR_BOTH(Mutable, ZRMutableStringCreateFromUniChars), chars, start, length, newM);
  Check(ZR_BOTH(Mutable, ZRMutableStringCreateCopy), s, newM);
  Check(ZR_BOTH(Mutable, ZRMutableStringCreateCopyRange), s, start, toEnd, newM);
  Check(ZR_BOTH(Mutable, ZRMutableStringCreateFromLocalString), bytes, start, length, newM);
  Check(ZR_BOTH(Mutable, ZRMutableStringCreateFromCString), text, start, length, newM);
  Check(ZR_BOTH(Mutable, ZRMutableStringDestroy), m);
  Check(ZR_BOTH(Mutable, ZRMutableStringSetUniCharAt), m, start, unit);
  Check(ZR_BOTH(Mutable, ZRMutableStringSetToZRString), m, s, start, toEnd);
  Check(ZR_BOTH(Mutable, ZRMutableStringAppend), m, s);
  Check(ZR_BOTH(Mutable, ZRMutableStringAppendUniChars), m, chars, start, length);
  Check(ZR_BOTH(Mutable, ZRMutableStringInsert), m, start, s, start, toEnd);
  Check(ZR_BOTH(Mutable, ZRMutableStringInsertUniChars), m, start, chars, start, length);
  Check(ZR_BOTH(Mutable, ZRMutableStringReplaceBetween), m, start, toEnd, s);
  Check(ZR_BOTH(Mutable, ZRMutableStringReplaceWithUniChars), m, start, toEnd, chars, start,
        length);
  Check(ZR_BOTH(Mutable, ZRMutableStringFindAndReplace), m, start, toEnd, s, s);
  Check(ZR_BOTH(Mutable, ZRMutableStringRemoveBetween), m, start, toEnd);
  Check(ZR_BOTH(Mutable, ZRMutableStringPadLeading), m, start, unit, flag);
  Check(ZR_BOTH(Mutable, ZRMutableStringPadTrailing), m, start, unit, flag);
  Check(ZR_BOTH(Mutable, ZRMutableStringTruncate), m, start, flag);
  Check(ZR_BOTH(Mutable, ZRMutableStringTrim), m);
  Check(ZR_BOTH(Mutable, ZRMutableStringToUpper), m);
  Check(ZR_BOTH(Mutable, ZRMutableStringToLower), m);
  Check(ZR_BOTH(Mutable, ZRMutableStringGetBufferWithCapacity), m, toEnd, Pointer(&out.buffer));
  Check(ZR_BOTH(Mutable, ZRMutableStringGetCapacity), m, number);
  Check(ZR_BOTH(Mutable, ZRMutableStringReleaseBuffer), m, toEnd);
  Check(ZR_BOTH(Mutable, ZRMutableStringReverse), m, start, toEnd);
  Check(ZR_BOTH(Mutable, ZRMutableStringAddStrings), s, s, newM);
  Check(ZR_BOTH(Mutable, ZRMutableStringLastIndexOf), m, unit, number);

  Check("ZRStringPtrArrayCreate", &::ZRStringPtrArrayCreate, &Array::ZRSPtrArrayCreate, newA);
  Check("ZRStrPtrArrCreateFromZRStrPtrArr", &::ZRStrPtrArrCreateFromZRStrPtrArr,
        &Array::ZRSPtrArrayCreateFromZRSPtrArray, a, newA);
  Check("ZRStringPtrArrayDestroy", &::ZRStringPtrArrayDestroy, &Array::ZRSPtrArrayDestroy, a);
  Check("ZRStringPtrArraySize", &::ZRStringPtrArraySize, &Array::ZRSPtrArraySize, a,
        Pointer(&out.size));
  Check("ZRStringPtrArrayIsEmpty", &::ZRStringPtrArrayIsEmpty, &Array::ZRSPtrArrayIsEmpty, a, flag);
  Check("GetZRStringRefAt", &::GetZRStringRefAt, &Array::ZRSPtrArrayGetZRStringRefAt, a, anyIndex,
        newS);
  Check("SetZRStringRefAt", &::SetZRStringRefAt, &Array::ZRSPtrArraySetZRStringRefAt, a, anyIndex,
        s);
  names.insert("InsertZRStringRefAt");
  CheckOne("InsertZRStringRefAt", &::InsertZRStringRefAt, a, anyIndex,
           Pointer(string.GetZRStringRef(), 5));
  CheckOne("its member", &Array::ZRSPtrArrayInsertZRStringRefAt, a, anyIndex, s);
  Check("ZRStringPtrArrayPushBack", &::ZRStringPtrArrayPushBack, &Array::ZRSPtrArrayPushBack, a, s);
  Check("ZRStringPtrArrayErase", &::ZRStringPtrArrayErase, &Array::ZRSPtrArrayErase, a,
        {1, {-1, 1, INT_MIN, INT_MAX}, 12});
  Check("ZRStringPtrArrayEraseAll", &::ZRStringPtrArrayEraseAll, &Array::ZRSPtrArrayEraseAll, a);
  Check("ZRStringPtrArrayDeleteAll", &::ZRStringPtrArrayDeleteAll, &Array::ZRSPtrArrayDeleteAll, a);

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
