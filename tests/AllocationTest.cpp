// Makes every allocation of every operation fail in turn, and counts allocations.
#include <gtest/gtest.h>

#include <array>
#include <new>

#include "Memory.h"
#include "World.h"

namespace {

class Allocation : public testing::Test {
 protected:
  void SetUp() override {
    TakeIcuMemory();
    World warmed(1);  // ICU and the tests allocate what they keep, such as the collator
    for (int i = 0; i < 20000; ++i)
      warmed.Step();
    Allocations();
  }

  /// The number of allocations since the last call.
  long Allocations() { return heap.allocations - std::exchange(seen_, heap.allocations); }

  long seen_ = 0;
};

}  // namespace

TEST_F(Allocation, FailureChangesNothingOrIsInTheErrorState) {
  for (const Operation& operation : Operations())
    for (unsigned variant = 0; variant < 300 * operation.forms.size(); ++variant) {
      const Form& form = operation.forms[variant % operation.forms.size()];
      const long count = std::array{1, 2, 1000000}[variant / operation.forms.size() % 3];
      bool failed = true;
      for (long point = 0; failed; ++point) {
        const long before = heap.live;
        {
          World world(variant);
          for (int i = 0; i < 6; ++i)
            world.Step();
          ASSERT_FALSE(HasFailure()) << "no allocation has failed yet";
          failed = world.Step(operation, form, point, count);
        }
        EXPECT_TRUE(HasFailure() || heap.live == before) << heap.live - before << " blocks leak";
        ASSERT_FALSE(HasFailure()) << form.text << ", variant " << variant << ": " << count
                                   << " allocations fail after " << point;
      }
    }
}

TEST_F(Allocation, ABodyIsOneAndACopyNone) {
  operator delete(operator new(1, std::nothrow));
  operator delete[](operator new[](1, std::nothrow));
  EXPECT_EQ(Allocations(), 2) << "libraries use these forms";
  const ZRString string(Raw(u"abc")), longer(Raw(u"more units than a body has room for"));
  EXPECT_EQ(Allocations(), 3);
  const ZRString copy(string), whole(string, 0, 3), handled(string.GetZRStringRef());
  ZRStringMutator editable(string);
  editable = copy;
  EXPECT_EQ(Allocations(), 0);
  editable += 'd';
  EXPECT_EQ(Allocations(), 1);
  editable += 'e';
  editable.Find(string, 0, -1, 0, -1);
  editable.ICompare(0, -1, string, 0, -1, 0);
  EXPECT_EQ(Allocations(), 0);
  ZRStringRef__* handle = nullptr;
  ZRStringCreateCopy(string.GetZRStringRef(), &handle);
  EXPECT_EQ(Allocations(), 1);
  ZRStringDestroy(handle);
}
