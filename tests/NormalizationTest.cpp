#include <ZRString/ZRStringMutator.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <sstream>
#include <vector>

#include "Text.h"

namespace {

std::u16string FromCodePoints(const std::string& field) {
  std::istringstream numbers(field);
  std::u16string text;
  for (unsigned long c; numbers >> std::hex >> c;) {
    if (c > 0xFFFF) {
      text += static_cast<char16_t>(0xD7C0 + (c >> 10));
      text += static_cast<char16_t>(0xDC00 + (c & 0x3FF));
    } else {
      text += static_cast<char16_t>(c);
    }
  }
  return text;
}

/// Whether `source` normalizes to `expected`; the result says whether the text was replaced.
bool NormalizesTo(const std::u16string& source, ZRStringNormalizationMode mode,
                  const std::u16string& expected) {
  ZRStringMutator string(Make(source));
  const ZRString before(string);
  const bool replaced = string.Normalize(mode);
  return TextOf(string) == expected && TextOf(before) == source &&
         (BodyOf(string) == BodyOf(before)) != replaced && (replaced || source == expected);
}

}  // namespace

TEST(Normalize, Modes) {
  const struct {
    const char16_t* source;
    int mode;
    unsigned char result;
    const char16_t* expected;
  } rows[] = {
      {u"\u00E9", kZRNormalizationNFD, 1, u"e\u0301"},
      {u"\u00E9", kZRNormalizationNFKD, 1, u"e\u0301"},
      {u"e\u0301", kZRNormalizationNFC, 1, u"\u00E9"},
      {u"\u212B", kZRNormalizationNFC, 1, u"\u00C5"},
      {u"\uFB01", kZRNormalizationNFKC, 1, u"fi"},
      {u"\uFB01", kZRNormalizationNFC, 0, u"\uFB01"},
      {u"e\u0301", kZRNormalizationFCD, 0, u"e\u0301"},
      {u"\u00E9", kZRNormalizationFCD, 0, u"\u00E9"},
      {u"x\u0301", kZRNormalizationNFC, 1, u"x\u0301"},
      {u"e\u0301\u0316", kZRNormalizationFCD, 1, u"e\u0316\u0301"},
      {u"e\u0301", 0, 0, u"e\u0301"},
      {u"e\u0301", 1, 0, u"e\u0301"},
      {u"e\u0301", 7, 0, u"e\u0301"},
      {u"e\u0301", INT_MIN, 0, u"e\u0301"},
      {u"", kZRNormalizationNFC, 0, u""},
      {u"", kZRNormalizationNFKD, 0, u""},
      {u"", kZRNormalizationFCD, 0, u""},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(testing::Message() << "row " << &row - rows);
    ZRStringMutator string(Make(row.source));
    const ZRString before(string);
    EXPECT_EQ(string.Normalize(static_cast<ZRStringNormalizationMode>(row.mode)), row.result);
    EXPECT_EQ(TextOf(string), row.expected);
    EXPECT_EQ(TextOf(before), row.source);
    EXPECT_EQ(BodyOf(string) == BodyOf(before), row.result == 0);
  }
}

// Unicode's own conformance data. A line's columns are a source text and its NFC, NFD, NFKC and
// NFKD; all five columns have the same compatibility forms, and so have their canonical ones.
TEST(Normalize, ConformsToUnicode) {
  const char* const path = std::getenv("ZRSTRING_NORMALIZATION_DATA");
  if (!path || !*path)
    GTEST_SKIP() << "ZRSTRING_NORMALIZATION_DATA names no file";
  std::ifstream file(path);
  ASSERT_TRUE(file) << path;
  int lines = 0;
  int failures = 0;
  for (std::string line; std::getline(file, line);) {
    if (line.empty() || line[0] == '#' || line[0] == '@')
      continue;
    std::istringstream fields(line);
    std::u16string columns[5];
    for (auto& column : columns) {
      std::string field;
      std::getline(fields, field, ';');
      column = FromCodePoints(field);
    }
    const auto& [source, nfc, nfd, nfkc, nfkd] = columns;
    bool conforms = true;
    for (const auto& column : columns) {
      const bool canonical = &column <= &nfd;
      conforms &= NormalizesTo(column, kZRNormalizationNFC, canonical ? nfc : nfkc);
      conforms &= NormalizesTo(column, kZRNormalizationNFD, canonical ? nfd : nfkd);
      conforms &= NormalizesTo(column, kZRNormalizationNFKC, nfkc);
      conforms &= NormalizesTo(column, kZRNormalizationNFKD, nfkd);
    }
    ++lines;
    if (!conforms && ++failures < 10)
      ADD_FAILURE() << line;
  }
  std::cout << "normalization: " << lines << " lines tried, " << failures << " failed\n";
  EXPECT_GT(lines, 15000);
  EXPECT_EQ(failures, 0);
}
