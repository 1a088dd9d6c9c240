// Strings in standard streams of code units: width, fill, adjustment and states, without a locale.
#include <ZRString/ZRStringMutator.h>
#include <ZRString/ZRStringOutput.h>
#include <gtest/gtest.h>

#include <iomanip>

#include "Text.h"

using Stream = std::basic_ostringstream<unsigned short>;
using Base = std::basic_ostream<unsigned short>;

static Text Written(const Stream& stream) {
  const auto units = stream.str();
  return Text(units.begin(), units.end());
}

TEST(Output, HasTheWidthFillAndAdjustmentOfATerminatedText) {
  for (const Text& text :
       {Text(), Text(u"abc"), Text(u"a\0b", 3), Text(u"\u20AC\U0001F600"), Text(500, u'x')})
    for (int width = 0; width < 8; ++width)
      for (const bool left : {false, true})
        for (const int form : {0, 1, 2}) {
          SCOPED_TRACE(testing::Message()
                       << testing::PrintToString(text) << ", width " << width << ", left " << left
                       << ", by SerializeBasicStream() or the first or second <<: " << form);
          const ZRStringMutator string(Make(text));
          const Text shown = text.c_str(), padding(std::max<int>(width - shown.size(), 0), u'*');
          Stream stream;
          Base& base = stream;
          stream << std::setw(width) << (left ? std::left : std::right);
          stream.fill('*');
          Base& result = form == 0   ? SerializeBasicStream(string, stream)
                         : form == 1 ? base << string
                                     : stream << string;
          EXPECT_EQ(&result, &stream);
          EXPECT_TRUE(stream.good());
          EXPECT_EQ(stream.width(), 0);
          EXPECT_EQ(Written(stream), left ? shown + padding : padding + shown);
        }
}

TEST(Output, DecodingAndWideningNeedNoLocale) {
  std::locale::global(std::locale::classic());  // as a host may do at any time
  Stream stream;
  stream << "\x9C\x80" << Make(u"x") << static_cast<const char*>(nullptr) << std::setw(3)
         << Make(u"a") << std::endl;
  EXPECT_TRUE(stream.good());
  EXPECT_EQ(Written(stream), u"\u0153\u20ACx  a\n");
  EXPECT_EQ(stream.widen('\xE9'), 0xE9);
}

TEST(Output, FailuresSetTheStreamState) {
  Stream failed;
  failed.setstate(std::ios::badbit);
  failed << Make(u"abc") << "abc";
  EXPECT_EQ(Written(failed), u"");

  struct Refusing : std::basic_streambuf<unsigned short> {
  } full;
  Base refused(&full);
  refused << Make(u"abc");
  EXPECT_TRUE(refused.bad());
  refused.clear();
  refused.exceptions(std::ios::badbit);
  EXPECT_THROW(refused << Make(u"abc"), std::ios_base::failure);
}
