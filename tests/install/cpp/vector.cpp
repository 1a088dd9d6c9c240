// Calls the members of std::vector<ZRString*>, which only the library instantiates, through the
// array and on a separate vector.

#include <ZRString/ZRStringPtrArray.h>

#include <algorithm>
#include <cstdio>
#include <utility>
#include <vector>

namespace {

void Print(const char* what, const std::vector<ZRString*>& strings) {
  std::printf("%s:", what);
  for (const ZRString* const string : strings)
    std::printf(" %c", string == nullptr ? '-' : (*string)[0]);
  std::printf("\n");
}

}  // namespace

int main() {
  ZRString a("a", 0, -1), b("b", 0, -1), c("c", 0, -1);

  ZRStringPtrArray array;
  for (ZRString* const string : {&a, &b, &c, &b})
    array.PushBack(string);
  array.Erase(array.Begin() + 1);
  std::reverse(array.Begin(), array.End());
  const ZRStringPtrArray& constant = array;
  Print("array", {constant.Begin(), constant.End()});

  std::vector<ZRString*> copy(array.Begin(), array.End());
  std::vector<ZRString*> other(copy);
  other.push_back(nullptr);
  other.emplace_back(&a);
  other.insert(other.begin(), &c);
  other.insert(other.begin() + 1, 2, &b);
  other.insert(other.end(), copy.begin(), copy.end());
  other.insert(other.begin(), {&a, &b});
  other.emplace(other.begin(), &c);
  Print("other", other);
  other.erase(other.begin() + 1, other.begin() + 6);
  other.erase(other.begin());
  other.pop_back();
  other.at(0) = other.front();
  other.back() = other[1];
  Print("erased", other);

  copy = other;
  copy.resize(8);
  copy.resize(9, &b);
  copy.resize(2);
  copy.reserve(100);
  copy.shrink_to_fit();
  Print("resized", copy);
  copy.assign(3, &c);
  copy.swap(other);
  other.assign({&b, &a});
  Print("assigned", other);
  std::vector<ZRString*> moved(std::move(other));
  other = {&a};
  other = std::move(moved);
  moved.assign(copy.rbegin(), copy.rend());
  std::printf("equal %d, sized %d, empty %d, data %d\n", other == std::vector<ZRString*>{&b, &a},
              moved.size() == copy.size() && moved.capacity() >= moved.size(),
              std::vector<ZRString*>(5).empty(), moved.data() == &*moved.cbegin());
  copy.clear();
  Print("cleared", copy);
}
