// Calls members of std::vector<ZRString*>, which only the library instantiates.

#include <ZRString/ZRStringPtrArray.h>

#include <vector>

int main() {
  ZRString a("a", 0, -1), b("b", 0, -1);
  std::vector<ZRString*> strings{&b, &a};
  strings.reserve(10);
  strings.emplace_back(&b);
  strings.insert(strings.end(), 2, &a);
  strings.erase(strings.end() - 2);
  strings.insert(strings.end(), nullptr);
  strings.shrink_to_fit();
  strings.resize(6, &a);
  std::vector<ZRString*> copy;
  copy.assign(strings.rbegin(), strings.rend());
  return copy == std::vector<ZRString*>{&a, nullptr, &a, &b, &a, &b} ? 0 : 1;
}
