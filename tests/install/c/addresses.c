/* Turns a list of names into addresses, through the handle interface alone. Every status is
   looked at: the first one that is not 0 ends the program. */

#include <ZRString/ZRStringHandles.h>
#include <stdio.h>
#include <stdlib.h>

#define CHECK(call) Check((call), #call)

static void Check(ZRLong status, const char* call) {
  if (status != kZRStatusSuccess) {
    printf("status %d: %s\n", (int)status, call);
    exit(EXIT_FAILURE);
  }
}

static ZRStringRef__* Text(const char* text, ZRLong length) {
  ZRStringRef__* string = NULL;
  CHECK(ZRStringCreateFromCString(text, 0, length, &string));
  return string;
}

static void Print(ZRStringRef__* string) {
  unsigned short units[64];
  ZRLong length = 0;
  ZRLong i;
  CHECK(ZRStringGetLength(string, &length));
  CHECK(ZRStringExtractIntoUniChars(string, 0, 63, units, 0));
  for (i = 0; units[i] != 0; ++i)
    printf(units[i] < 0x80 ? "%c" : "\\u%04X", units[i]);
  printf(" (%d)\n", (int)length);
}

int main(void) {
  /* The last but one begins with U+00D8 in windows-1252. */
  static const char* const kNames[] = {"Ada Byron", "Grace Hopper", "\xD8rsted", "Ada Byron"};
  static const ZRLong kLengths[] = {9, 12, 6, 9};

  ZRStringRef__* const space = Text(" ", 1);
  ZRStringRef__* const dot = Text(".", 1);
  ZRStringRef__* const domain = Text("@ships.example", 14);
  ZRStringPtrArrayRef__* array = NULL;
  ZRStringRef__* first = NULL;
  ZRStringRef__* entry = NULL;
  ZRULong size = 0;
  ZRLong index = 0;
  ZRLong result = 0;
  int i;

  CHECK(ZRStringPtrArrayCreate(&array));
  for (i = 0; i < 4; ++i) {
    ZRStringRef__* const name = Text(kNames[i], kLengths[i]);
    ZRMutableStringRef__* address = NULL;
    CHECK(ZRMutableStringCreateCopy(name, &address));
    CHECK(ZRMutableStringToLower(address));
    CHECK(ZRMutableStringFindAndReplace(address, 0, -1, space, dot));
    CHECK(ZRMutableStringAppend(address, domain));
    CHECK(ZRStringPtrArrayPushBack(array, (ZRStringRef__*)address));
    CHECK(ZRStringFind(name, 0, -1, space, &index));
    printf("space at %d: ", (int)index);
    Print(name);
    CHECK(ZRStringDestroy(name));
  }

  CHECK(ZRStringPtrArraySize(array, &size));
  CHECK(GetZRStringRefAt(array, 0, &first));
  for (i = 0; i < (int)size; ++i) {
    CHECK(GetZRStringRefAt(array, i, &entry));
    CHECK(ZRStringCompare(first, 0, -1, entry, 0, -1, &result));
    printf("%+d ", (int)result);
    Print(entry);
  }
  printf("status of a null array: %d\n", (int)ZRStringPtrArraySize(NULL, &size));
  printf("status of an entry outside: %d\n", (int)ZRStringPtrArrayErase(array, 4));

  CHECK(ZRStringPtrArrayDeleteAll(array));
  CHECK(ZRStringPtrArrayDestroy(array));
  CHECK(ZRStringDestroy(space));
  CHECK(ZRStringDestroy(dot));
  CHECK(ZRStringDestroy(domain));
  return 0;
}
