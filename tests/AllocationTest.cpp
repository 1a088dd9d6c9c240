#include <ZRString/ZRStringInterfaces.h>
#include <ZRString/ZRStringMutator.h>
#include <ZRString/ZRStringOutput.h>
#include <ZRString/ZRStringPtrArray.h>
#include <ZRString/ZRStringStream.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <functional>
#include <new>

#include "Text.h"

#ifdef _WIN32
#include "windows/ImportedOperators.h"  // a DLL does not see the program's operators
#endif

namespace {

constexpr int kFresh = 0xA5;  // what memory holds before it is written

int allocations = 0;
int live = 0;
int allocationsLeft = -1;  // below 0: without end

/// What every operator new below takes its memory from; null if it is to fail.
void* Allocate(std::size_t size) noexcept {
  ++allocations;
  if (allocationsLeft == 0)
    return nullptr;
  if (allocationsLeft > 0)
    --allocationsLeft;
  void* const memory = std::malloc(size ? size : 1);
  live += memory != nullptr;
  return memory ? std::memset(memory, kFresh, size) : nullptr;
}

// Inlined, GCC 14 would see free() called for what operator new returned, and warn.
[[gnu::noinline]] void Free(void* memory) noexcept {
  live -= memory != nullptr;
  std::free(memory);
}

/// The number of allocations that a call makes.
template <typename Call>
int Allocations(Call call) {
  const int before = allocations;
  call();
  return allocations - before;
}

}  // namespace

// The library's allocations reach these as the process's one operator new; a DLL's, where it
// imports one.
void* operator new(std::size_t size) {
  if (void* const memory = Allocate(size))
    return memory;
  throw std::bad_alloc();
}

// Every form but the aligned ones: a form left out would allocate by the run-time library's.
void* operator new[](std::size_t size) { return operator new(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return Allocate(size); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return Allocate(size); }
void operator delete(void* memory) noexcept { Free(memory); }
void operator delete(void* memory, std::size_t) noexcept { Free(memory); }
void operator delete(void* memory, const std::nothrow_t&) noexcept { Free(memory); }
void operator delete[](void* memory) noexcept { Free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { Free(memory); }
void operator delete[](void* memory, const std::nothrow_t&) noexcept { Free(memory); }

namespace {

class Allocation : public testing::Test {
 protected:
#ifdef _WIN32
  static void SetUpTestSuite() { ReplaceOperators("ZRString.dll"); }
#endif

  void SetUp() override {
    if (Allocations([] { ZRString string("a", 0, 1); }) == 0)
      GTEST_SKIP() << "the library has an operator new of its own here";
  }
};

}  // namespace

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

// So a damaged length commits no memory before units arrive for it.
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
  };
  ZRStringMutator target;
  Watching string;
  string >> target;
  EXPECT_EQ(TextOf(target), std::u16string(1000, u'\0'));
  ZRStringPtrArray strings;
  Watching array;
  array >> strings;
  EXPECT_EQ(array.read, 1000);
  strings.DeleteAll();
}

TEST_F(Allocation, FailureInTheArrayReaderLeaksNothing) {
  struct OneUnitStrings : Velmar::IStream {
    void Write(const ZRLong*) override {}
    void Write(const ZRULong*) override {}
    void Write(const unsigned short*) override {}
    void Read(ZRLong* value) override { *value = 1; }
    void Read(ZRULong* value) override { *value = 2; }
    void Read(unsigned short* value) override { *value = 'x'; }
  } stream;
  bool thrown = true;
  int point = 0;
  for (; thrown; ++point) {
    const int before = live;
    {
      ZRStringPtrArray array;
      allocationsLeft = point;
      try {
        stream >> array;
        thrown = false;
      } catch (const std::bad_alloc&) {
      }
      allocationsLeft = -1;
      EXPECT_EQ(array.Size(), thrown ? static_cast<ZRULong>(point / 4) : 2u);
      array.DeleteAll();
    }
    EXPECT_EQ(live, before) << "allocation " << point;
  }
  EXPECT_GT(point, 8);  // of each string: buffer, object, body, and the array's growth
}

