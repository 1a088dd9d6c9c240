// Makes every allocation of every operation fail in turn, and counts allocations.
#include <ZRString/ZRStringInterfaces.h>
#include <ZRString/ZRStringInterop.h>
#include <ZRString/ZRStringOutput.h>
#include <ZRString/ZRStringStream.h>
#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <new>

#include "Memory.h"
#include "World.h"

#ifdef _WIN32
#include "windows/ImportedOperators.h"  // a DLL does not use the program's operators
#endif

namespace {

/// The number of allocations that a call makes.
template <typename Call>
long Allocations(Call call) {
  const long before = ownMemory.allocations;
  call();
  return ownMemory.allocations - before;
}

class Allocation : public testing::Test {
 protected:
  static void SetUpTestSuite() {
#ifdef _WIN32
    ReplaceOperators("ZRString.dll");
#endif
    TakeIcuMemory();
    World warmed(1);  // ICU and the tests allocate what they keep, such as the collator
    for (int i = 0; i < 20000; ++i)
      warmed.Step(Operations()[i % Operations().size()]);
  }

  void SetUp() override {
    if (Allocations([] { ZRString string("a", 0, 1); }) == 0)
      GTEST_SKIP() << "the library does not use this program's operator new here";
  }
};

/// Makes one call in which an allocation fails. @return what is wrong
std::string Wrong(World& world, const Operation& operation, Form form, bool valid, Memory& memory,
                  int point, bool once, bool& failed) {
  Case c = world.Draw(operation.kind, valid);
  Text result;
  bool thrown = false;
  memory.Fail(point, once);
  try {
    result = form(c);
  } catch (const std::bad_alloc&) {
    thrown = true;
  }
  failed = memory.Recover();
  if (thrown && operation.kind != kQuery && (c.newString || c.newMutable))
    return "a handle was written";
  if (thrown)
    return world.Unchanged(operation, c);
  if (failed && operation.kind == kEdit && !c.t->GetBuffer())
    return world.Lost(c);
  const bool lostSum = operation.kind == kSum && !valid && c.made && !c.made->GetBuffer();
  if (failed && (lostSum || (operation.kind == kAttempt && result == u"0")))
    return world.Unchanged(operation, c);
  return world.Settle(operation, c, result);
}

}  // namespace

// std::stable_sort allocates by the nothrow form and frees by the plain one, which only the address
// sanitizer notices.
TEST_F(Allocation, EveryFormOfOperatorNewIsReplaced) {
  EXPECT_EQ(Allocations([] {
              operator delete(operator new(1));
              operator delete[](operator new[](1));
              operator delete(operator new(1, std::nothrow));
              operator delete[](operator new[](1, std::nothrow));
            }),
            4);
}

TEST_F(Allocation, FailureChangesNothingOrIsInTheErrorState) {
  int failures = 0;
  for (const Operation& operation : Operations()) {
    std::vector<Form> forms = operation.members;
    forms.insert(forms.end(), operation.functions.begin(), operation.functions.end());
    for (unsigned variant = 0; variant < 300 * forms.size(); ++variant) {
      const std::size_t form = variant % forms.size();
      Memory& memory = variant / forms.size() % 2 ? ownMemory : icuMemory;
      const bool once = variant / forms.size() / 2 % 2;
      bool failed = true;
      for (int point = 0; failed; ++point) {
        const long before = ownMemory.live + icuMemory.live;
        {
          World world(variant);
          for (int i = 0; i < 6; ++i)
            world.Step(Operations()[world.Below(Operations().size())]);
          ASSERT_EQ(Wrong(world, operation, forms[form], form >= operation.members.size(), memory,
                          point, once, failed),
                    "")
              << operation.name << ", form " << form << ", variant " << variant << ", allocation "
              << point << (&memory == &icuMemory ? " of ICU's" : "") << (once ? "" : " and later");
        }
        ASSERT_EQ(ownMemory.live + icuMemory.live, before) << operation.name << " leaks";
        failures += failed;
      }
    }
  }
  EXPECT_GT(failures, 1000);
}

