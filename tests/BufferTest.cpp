// The protocol of the writable buffer: what each call does in each state.
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
