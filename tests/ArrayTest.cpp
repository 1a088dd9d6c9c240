// Who owns the strings in an array, and what an empty array throws.
#include <ZRString/ZRStringHandles.h>
#include <ZRString/ZRStringMutator.h>
#include <ZRString/ZRStringPtrArray.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "Text.h"

TEST(Array, AnEmptyOneThrowsWhatItsOwnVectorWould) {
  ZRStringPtrArray array;
  try {
    array[0];
    FAIL();
  } catch (const std::out_of_range& error) {
    EXPECT_STREQ(error.what(), "invalid vector<T> subscript");
  }
}

TEST(Array, OnlyDeleteAllDestroysStrings) {
  static int destroyed = 0;
  struct RecordedMutator : ZRStringMutator {
    ~RecordedMutator() override { ++destroyed; }
  };
  ZRString* const string = new RecordedMutator;
  ZRStringPtrArray array;
  for (ZRString* const entry : {string, static_cast<ZRString*>(nullptr)})
    array.PushBack(entry);
  {
    ZRStringPtrArray copy(array);
    EXPECT_EQ(copy[1], nullptr);
    const ZRStringPtrArray& itself = copy;
    copy = itself;
    EXPECT_TRUE(copy.SetString(1, string));
    EXPECT_EQ(copy.Erase(copy.Begin()), copy.Begin());
    copy.Erase(0);
    EXPECT_TRUE(copy.Empty());
    copy = array;
    copy = ZRStringPtrArray();
    copy = array;
    copy.EraseAll();
    EXPECT_TRUE(copy.Empty());
    copy = array;
    EXPECT_EQ(ZRStringPtrArrayEraseAll(copy.GetZRStringPtrArrayRef()), 0);
    EXPECT_TRUE(copy.Empty());
    copy = array;
  }
  EXPECT_EQ(destroyed, 0);
  array.DeleteAll();
  EXPECT_EQ(destroyed, 1);
  EXPECT_TRUE(array.Empty());
}
