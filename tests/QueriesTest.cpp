#include <ZRString/ZRString.h>
#include <gtest/gtest.h>

#include <vector>

#include "Text.h"

namespace {

const std::u16string kTexts[] = {u"", u"a", u"ab", u"abcab", u"babab"};

int Sign(int value) { return (value > 0) - (value < 0); }

/// The first or last occurrence of `pattern` that lies wholly inside [start, start + length).
ZRLong Search(const std::u16string& text, const std::u16string& pattern, ZRLong start,
              ZRLong length, bool last) {
  const std::u16string range = Cut(text, start, length);
  const auto at = last ? range.rfind(pattern) : range.find(pattern);
  if (pattern.empty() || at == std::u16string::npos)
    return -1;
  return static_cast<ZRLong>(at) + std::max<ZRLong>(start, 0);
}

bool Begins(const std::u16string& text, const std::u16string& part) {
  return text.compare(0, part.size(), part) == 0;
}

bool Ends(const std::u16string& text, const std::u16string& part) {
  return part.size() <= text.size() && text.substr(text.size() - part.size()) == part;
}

template <typename Body>
void ForEveryRange(Body body) {
  for (const ZRLong start : kEdges)
    for (const ZRLong length : kEdges)
      body(start, length);
}

}  // namespace

TEST(Queries, RangesOfTwoStrings) {
  for (const auto& text : kTexts) {
    for (const auto& operand : kTexts) {
      const ZRString string = Make(text);
      const ZRString src = Make(operand);
      ForEveryRange([&](ZRLong srcStart, ZRLong srcLength) {
        const auto part = Cut(operand, srcStart, srcLength);
        const auto between = CutBetween(operand, srcStart, srcLength);
        ASSERT_EQ(string.StartsWith(src, srcStart, srcLength), Begins(text, part))
            << srcStart << ' ' << srcLength;
        ASSERT_EQ(string.EndsWith(src, srcStart, srcLength), Ends(text, part))
            << srcStart << ' ' << srcLength;
        ForEveryRange([&](ZRLong start, ZRLong length) {
          SCOPED_TRACE(testing::Message()
                       << start << ' ' << length << ' ' << srcStart << ' ' << srcLength);
          const int order = Sign(Cut(text, start, length).compare(part));
          ASSERT_EQ(string.Compare(start, length, src, srcStart, srcLength), order);
          ASSERT_EQ(string.CompareCodePointOrder(start, length, src, srcStart, srcLength), order);
          ASSERT_EQ(string.ICompare(start, length, src, srcStart, srcLength, 0), order);
          ASSERT_EQ(string.Find(src, srcStart, srcLength, start, length),
                    Search(text, part, start, length, false));
          ASSERT_EQ(string.RFind(src, srcStart, srcLength, start, length),
                    Search(text, part, start, length, true));

          const int ends = Sign(CutBetween(text, start, length).compare(between));
          ASSERT_EQ(string.CompareBetween(start, length, src, srcStart, srcLength), ends);
          ASSERT_EQ(string.CompareCodePointOrderBetween(start, length, src, srcStart, srcLength),
                    ends);
          ASSERT_EQ(string.ICompareBetween(start, length, src, srcStart, srcLength, 0), ends);
        });
      });
    }
  }
}

TEST(Queries, RangesOfARawOperand) {
  for (const auto& text : kTexts) {
    const ZRString string = Make(text);
    for (const auto& operand : kTexts) {
      for (ZRLong srcStart = 0; srcStart <= static_cast<ZRLong>(operand.size()); ++srcStart) {
        const auto rest = static_cast<ZRLong>(operand.size()) - srcStart;
        for (ZRLong srcLength : {INT_MIN, -2, -1, 0, 1, 2, 5}) {
          if (srcLength > rest)
            continue;
          const ExactText exact(operand, srcLength < 0);
          const unsigned short* const src = exact.Units();
          const auto part = operand.substr(srcStart, srcLength < 0 ? rest : srcLength);
          SCOPED_TRACE(testing::Message() << srcStart << ' ' << srcLength);
          ASSERT_EQ(string.StartsWith(src, srcStart, srcLength), Begins(text, part));
          ASSERT_EQ(string.EndsWith(src, srcStart, srcLength), Ends(text, part));
          ForEveryRange([&](ZRLong start, ZRLong length) {
            SCOPED_TRACE(testing::Message() << start << ' ' << length);
            const int order = Sign(Cut(text, start, length).compare(part));
            ASSERT_EQ(string.Compare(start, length, src, srcStart, srcLength), order);
            ASSERT_EQ(string.CompareCodePointOrder(start, length, src, srcStart, srcLength), order);
            ASSERT_EQ(string.ICompare(start, length, src, srcStart, srcLength, 0), order);
            ASSERT_EQ(string.Find(src, srcStart, srcLength, start, length),
                      Search(text, part, start, length, false));
            ASSERT_EQ(string.RFind(src, srcStart, srcLength, start, length),
                      Search(text, part, start, length, true));
          });
        }
      }
    }
  }
}

