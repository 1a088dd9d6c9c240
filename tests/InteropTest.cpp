// Compares the conversions of ZRStringInterop.h with ICU's; uses strings with the standard library.

#include <ZRString/ZRStringInterop.h>
#include <gtest/gtest.h>
#include <unicode/unistr.h>

#include <iomanip>
#include <map>
#include <sstream>
#include <unordered_set>
#include <vector>

namespace {

constexpr std::size_t kTooLong = std::size_t{1} << 31;

std::u16string IcuUtf16(const std::string& bytes) {
  const auto text = icu::UnicodeString::fromUTF8(bytes);
  return std::u16string(text.getBuffer(), text.length());
}

std::string IcuUtf8(const std::u16string& units) {
  std::string bytes;
  return icu::UnicodeString(units.data(), static_cast<std::int32_t>(units.size()))
      .toUTF8String(bytes);
}

// The texts are in memory of exactly their size, so that a sanitizer sees reads past the end.

bool SameFromUtf8(const std::string& bytes) {
  const std::vector<char> exact(bytes.begin(), bytes.end());
  return Utf16View(FromUtf8({exact.data(), exact.size()})) == IcuUtf16(bytes);
}

bool SameToUtf8(const std::u16string& units) {
  const std::vector<char16_t> exact(units.begin(), units.end());
  const std::string bytes = IcuUtf8(units);
  return ToUtf8({exact.data(), exact.size()}) == bytes && ToUtf8(FromUtf16(units)) == bytes;
}

/// Calls `visit` with every sequence of `length` elements.
template <typename Text, typename Visit>
void ForEachSequence(const Text& elements, std::size_t length, Visit visit) {
  std::vector<std::size_t> indices(length);
  for (std::size_t i = 0; i < length;) {
    Text sequence;
    for (const std::size_t index : indices)
      sequence += elements[index];
    visit(sequence);
    for (i = 0; i < length && ++indices[i] == elements.size(); ++i)
      indices[i] = 0;
  }
}

ZRStringMutator InErrorState() {
  ZRStringMutator string;
  string.PadLeading(INT32_MAX, 'x');
  return string;
}

}  // namespace

TEST(Interop, EveryCodePointAndUnpairedSurrogate) {
  // Up to 40 letters before each character, so that it comes inside and after blocks of ASCII.
  constexpr std::uint32_t kTogether = 64;
  for (std::uint32_t first = 0; first <= 0x10FFFF; first += kTogether) {
    std::u16string units;
    for (std::uint32_t c = first; c < first + kTogether; ++c) {
      units.append(c % 41, u'a');
      if (c > 0xFFFF)
        units += static_cast<char16_t>(0xD7C0 + (c >> 10));
      units += static_cast<char16_t>(c > 0xFFFF ? 0xDC00 | (c & 0x3FF) : c);
    }
    ASSERT_TRUE(SameToUtf8(units)) << std::hex << first;
    ASSERT_TRUE(SameFromUtf8(IcuUtf8(units))) << std::hex << first;
  }
}

TEST(Interop, EveryShortSequenceOfBytes) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte)
    all += static_cast<char>(byte);
  for (const std::size_t length : {1, 2})
    ForEachSequence(all, length, [](const std::string& bytes) {
      ASSERT_TRUE(SameFromUtf8(bytes)) << testing::PrintToString(bytes);
    });
  // Sequences of three bytes: one text for each two first bytes, with letters in between.
  ForEachSequence(all, 2, [&](const std::string& two) {
    std::string bytes;
    for (const char third : all)
      bytes.append(two).append({third, 'a'});
    ASSERT_TRUE(SameFromUtf8(bytes)) << testing::PrintToString(two);
  });
}

TEST(Interop, FourBytesAndFourUnitsAtTheEdgesOfTheirClasses) {
  const std::string bytes(
      "\x00\x7F\x80\x8F\x90\x9F\xA0\xBF\xC1\xC2\xDF\xE0\xE1\xEC\xED\xEE\xEF\xF0\xF1\xF3\xF4\xF5",
      22);
  const std::u16string units(u"\0\x7F\x80\u07FF\u0800\uD7FF\xD800\xDBFF\xDC00\xDFFF\uE000\uFFFF",
                             12);
  for (const std::size_t length : {3, 4}) {
    ForEachSequence(bytes, length, [](const std::string& sequence) {
      ASSERT_TRUE(SameFromUtf8(sequence)) << testing::PrintToString(sequence);
    });
    ForEachSequence(units, length, [](const std::u16string& sequence) {
      ASSERT_TRUE(SameToUtf8(sequence)) << testing::PrintToString(sequence);
    });
  }
}

// Texts are converted in pieces and blocks, so every character is tried at each place in one.
TEST(Interop, EveryPlaceAndLength) {
  for (const char* part : {"a", "\xC3\xA9", "\xE4\xB8\xAD", "\xF0\x9F\x98\x80", "a\xE4", "\xFF"}) {
    for (int place = 0; place < 40; ++place) {
      std::string bytes = std::string(40, 'a').insert(place, part);
      for (const std::size_t limit = place < 3 ? 850 : 60; bytes.size() < limit; bytes += part) {
        ASSERT_TRUE(SameFromUtf8(bytes)) << testing::PrintToString(bytes);
        ASSERT_TRUE(SameToUtf8(IcuUtf16(bytes))) << testing::PrintToString(bytes);
        const ZRStringMutator string(FromUtf8(bytes));
        ASSERT_LE(string.GetCapacity(), string.GetLength() * 5 / 4 + 8);
      }
      for (int i = 0; i < 3; ++i)
        bytes += bytes;
      const std::string back = ToUtf8(FromUtf8(bytes));
      ASSERT_LE(back.capacity(), back.size() * 5 / 4);
    }
  }
  for (int length = 250; length < 260; ++length)
    for (const char16_t* end : {u"", u"\U0001F600"})
      EXPECT_TRUE(SameToUtf8(std::u16string(length, u'\u4E2D') + end)) << length;
}

