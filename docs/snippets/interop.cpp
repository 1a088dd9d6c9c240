// Prints what the page on conversions shows for C++.

#include <ZRString/ZRStringInterop.h>

#include <iostream>
#include <map>
#include <unordered_set>

int main() {
  //! [text]
  const ZRString greeting = FromUtf8("Gru\xC3\x9F");
  const ZRString same = u"Gru\u00DF"_zr;

  std::cout << greeting << ": " << greeting.GetLength()
            << " units, " << ToUtf8(greeting).size()
            << " bytes\n";
  std::cout << (greeting == same) << '\n';
  //! [text]

  //! [view]
  int capitals = 0;
  for (const char16_t unit : Utf16View(greeting))
    capitals += unit >= u'A' && unit <= u'Z';
  //! [view]
  std::cout << capitals << '\n';

  //! [keys]
  std::map<ZRString, int, ZRStringLess> pages;
  pages.emplace(greeting, 12);
  const auto page = pages.find(u"Gru\u00DF");

  std::unordered_set<ZRString> seen;
  for (const char* word : {"un", "deux", "un"})
    seen.insert(FromUtf8(word));
  //! [keys]
  std::cout << page->second << '\n' << seen.size() << '\n';
  return 0;
}
