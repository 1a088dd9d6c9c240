// What plain texts cannot model: code points, case, linguistic order, 8-bit text, normalization.
#include <ZRString/ZRStringHandles.h>
#include <ZRString/ZRStringMutator.h>
#include <gtest/gtest.h>
#include <unicode/unistr.h>

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <numeric>
#include <sstream>

#include "Text.h"

namespace {

int ByOperators(const ZRString& left, const ZRString& right) {
  EXPECT_EQ(left == right, left <= right && left >= right);
  EXPECT_NE(left != right, left == right);
  return (left > right) - (left < right);
}

ZRLong ByHandles(const ZRString& left, const ZRString& right, decltype(ZRStringCompare) compare) {
  ZRLong result = 9;
  compare(left.GetZRStringRef(), 0, -1, right.GetZRStringRef(), 0, -1, &result);
  return result;
}

Text FromCodePoints(const std::string& field) {
  std::istringstream numbers(field);
  Text text;
  for (unsigned long c; numbers >> std::hex >> c;) {
    if (c > 0xFFFF)
      text += static_cast<char16_t>(0xD7C0 + (c >> 10));
    text += static_cast<char16_t>(c > 0xFFFF ? 0xDC00 + c % 0x400 : c);
  }
  return text;
}

/// Whether `source` normalizes to `expected`; the result says whether the text was replaced.
bool NormalizesTo(const Text& source, ZRStringNormalizationMode mode, const Text& expected) {
  ZRStringMutator string(Make(source));
  const ZRString before(string);
  const bool replaced = string.Normalize(mode);
  return TextOf(string) == expected && TextOf(before) == source &&
         (BodyOf(string) == BodyOf(before)) != replaced && (replaced || source == expected);
}

}  // namespace

TEST(Unicode, OrdersDifferInSupplementaryCharacters) {
  const Text smile = u"\U0001F600";
  const ZRString replacement = Make(u"\uFFFD"), other = Make(smile);
  EXPECT_EQ(ByOperators(replacement, other), 1);
  EXPECT_EQ(replacement.Compare(0, -1, other, 0, -1), 1);
  EXPECT_EQ(replacement.Compare(0, -1, Raw(smile), 0, -1), 1);
  EXPECT_EQ(replacement.CompareBetween(0, 9, other, 0, 9), 1);
  EXPECT_EQ(ByHandles(replacement, other, ZRStringCompare), 1);
  EXPECT_EQ(replacement.CompareCodePointOrder(0, -1, other, 0, -1), -1);
  EXPECT_EQ(replacement.CompareCodePointOrder(0, -1, Raw(smile), 0, -1), -1);
  EXPECT_EQ(replacement.CompareCodePointOrderBetween(0, 9, other, 0, 9), -1);
  EXPECT_EQ(ByHandles(replacement, other, ZRStringCompareCodePointOrder), -1);
}

TEST(Unicode, OptionsOfComparison) {
  const struct {
    const char16_t *left, *right;
    ZRULong options;
    int expected;
  } rows[] = {
      {u"a", u"B", 0, -1},
      {u"\u0130", u"i", 1, 0},
      {u"I", u"\u0131", 1, 0},
      {u"I", u"\u0131", 0, -1},
      {u"\uFFFD", u"\U0001F600", 0, 1},
      {u"\uFFFD", u"\U0001F600", 2, -1},
      {u"\uFFFD", u"\U0001F600", 0x8000, -1},
      {u"I\uFFFD", u"\u0131\U0001F600", 0x8001, -1},
      {u"a", u"A", 0xFFFF8000, 0},
      {u"\u00E4", u"b", 0, 1},
      {u"\u00E4", u"b", 3, -1},
      {u"", u"", 3, 0},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(testing::Message() << "row " << &row - rows);
    const ZRString left = Make(row.left), right = Make(row.right);
    ZRLong result = 9;
    EXPECT_EQ(left.ICompare(0, -1, right, 0, -1, row.options), row.expected);
    EXPECT_EQ(right.ICompare(0, -1, left, 0, -1, row.options), -row.expected);
    EXPECT_EQ(left.ICompare(0, -1, Raw(row.right), 0, -1, row.options), row.expected);
    EXPECT_EQ(left.ICompareBetween(0, INT_MAX, right, 0, INT_MAX, row.options), row.expected);
    EXPECT_EQ(ZRStringICompare(left.GetZRStringRef(), 0, -1, right.GetZRStringRef(), 0, -1,
                               row.options, &result),
              0);
    EXPECT_EQ(result, row.expected);
  }
}

TEST(Unicode, EditsKeepSurrogatePairsAndMapFully) {
  EXPECT_EQ(TextOf(ZRStringMutator(Make(u"a\U0001F600b")).Reverse(0, -1)), u"b\U0001F600a");
  EXPECT_EQ(TextOf(ZRStringMutator(Make(u"stra\u00DFe")).ToUpper()), u"STRASSE");
  EXPECT_EQ(TextOf(ZRStringMutator(Make(u"\u3000 a b\t")).Trim()), u"a b");
  EXPECT_EQ(Make(u"\U0001F600").LastIndexOf(0xDE00), -1);
}

TEST(Unicode, EveryByteDecodesAsByIcusConverter) {
  std::string bytes(256, '\0');
  std::iota(bytes.begin(), bytes.end(), '\0');
  const icu::UnicodeString expected(bytes.data(), 256, "windows-1252");
  EXPECT_EQ(TextOf(ZRString(bytes.data(), 0, 256)), Text(expected.getBuffer(), expected.length()));
}

// Unicode's conformance data. The columns of a line are a source text and its NFC, NFD, NFKC and
// NFKD forms. All five have the same compatibility forms; the first three, and the last two, have
// the same canonical forms.
TEST(Unicode, NormalizationConforms) {
  EXPECT_TRUE(NormalizesTo(u"e\u0301\u0316", kZRNormalizationFCD, u"e\u0316\u0301"));
  EXPECT_TRUE(NormalizesTo(u"\u00E9", kZRNormalizationFCD, u"\u00E9"));
  for (const int none : {0, 1, 7, INT_MIN})
    EXPECT_TRUE(NormalizesTo(u"e\u0301", static_cast<ZRStringNormalizationMode>(none), u"e\u0301"));
  const char* const path = std::getenv("ZRSTRING_NORMALIZATION_DATA");
  if (!path || !*path)
    GTEST_SKIP() << "ZRSTRING_NORMALIZATION_DATA names no file";
  std::ifstream file(path);
  int lines = 0;
  for (std::string line; std::getline(file, line);) {
    if (line.empty() || line[0] == '#' || line[0] == '@')
      continue;
    std::istringstream fields(line);
    Text columns[5];
    for (Text& column : columns) {
      std::string field;
      std::getline(fields, field, ';');
      column = FromCodePoints(field);
    }
    const auto& [source, nfc, nfd, nfkc, nfkd] = columns;
    for (const Text& column : columns) {
      const bool canonical = &column <= &nfd;
      ASSERT_TRUE(NormalizesTo(column, kZRNormalizationNFC, canonical ? nfc : nfkc) &&
                  NormalizesTo(column, kZRNormalizationNFD, canonical ? nfd : nfkd) &&
                  NormalizesTo(column, kZRNormalizationNFKC, nfkc) &&
                  NormalizesTo(column, kZRNormalizationNFKD, nfkd))
          << line;
    }
    ++lines;
  }
  std::cout << "normalization: " << lines << " lines tried\n";
  EXPECT_GT(lines, 15000);
}
