// The words of a UTF-8 text by their number of characters,
// as the page on QString shows it.

//! [program]
#include <ZRString/ZRStringInterop.h>

#include <fstream>
#include <iostream>
#include <map>
#include <set>

int main(int, char** arguments) {
  std::ifstream file(arguments[1]);
  if (!file)
    return 1;
  const std::string
      bytes(std::istreambuf_iterator<char>(file), {});
  ZRStringMutator text = LowerCase(FromUtf8(bytes));
  text = ReplacedAll(text, u'\u2019', u'\'');
  text = ReplacedAll(text, u'\n', u' ');

  std::map<ZRLong, std::set<ZRString>> sizes;
  for (const ZRString& word :
       PartsOf(text, u' ', kZRSkipEmptyParts))
    sizes[CodePointCount(word)].insert(word);
  for (const auto& [size, words] : sizes)
    std::cout << size << ": " << Joined(words, u", ")
              << '\n';
}
//! [program]
