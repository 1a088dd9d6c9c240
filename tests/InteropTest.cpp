// Compares the conversions of ZRStringInterop.h and ZRStringUtf8.h with ICU's; uses strings with
// the standard library.
#include <ZRString/ZRStringInterop.h>
#include <ZRString/ZRStringUtf8.h>
#include <gtest/gtest.h>
#include <unicode/uclean.h>
#include <unicode/unistr.h>

#include <cstdlib>
#include <cstring>
#include <iomanip>
#include <memory>
#include <numeric>
#include <set>
#include <sstream>
#include <tuple>
#include <unordered_set>
#include <vector>

#include "Text.h"

using namespace std::string_literals;

namespace {

/// A copy of a text at the end of its memory, so that a sanitizer sees reads past the end, and with
/// a beginning that is not aligned.
template <typename Text>
struct Exact {
  explicit Exact(const Text& text) : memory(1 + text.size() % 7), size(text.size()) {
    memory.insert(memory.end(), text.begin(), text.end());
    memory.shrink_to_fit();
  }
  const auto* Data() const { return memory.data() + memory.size() - size; }

  std::vector<typename Text::value_type> memory;
  std::size_t size;
};

/// The function that does not decode `bytes` as ICU does, at once or after another text, or leaves
/// much room to grow; "" if there is none.
std::string WrongFor(const std::string& bytes) {
  const Exact exact(bytes);
  const auto expected = icu::UnicodeString::fromUTF8(bytes);
  const std::u16string_view units(expected.getBuffer(), expected.length());
  const auto matches = [&](const ZRStringMutator& string) {
    return Utf16View(string) == units && string.GetCapacity() <= expected.length() * 5 / 4 + 32;
  };
  ZRMutableStringRef__* handle = nullptr;
  if (ZRMutableStringCreateFromUtf8(exact.Data(), exact.size, &handle) != kZRStatusSuccess)
    return "the status of ZRMutableStringCreateFromUtf8";
  const std::unique_ptr<ZRStringMutator> string(&GetZRStringMutatorFromRef(handle));
  if (!matches(*string))
    return "ZRMutableStringCreateFromUtf8";
  if (ZRMutableStringAppendUtf8(handle, exact.Data(), exact.size) != kZRStatusSuccess ||
      Utf16View(*string) != std::u16string(units).append(units))
    return "ZRMutableStringAppendUtf8";
  return matches(FromUtf8({exact.Data(), exact.size})) ? "" : "FromUtf8";
}

/// The C function that does not give `utf8` for a string, or "". The buffer has no byte more than
/// is needed.
std::string WrongFor(const ZRString& string, const std::string& utf8) {
  std::size_t sizes[3] = {};
  std::vector<char> buffer(utf8.size() + 1, 'x');
  char* text = nullptr;
  ZRStringGetUtf8Size(string.GetZRStringRef(), &sizes[0]);
  ZRStringExtractIntoUtf8(string.GetZRStringRef(), buffer.data(), buffer.size(), &sizes[1]);
  ZRStringAllocateUtf8(string.GetZRStringRef(), &text, &sizes[2]);
  const std::unique_ptr<char, decltype(&std::free)> allocated(text, std::free);
  if (sizes[0] != utf8.size())
    return "ZRStringGetUtf8Size";
  if (sizes[1] != utf8.size() || std::memcmp(buffer.data(), utf8.c_str(), buffer.size()) != 0)
    return "ZRStringExtractIntoUtf8";
  const bool same = sizes[2] == utf8.size() && std::memcmp(text, utf8.c_str(), buffer.size()) == 0;
  return same ? "" : "ZRStringAllocateUtf8";
}

/// The function that does not give ICU's UTF-8 of `units`, or leaves much room to grow, or does not
/// decode that; "" if there is none.
std::string WrongFor(const std::u16string& units) {
  const Exact exact(units);
  const std::string bytes = ToUtf8({exact.Data(), exact.size});
  std::string expected;
  icu::UnicodeString(units.data(), static_cast<std::int32_t>(units.size())).toUTF8String(expected);
  if (bytes != expected || bytes.capacity() > bytes.size() * 5 / 4 + 16)
    return "ToUtf8";
  const std::string wrong = WrongFor(FromUtf16(units), expected);
  return wrong.empty() ? WrongFor(expected) : wrong;
}

/// Calls `visit` with every sequence of up to `length` elements.
template <typename Text, typename Visit>
void ForEachSequence(const Text& elements, int length, Visit visit, const Text& begun = {}) {
  visit(begun);
  for (std::size_t i = 0; length > 0 && i < elements.size(); ++i)
    ForEachSequence(elements, length - 1, visit, begun + elements[i]);
}

}  // namespace