TEST_F(Allocation, FailureInOutputAndInCreatingAnArray) {
  std::basic_ostringstream<unsigned short> stream;
  ZRStringPtrArrayRef__* array = nullptr;
  ownMemory.Fail(0, true);
  EXPECT_THROW(stream << Make(u"abc"), std::bad_alloc);
  const ZRString string = Make(u"abc");
  ownMemory.Fail(0, true);
  EXPECT_THROW(stream << string, std::bad_alloc);
  EXPECT_TRUE(stream.str().empty() && stream.good());
  EXPECT_THROW(ZRString(Raw(u"abc"), 0, INT_MAX), std::bad_alloc);  // more than ICU can hold
  ownMemory.Fail(0, true);
  EXPECT_EQ(ZRStringPtrArrayCreate(&array), 12);
  EXPECT_EQ(array, nullptr);
}

TEST_F(Allocation, FailureInAConversionIsThrown) {
  for (const int length : {3, 100, 1000}) {
    const std::u16string units(length, u'\u4E2D');
    const ZRString string = FromUtf16(units);
    const std::string bytes = ToUtf8(units);
    const std::function<bool()> conversions[] = {
        [&] { return FromUtf16(units) == string; },
        [&] { return FromUtf8(bytes) == string; },
        [&] { return ToUtf8(string) == bytes; },
    };
    for (const auto& right : conversions)
      for (Memory* memory : {&ownMemory, &icuMemory})
        for (int point = 0, failed = true; failed; ++point) {
          const long before = ownMemory.live + icuMemory.live;
          memory->Fail(point, true);
          bool thrown = false;
          try {
            EXPECT_TRUE(right()) << length;
          } catch (const std::bad_alloc&) {
            thrown = true;
          }
          failed = memory->Recover();
          EXPECT_EQ(thrown, failed) << length;
#ifdef _WIN32  // std::string's memory is allocated, unseen, by the C++ library's DLL, and freed
               // here
          EXPECT_LE(ownMemory.live + icuMemory.live, before) << length;
#else
          EXPECT_EQ(ownMemory.live + icuMemory.live, before) << length;
#endif
        }
  }
}

TEST_F(Allocation, ABodyIsOneAndACopyNone) {
  const unsigned short* const text = Raw(u"abc");
  EXPECT_EQ(Allocations([&] { ZRString string(text); }), 1);
  const ZRString source(text);
  ZRStringMutator mutator(source);
  EXPECT_EQ(Allocations([&] {
              ZRString copy(source);
              ZRString whole(source, 0, 3);
              ZRString handled(source.GetZRStringRef());
              ZRStringMutator editable(source);
              editable = copy;
            }),
            0);
  EXPECT_EQ(Allocations([&] { mutator += 'd'; }), 1);
  EXPECT_EQ(Allocations([&] {
              mutator += 'e';
              mutator.Find(source, 0, -1, 0, -1);
              mutator.ICompare(0, -1, source, 0, -1, 0);
            }),
            0);
  EXPECT_EQ(Allocations([&] {
              ZRStringRef__* handle;
              ZRStringCreateCopy(source.GetZRStringRef(), &handle);
              ZRStringDestroy(handle);
            }),
            1);
}

// A damaged length must not make the reader touch memory for units that never arrive.
TEST_F(Allocation, ARecordsBufferIsNotTouchedAheadOfItsUnits) {
  struct Watching : Velmar::IStream {
    void Write(const ZRLong*) override {}
    void Write(const ZRULong*) override {}
    void Write(const unsigned short*) override {}
    void Read(ZRLong* value) override { *value = 1000; }
    void Read(ZRULong* value) override { *value = 1; }
    void Read(unsigned short* value) override {
      EXPECT_EQ(value[0], 0);
      if (++read < 1000) {
        EXPECT_EQ(value[1], kFresh << 8 | kFresh);
      }
    }
    int read = 0;
  } stream;
  ZRStringMutator target;
  stream >> target;
  EXPECT_EQ(TextOf(target), Text(1000, u'\0'));
  ZRStringPtrArray strings;
  stream.read = 0;
  stream >> strings;
  EXPECT_EQ(stream.read, 1000);
  strings.DeleteAll();
}
