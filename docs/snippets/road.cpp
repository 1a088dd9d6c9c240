// The class interface's side of the main page. Prints what
// road.c prints.

#include <ZRString/ZRStringMutator.h>
#include <ZRString/ZRStringPtrArray.h>
#include <ZRString/ZRStringStream.h>

#include <cstdio>

#include "LittleEndianStream.h"

namespace {

void Show(const char* what, const ZRString& string) {
  std::printf("%-9s", what);
  for (ZRLong i = 0; i < string.GetLength(); ++i)
    std::printf(string[i] < 0x80 ? "%c" : "<%04X>",
                static_cast<unsigned>(string[i]));
  std::printf("\n");
}

void Show(const char* what, int number) {
  std::printf("%-9s%d\n", what, number);
}

void Show(const char* what,
          const std::vector<unsigned char>& bytes) {
  std::printf("%-8s", what);
  for (const unsigned char byte : bytes)
    std::printf(" %02X", byte);
  std::printf("\n");
}

}  // namespace

int main() {
  //! [make]
  // "Straße", as the application has it
  const unsigned short units[] = {'S', 't',  'r',
                                  'a', 0xDF, 'e'};

  const ZRString street(units, 6);
  const ZRString capitals("STRASSE", 0, kZRToEnd);
  //! [make]
  Show("make", street);

  //! [compare]
  const int order =
      street.Compare(0, kZRToEnd, capitals, 0, kZRToEnd);
  const int noCase =
      street.ICompare(0, kZRToEnd, capitals, 0, kZRToEnd,
                      kZRCompareIgnoreCase);
  const ZRLong found =
      street.Find(units + 4, 0, 1, 0, kZRToEnd);
  //! [compare]
  Show("order", order);
  Show("no case", noCase);
  Show("found", found);

  //! [edit]
  const unsigned short number[] = {'.', ' ', '5'};

  ZRStringMutator edited(street);  // shares the units
  edited.ToUpper();                // detaches, then edits
  edited.Replace(3, 4, number, 0, 3);
  //! [edit]
  Show("edited", edited);
  Show("still", street);

  //! [fill]
  ZRStringMutator filled;
  unsigned short* buffer = filled.GetBuffer(100);
  if (!buffer)
    return 1;
  ZRLong count = 0;
  for (unsigned short c = 'a'; c <= 'z'; c += 5)
    buffer[count++] = c;
  filled.ReleaseBuffer(count);
  //! [fill]
  Show("filled", filled);

  //! [collect]
  ZRStringPtrArray words;
  words.PushBack(new ZRString(street));
  words.PushBack(new ZRString(filled));
  //! [collect]
  Show("words", static_cast<int>(words.Size()));

  //! [store]
  LittleEndianStream file;
  file << street;
  //! [store]
  Show("stored", file.bytes);

  //! [restore]
  ZRStringMutator again;
  file >> again;
  //! [restore]
  Show("restored", again);

  //! [end]
  words.DeleteAll();
  // The others are destroyed with their scope.
  //! [end]
  return 0;
}
