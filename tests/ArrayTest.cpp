#include <ZRString/ZRStringMutator.h>
#include <ZRString/ZRStringPtrArray.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

#include "Text.h"

namespace {

using Entries = std::vector<ZRString*>;

int destroyed = 0;

struct Recorded : ZRString {
  Recorded() : ZRString(Make(u"a")) {}
  ~Recorded() override { ++destroyed; }
};

struct RecordedMutator : ZRStringMutator {
  ~RecordedMutator() override { destroyed += 100; }
};

Entries EntriesOf(const ZRStringPtrArray& array) { return Entries(array.Begin(), array.End()); }

ZRStringPtrArray ArrayOf(const Entries& entries) {
  ZRStringPtrArray array;
  for (ZRString* const entry : entries)
    array.PushBack(entry);
  return array;
}

}  // namespace

TEST(Array, IndicesOutsideReadTheLastEntryAndWriteNothing) {
  ZRString a = Make(u"a"), b = Make(u"b"), c = Make(u"c"), n = Make(u"n");
  const Entries before = {&a, &b, &c};
  for (const ZRLong index : {INT_MIN, -1, 0, 1, 2, 3, 100, INT_MAX}) {
    SCOPED_TRACE(index);
    const bool inside = index >= 0 && index < 3;
    ZRStringPtrArray array = ArrayOf(before);
    const ZRStringPtrArray& constant = array;
    ZRString* const expected = inside ? before[index] : &c;
    EXPECT_EQ(array[index], expected);
    EXPECT_EQ(constant[index], expected);
    EXPECT_EQ(array.GetString(index), expected);

    Entries after = before;
    if (inside)
      after[index] = &n;
    EXPECT_EQ(array.SetString(index, &n), inside);
    EXPECT_EQ(EntriesOf(array), after);

    array = ArrayOf(before);
    after = before;
    if (inside)
      after.insert(after.begin() + index, &n);
    EXPECT_EQ(array.Insert(index, &n), inside);
    EXPECT_EQ(EntriesOf(array), after);

    array = ArrayOf(before);
    after = before;
    if (inside)
      after.erase(after.begin() + index);
    array.Erase(index);
    EXPECT_EQ(EntriesOf(array), after);
  }
}

TEST(Array, AnEmptyOneHasNothingToRead) {
  ZRStringPtrArray array;
  EXPECT_EQ(array.Size(), 0u);
  EXPECT_TRUE(array.Empty());
  EXPECT_EQ(array.Begin(), array.End());
  EXPECT_FALSE(array.Insert(0, nullptr));
  for (const ZRLong index : {-1, 0, 1}) {
    try {
      array[index];
      FAIL();
    } catch (const std::out_of_range& error) {
      EXPECT_STREQ(error.what(), "invalid vector<T> subscript");
    }
    EXPECT_THROW(array.GetString(index), std::out_of_range);
    EXPECT_THROW(static_cast<const ZRStringPtrArray&>(array)[index], std::out_of_range);
  }
}

TEST(Array, OnlyDeleteAllEndsStrings) {
  destroyed = 0;
  auto* const first = new Recorded;
  auto* const second = new RecordedMutator;
  {
    ZRStringPtrArray array = ArrayOf({first, nullptr, second});
    EXPECT_EQ(array.Size(), 3u);
    EXPECT_EQ(array[1], nullptr);
    ZRStringPtrArray copy(array);
    EXPECT_EQ(EntriesOf(copy), EntriesOf(array));
    copy.EraseAll();
    EXPECT_TRUE(copy.Empty());
    copy = array;
    const ZRStringPtrArray& itself = copy;
    copy = itself;
    EXPECT_EQ(EntriesOf(copy), EntriesOf(array));
    copy.SetString(0, nullptr);
    EXPECT_EQ(copy.Erase(copy.Begin()), copy.Begin());
    copy.Erase(1);
    EXPECT_EQ(EntriesOf(copy), Entries{nullptr});
    copy = ZRStringPtrArray();
  }
  EXPECT_EQ(destroyed, 0);
  ZRStringPtrArray array = ArrayOf({first, nullptr, second});
  array.DeleteAll();
  EXPECT_EQ(destroyed, 101);
  EXPECT_TRUE(array.Empty());
}

TEST(Array, HandlesAreAddresses) {
  ZRStringPtrArray array;
  EXPECT_EQ(GetZRStringPtrArrayFromRef(array.GetZRStringPtrArrayRef()), &array);
  EXPECT_EQ(GetZRStringPtrArrayFromRef(nullptr), nullptr);
}
