// Strings in standard streams of code units: width, fill, adjustment and states, without a locale.
#include <ZRString/ZRStringMutator.h>
#include <ZRString/ZRStringOutput.h>
#include <gtest/gtest.h>

#include <iomanip>
#include <locale>

#include "Text.h"

namespace {

using Stream = std::basic_ostringstream<unsigned short>;
using Base = std::basic_ostream<unsigned short>;

Text Written(const Stream& stream) {
  const auto units = stream.str();
  return Text(units.begin(), units.end());
}

}  // namespace

TEST(Output, WidthFillAndAdjustment) {
  const struct {
    Text text;
    int width;
    Text expected, leftExpected;
  } rows[] = {
      {u"abc", 0, u"abc", u"abc"},
      {u"abc", 6, u"***abc", u"abc***"},
      {u"abc", 2, u"abc", u"abc"},
      {u"", 0, u"", u""},
      {u"", 3, u"***", u"***"},
      {Text(u"a\0b", 3), 3, u"**a", u"a**"},
      {u"\u20AC\U0001F600", 4, u"*\u20AC\U0001F600", u"\u20AC\U0001F600*"},
  };
  Base& (*const inserters[])(Stream&, const ZRString&) = {
      [](Stream& stream, const ZRString& s) -> Base& { return SerializeBasicStream(s, stream); },
      [](Stream& stream, const ZRString& s) -> Base& { return static_cast<Base&>(stream) << s; },
      [](Stream& stream, const ZRString& s) -> Base& { return stream << s; },
  };
  for (const auto& row : rows) {
    for (const bool left : {false, true}) {
      for (const auto inserter : inserters) {
        Stream stream;
        stream << std::setw(row.width) << (left ? std::left : std::right);
        stream.fill('*');
        EXPECT_EQ(&inserter(stream, ZRStringMutator(Make(row.text))), &stream);
        EXPECT_TRUE(stream.good());
        EXPECT_EQ(Written(stream), left ? row.leftExpected : row.expected);
        EXPECT_EQ(stream.width(), 0);
      }
    }
  }
}

TEST(Output, EightBitTextIsDecoded) {
  Stream stream;
  EXPECT_EQ(Written(stream << "\x80" << Make(u"x") << "y" << static_cast<const char*>(nullptr)),
            u"\u20ACxy");
}

TEST(Output, NeedsNoLocale) {
  const std::locale before;
  struct Commas : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
  };
  std::locale::global(std::locale(before, new Commas));
  Stream stream;
  stream << std::setw(3) << Make(u"a");
  stream << std::endl;
  std::locale::global(before);
  EXPECT_TRUE(stream.good());
  EXPECT_EQ(Written(stream), u"  a\n");
  EXPECT_EQ(stream.widen('\xE9'), 0xE9);
}

TEST(Output, FailuresStandInTheState) {
  Stream stream;
  stream.setstate(std::ios::badbit);
  stream << Make(u"abc") << "abc";
  EXPECT_TRUE(stream.bad() && stream.fail());
  EXPECT_EQ(Written(stream), u"");

  struct Refusing : std::basic_streambuf<unsigned short> {
  } full;
  Base refused(&full);
  refused << Make(u"abc");
  EXPECT_TRUE(refused.bad());
  Base throwing(&full);
  throwing.exceptions(std::ios::badbit);
  EXPECT_THROW(throwing << Make(u"abc"), std::ios_base::failure);
}