TEST(Interop, EveryCodePointAndUnpairedSurrogate) {
  // Up to 40 letters before each character, so that it comes at each place of a block of ASCII.
  icu::UnicodeString text;
  for (UChar32 c = 0; c <= 0x10FFFF; ++c) {
    text.padTrailing(text.length() + c % 41, u'a');
    text.append(c);
    if (c % 64 == 63) {
      ASSERT_EQ(WrongFor(std::u16string(text.getBuffer(), text.length())), "")
          << "up to U+" << std::hex << c;
      text.remove();
    }
  }
}

TEST(Interop, EveryShortSequenceOfTheEdgesOfTheClasses) {
  const auto agrees = [](const auto& text) {
    ASSERT_EQ(WrongFor(text), "") << testing::PrintToString(text);
  };
  std::string bytes(256, '\0');
  std::iota(bytes.begin(), bytes.end(), '\0');
  ForEachSequence(bytes, 2, agrees);
  bytes =
      "\0\x7F\x80\x8F\x90\x9F\xA0\xBF\xC0\xC1\xC2\xDF\xE0\xE1\xEC\xED\xEE\xEF\xF0\xF1\xF3\xF4\xF5"s;
  ForEachSequence(bytes, 4, agrees);
  ForEachSequence(u"\0\x7F\x80\u07FF\u0800\uD7FF\xD800\xDBFF\xDC00\xDFFF\uE000\uFFFF"s, 4, agrees);
}

// Texts are converted in pieces and blocks, and cuts may split characters. Letters after wider
// characters make a text smaller than its beginning suggests.
TEST(Interop, EveryPlaceAndLength) {
  const std::string parts[] = {"a", "\u00E9", "\u4E2D", "\U0001F600", "a\xE4", "\xFF"};
  for (const std::string& part : parts)
    for (const std::string& other : parts) {
      std::string bytes;
      for (std::size_t i = 0; i < 600; ++i, bytes += part) {
        const std::string letters(i % 32 ? 0 : i, 'a');
        const std::string text = bytes + letters + other + bytes.substr(0, i % 32);
        ASSERT_EQ(WrongFor(text), "") << testing::PrintToString(text);
        ASSERT_EQ(WrongFor(std::u16string(Utf16View(FromUtf8(text)))), "") << text.size();
      }
    }
}

TEST(Interop, TextsThatAreTooLongAreRefused) {
  constexpr std::size_t kTooLong = std::size_t{1} << 31;
  EXPECT_THROW(FromUtf16({u"", kTooLong}), std::length_error);
  EXPECT_THROW(ToUtf8({u"", kTooLong}), std::length_error);
}

TEST(Interop, ShortBuffersGetWholeCharactersAndAZeroByte) {
  const std::string utf8 = "a\0\u00E9\u4E2D\U0001F600z\uFFFD"s;
  const ZRString string = u"a\0\u00E9\u4E2D\U0001F600z\xD800"_zr;
  for (std::size_t capacity = 0; capacity <= utf8.size() + 2; ++capacity) {
    std::vector<char> buffer(capacity, 'x');
    std::size_t size = 0, fits = std::min(capacity, utf8.size() + 1);
    EXPECT_EQ(ZRStringExtractIntoUtf8(string.GetZRStringRef(), buffer.data(), capacity, &size), 0);
    EXPECT_EQ(size, utf8.size());
    while (fits > 0 && (utf8.c_str()[--fits] & 0xC0) == 0x80)
      continue;
    std::string expected = utf8.substr(0, fits) + std::string(1, '\0');
    expected.resize(capacity, 'x');
    EXPECT_EQ(std::string(buffer.data(), capacity), expected) << "ZRStringExtractIntoUtf8";
  }
}