TEST_F(Allocation, FailureLeavesEverythingAsItWas) {
  const ZRString source = Make(u"abc");
  ZRStringRef__* const s = source.GetZRStringRef();
  ZRStringMutator shared(source);
  ZRStringRef__* const untouched = reinterpret_cast<ZRStringRef__*>(8);
  ZRStringRef__* out = untouched;
  ZRMutableStringRef__* mutableOut = reinterpret_cast<ZRMutableStringRef__*>(untouched);
  ZRStringPtrArrayRef__* arrayOut = reinterpret_cast<ZRStringPtrArrayRef__*>(untouched);
  ZRStringPtrArray array;
  array.PushBack(&shared);
  std::basic_ostringstream<unsigned short> stream;
  const unsigned short* const raw = Raw(u"bc");
  const struct {
    const char* name;
    std::function<void()> call;
    int points;  // allocations of the library that may fail
  } rows[] = {
      {"construction", [&] { ZRString string(raw); }, 1},
      {"construction from bytes", [&] { ZRString string("abc", 0, -1); }, 1},
      {"construction of a range", [&] { ZRString string(source, 1, -1); }, 1},
      {"append", [&] { shared.Append(source, 0, -1); }, 1},
      {"append itself", [&] { shared += shared; }, 1},
      {"find and replace", [&] { shared.FindAndReplace(0, -1, raw, 0, -1, raw, 1, -1); }, 1},
      {"find and replace by itself",
       [&] { shared.FindAndReplace(0, -1, shared, 0, 1, shared, 0, -1); }, 1},
      {"normalize", [&] { ZRStringMutator(Make(u"e\u0301")).Normalize(kZRNormalizationNFC); }, 1},
      {"truncate", [&] { shared.Truncate(9); }, 1},
      {"buffer", [&] { shared.GetBuffer(-1); }, 1},
      {"extract", [&] { source.GetLength(), ZRStringMutator(source).Extract(0, -1, shared); }, 1},
      {"sum", [&] { shared + source; }, 1},
      {"array growth", [&] { array.PushBack(&shared); }, 1},
      {"array insertion", [&] { array.Insert(0, &shared); }, 1},
      {"output", [&] { stream << source; }, 1},
      {"string handle", [&] { ZRStringCreateFromUniChars(raw, 0, -1, &out); }, 2},
      {"copy handle", [&] { ZRStringCreateCopy(s, &out); }, 1},
      {"mutable handle", [&] { ZRMutableStringCreateEmpty(&mutableOut); }, 2},
      {"sum handle", [&] { ZRMutableStringAddStrings(s, s, &mutableOut); }, 2},
  };
  for (const auto& row : rows) {
    for (int point = 0; point < row.points; ++point) {
      SCOPED_TRACE(testing::Message() << row.name << ", allocation " << point);
      bool thrown = false;
      allocationsLeft = point;
      try {
        row.call();
      } catch (const std::bad_alloc&) {
        thrown = true;
      }
      allocationsLeft = -1;
      EXPECT_TRUE(thrown);
      EXPECT_EQ(BodyOf(shared), BodyOf(source));
      EXPECT_EQ(Holders(source), 2);
      EXPECT_EQ(TextOf(source), u"abc");
      EXPECT_EQ(array.Size(), 1u);
      EXPECT_EQ(out, untouched);
      EXPECT_EQ(static_cast<void*>(mutableOut), untouched);
    }
  }
  EXPECT_TRUE(stream.str().empty());

  for (const int point : {0, 1}) {
    allocationsLeft = point;
    const ZRLong copied =
        ZRStrPtrArrCreateFromZRStrPtrArr(array.GetZRStringPtrArrayRef(), &arrayOut);
    allocationsLeft = 0;
    const ZRLong created = ZRStringPtrArrayCreate(&arrayOut);
    allocationsLeft = -1;
    EXPECT_EQ(copied, 12);
    EXPECT_EQ(created, 12);
    EXPECT_EQ(static_cast<void*>(arrayOut), untouched);
  }
}
