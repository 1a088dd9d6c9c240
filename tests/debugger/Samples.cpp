#include <ZRString/ZRStringHandles.h>
#include <ZRString/ZRStringMutator.h>
#include <ZRString/ZRStringPtrArray.h>

#include <climits>
#include <cstdint>

// A program for debuggers, with one string in each state that they must show. The test breaks at
// Stop() and prints the locals of its caller. What it expects is the comment `//=` of each. There,
// "ab"*3 is a text repeated, $name the display of another local, ADDRESS any address, and ENTRY
// something before which one may stand.

static void Stop([[maybe_unused]] const ZRString& reference) {}

static ZRString Digits(ZRLong length, ZRLong times) {
  ZRStringMutator result;
  for (ZRLong i = 0; i < times; ++i)
    result += ZRString("0123456789", 0, length);
  return result;
}

int main() {
  const ZRString escaped("\xE9\\\"\t\r\n\1", 0, -1);  //= "é\\\"\t\r\n\u0001" (length 7, holders 1)
  const ZRString longestInline = Digits(9, 3);        //= "012345678"*3 (length 27, holders 1)
  const ZRString heapText = Digits(10, 3);            //= "0123456789"*3 (length 30, holders 1)
  // Its length does not fit into the flags.
  const ZRString longText = Digits(10, 120);  //= "0123456789"*120 (length 1200, holders 1)
  const ZRStringMutator emptyText;            //= "" (length 0, holders 1)

  const ZRString shared("shared", 0, -1);  //= "shared" (length 6, holders 3)
  const ZRString secondHolder(shared);     //= $shared
  ZRStringMutator thirdHolder(shared);     //= $shared

  ZRStringMutator openText("open", 0, -1);  //= <buffer open> (holders 1)
  openText.GetBuffer(40);
  ZRStringMutator brokenText("lost", 0, -1);  //= <error state> (holders 1)
  brokenText.GetBuffer(INT_MAX);              // more than ICU can hold

  const unsigned short surrogates[] = {0xD83D, 0xDE00, 'a', 0xDE00, 'b', 0xD83D};
  const ZRString surrogateText(surrogates, 6);  //= "😀a\ude00b\ud83d" (length 6, holders 1)

  ZRString first("first", 0, -1);           //= "first" (length 5, holders 1)
  ZRStringMutator second("second", 0, -1);  //= "second" (length 6, holders 1)
  const ZRStringPtrArray emptyArray;        //= ZRStringPtrArray of 0
  ZRStringPtrArray array;  //= ZRStringPtrArray of 3 = {ENTRY$first, 0x0, ENTRY$second}
  array.PushBack(&first);
  array.PushBack(nullptr);
  array.PushBack(&second);

  ZRStringRef__* const handle = shared.GetZRStringRef();            //= ADDRESS $shared
  auto* const mutableHandle = thirdHolder.GetZRMutableStringRef();  //= ADDRESS $shared
  ZRStringRef__* const nullHandle = nullptr;                        //= 0x0
  ZRStringPtrArrayRef__* const nullArrayHandle = nullptr;  //= (ZRStringPtrArrayRef__ * const) 0x0
  auto* const arrayHandle = array.GetZRStringPtrArrayRef();

  // Memory that holds no string: before a constructor has run, after a destructor has, and garbage.
  static const void* const nothing[4] = {};
  static const void* const objects[2][2] = {{nullptr, nullptr}, {nullptr, nothing}};
  const auto* const unborn = reinterpret_cast<const ZRString*>(objects[0]);
  const auto* const dead = reinterpret_cast<const ZRString*>(objects[1]);
  static const std::intptr_t garbage[] = {0, -1};
  const auto* const damaged = reinterpret_cast<const ZRString*>(garbage);

  Stop(shared);
  openText.ReleaseBuffer(4);
  (void)handle, (void)mutableHandle, (void)nullHandle, (void)arrayHandle, (void)nullArrayHandle;
  (void)unborn, (void)dead, (void)damaged;
}
