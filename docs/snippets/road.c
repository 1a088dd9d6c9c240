/* The handle interface's side of the main page. Prints what
 * road.cpp prints. */

#include <ZRString/ZRStringHandles.h>
#include <stdio.h>
#include <stdlib.h>

//! [check]
static void Check(ZRLong status) {
  if (status != kZRStatusSuccess) {
    fprintf(stderr, "status %d\n", (int)status);
    exit(EXIT_FAILURE);
  }
}
//! [check]

//! [record]
static unsigned char* Put(unsigned char* to, ZRULong value,
                          int size) {
  for (int i = 0; i < size; ++i)
    *to++ = (unsigned char)(value >> 8 * i);
  return to;
}

static ZRULong Get(const unsigned char** from, int size) {
  ZRULong value = 0;
  for (int i = 0; i < size; ++i) {
    const ZRULong byte = *(*from)++;
    value |= byte << 8 * i;
  }
  return value;
}
//! [record]

static void ShowString(const char* what,
                       ZRStringRef__* string) {
  ZRLong length;
  unsigned short* units;
  Check(ZRStringGetLength(string, &length));
  Check(ZRStringGetBuffer(string, &units));
  printf("%-9s", what);
  for (ZRLong i = 0; i < length; ++i)
    printf(units[i] < 0x80 ? "%c" : "<%04X>",
           (unsigned)units[i]);
  printf("\n");
}

static void ShowNumber(const char* what, int number) {
  printf("%-9s%d\n", what, number);
}

int main(void) {
  //! [make]
  /* "Straße", as the application has it */
  const unsigned short units[] = {'S', 't',  'r',
                                  'a', 0xDF, 'e'};

  ZRStringRef__* street;
  ZRStringRef__* capitals;
  Check(ZRStringCreateFromUniChars(units, 0, 6, &street));
  Check(ZRStringCreateFromCString("STRASSE", 0, 7,
                                  &capitals));
  //! [make]
  ShowString("make", street);

  //! [compare]
  ZRLong order, noCase, found;
  unsigned short pattern[] = {0xDF};
  Check(ZRStringCompare(street, 0, kZRToEnd, capitals, 0,
                        kZRToEnd, &order));
  Check(ZRStringICompare(street, 0, kZRToEnd, capitals, 0,
                         kZRToEnd, kZRCompareIgnoreCase,
                         &noCase));
  Check(ZRStringFindUniChars(street, 0, kZRToEnd, pattern, 1,
                             &found));
  //! [compare]
  ShowNumber("order", (int)order);
  ShowNumber("no case", (int)noCase);
  ShowNumber("found", (int)found);

  //! [edit]
  const unsigned short number[] = {'.', ' ', '5'};

  ZRMutableStringRef__* edited;
  Check(ZRMutableStringCreateCopy(street, &edited));
  Check(ZRMutableStringToUpper(edited));
  Check(ZRMutableStringReplaceWithUniChars(edited, 3, 4,
                                           number, 0, 3));
  //! [edit]
  ShowString("edited", (ZRStringRef__*)edited);
  ShowString("still", street);

  //! [fill]
  ZRMutableStringRef__* filled;
  unsigned short* buffer;
  Check(ZRMutableStringCreateEmpty(&filled));
  Check(ZRMutableStringGetBufferWithCapacity(filled, 100,
                                             &buffer));
  if (!buffer)
    return EXIT_FAILURE;
  ZRLong count = 0;
  for (unsigned short c = 'a'; c <= 'z'; c += 5)
    buffer[count++] = c;
  Check(ZRMutableStringReleaseBuffer(filled, count));
  //! [fill]
  ShowString("filled", (ZRStringRef__*)filled);

  //! [collect]
  ZRStringPtrArrayRef__* words;
  ZRStringRef__* first;
  ZRStringRef__* second;
  Check(ZRStringPtrArrayCreate(&words));
  Check(ZRStringCreateCopy(street, &first));
  Check(ZRStringPtrArrayPushBack(words, first));
  Check(ZRStringCreateCopy((ZRStringRef__*)filled, &second));
  Check(ZRStringPtrArrayPushBack(words, second));
  //! [collect]
  ZRULong size;
  Check(ZRStringPtrArraySize(words, &size));
  ShowNumber("words", (int)size);

  //! [store]
  ZRLong length;
  unsigned short* from;
  Check(ZRStringGetLength(street, &length));
  Check(ZRStringGetBuffer(street, &from));
  unsigned char file[100];
  unsigned char* end = Put(file, (ZRULong)length, 4);
  for (ZRLong i = 0; i < length; ++i)
    end = Put(end, from[i], 2);
  //! [store]
  printf("%-8s", "stored");
  for (const unsigned char* byte = file; byte != end; ++byte)
    printf(" %02X", (unsigned)*byte);
  printf("\n");

  //! [restore]
  ZRMutableStringRef__* again;
  Check(ZRMutableStringCreateEmpty(&again));
  const unsigned char* next = file;
  length = (ZRLong)Get(&next, 4);
  Check(ZRMutableStringGetBufferWithCapacity(again, length,
                                             &buffer));
  if (!buffer)
    return EXIT_FAILURE;
  for (ZRLong i = 0; i < length; ++i)
    buffer[i] = (unsigned short)Get(&next, 2);
  Check(ZRMutableStringReleaseBuffer(again, length));
  //! [restore]
  ShowString("restored", (ZRStringRef__*)again);

  //! [end]
  Check(ZRStringPtrArrayDeleteAll(words));
  Check(ZRStringPtrArrayDestroy(words));
  Check(ZRMutableStringDestroy(again));
  Check(ZRMutableStringDestroy(filled));
  Check(ZRMutableStringDestroy(edited));
  Check(ZRStringDestroy(capitals));
  Check(ZRStringDestroy(street));
  //! [end]
  return EXIT_SUCCESS;
}
