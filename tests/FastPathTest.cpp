// What the library answers before ICU, or does instead of it, compared with ICU.
#include <ZRString/ZRStringMutator.h>
#include <gtest/gtest.h>
#include <unicode/normlzr.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <memory>
#include <random>
#include <vector>

#include "Text.h"

namespace {

icu::UnicodeString Icu(const Text& text) {
  return icu::UnicodeString(text.data(), static_cast<std::int32_t>(text.size()));
}

/// A copy of a text in memory of its size, so that a sanitizer sees reads past the end.
std::unique_ptr<unsigned short[]> Exact(const Text& text) {
  std::unique_ptr<unsigned short[]> units(new unsigned short[text.size()]);
  std::copy(text.begin(), text.end(), units.get());
  return units;
}

/// Compares and searches ranges of two texts, with a string and with a raw operand.
void ExpectIcusAnswers(const Text& left, const Text& right, ZRLong start) {
  const icu::UnicodeString ours = Icu(left), theirs = Icu(right);
  const ZRString string = Make(left), other = Make(right);
  const auto exact = Exact(right);
  const unsigned short* const raw = exact.get();
  const std::int32_t all = INT32_MAX, rest = std::max<std::int32_t>(theirs.length() - start, 0);
  const ZRLong end = string.GetLength() - 1;
  const auto agree = [](int expected, std::initializer_list<int> results) {
    return std::count(results.begin(), results.end(), expected) ==
           static_cast<std::ptrdiff_t>(results.size());
  };
  EXPECT_TRUE(agree(
      ours.compare(start, all, theirs, start, all),
      {string.Compare(start, -1, other, start, -1), string.Compare(start, -1, raw, start, rest),
       string.CompareBetween(start, end, other, start, all)}))
      << "Compare";
  EXPECT_TRUE(agree(ours.compareCodePointOrder(start, all, theirs, start, all),
                    {string.CompareCodePointOrder(start, -1, other, start, -1),
                     string.CompareCodePointOrder(start, -1, raw, start, rest),
                     string.CompareCodePointOrderBetween(start, end, other, start, all)}))
      << "CompareCodePointOrder";
  EXPECT_TRUE(agree(ours < theirs, {string<other, !(string >= other), other> string}));
  for (const ZRULong options : {0u, 0x8000u, 1u, 4u, 0x1000u, 0x8001u, 0x10000u}) {
    EXPECT_TRUE(agree(ours.caseCompare(start, all, theirs, start, all, options),
                      {string.ICompare(start, -1, other, start, -1, options),
                       string.ICompare(start, -1, raw, start, rest, options),
                       string.ICompareBetween(start, end, other, start, all, options)}))
        << "ICompare, option " << options;
    EXPECT_EQ(ours.caseCompare(0, 9, ours, 0, all, options),
              string.ICompare(0, 9, string, 0, -1, options))
        << "ICompare with itself, option " << options;
  }
  for (const ZRLong count : {1, 2, 5})
    for (const ZRLong place : {start, theirs.length() - count})
      if (place >= 0 && place + count <= theirs.length()) {
        EXPECT_TRUE(agree(ours.indexOf(theirs, place, count, start, all),
                          {string.Find(other, place, count, start, -1),
                           string.Find(raw, place, count, start, -1)}))
            << "Find, pattern at " << place << ", " << count;
      }
}

const Text kUnits =
    u"\x01!akKsSiIzZ@[`{\x7F\x80\u00DF\u00E9\u00C9\u0130\u0131\u017F\u0301\u03A3\u03C3"
    u"\u1E9E\u212A\uFB00\uE000\uFFFF\xD83D\xDE00" +
    Text(1, u'\0');

}  // namespace

