// Calls members of std::vector<ZRString*>, which only the library instantiates, through the array
// and on a separate vector.

#include <ZRString/ZRStringPtrArray.h>

#include <algorithm>
#include <cstdio>
#include <vector>

int main() {
  ZRString a("a", 0, -1), b("b", 0, -1);
  ZRStringPtrArray array;
  array.PushBack(&a);
  array.PushBack(&b);
  std::reverse(array.Begin(), array.End());
  const ZRStringPtrArray& constant = array;
  std::vector<ZRString*> strings(constant.Begin(), constant.End());
  std::vector<ZRString*> copy(strings);
  copy.emplace_back(&a);
  copy.insert(copy.begin(), {&b, nullptr});
  copy.insert(copy.end(), 2, &a);
  copy.erase(copy.begin() + 1);
  copy.resize(copy.size() + 1, &b);
  copy.reserve(100);
  copy.shrink_to_fit();
  strings.assign(copy.rbegin(), copy.rend());
  strings.pop_back();
  copy = strings;
  for (const ZRString* const string : copy)
    std::printf("%c", (*string)[0]);
  std::printf("\n");
}
