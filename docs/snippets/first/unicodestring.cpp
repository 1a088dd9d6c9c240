#include <ZRString/ZRStringInterop.h>
#include <unicode/unistr.h>

#include <iostream>

int main() {
  const icu::UnicodeString street(u"Straße");

  // From ICU, with a copy of the units.
  const auto length = static_cast<std::size_t>(street.length());
  ZRStringMutator sign = FromUtf16({street.getBuffer(), length});
  sign.ToUpper();

  // To ICU, without a copy, as long as the view is valid.
  const std::u16string_view units = Utf16View(sign);
  const icu::UnicodeString alias(false, units.data(),
                                 static_cast<int32_t>(units.size()));

  std::cout << sign << ": " << alias.countChar32() << " characters, SS at "
            << alias.indexOf(u"SS", 2, 0) << '\n';
}
