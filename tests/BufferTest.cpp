// The states in which a string has no text: with a writable buffer open, and after ICU has failed.
#include <ZRString/ZRStringMutator.h>
#include <gtest/gtest.h>

#include "Text.h"

TEST(Buffer, CallsOutOfOrderChangeNothing) {
  ZRStringMutator string(Make(u"abc"));
  string.ReleaseBuffer(1);  // none is open
  EXPECT_EQ(string.GetBuffer(-2), nullptr);
  EXPECT_EQ(TextOf(string), u"abc");

  unsigned short* const units = string.GetBuffer(-1);
  ASSERT_NE(units, nullptr);
  EXPECT_EQ(string.GetBuffer(10), nullptr);
  EXPECT_EQ(string.GetTerminatedBuffer(), nullptr);
  EXPECT_EQ(string.GetLength(), 0);
  string.Append(Make(u"x"), 0, -1);
  string.ReleaseBuffer(-2);
  EXPECT_EQ(string.GetLength(), 0);
  string.ReleaseBuffer(3);
  EXPECT_EQ(TextOf(string), u"abc");
}

TEST(Buffer, ItsCapacityBoundsTheLength) {
  ZRStringMutator string(Make(u"abc"));
  const ZRLong capacity = string.GetCapacity();
  std::fill_n(string.GetBuffer(capacity), capacity, static_cast<unsigned short>('x'));
  string.ReleaseBuffer(-1);
  EXPECT_EQ(TextOf(string), Text(capacity, u'x'));
  string.GetBuffer(-1);
  string.ReleaseBuffer(INT_MAX);
  EXPECT_EQ(string.GetLength(), capacity);
}

TEST(Buffer, ACopyMadeWhileItIsOpenSharesTheBody) {
  ZRStringMutator string(Make(u"abc"));
  unsigned short* const units = string.GetBuffer(-1);
  const ZRString copy(string);
  units[0] = 'Z';
  string.ReleaseBuffer(3);
  EXPECT_EQ(BodyOf(copy), BodyOf(string));
  EXPECT_EQ(TextOf(copy), u"Zbc");
}

TEST(ErrorState, EndsOnlyWithANewText) {
  using M = ZRStringMutator;
  const ZRString other(Make(u"xyz"));
  const struct {
    const char* name;
    void (*edit)(M&, const ZRString&);
    const char16_t* text;  // null: still in the error state
  } rows[] = {
      {"SetTo", [](M& m, const ZRString& s) { m.SetTo(s, 1, 1); }, u"y"},
      {"SetTo too much", [](M& m, const ZRString& s) { m = s, m.SetTo(Raw(u"x"), INT_MAX); },
       nullptr},
      {"assignment", [](M& m, const ZRString& s) { m = s; }, u"xyz"},
      {"Truncate to nothing", [](M& m, const ZRString&) { m.Truncate(0); }, u""},
      {"Remove the greatest length", [](M& m, const ZRString&) { m.Remove(0, INT32_MAX); }, u""},
      {"Remove to the end", [](M& m, const ZRString&) { m.Remove(0, kZRToEnd); }, nullptr},
      {"RemoveBetween", [](M& m, const ZRString&) { m.RemoveBetween(0, INT32_MAX); }, nullptr},
      {"Append", [](M& m, const ZRString& s) { m.Append(s, 0, kZRToEnd); }, nullptr},
      {"Insert", [](M& m, const ZRString& s) { m.Insert(0, s, 0, kZRToEnd); }, nullptr},
      {"Replace", [](M& m, const ZRString& s) { m.Replace(0, 1, s, 0, kZRToEnd); }, nullptr},
      {"PadTrailing", [](M& m, const ZRString&) { m.PadTrailing(5, 'x'); }, nullptr},
      {"Truncate", [](M& m, const ZRString&) { m.Truncate(1); }, nullptr},
      {"GetBuffer", [](M& m, const ZRString&) { EXPECT_EQ(m.GetBuffer(9), nullptr); }, nullptr},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    M string(Make(u"abc"));
    string.PadLeading(INT32_MAX, 'x');  // more than ICU can hold
    ASSERT_EQ(string.GetBuffer(), nullptr);
    row.edit(string, other);
    EXPECT_EQ(string.GetBuffer() != nullptr, row.text != nullptr);
    EXPECT_EQ(TextOf(string), row.text ? row.text : u"");
  }
}
