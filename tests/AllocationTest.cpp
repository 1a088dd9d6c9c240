// Makes every allocation of every operation fail in turn, and counts allocations.
#include <ZRString/ZRStringInterop.h>
#include <ZRString/ZRStringOutput.h>
#include <gtest/gtest.h>

#include <array>
#include <new>

#include "Memory.h"
#include "World.h"

namespace {

class Allocation : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    TakeIcuMemory();
    World warmed(1);  // ICU and the tests allocate what they keep, such as the collator
    for (int i = 0; i < 20000; ++i)
      warmed.Step(Operations()[i % Operations().size()]);
  }

  /// The number of allocations since the last call.
  long Allocations() { return heap.allocations - std::exchange(seen_, heap.allocations); }

  /// Makes a call while allocations fail. @return whether it threw std::bad_alloc
  template <typename Call>
  bool Throws(Call call) {
    bool thrown = false;
    heap.Fail(point_, count_);
    try {
      call();
    } catch (const std::bad_alloc&) {
      thrown = true;
    }
    failed_ = heap.Recover();
    return thrown;
  }

  /// Repeats an attempt, which makes a call by Throws(), until each of the call's allocations has
  /// failed, alone or with the next ones.
  template <typename Attempt>
  void FailInTurn(long count, Attempt attempt) {
    count_ = count;
    failed_ = true;
    for (point_ = 0; failed_; ++point_) {
      const long before = heap.live;
      attempt();
      EXPECT_EQ(heap.live, before) << "a leak";
      ASSERT_FALSE(HasFailure()) << count << " allocations fail from allocation " << point_;
    }
  }

  /// Calls an operation while allocations fail. @return what is wrong
  std::string Wrong(World& world, const Operation& operation, const Form& form) {
    Case c = world.Draw(operation.kind, form.valid);
    long long result = 0;
    const bool thrown = Throws([&] { result = form.call(c); });
    if (thrown || (failed_ && operation.kind == kAttempt && result == 0))
      return world.Difference();
    const bool loses = operation.kind == kEdit || (operation.kind == kSum && !form.valid);
    return world.Settle(operation, c, result, failed_ && loses);
  }

  long seen_ = heap.allocations, point_ = 0, count_ = 0;
  bool failed_ = false;
};

}  // namespace

TEST_F(Allocation, FailureChangesNothingOrIsInTheErrorState) {
  for (const Operation& operation : Operations())
    for (unsigned variant = 0; variant < 300 * operation.forms.size(); ++variant) {
      const std::size_t form = variant % operation.forms.size();
      FailInTurn(std::array{1, 2, 1000000}[variant / operation.forms.size() % 3], [&] {
        World world(variant);
        for (int i = 0; i < 6; ++i)
          world.Step(Operations()[world.Below(Operations().size())]);
        EXPECT_EQ(Wrong(world, operation, operation.forms[form]), "");
      });
      ASSERT_FALSE(HasFailure()) << operation.name << ", form " << form << ", variant " << variant;
    }
}

TEST_F(Allocation, FailureInConversionsOutputAndArrayCreationIsReported) {
  for (const int length : {3, 100, 1000}) {
    const std::u16string units(length, u'\u4E2D');
    const ZRString string = FromUtf16(units);
    const std::string bytes = ToUtf8(units);
    std::basic_ostringstream<unsigned short> stream(std::basic_string<unsigned short>(length, 0));
    const auto isThrown = [&](auto right) {
      FailInTurn(1, [&] { EXPECT_EQ(Throws([&] { EXPECT_TRUE(right()); }), failed_) << length; });
    };
    isThrown([&] { return FromUtf16(units) == string; });
    isThrown([&] { return FromUtf8(bytes) == string; });
    isThrown([&] { return ToUtf8(string) == bytes; });
    isThrown([&] { return stream.seekp(0), (stream << string).tellp() == length; });
    const auto isReported = [&](auto create, auto... source) {
      isThrown([=] {
        ZRStringPtrArrayRef__* array = nullptr;
        ZRLong status = 0;
        EXPECT_NO_THROW(status = create(source..., &array));
        if (status == kZRStatusIndexOutside && !array)
          throw std::bad_alloc();
        return ZRStringPtrArrayDestroy(array) == 0;
      });
    };
    ZRStringPtrArray strings;
    strings.PushBack(nullptr);
    isReported(ZRStringPtrArrayCreate);
    isReported(ZRStrPtrArrCreateFromZRStrPtrArr, strings.GetZRStringPtrArrayRef());
  }
}

TEST_F(Allocation, ABodyIsOneAndACopyNone) {
  operator delete(operator new(1, std::nothrow));
  operator delete[](operator new[](1, std::nothrow));
  EXPECT_EQ(Allocations(), 2) << "std::stable_sort uses these forms";
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
