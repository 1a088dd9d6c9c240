// Whose the strings in an array are, and what an empty array throws.
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

TEST(Array, AnEmptyOneThrowsWhatItsOwnVectorWould) {
  ZRStringPtrArray array;
  EXPECT_EQ(array.Begin(), array.End());
  try {
    array[0];
    FAIL();
  } catch (const std::out_of_range& error) {
    EXPECT_STREQ(error.what(), "invalid vector<T> subscript");
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
