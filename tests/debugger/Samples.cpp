#include <ZRString/ZRStringHandles.h>
#include <ZRString/ZRStringMutator.h>
#include <ZRString/ZRStringPtrArray.h>

#include <climits>

// A program for debuggers, with one string in each state that they must show. The test breaks at
// Stop() and prints the locals of its caller.

volatile int stops = 0;

static void Stop(const ZRString& reference, const ZRString* pointer) {
  (void)reference;
  (void)pointer;
  stops = stops + 1;
}

static ZRString Repeated(const unsigned short* text, ZRLong length, ZRLong times) {
  ZRStringMutator result;
  for (ZRLong i = 0; i < times; ++i)
    result.Append(text, 0, length);
  return result;
}

int main() {
  const ZRString inlineText("caf\xE9 \"x\"\n\1", 0, -1);
  const unsigned short digits[] = {'0', '1', '2', '3', '4', '5', '6', '7', '8', '9'};
  const ZRString longestInline = Repeated(digits, 9, 3);
  const ZRString heapText = Repeated(digits, 10, 3);
  const ZRString longText = Repeated(digits, 10, 120);  // its length does not fit into the flags
  const ZRStringMutator emptyText;

  const ZRString shared("shared", 0, -1);
  const ZRString secondHolder(shared);
  ZRStringMutator thirdHolder(shared);

  ZRStringMutator openText("open", 0, -1);
  openText.GetBuffer(40);
  ZRStringMutator brokenText("lost", 0, -1);
  brokenText.GetBuffer(INT_MAX);  // more than ICU can hold

  const unsigned short surrogates[] = {0xD83D, 0xDE00, 'a', 0xDE00, 'b', 0xD83D};
  const ZRString surrogateText(surrogates, 6);

  ZRString first("first", 0, -1);
  ZRStringMutator second("second", 0, -1);
  ZRStringPtrArray array;
  array.PushBack(&first);
  array.PushBack(nullptr);
  array.PushBack(&second);
  const ZRStringPtrArray emptyArray;

  ZRStringRef__* const handle = shared.GetZRStringRef();
  ZRMutableStringRef__* const mutableHandle = thirdHolder.GetZRMutableStringRef();
  ZRStringRef__* const nullHandle = nullptr;
  ZRStringPtrArrayRef__* const arrayHandle = array.GetZRStringPtrArrayRef();

  // Memory that holds no string: before a constructor has run and after a destructor has.
  static const void* const nothing[4] = {};
  static const void* const objects[2][2] = {{nullptr, nullptr}, {nullptr, nothing}};
  const ZRString* const unborn = reinterpret_cast<const ZRString*>(objects[0]);
  const ZRString* const dead = reinterpret_cast<const ZRString*>(objects[1]);

  Stop(shared, &shared);
  openText.ReleaseBuffer(4);
  (void)handle, (void)mutableHandle, (void)nullHandle, (void)arrayHandle;
  (void)unborn, (void)dead;
}