TEST(Interop, TextsThatAreTooLongAreRefused) {
  const char16_t units[] = u"";
  EXPECT_THROW(FromUtf8({"", kTooLong}), std::length_error);
  EXPECT_THROW(FromUtf16({units, kTooLong}), std::length_error);
}

TEST(Interop, ViewsAndLiterals) {
  const ZRString string = u"a\0\xD800"_zr;
  EXPECT_EQ(Utf16View(string), std::u16string_view(u"a\0\xD800", 3));
  EXPECT_EQ(static_cast<const void*>(Utf16View(string).data()), string.GetBuffer());
  EXPECT_EQ(FromUtf16(u"a\0b"), u"a"_zr);
  EXPECT_EQ(FromUtf16({}), u""_zr);
#ifdef _WIN32
  EXPECT_EQ(FromWide({L"a\0\xD800", 3}), string);
  EXPECT_EQ(ToWide(string), std::wstring(L"a\0\xD800", 3));
#endif
}

TEST(Interop, KeysOfContainers) {
  const std::u16string edges = u"\x01\x7F\uD7FF\xD800\xDFFF\uE000\uFFFF";
  std::vector<ZRString> strings = {u""_zr, InErrorState()};
  for (const std::size_t length : {1, 2})
    ForEachSequence(edges, length,
                    [&](const std::u16string& text) { strings.push_back(FromUtf16(text)); });

  const ZRStringLess less;
  std::unordered_set<std::size_t> hashes;
  for (const ZRString& left : strings) {
    hashes.insert(std::hash<ZRString>()(left));
    for (const ZRString& right : strings) {
      const bool sameHash = std::hash<ZRString>()(left) == std::hash<ZRStringMutator>()(right);
      EXPECT_TRUE(sameHash || left != right);
      const bool bothHaveText = left.GetBuffer() && right.GetBuffer();
      EXPECT_TRUE(!bothHaveText || less(left, right) == (left < right));
      EXPECT_EQ(less(left, right), less(Utf16View(left), right));
      EXPECT_EQ(less(left, right), less(left, std::u16string(Utf16View(right))));
    }
  }
  EXPECT_EQ(hashes.size(), strings.size() - 1);

  std::map<ZRString, int, ZRStringLess> map = {{u"b"_zr, 2}, {u"a"_zr, 1}};
  EXPECT_EQ(map.find(u"b")->second, 2);
  const std::unordered_set<ZRString> set = {u"a"_zr, u"b"_zr, FromUtf8("a")};
  EXPECT_EQ(set.size(), 2u);
}

TEST(Interop, Printing) {
  ZRStringMutator open(u"abc"_zr);
  open.GetBuffer(-1);
  ZRStringMutator cut(u"\U00010000"_zr);  // its second half may stay in memory
  cut.Truncate(1);
  const struct {
    ZRString string;
    std::string inserted;
    std::string printed;
  } rows[] = {
      {u"d\u00E9j\u00E0 vu \U0001F600"_zr, "d\xC3\xA9j\xC3\xA0 vu \xF0\x9F\x98\x80",
       "\"d\xC3\xA9j\xC3\xA0 vu \xF0\x9F\x98\x80\""},
      {u"a\0\n\x7F"_zr, std::string("a\0\n\x7F", 4), "\"a\\u0000\\u000A\\u007F\""},
      {u"\xDC00\xD800\xD800\xDC00\uFFFD"_zr, "\xEF\xBF\xBD\xEF\xBF\xBD\xF0\x90\x80\x80\xEF\xBF\xBD",
       "\"\\uDC00\\uD800\xF0\x90\x80\x80\xEF\xBF\xBD\""},
      {u"\"\\"_zr, "\"\\", "\"\\\"\\\\\""},
      {u""_zr, "", "\"\""},
      {InErrorState(), "", "(no text: its buffer is open, or ICU ran out of memory)"},
      {cut, "\xEF\xBF\xBD", "\"\\uD800\""},
      {open, "", "(no text: its buffer is open, or ICU ran out of memory)"},
  };
  for (const auto& row : rows) {
    std::ostringstream stream;
    stream << row.string;
    EXPECT_EQ(stream.str(), row.inserted);
    EXPECT_EQ(testing::PrintToString(row.string), row.printed);
    EXPECT_EQ(testing::PrintToString(ZRStringMutator(row.string)), row.printed);
#ifdef __cpp_lib_format
    EXPECT_EQ(std::format("{}{}", row.string, ZRStringMutator(row.string)),
              row.inserted + row.inserted);
    EXPECT_EQ(std::format("{:>3}", u"a"_zr), "  a");
#endif
  }
  open.ReleaseBuffer(0);
  std::ostringstream stream;
  stream << std::left << std::setfill('*') << std::setw(4) << u"\u00E9"_zr << u"a"_zr;
  EXPECT_EQ(stream.str(), "\xC3\xA9**a");
}
