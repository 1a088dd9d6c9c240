// What plain texts cannot model: code points, case, linguistic order, 8-bit text, normalization.
#include <ZRString/ZRStringHandles.h>
#include <ZRString/ZRStringMutator.h>
#include <gtest/gtest.h>
#include <unicode/locid.h>
#include <unicode/unistr.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <vector>

#include "Text.h"

namespace {

Text FromIcu(const icu::UnicodeString& text) { return Text(text.getBuffer(), text.length()); }

// Looks at all forms of a comparison, of whole texts.
#define ZR_EXPECT_ORDER(name, ...)                                                            \
  EXPECT_EQ((std::vector<int>{                                                                \
                left.name(0, 9, right, __VA_ARGS__), left.name(0, 9, Raw(text), __VA_ARGS__), \
                left.name##Between(0, 9, right, __VA_ARGS__),                                 \
                (ZRString##name(own, 0, 9, other, __VA_ARGS__, &byHandle), byHandle)}),       \
            std::vector<int>(4, expected))                                                    \
      << #name ": with a string, with units, Between, ZRString" #name

constexpr ZRULong kUnits = 100, kCodePoints = 101;  // orders without options

void ExpectOrder(const ZRString& left, const Text& text, ZRULong order, int expected) {
  SCOPED_TRACE(testing::Message() << "order " << order << " of "
                                  << testing::PrintToString(TextOf(left))
                                  << testing::PrintToString(text));
  const ZRString right = Make(text);
  ZRStringRef__ *const own = left.GetZRStringRef(), *const other = right.GetZRStringRef();
  const ZRLong size = right.GetLength();
  ZRLong byHandle = 9;
  if (order == kUnits) {
    EXPECT_EQ((left > right) - (left < right), expected);
    EXPECT_EQ((left >= right) - (left <= right), expected);
    ZR_EXPECT_ORDER(Compare, 0, size);
  } else if (order == kCodePoints) {
    ZR_EXPECT_ORDER(CompareCodePointOrder, 0, size);
  } else {
    ZR_EXPECT_ORDER(ICompare, 0, size, order);
  }
}

/// The text that Normalize() makes of `source`, which it must report if that is another text.
Text Normalized(const Text& source, int mode) {
  ZRStringMutator string(Make(source));
  const bool replaced = string.Normalize(static_cast<ZRStringNormalizationMode>(mode));
  EXPECT_TRUE(replaced || TextOf(string) == source) << "Normalize() returned 0";
  return TextOf(string);
}

}  // namespace

TEST(Unicode, EveryFormOfAComparisonHasTheOrderOfItsOptions) {
  const ZRULong orders[] = {kUnits, kCodePoints, 0, 1, 2, 3, 0x8000, 0x8001, 0xFFFF8000};
  const struct {
    const char16_t *left, *right;
    const char* expected;  // for each of the orders
  } rows[] = {
      {u"a", u"A", ">>===<==="},
      {u"I", u"\u0131", "<<<=<<<=<"},
      {u"\uFFFD", u"\U0001F600", "><>><><<<"},
      {u"I\uFFFD", u"\u0131\U0001F600", "<<<><<<<<"},
      {u"\u00E4", u"b", ">>>>><>>>"},
  };
  for (const auto& row : rows)
    for (std::size_t i = 0; i < std::size(orders); ++i) {
      const char sign = row.expected[i];
      ExpectOrder(Make(row.left), row.right, orders[i], (sign == '>') - (sign == '<'));
    }
}

TEST(Unicode, EditsKeepSurrogatePairsAndMapCaseAsTheLocaleDoes) {
  EXPECT_EQ(TextOf(ZRStringMutator(Make(u"a\U0001F600b")).Reverse(0, -1)), u"b\U0001F600a");
  EXPECT_EQ(TextOf(ZRStringMutator(Make(u"stra\u00DFe")).ToUpper()), u"STRASSE");
  EXPECT_EQ(TextOf(ZRStringMutator(Make(u"\u3000 a b\t")).Trim()), u"a b");
  EXPECT_EQ(Make(u"\U0001F600").LastIndexOf(0xDE00), -1);
  UErrorCode status = U_ZERO_ERROR;
  icu::Locale::setDefault("tr", status);
  EXPECT_EQ(TextOf(ZRStringMutator(Make(u"iI")).ToUpper()), u"\u0130I");
  EXPECT_EQ(TextOf(ZRStringMutator(Make(u"iI")).ToLower()), u"i\u0131");
  icu::Locale::setDefault("en_US", status);
}

TEST(Unicode, EveryByteDecodesAsByIcusConverter) {
  for (int byte = 0; byte < 256; ++byte) {
    const char text[] = {'a', static_cast<char>(byte), 'z'};
    EXPECT_EQ(TextOf(ZRString(text, 0, 3)), FromIcu(icu::UnicodeString(text, 3, "windows-1252")))
        << "byte " << byte;
  }
}

// Unicode's conformance data: the columns of a line are a text and its NFC, NFD, NFKC and NFKD.
TEST(Unicode, NormalizationConforms) {
  EXPECT_EQ(Normalized(u"e\u0301\u0316", kZRNormalizationFCD), u"e\u0316\u0301");
  EXPECT_EQ(Normalized(u"\u00E9", kZRNormalizationFCD), u"\u00E9");
  for (const int none : {0, 1, 7, INT_MIN})
    EXPECT_EQ(Normalized(u"e\u0301", none), u"e\u0301") << "mode " << none;
  const char* const path = std::getenv("ZRSTRING_NORMALIZATION_DATA");
  if (!path || !*path)
    GTEST_SKIP() << "ZRSTRING_NORMALIZATION_DATA names no file";
  constexpr ZRStringNormalizationMode kModes[] = {kZRNormalizationNFC, kZRNormalizationNFD,
                                                  kZRNormalizationNFKC, kZRNormalizationNFKD};
  std::ifstream file(path);
  int lines = 0;
  for (std::string line; std::getline(file, line);) {
    std::istringstream fields(line);
    Text columns[5];
    for (Text& column : columns) {
      for (UChar32 c; fields >> std::hex >> c;)
        column += FromIcu(icu::UnicodeString(c));
      fields.clear();
      fields.ignore();  // the semicolon
    }
    lines += !columns[0].empty();  // not a comment
    for (int form = 0; form < 4 && !columns[0].empty(); ++form)
      ASSERT_EQ(Normalized(columns[0], kModes[form]), columns[form + 1])
          << "mode " << kModes[form] << ": " << line;
  }
  EXPECT_GT(lines, 15000);
}