TEST(Interop, TextsWithoutSizeEndAtTheirZeroByteAndLostTextsAreReported) {
  ZRStringRef__* first = nullptr;
  EXPECT_EQ(ZRStringCreateFromUtf8("\u00E9\0b", ZR_TO_ZERO_BYTE, &first), kZRStatusSuccess);
  const std::unique_ptr<const ZRString> string(&GetZRStringFromRef(first));
  ZRStringMutator open(*string);
  ZRMutableStringAppendUtf8(open.GetZRMutableStringRef(), "z\0b", ZR_TO_ZERO_BYTE);
  EXPECT_EQ(ToUtf8(*string) + ToUtf8(open), "\u00E9\u00E9z");
  open.GetBuffer(-1);
  EXPECT_EQ(ZRMutableStringAppendUtf8(open.GetZRMutableStringRef(), "a", 1), kZRStatusTextLost);
  EXPECT_EQ(WrongFor(open, ""), "");
}

TEST(Interop, ViewsAndLiterals) {
  const ZRString string = u"a\0\xD800"_zr;
  EXPECT_EQ(Utf16View(string), u"a\0\xD800"s);
  EXPECT_EQ(static_cast<const void*>(Utf16View(string).data()), string.GetBuffer());
  EXPECT_EQ(FromUtf16(u"a\0b"), FromUtf8(u8"a"));
  EXPECT_EQ(FromUtf16({}), u""_zr);
#ifdef _WIN32
  EXPECT_EQ(FromWide(L"a\0\xD800"s), string);
  EXPECT_EQ(ToWide(string), L"a\0\xD800"s);
#endif
}

TEST(Interop, KeysOfContainers) {
  const std::u16string edges = u"\x01\x7F\uD7FF\xD800\xDFFF\uE000\uFFFF";
  std::set<std::size_t> hashes;
  ForEachSequence(edges, 2, [&](const std::u16string& left) {
    const ZRStringMutator string(FromUtf16(left));
    hashes.insert({std::hash<ZRString>()(string), std::hash<ZRStringMutator>()(string)});
    EXPECT_EQ(std::unordered_set<ZRString>({string, FromUtf16(left)}).size(), 1u);
    EXPECT_EQ((std::set<ZRString, ZRStringLess>({string}).count(left)), 1u);
    ForEachSequence(edges, 2, [&](const std::u16string& right) {
      EXPECT_EQ(ZRStringLess()(string, right), left < right);
      EXPECT_EQ(ZRStringLess()(right, string), right < left);
    });
  });
  EXPECT_EQ(hashes.size(), 1u + 7 + 7 * 7) << "different values of std::hash";
}

TEST(Interop, OperatorsWithTexts) {
  const auto orders = [](const auto& left, const auto& right) {
    return std::tuple(left == right, left != right, left<right, left> right, left <= right,
                      left >= right);
  };
  ForEachSequence(u"a\0\xD800"s, 2, [&](const std::u16string& left) {
    const ZRStringMutator string(FromUtf16(left));
    ForEachSequence(u"a\0\xD800"s, 2, [&](const std::u16string& right) {
      const ZRString other = FromUtf16(right), sum = FromUtf16(left + right);
      const std::u16string_view view = right;
      EXPECT_EQ(orders(string, right), orders(left, right));
      EXPECT_EQ(orders(string, view), orders(left, right));
      EXPECT_EQ(orders(left, other), orders(left, right));
      EXPECT_EQ(ZRString(string) + other, sum);
      EXPECT_EQ(string + other, sum);
      EXPECT_EQ(string + view, sum);
      EXPECT_EQ(left + other, sum);
    });
  });
}

