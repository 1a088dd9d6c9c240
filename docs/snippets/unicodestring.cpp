// Prints the table of the page on icu::UnicodeString: what a
// call gives that looks alike in both.

#include <ZRString/ZRStringInterop.h>

#include <iostream>

#define ZR_ROW(icu, there, ...) \
  Row(icu, there, #__VA_ARGS__, ToUtf8(__VA_ARGS__))

namespace {

void Row(const char* icu, const char* there,
         const char* ours, const std::string& result) {
  std::cout << "| `" << icu << "` | `" << there << "` | `"
            << ours << "` | `" << result << "` |\n";
}

}  // namespace

int main() {
  const ZRString s = u"banana"_zr;
  const char byte = '\x80';
  const int c = 0x1F600;  // in ICU, a UChar32
  std::cout << "| ICU | Result | ZRString | Result |\n"
               "|---|---|---|---|\n";
  ZR_ROW("UnicodeString(s, 2)", "nana", ZRString(s, 2));
  ZR_ROW("UnicodeString(s, 2, 3)", "nan", ZRString(s, 2, 3));
  ZR_ROW("t.removeBetween(2, 3)", "baana",
         ZRStringMutator(s).RemoveBetween(2, 3));
  ZR_ROW("t.remove(2)", "ba",
         ZRStringMutator(s).Remove(2, -1));
  ZR_ROW("t += c", "banana\U0001F600",
         ZRStringMutator(s) += char32_t(c));
  ZR_ROW("UnicodeString(&byte, 1, \"windows-1252\")",
         "\u20AC", ZRString(&byte, 0, 1));
}