// A difference at nearly every place of texts of every size up to 40 units and of some up to 200,
// from unit 0 or 1. The letters around it are ASCII or not.
TEST(FastPath, EveryPlaceOfADifferenceAndEveryLength) {
  std::mt19937 random;
  for (const char16_t letter : {u'x', u'\u03B1'})
    for (std::size_t length = 0; length <= 200; length += length < 40 ? 1 : 23)
      for (std::size_t place = 0; place <= length; ++place) {
        SCOPED_TRACE(testing::Message() << "unit " << place << " of " << length);
        Text left(length, letter), right = left;
        const std::size_t shared = random() % (place + 1);  // may be half of a pair
        left.insert(shared, 1, kUnits[random() % kUnits.size()]);
        right.insert(shared, 1, left[shared]);
        for (Text* const text : {&left, &right})
          (*text)[place] = random() % 2 ? letter : kUnits[random() % kUnits.size()];
        right.resize(right.size() - random() % 2);
        ExpectIcusAnswers(left, right, static_cast<ZRLong>(random() % 2));
        ASSERT_FALSE(HasFailure());
      }
}

TEST(FastPath, EveryPairOfStrangeLetters) {
  for (const char16_t first : kUnits)
    for (const char16_t second : kUnits)
      for (const Text before : {u"", u"ab", u"abcdefgh\u00E9", u"\xD83D"})
        for (const Text after : {u"ss", u"SS"}) {
          SCOPED_TRACE(testing::Message() << std::hex << int{first} << " " << int{second});
          ExpectIcusAnswers(before + first + u"ss", before + second + after, 0);
        }
}

// Of up to two letters each, so that unpaired surrogates stand beside letters that fold and against
// pairs that fold. ICU 72's caseCompare() does not order all of these by what they fold to.
TEST(FastPath, IllFormedTextsAreOrderedByWhatTheyFoldTo) {
  const Text letters = u"\xD801\xDC00\xDC28\xD802\x61\x41\uFF21\uFF41\u0130\u00DF";
  std::vector<Text> texts = {u""};
  for (std::size_t i = 0; i <= letters.size(); ++i)
    for (const char16_t letter : letters)
      texts.push_back(texts[i] + letter);
  // Short and long texts are looked at differently.
  for (const Text& end : {Text(), Text(100, u'z')})
    for (const ZRULong options : {0u, 0x8000u, 1u, 0x8001u})
      for (const Text& left : texts)
        for (const Text& right : texts) {
          icu::UnicodeString ours = Icu(left + end), theirs = Icu(right + end);
          ours.foldCase(options & 1), theirs.foldCase(options & 1);
          const int expected =
              options & 0x8000 ? ours.compareCodePointOrder(theirs) : ours.compare(theirs);
          ASSERT_EQ(Make(left + end).ICompare(0, -1, Raw(right + end), 0, -1, options), expected)
              << "ICompare, option " << options << ", " << testing::PrintToString(left) << " and "
              << testing::PrintToString(right) << " before " << end.size() << " units";
        }
}

TEST(FastPath, EveryCodePointIsNormalizedOrNotAsByIcu) {
  const struct {
    int mode;
    UNormalizationMode icuMode;
  } rows[] = {{2, UNORM_NFC}, {3, UNORM_NFKC}, {4, UNORM_NFD}, {5, UNORM_NFKD}, {6, UNORM_FCD}};
  for (const auto& row : rows)
    for (const std::size_t before : {7, 8})  // at the end of a block, or after it
      for (UChar32 c = 0; c <= 0x10FFFF; ++c) {
        const icu::UnicodeString text = Icu(Text(before, u'\u009F')).append(c).append(u'z');
        UErrorCode status = U_ZERO_ERROR;
        const bool normalized = icu::Normalizer::quickCheck(text, row.icuMode, status) == UNORM_YES;
        ZRStringMutator string(Raw(text.getBuffer()), 0, text.length());
        ASSERT_EQ(string.Normalize(static_cast<ZRStringNormalizationMode>(row.mode)), !normalized)
            << "Normalize, mode " << row.mode << ", U+" << std::hex << c << " after " << before;
      }
}