TEST(Interop, OperatorsWithCharacters) {
  ZRStringMutator sum;
  for (char32_t c : {U'a', U'\uFFFF', U'\x10000', U'\x10FFFF', U'\x110000', U'\xDC00'})
    sum += c;
  EXPECT_EQ(sum, u"a\uFFFF\U00010000\U0010FFFF\uFFFD\xDC00");
  const std::string bytes = "\x7F\x80\x9F\xA0\xFF";
  sum = ZRStringMutator();
  for (const char c : bytes)
    (sum + sum) += sum += c;
  EXPECT_EQ(sum, ZRString(bytes.c_str(), 0, kZRToEnd));
  const unsigned short unit = 'a';
  EXPECT_EQ((((sum = u""_zr) += unit + 1) += 65) += u'\uFFFF', u"bA\uFFFF");
  EXPECT_EQ('\x80' + (U'\x10000' + (u"a"_zr + 'b')) + U'c' + u'd' + 65, u"\u20AC\U00010000abcdA");
  EXPECT_FALSE((std::is_invocable_v<std::plus<>, ZRString, double>));
  const auto append = [](auto&& string) -> decltype(std::forward<decltype(string)>(string) += 'x') {
    return string += 'x';
  };
  EXPECT_TRUE((std::is_invocable_v<decltype(append), ZRStringMutator>));
  EXPECT_FALSE((std::is_invocable_v<decltype(append), ZRString>));  // would edit a copy
  EXPECT_FALSE((std::is_invocable_v<std::plus<>, float, ZRStringMutator>));
}

TEST(Interop, Characters) {
  ForEachSequence(u"a\xD800\xDC00\uFFFF"s, 5, [&](const std::u16string& text) {
    const ZRString string = FromUtf16(text);
    const icu::UnicodeString expected(text.data(), text.size());
    EXPECT_EQ(CodePointCount(string), expected.countChar32());
    std::u32string forward;
    for (const char32_t c : CodePoints(FromUtf16(text)))
      forward += c;
    const CodePoints characters(text);
    const std::u32string backward(characters.rbegin(), characters.rend());
    EXPECT_EQ(forward, std::u32string(backward.rbegin(), backward.rend())) << "CodePoints, --";
    ZRLong index = 0;
    for (auto c = characters.begin(); c != characters.end();
         index = expected.moveIndex32(index, 1)) {
      EXPECT_EQ(c.Index(), index);
      EXPECT_EQ(*c++, static_cast<char32_t>(expected.char32At(index)));
    }
    EXPECT_EQ(forward.size(), expected.countChar32());
    for (ZRLong i = -1; i <= string.GetLength(); ++i)
      EXPECT_EQ(CodePointAt(string, i), static_cast<char32_t>(expected.char32At(i)));
  });
}

// The parts of a text, joined again, are the text; with another text between them, they are what
// replacing gives.
TEST(Interop, ShortForms) {
  ForEachSequence(u"ab\0"s, 5, [&](const std::u16string& text) {
    const ZRString string = FromUtf16(text);
    ForEachSequence(u"ab\0"s, 2, [&](const std::u16string& part) {
      SCOPED_TRACE(testing::PrintToString(string) + " " + testing::PrintToString(FromUtf16(part)));
      const std::size_t at = part.empty() ? text.npos : text.find(part, 1);
      const std::size_t last = text.rfind(part);
      EXPECT_EQ(IndexOf(text, FromUtf16(part), 1), at == text.npos ? -1 : ZRLong(at));
      EXPECT_EQ(Contains(string, part), !part.empty() && text.find(part) != text.npos);
      EXPECT_EQ(StartsWith(string, part), text.compare(0, part.size(), part) == 0);
      EXPECT_EQ(EndsWith(string, part), last != text.npos && last + part.size() == text.size());
      std::vector<ZRStringMutator> parts = PartsOf(string, part);
      EXPECT_EQ(Joined(parts, part), string);
      for (const ZRString& between : parts)
        EXPECT_FALSE(Contains(between, part));
      EXPECT_EQ(Joined(parts, u'x'), ReplacedAll(text, part, FromUtf16(u"x")));
      parts.erase(std::remove(parts.begin(), parts.end(), u""_zr), parts.end());
      EXPECT_EQ(PartsOf(text, part, kZRSkipEmptyParts), parts);
    });
  });
  EXPECT_EQ(PartOf(u"abc", 1, 1) + PartOf(u"abc", 1) + Trimmed(u" d "), u"bbcd");
  EXPECT_EQ(UpperCase(u"a\u00DF") + LowerCase(u"A\u00C9"), u"ASSa\u00E9");
}

