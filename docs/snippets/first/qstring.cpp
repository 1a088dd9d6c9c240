#include <ZRString/ZRStringInterop.h>

#include <iostream>

int main() {
  const ZRString list = FromUtf8("pomme, prune, pêche");
  for (const ZRString& fruit : PartsOf(list, u", "))  // split
    std::cout << UpperCase(fruit) << '\n';            // toUpper

  ZRStringMutator order(list);  // shares the text of `list`
  order = ReplacedAll(order, u"prune", u"datte");
  order += u"; merci"_zr;
  std::cout << order << ": " << order.GetLength() << " units\n";
}
