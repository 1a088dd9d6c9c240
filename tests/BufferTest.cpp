// The states in which a string has no text: with a writable buffer open, and after ICU has failed.
#include <ZRString/ZRStringMutator.h>
#include <gtest/gtest.h>

#include <new>

#include "Text.h"

/// Calls that change nothing if there is no text.
static void ExpectNoText(ZRStringMutator& string) {
  const ZRString other = Make(u"xyz");
  EXPECT_FALSE(string.Append(other, 0, kZRToEnd).GetBuffer());
  EXPECT_FALSE(string.Insert(0, other, 0, kZRToEnd).GetBuffer());
  EXPECT_FALSE(string.Insert(0, Raw(u"x"), 0, 1).GetBuffer());
  EXPECT_FALSE(string.Replace(0, 1, other, 0, kZRToEnd).GetBuffer());
  EXPECT_FALSE(string.FindAndReplace(0, -1, string, 0, -1, other, 0, -1).GetBuffer());
  EXPECT_FALSE(string.RemoveBetween(0, INT32_MAX).GetBuffer());
  EXPECT_FALSE(string.Remove(0, kZRToEnd).GetBuffer());
  EXPECT_FALSE((string.SetCharAt(0, 'x').Trim() += 'x').GetBuffer());
  EXPECT_FALSE((string.PadLeading(5, 'x'), string.GetBuffer()));
  EXPECT_FALSE((string.PadTrailing(5, 'x'), string.GetBuffer()));
  EXPECT_FALSE((string.Truncate(1), string.GetBuffer()));
  EXPECT_FALSE(string.SetTo(Raw(u"x"), INT_MAX).GetBuffer());
  EXPECT_FALSE((string.ReleaseBuffer(-2), string.GetBuffer()));
  EXPECT_EQ(string.GetBuffer(9), nullptr);
  EXPECT_EQ(string.GetTerminatedBuffer(), nullptr);
  EXPECT_EQ(string.GetLength(), 0);
  EXPECT_EQ(string.IsEmpty(), 1);
}

TEST(Buffer, CallsOutOfOrderChangeNothingAndTheCapacityBoundsTheLength) {
  for (const ZRLong released : {-1, INT_MAX}) {
    ZRStringMutator string(Make(u"abc"));
    string.ReleaseBuffer(1);  // none is open
    EXPECT_EQ(string.GetBuffer(-2), nullptr);
    EXPECT_EQ(TextOf(string), u"abc");
    unsigned short* const units = string.GetBuffer(released < 0 ? -1 : 100);
    ExpectNoText(string);
    EXPECT_EQ(Text(units, units + 3), u"abc") << "an edit with an open buffer, such as SetTo()";
    const ZRString copy(string);
    const ZRLong capacity = string.GetCapacity();
    std::fill_n(units, capacity, static_cast<unsigned short>('x'));
    string.ReleaseBuffer(released);
    EXPECT_EQ(TextOf(string), Text(capacity, u'x')) << "ReleaseBuffer";
    EXPECT_EQ(BodyOf(string), BodyOf(copy)) << "ReleaseBuffer";
  }
}

TEST(ErrorState, EndsOnlyWithANewText) {
  ZRStringMutator string;
  const auto lost = [&]() -> ZRStringMutator& {
    string.PadLeading(INT32_MAX, 'x');  // more than ICU can hold
    string.ReleaseBuffer(-1);           // none is open
    const ZRString sharer(string);      // so the first edit detaches
    return ExpectNoText(string), string;
  };
  EXPECT_FALSE(lost() == Make(u""));
  const ZRString abc = Make(u"abc");
  const auto* const raw = Raw(u"abc");
  for (const int order : std::initializer_list<int>{
           string.Compare(0, -1, abc, 0, -1), string.Compare(0, -1, raw, 0, -1),
           string.CompareBetween(0, 2, abc, 0, 2), -abc.Compare(0, -1, string, 0, -1),
           string.CompareCodePointOrder(0, -1, abc, 0, -1),
           string.CompareCodePointOrder(0, -1, raw, 0, -1),
           string.CompareCodePointOrderBetween(0, 2, abc, 0, 2),
           -abc.CompareCodePointOrder(0, -1, string, 0, -1), string.ICompare(0, -1, abc, 0, -1, 0),
           string.ICompare(0, -1, raw, 0, -1, 0), string.ICompareBetween(0, 2, abc, 0, 2, 0),
           -abc.ICompare(0, -1, string, 0, -1, 0)})
    EXPECT_EQ(order, -1);
  ZRStringMutator other(Make(u"abc"));
  EXPECT_EQ(TextOf(other.FindAndReplace(0, -1, Make(u"b"), 0, -1, string, 0, -1)), u"abc");
  EXPECT_EQ(TextOf(lost().SetTo(Make(u"xyz"), 1, 1)), u"y");
  EXPECT_EQ(TextOf(lost() = Make(u"xyz")), u"xyz");
  EXPECT_TRUE((lost().Truncate(0), string.GetBuffer()));
  EXPECT_TRUE(lost().Remove(0, INT32_MAX).GetBuffer());
  ExpectNoText(string.SetTo(Raw(u"x"), INT_MAX));
  EXPECT_THROW(ZRString(Raw(u"x"), 0, INT_MAX), std::bad_alloc);
}