TEST(Queries, ARawOperandMayLieInTheStringItself) {
  const ZRString string = Make(std::u16string(u"ab\0cd\0", 6));
  EXPECT_EQ(string.ICompare(3, 2, string.GetBuffer(), 3, -1, 0), 0);
  EXPECT_EQ(string.Compare(3, 2, string.GetBuffer(), 3, -1), 0);
}

TEST(Queries, ANullRawOperandIsEmpty) {
  const unsigned short* const null = nullptr;
  const ZRString string = Make(u"a");
  for (const ZRLong length : {-2, -1, 0, 3}) {
    EXPECT_EQ(string.Compare(0, -1, null, 0, length), 1);
    EXPECT_EQ(string.Compare(0, 0, null, 0, length), 0);
    EXPECT_EQ(string.CompareCodePointOrder(0, -1, null, 0, length), 1);
    EXPECT_EQ(string.ICompare(0, -1, null, 0, length, 0), 1);
    EXPECT_EQ(string.ICompare(0, -1, null, 0, length, 3), 1);
    EXPECT_EQ(string.StartsWith(null, 0, length), 1);
    EXPECT_EQ(string.EndsWith(null, 0, length), 1);
    EXPECT_EQ(string.Find(null, 0, length, 0, -1), -1);
    EXPECT_EQ(string.RFind(null, 0, length, 0, -1), -1);
  }
}

TEST(Queries, OperatorsOrderByCodeUnit) {
  const std::u16string ordered[] = {u"", u"a", u"ab", u"b", u"\U0001F600", u"\uFFFD"};
  for (std::size_t i = 0; i < std::size(ordered); ++i) {
    for (std::size_t j = 0; j < std::size(ordered); ++j) {
      const ZRString left = Make(ordered[i]);
      const ZRString right = Make(ordered[j]);
      EXPECT_EQ(left == right, i == j);
      EXPECT_EQ(left != right, i != j);
      EXPECT_EQ(left < right, i < j);
      EXPECT_EQ(left > right, i > j);
      EXPECT_EQ(left <= right, i <= j);
      EXPECT_EQ(left >= right, i >= j);
    }
  }
  const ZRString string = Make(u"a");
  EXPECT_TRUE(string == ZRString(string));
  EXPECT_FALSE(string != ZRString(string));
}

TEST(Queries, CodePointOrderPutsSupplementaryCharactersLast) {
  const std::u16string smile = u"\U0001F600";
  const ZRString replacement = Make(u"\uFFFD");
  EXPECT_EQ(replacement.Compare(0, -1, Make(smile), 0, -1), 1);
  EXPECT_EQ(replacement.CompareCodePointOrder(0, -1, Make(smile), 0, -1), -1);
  EXPECT_EQ(replacement.CompareCodePointOrder(0, -1, Raw(smile), 0, -1), -1);
  EXPECT_EQ(replacement.CompareCodePointOrderBetween(0, 1, Make(smile), 0, 1), -1);
}

TEST(Queries, SingleUnits) {
  const ZRString string = Make(u"abab");
  EXPECT_EQ(string.LastIndexOf('a'), 2);
  EXPECT_EQ(string.LastIndexOf('c'), -1);
  for (const ZRLong index : kEdges) {
    const bool inside = index >= 0 && index < 4;
    EXPECT_EQ(string.CharAt(index), inside ? u"abab"[index] : 0xFFFF) << index;
    EXPECT_EQ(string[index], string.CharAt(index)) << index;
  }
  EXPECT_EQ(string.GetLength(), 4);
  EXPECT_EQ(string.IsEmpty(), 0);
  EXPECT_EQ(Make(u"").IsEmpty(), 1);
}

