// Texts at the limit of ICU, in memory that is reserved and hardly touched.
#include <ZRString/ZRStringMutator.h>
#include <gtest/gtest.h>

#include <functional>

#include "Memory.h"
#include "Text.h"

#if defined(__unix__) && UINTPTR_MAX > UINT32_MAX
#include <sys/mman.h>

namespace {

constexpr ZRLong kLength = 0x7FFFFFF0, kLimit = 0x7FFFFFF6;  // ICU leaves room for 6 units more
constexpr std::size_t kHuge = std::size_t{1} << 30;

int asked = 0;  // how often ICU asked for 1 GiB or more while it held such a block
void* reserved = nullptr;
std::size_t reservedSize = 0;

void* Reserve(const void*, std::size_t size) {
  if (size < kHuge)
    return heap.Allocate(size);
  asked += reserved != nullptr;
  if (reserved)
    return nullptr;
  reservedSize = size;
  reserved = mmap(nullptr, size, PROT_READ | PROT_WRITE,
                  MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
  return reserved = reserved == MAP_FAILED ? nullptr : reserved;
}

void Release(const void*, void* memory) {
  if (memory != reserved || !memory)
    return heap.Free(memory);
  munmap(std::exchange(reserved, nullptr), reservedSize);
}

/// A string of kLength zero units.
ZRStringMutator Huge() {
  ZRStringMutator string;
  string.GetBuffer(kLength);
  string.ReleaseBuffer(kLength);
  return string;
}

}  // namespace

TEST(Growth, ATextThatBecomesTooLongIsLostAndNotWrittenPastItsEnd) {
  UErrorCode status = U_ZERO_ERROR;
  u_setMemoryFunctions(
      nullptr, Reserve,
      [](const void*, void* memory, std::size_t size) { return std::realloc(memory, size); },
      Release, &status);
  const ZRString added = Make(Text(40, u'x'));
  const unsigned short* const raw = added.GetBuffer();
  const ZRString zero = Make({0}), twoZeros = Make({0, 0});
  using String = ZRStringMutator;
  const struct {
    const char* name;
    std::function<void(String&, ZRLong)> grow;
  } edits[] = {
      {"+= unit",
       [&](String& s, ZRLong by) {
         while (by-- > 0)
           s += 'x';
       }},
      {"+=", [&](String& s, ZRLong by) { s += ZRString(added, by); }},
      {"Append", [&](String& s, ZRLong by) { s.Append(added, 40 - by, -1); }},
      {"Append, raw", [&](String& s, ZRLong by) { s.Append(raw, 1, by); }},
      {"Append, terminated",
       [&](String& s, ZRLong by) { s.Append(String(added, 0, by).GetTerminatedBuffer(), 0, -1); }},
      {"Insert", [&](String& s, ZRLong by) { s.Insert(kLength - 2, added, 0, by); }},
      {"Insert, raw", [&](String& s, ZRLong by) { s.Insert(kLength - 2, raw, 0, by); }},
      {"Replace", [&](String& s, ZRLong by) { s.Replace(kLength - 2, 1, added, 0, by + 1); }},
      {"Replace, raw", [&](String& s, ZRLong by) { s.Replace(kLength - 2, -1, raw, 0, by + 2); }},
      {"ReplaceBetween",
       [&](String& s, ZRLong by) { s.ReplaceBetween(kLength - 2, kLength - 2, added, 0, by); }},
      {"FindAndReplace, one match",
       [&](String& s, ZRLong by) {
         s.FindAndReplace(kLength - 1, -1, zero, 0, -1, added, 0, by + 1);
       }},
      {"FindAndReplace, matches",
       [&](String& s, ZRLong by) {
         s.FindAndReplace(kLength - by, by, zero, 0, -1, twoZeros, 0, -1);
       }},
      {"PadTrailing", [&](String& s, ZRLong by) { s.PadTrailing(kLength + by, 'x'); }},
  };
  for (const auto& edit : edits)
    for (const ZRLong by : {6, 7, 15}) {
      SCOPED_TRACE(testing::Message() << edit.name << " by " << by);
      ZRStringMutator string = Huge();
      ASSERT_EQ(string.GetLength(), kLength) << "no memory could be reserved";
      asked = 0;
      edit.grow(string, by);
      EXPECT_EQ(asked, 0);
      EXPECT_EQ(string.GetLength(), kLength + by > kLimit ? 0 : kLength + by);
      EXPECT_EQ(string.GetBuffer() == nullptr, kLength + by > kLimit);
    }
  ZRStringMutator string(added, 0, 7);
  string.Append(Huge(), 0, -1);
  EXPECT_EQ(asked, 0);
  EXPECT_EQ(string.GetBuffer(), nullptr);
  TakeIcuMemory();
}
#endif
