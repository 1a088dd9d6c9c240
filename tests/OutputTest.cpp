#include <ZRString/ZRStringMutator.h>
#include <ZRString/ZRStringOutput.h>
#include <gtest/gtest.h>

#include <iomanip>
#include <locale>

#include "Text.h"

namespace {

using Stream = std::basic_ostringstream<unsigned short>;

std::u16string Written(const Stream& stream) {
  const auto units = stream.str();
  return std::u16string(units.begin(), units.end());
}

}  // namespace

TEST(Output, WidthFillAndAdjustment) {
  const struct {
    const char* name;
    std::u16string text;
    std::streamsize width;
    bool left;
    std::u16string expected;
  } rows[] = {
      {"plain", u"abc", 0, false, u"abc"},
      {"padded", u"abc", 6, false, u"***abc"},
      {"padded right", u"abc", 6, true, u"abc***"},
      {"too narrow", u"abc", 2, false, u"abc"},
      {"empty", u"", 0, false, u""},
      {"empty, padded", u"", 3, false, u"***"},
      {"up to the zero unit", std::u16string(u"a\0b", 3), 3, false, u"**a"},
      {"above Latin-1", u"\u20AC\U0001F600", 4, false, u"*\u20AC\U0001F600"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    Stream stream;
    std::basic_ostream<unsigned short>& base = stream;
    base.fill('*');
    for (int form = 0; form < 3; ++form) {
      stream.str({});
      stream.width(row.width);
      row.left ? stream.setf(std::ios::left, std::ios::adjustfield)
               : stream.setf({}, std::ios::adjustfield);
      const ZRStringMutator string(Make(row.text));
      if (form == 0)
        EXPECT_EQ(&SerializeBasicStream(string, stream), &base);
      else if (form == 1)
        EXPECT_EQ(&(base << string), &base);
      else
        EXPECT_EQ(&(stream << string), &stream);
      EXPECT_TRUE(stream.good());
      EXPECT_EQ(Written(stream), row.expected);
      EXPECT_EQ(stream.width(), 0);
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
  std::basic_ostream<unsigned short> refused(&full);
  refused << Make(u"abc");
  EXPECT_TRUE(refused.bad());
  std::basic_ostream<unsigned short> throwing(&full);
  throwing.exceptions(std::ios::badbit);
  EXPECT_THROW(throwing << Make(u"abc"), std::ios_base::failure);
}