TEST(Queries, ExtractWritesTheRangeAndOneZeroUnit) {
  const std::u16string text = u"abcde";
  const ZRString string = Make(text);
  const std::u16string untouched(12, u'#');
  ForEveryRange([&](ZRLong start, ZRLong lengthOrEnd) {
    SCOPED_TRACE(testing::Message() << start << ' ' << lengthOrEnd);
    const auto expected = [&](bool written, const std::u16string& part) {
      return written ? u"##" + part + u'\0' + std::u16string(9 - part.size(), u'#') : untouched;
    };
    std::u16string dst = untouched;
    auto* const units = reinterpret_cast<unsigned short*>(dst.data());
    string.Extract(start, lengthOrEnd, units, 2);
    EXPECT_EQ(dst, expected(start >= 0 && start <= 5 && lengthOrEnd >= -1,
                            Cut(text, start, lengthOrEnd)));
    dst = untouched;
    string.ExtractBetween(start, lengthOrEnd, units, 2);
    EXPECT_EQ(dst, expected(start >= 0 && start <= std::min<ZRLong>(lengthOrEnd, 4) + 1,
                            CutBetween(text, start, lengthOrEnd)));
  });
}

TEST(ICompare, Options) {
  const struct {
    const char16_t* left;
    const char16_t* right;
    ZRULong options;
    int expected;
  } rows[] = {
      {u"ABC", u"abc", 0, 0},
      {u"a", u"B", 0, -1},
      {u"\u0130", u"i", 1, 0},
      {u"I", u"\u0131", 1, 0},
      {u"I", u"\u0131", 0, -1},
      {u"\uFFFD", u"\U0001F600", 0, 1},
      {u"\uFFFD", u"\U0001F600", 2, -1},
      {u"\uFFFD", u"\U0001F600", 0x8000, -1},
      {u"I\uFFFD", u"\u0131\U0001F600", 0x8001, -1},
      {u"\u00E4", u"b", 0, 1},
      {u"\u00E4", u"b", 3, -1},
      {u"abc", u"ABC", 3, -1},
      {u"abc", u"abc", 3, 0},
      {u"", u"", 3, 0},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(testing::Message() << "row " << &row - rows);
    const ZRString left = Make(row.left);
    const ZRString right = Make(row.right);
    EXPECT_EQ(left.ICompare(0, -1, right, 0, -1, row.options), row.expected);
    EXPECT_EQ(right.ICompare(0, -1, left, 0, -1, row.options), -row.expected);
    EXPECT_EQ(left.ICompare(0, -1, Raw(row.right), 0, -1, row.options), row.expected);
    EXPECT_EQ(left.ICompareBetween(0, INT_MAX, right, 0, INT_MAX, row.options), row.expected);
  }
  EXPECT_NE(Make(u"\u0130").ICompare(0, -1, Make(u"i"), 0, -1, 0), 0);
}

TEST(ICompare, CollatedRanges) {
  const ZRString string = Make(u"xbcx");
  const std::u16string operand = u"yybc";
  const ZRString src = Make(operand);
  EXPECT_EQ(string.ICompare(1, 2, src, 2, -1, 3), 0);
  EXPECT_EQ(string.ICompare(1, -1, src, 2, -1, 3), 1);
  EXPECT_EQ(string.ICompareBetween(1, 2, src, 2, INT_MAX, 3), 0);
  EXPECT_EQ(string.ICompareBetween(-5, -1, src, 9, INT_MIN, 3), 0);
  for (const ZRULong options : {0, 3}) {
    EXPECT_EQ(string.ICompare(1, 2, Raw(operand), 2, -1, options), 0) << options;
    EXPECT_EQ(string.ICompare(1, 2, Raw(operand), 2, 2, options), 0) << options;
    EXPECT_EQ(string.ICompare(1, 1, Raw(operand), 2, 1, options), 0) << options;
  }
  EXPECT_EQ(string.ICompare(1, 2, Raw(operand), 2, 100, 3), 0);
  EXPECT_EQ(string.ICompare(4, -1, Raw(operand), 100, -1, 3), 0);
  EXPECT_EQ(string.ICompare(4, -1, Raw(operand), 2, INT_MIN, 3), 0);
  EXPECT_EQ(src.ICompare(0, 2, ExactText(u"yy", false).Units(), 0, 2, 3), 0);
  EXPECT_EQ(src.ICompare(0, -1, Raw(operand), 0, -1, 3), 0);
  EXPECT_EQ(src.ICompare(0, 4, Raw(operand), 0, -2, 3), 0);
}