// Pairs and their halves lie across the ends of ranges, matches across each other and the ends.
TEST(FastPath, RangesOfFewLettersAreComparedSearchedAndEditedAsByIcu) {
  std::mt19937 random;
  const Text alphabet = u"aaaabbbb\xD83D\xDE00\uFFFF";
  const auto letters = [&](std::size_t length) {
    Text text(length, u' ');
    for (char16_t& unit : text)
      unit = alphabet[random() % alphabet.size()];
    return text;
  };
  for (int i = 0; i < 20000; ++i) {
    const Text text = letters(random() % (i % 50 ? 90 : 5000)), oldText = letters(1 + random() % 4);
    const Text newText = letters(random() % 60);
    Text changed = text + u"a";
    changed[random() % changed.size()] = letters(1)[0];
    const auto start = static_cast<ZRLong>(random() % 30);
    const auto count = static_cast<ZRLong>(random() % (i % 50 ? 60 : 5000));
    SCOPED_TRACE(testing::Message()
                 << start << ", " << count << " of " << Icu(text).length()
                 << " units: " << testing::PrintToString(text) << ", "
                 << testing::PrintToString(oldText) << " by " << testing::PrintToString(newText));
    icu::UnicodeString expected = Icu(text);
    ZRStringMutator string;
    string.SetTo(Raw(text), expected.length());
    const icu::UnicodeString theirs = Icu(changed);
    const ZRString pattern = Make(oldText), other = Make(changed);
    ASSERT_EQ(string.Compare(start, count, other, start, count),
              expected.compare(start, count, theirs, start, count));
    ASSERT_EQ(string.CompareCodePointOrder(start, count, other, start, count),
              expected.compareCodePointOrder(start, count, theirs, start, count));
    ASSERT_EQ(string.ICompare(start, count, other, start, count, 0x8000),
              expected.caseCompare(start, count, theirs, start, count, 0x8000));
    ASSERT_EQ(string.Find(pattern, 0, -1, start, count),
              expected.indexOf(Icu(oldText), start, count));
    expected.findAndReplace(start, count, Icu(oldText), 0, INT32_MAX, Icu(newText), 0, INT32_MAX);
    string.FindAndReplace(start, count, pattern, 0, -1, Make(newText), 0, -1);
    ASSERT_EQ(TextOf(string), Text(expected.getBuffer(), expected.length())) << "FindAndReplace";
    ASSERT_EQ(string.GetCapacity(), expected.getCapacity()) << "FindAndReplace";
  }
}

TEST(FastPath, FindAndReplaceReadsItsOwnTextAsItWas) {
  for (const int overload : {0, 1, 2, 3}) {
    ZRStringMutator text(Make(u"abcabcabc"));
    const unsigned short* const own = text.GetTerminatedBuffer();
    switch (overload) {
      case 0:
        text.FindAndReplace(0, -1, text, 0, 1, text, 1, 2);
        break;
      case 1:
        text.FindAndReplace(0, -1, text, 0, 1, own, 1, 2);
        break;
      case 2:
        text.FindAndReplace(0, -1, own, 0, 1, text, 1, 2);
        break;
      default:
        text.FindAndReplace(0, -1, own, 0, 1, own, 1, 2);
    }
    EXPECT_EQ(TextOf(text), u"bcbcbcbcbcbc") << "FindAndReplace, overload " << overload;
  }
}

TEST(FastPath, NewTextsHaveTheSmallestStorage) {
  for (int length = 0; length < 100; ++length) {
    const Text text(length, u'x');
    const std::string bytes(length, 'x');
    const ZRString longer = Make(text + u"y");
    const std::int32_t smallest = icu::UnicodeString(length, 0, 0).getCapacity();
    for (const ZRStringMutator& made :
         {ZRStringMutator(Raw(text), 0, length), ZRStringMutator(Raw(text), 0, -1),
          ZRStringMutator(longer, 0, length), ZRStringMutator(bytes.data(), 0, length)}) {
      EXPECT_EQ(made.GetCapacity(), smallest) << length;
      EXPECT_EQ(TextOf(made), text);
    }
  }
}

TEST(FastPath, MovesAndSwapsExchangeBodies) {
  ZRStringMutator first(Make(u"a")), second(Make(u"b")), shared(first);
  const std::int32_t* const bodies[] = {BodyOf(first), BodyOf(second)};
  EXPECT_EQ(&(first = std::move(second)), &first);
  EXPECT_EQ(BodyOf(first), bodies[1]);
  EXPECT_EQ(BodyOf(second), bodies[0]);
  swap(first, second);
  EXPECT_EQ(BodyOf(first), bodies[0]);
  first = std::move(shared);  // one body
  EXPECT_EQ(Holders(first), 2);
  const ZRStringMutator constant(first);
  second = std::move(constant);  // a copy
  EXPECT_EQ(Holders(constant), 4);
}
