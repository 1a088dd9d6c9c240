// What compiled programs rely on: sizes, slots of virtual members, handles as addresses.
#include <Velmar/IStream.h>
#include <ZRString/ZRStringInterfaces.h>
#include <ZRString/ZRStringMutator.h>
#include <ZRString/ZRStringPtrArray.h>
#include <gtest/gtest.h>

#include <cstddef>

#include "Recorder.h"
#include "Text.h"

static_assert(sizeof(ZRString) == 2 * sizeof(void*));
static_assert(sizeof(ZRStringMutator) == sizeof(ZRString));
static_assert(sizeof(ZRLong) == 4 && sizeof(ZRULong) == 4);
static_assert(sizeof(ZRStringPtrArray) == sizeof(std::vector<ZRString*>));
static_assert(offsetof(UniStr255, units) == 8);
static_assert(kZRNormalizationNFC == 2 && kZRNormalizationNFKC == 3 && kZRNormalizationNFD == 4);
static_assert(kZRNormalizationNFKD == 5 && kZRNormalizationFCD == 6);

/// The slot of a virtual member function. In the C++ ABI of GCC and Clang, a pointer to such a
/// member holds the offset in the table, plus 1 except on ARM.
template <typename Pointer>
static std::ptrdiff_t Slot(Pointer member) {
  std::ptrdiff_t value;
  std::memcpy(&value, &member, sizeof value);
  return value / static_cast<std::ptrdiff_t>(sizeof(void*));
}

/// A program's class, whose virtual members follow those of the base.
template <typename Base>
struct Next : Base {
  virtual void Last() {}
};

TEST(Layout, VirtualOperationsKeepTheirSlots) {
  // The destructor has the first two slots.
  EXPECT_EQ(Slot(&ZRString::GetBuffer), 2);
  EXPECT_EQ(Slot(&ZRString::Extract), 3);
  EXPECT_EQ(Slot(&ZRString::ExtractBetween), 4);
  EXPECT_EQ(Slot<unsigned short* (ZRStringMutator::*)(ZRLong)>(&ZRStringMutator::GetBuffer), 5);
  EXPECT_EQ(Slot(&Velmar::ITransfer<unsigned short>::Write), 2);
  EXPECT_EQ(Slot(&Velmar::ITransfer<unsigned short>::Read), 3);
  EXPECT_EQ(Slot(&Next<ZRStringMutator>::Last), 6);
  EXPECT_EQ(Slot(&Next<Velmar::ITransfer<unsigned short>>::Last), 4);
}

TEST(Layout, AHostsStreamKeepsItsParts) {
  Recorder recorder;
  Velmar::IStream* const stream = &recorder;
  void** const parts = reinterpret_cast<void**>(stream);
  EXPECT_EQ(static_cast<Velmar::ITransfer<ZRLong>*>(stream), static_cast<void*>(parts));
  EXPECT_EQ(static_cast<Velmar::ITransfer<ZRULong>*>(stream), static_cast<void*>(parts + 1));
  EXPECT_EQ(static_cast<Velmar::ITransfer<unsigned short>*>(stream), static_cast<void*>(parts + 2));
}

TEST(Layout, HandlesAreAddresses) {
  ZRStringMutator string;
  EXPECT_EQ(ZRMutableStringDKInterfaceImpl::ZRStringRefConst(string.GetZRMutableStringRef()),
            string.GetZRStringRef());
  EXPECT_EQ(GetZRStringPtrArrayFromRef(nullptr), nullptr);
  EXPECT_EQ(TextOf(ZRStringMutator(static_cast<ZRMutableStringRef__*>(nullptr))), u"");

  ZRString* result = nullptr;
  EXPECT_EQ(ZRStringRefToZRString(nullptr, nullptr), 5);
  EXPECT_EQ(ZRStringRefToZRString(string.GetZRStringRef(), nullptr), 5);
  EXPECT_EQ(ZRStringRefToZRString(string.GetZRStringRef(), &result), 0);
  EXPECT_EQ(ZRStringRefToZRString(nullptr, &result), 4);
  EXPECT_EQ(result, &string);
}
