// Prints the bytes of an array record, as the page on
// records shows them.

#include <ZRString/ZRStringPtrArray.h>
#include <ZRString/ZRStringStream.h>

#include <algorithm>
#include <cstdio>

#include "LittleEndianStream.h"

int main() {
  //! [write]
  const unsigned short summer[] = {0xE9, 't', 0xE9};  // été

  ZRString empty("", 0, 0);
  ZRString word(summer, 3);
  ZRStringPtrArray words;
  words.PushBack(&empty);
  words.PushBack(&word);

  LittleEndianStream stream;
  stream << words;
  //! [write]

  const std::vector<unsigned char>& bytes = stream.bytes;
  constexpr std::size_t kPerLine = 16;
  for (std::size_t line = 0; line < bytes.size();
       line += kPerLine) {
    std::printf("%08x:", static_cast<unsigned>(line));
    const std::size_t end =
        std::min(line + kPerLine, bytes.size());
    for (std::size_t i = line; i < line + kPerLine; ++i) {
      std::printf(i % 2 == 0 ? " " : "");
      if (i < end)
        std::printf("%02x", bytes[i]);
      else
        std::printf("  ");
    }
    std::printf("  ");
    for (std::size_t i = line; i < end; ++i)
      std::printf("%c", bytes[i] < 0x20 || bytes[i] > 0x7E
                            ? '.'
                            : bytes[i]);
    std::printf("\n");
  }
  return 0;
}