TEST(Interop, IcuWithoutMemory) {
  static bool fails = false;
  UErrorCode status = U_ZERO_ERROR;
  u_setMemoryFunctions(
      nullptr, [](const void*, std::size_t size) { return fails ? nullptr : std::malloc(size); },
      [](const void*, void* block, std::size_t size) { return std::realloc(block, size); },
      [](const void*, void* block) { std::free(block); }, &status);
  const ZRString half = FromUtf8(std::string(400, 'a'));
  ZRStringMutator edited(half);
  ZRStringRef__* out = nullptr;
  for (const std::size_t size : {100, 1000}) {
    const std::string bytes(size, 'a');
    fails = true;
    EXPECT_EQ(ZRStringCreateFromUtf8(bytes.data(), size, &out), kZRStatusNoMemory);
    EXPECT_EQ(out, nullptr);
    EXPECT_THROW(FromUtf8(bytes), std::bad_alloc);
    EXPECT_THROW(half + half, std::bad_alloc);
    EXPECT_THROW(Joined(std::vector<std::u16string>(size, u"abc"), u','), std::bad_alloc);
    fails = false;
  }
  edited += 'x';  // detaches
  fails = true;
  EXPECT_EQ(ZRMutableStringAppendUtf8(edited.GetZRMutableStringRef(),
                                      std::string(4000, 'a').c_str(), ZR_TO_ZERO_BYTE),
            kZRStatusTextLost);
  EXPECT_THROW(UpperCase(half), std::bad_alloc);
  fails = false;
}

// A copy of a string with an open buffer would share that buffer.
TEST(Interop, OpenBuffersAreEmptyTextsAndAreNotShared) {
  ZRStringMutator open(u"abc"_zr);
  open.GetBuffer(-1);
  const CodePoints characters(open);
  EXPECT_EQ(characters.begin(), characters.end());
  const ZRString texts[] = {ReplacedAll(open, u'a', u'b'),
                            Trimmed(open),
                            UpperCase(open),
                            LowerCase(open),
                            PartOf(open, 0),
                            open + open,
                            Joined(PartsOf(open, u'a'), u"")};
  for (const ZRString& text : texts) {
    EXPECT_EQ(text, u"");
    EXPECT_NE(text.GetBuffer(), nullptr);
  }
  EXPECT_EQ(Holders(open), 1);
}

TEST(Interop, Printing) {
  EXPECT_EQ(testing::PrintToString(u"\U0001F600 d\u00E9j\u00E0 vu\"\\a\0\n\x1F\x7F\x9F\xA0"_zr),
            "\"\U0001F600 d\u00E9j\u00E0 vu\\\"\\\\a\\u0000\\u000A\\u001F\\u007F\\u009F\u00A0\"");
  EXPECT_EQ(testing::PrintToString(u"\xDC00\xD800\xD800\xDC00\uFFFD"_zr),
            "\"\\uDC00\\uD800\U00010000\uFFFD\"");
  EXPECT_EQ(testing::PrintToString(u""_zr), "\"\"");
  ZRStringMutator cut(u"\U00010000"_zr);  // its second half may stay in memory
  cut.Truncate(1);
  EXPECT_EQ(testing::PrintToString(cut), "\"\\uD800\"");
  ZRStringMutator open(u"abc"_zr);
  open.GetBuffer(-1);
  EXPECT_EQ(testing::PrintToString(open),
            "(no text: its buffer is open, or ICU could not hold it)");
  EXPECT_EQ(std::hash<ZRString>()(open), std::hash<ZRString>()(u""_zr));
}

TEST(Interop, TextsAreInsertedAsUtf8) {
  const ZRString accented = u"\u00E9"_zr;
  const ZRStringMutator damaged = u"\0\xD800"_zr;
  ZRStringMutator open(accented);  // reads as empty
  open.GetBuffer(-1);
  std::ostringstream stream;
  stream << std::left << std::setfill('*') << std::setw(4) << accented << damaged << open;
  EXPECT_EQ(stream.str(), "\u00E9**\0\uFFFD"s);
#ifdef __cpp_lib_format
  EXPECT_EQ(std::format("{:*<4}{}{}", accented, damaged, open),
            std::format("{:*<4}{}", ToUtf8(accented), ToUtf8(damaged)));
#endif
}
