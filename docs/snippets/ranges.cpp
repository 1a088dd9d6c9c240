// Prints the example tables of the page on ranges: each
// expression beside what it gives.

#include <ZRString/ZRStringHandles.h>
#include <ZRString/ZRStringMutator.h>

#include <cstdio>
#include <string>

// The expression's own text is what the page shows. A call
// finds "banana" in `fruit`.
#define ZR_ROW(...) Row(#__VA_ARGS__, Text(__VA_ARGS__))
#define ZR_CALL_ROW(call, result) \
  (fruitText = banana, CallRow(#call, call, result))

namespace {

/// The texts of this program are all ASCII.
std::string Text(const ZRString& string) {
  std::string text = "\"";
  for (ZRLong i = 0; i < string.GetLength(); ++i)
    text += static_cast<char>(string[i]);
  return text + '"';
}

std::string Text(ZRLong number) {
  return std::to_string(number);
}

void Table() {
  std::printf("\n| Expression | Result |\n|---|---|\n");
}

void CallTable() {
  std::printf(
      "\n| Call | Status | Result |\n|---|---|---|\n");
}

void Row(const char* expression, const std::string& result) {
  std::printf("| `%s` | `%s` |\n", expression,
              result.c_str());
}

template <typename Result>
void CallRow(const char* call, ZRLong status,
             const Result& result) {
  std::printf("| `%s` | %d | %s |\n", call,
              static_cast<int>(status),
              status == kZRStatusSuccess
                  ? ('`' + Text(result) + '`').c_str()
                  : "");
}

}  // namespace

int main() {
  const ZRString banana("banana", 0, -1);
  const ZRString ana("ana", 0, -1);
  const unsigned short raw[] = {'a', 'n', 'a', 0};

  Table();
  ZR_ROW(ZRString(banana, 2, 3));
  ZR_ROW(ZRString(banana, 2, 99));
  ZR_ROW(ZRString(banana, 2, -1));
  ZR_ROW(ZRString(banana, 2, -2));
  ZR_ROW(ZRString(banana, -2, 3));
  ZR_ROW(ZRString(banana, 6, -1));
  ZR_ROW(ZRString(banana, 99, 3));
  ZR_ROW(ZRString(banana, 2));
  ZR_ROW(ZRStringMutator(banana).Remove(2, 3));
  ZR_ROW(ZRStringMutator(banana).Remove(2, -1));
  ZR_ROW(ZRStringMutator(banana).Insert(99, ana, 1, -1));
  ZR_ROW(ZRStringMutator(banana).Insert(-5, ana, 1, 1));
  ZR_ROW(ZRStringMutator(banana).SetCharAt(99, 0x73));

  Table();
  ZR_ROW(ZRString(raw));
  ZR_ROW(ZRString(raw, 2));
  ZR_ROW(ZRString(raw, 1, 2));
  ZR_ROW(ZRString(raw, 1, -1));
  ZR_ROW(ZRString(raw, 1, -2));
  ZR_ROW(ZRString("banana", 2, -1));
  ZR_ROW(ZRString("banana", 2, -2));
  ZR_ROW(banana.Compare(1, 3, raw, 0, -1));
  ZR_ROW(banana.Compare(1, -1, raw, 0, -1));
  ZR_ROW(ZRStringMutator(banana).Append(raw, 1, -1));

  Table();
  ZR_ROW(banana.CompareBetween(1, 3, ana, 0, 2));
  ZR_ROW(banana.CompareBetween(3, 99, ana, 0, 99));
  ZR_ROW(banana.CompareBetween(1, -1, ana, 0, 2));
  ZR_ROW(banana.CompareBetween(1, -1, ana, 2, 1));
  ZR_ROW(ZRStringMutator(banana).RemoveBetween(1, 1));
  ZR_ROW(ZRStringMutator(banana).RemoveBetween(4, 99));
  ZR_ROW(ZRStringMutator(banana).RemoveBetween(4, 3));
  ZR_ROW(ZRStringMutator(banana).RemoveBetween(4, -1));
  ZR_ROW(ZRStringMutator(banana).ReplaceBetween(0, 2, ana, 1,
                                                1));
  ZR_ROW(ZRStringMutator(banana).ReplaceBetween(2, 1, ana, 0,
                                                99));

  Table();
  ZR_ROW(banana.Find(ana, 0, -1, 0, -1));
  ZR_ROW(banana.Find(ana, 0, -1, 2, -1));
  ZR_ROW(banana.Find(ana, 0, -1, 2, 3));
  ZR_ROW(banana.RFind(ana, 0, -1, 0, -1));
  ZR_ROW(banana.RFind(ana, 0, -1, 0, 5));
  ZR_ROW(banana.Find(raw, 1, 1, 0, -1));
  ZR_ROW(banana.Find(ana, 0, 0, 0, -1));
  ZR_ROW(banana.StartsWith(ana, 0, 0));
  ZR_ROW(banana.EndsWith(ana, 0, -1));

  CallTable();
  ZRStringMutator fruitText(banana);
  ZRMutableStringRef__* const fruit =
      fruitText.GetZRMutableStringRef();
  ZRStringRef__* const anaRef = ana.GetZRStringRef();
  ZRLong index = 0;
  ZRLong order = 0;
  ZRStringRef__* const bananaRef = banana.GetZRStringRef();
  ZR_CALL_ROW(ZRStringFind(bananaRef, 2, -1, anaRef, &index),
              index);
  ZR_CALL_ROW(ZRStringFind(bananaRef, 99, -1, anaRef,
                           &index),
              index);
  ZR_CALL_ROW(ZRStringFind(bananaRef, -1, -1, anaRef,
                           &index),
              index);
  ZR_CALL_ROW(ZRStringFind(bananaRef, 2, -2, anaRef, &index),
              index);
  ZR_CALL_ROW(ZRStringCompare(bananaRef, 1, 3, anaRef, 0, -1,
                              &order),
              order);
  ZR_CALL_ROW(ZRMutableStringAppendUniChars(fruit, raw, 1,
                                            1),
              fruitText);
  ZR_CALL_ROW(ZRMutableStringAppendUniChars(fruit, raw, 1,
                                            -1),
              fruitText);
  ZR_CALL_ROW(ZRMutableStringReplaceBetween(fruit, 1, 2,
                                            anaRef),
              fruitText);
  ZR_CALL_ROW(ZRMutableStringRemoveBetween(fruit, 1, 2),
              fruitText);
  ZR_CALL_ROW(ZRMutableStringRemoveBetween(fruit, 4, -1),
              fruitText);
  ZR_CALL_ROW(ZRMutableStringSetUniCharAt(fruit, 99, 0x73),
              fruitText);
  return 0;
}
