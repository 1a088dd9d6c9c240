// The texts on which the counted calls work, for ICU and for the library.
#ifndef ZRSTRING_BENCHMARKS_TEXTS_H
#define ZRSTRING_BENCHMARKS_TEXTS_H

#include <ZRString/ZRString.h>
#include <ZRString/ZRStringMutator.h>
#include <unicode/coll.h>
#include <unicode/unistr.h>

#include <memory>
#include <string_view>
#include <vector>

/// What the calls of one library read and write. No two texts share a body or a buffer, and no
/// number is a constant to the compiler.
template <typename String, typename Mutable, typename Unit>
struct Texts {
  struct Operand {
    explicit Operand(std::u16string_view text)
        : units(text.begin(), text.end()),
          length(static_cast<ZRLong>(text.size())),
          string((units.push_back(0), units.data()), length) {}
    Operand(const Operand&) = delete;
    Operand& operator=(const Operand&) = delete;
    operator const String&() const { return string; }
    const Unit* Raw() const { return units.data(); }

    std::vector<Unit> units;  ///< with a zero unit after them
    ZRLong length;
    String string;
  };

  Operand whole{u"the brown fox juquay"};
  Operand twin{u"the brown fox juquaz"};
  Operand upper{u"THE BROWN FOX JUQUAY"};
  Operand prefix{u"the brown "};
  Operand suffix{u"fox juquay"};
  Operand pattern{u"quay"};
  Operand word{u"ro"};
  Operand decomposed{u"xe\u0301xe\u0301xe\u0301xe\u0301xe\u0301xe\u0301xe"};
  Operand accented{u"\u00E0 c\u00F4t\u00E9 de l'\u00E9t\u00E9 d\u00E9j\u00E0"};
  Operand accentedUpper{u"\u00C0 C\u00D4T\u00C9 DE L'\u00C9T\u00C9 D\u00C9J\u00C0"};
  Operand greek{
      u"\u03BA\u03B1\u03BB\u03B7\u03BC\u03AD\u03C1\u03B1 \u03BA\u03CC\u03C3\u03BC\u03B5 "
      u"\u03BA\u03B1\u03B9 \u03B3"};
  Operand greekUpper{
      u"\u039A\u0391\u039B\u0397\u039C\u0388\u03A1\u0391 \u039A\u038C\u03A3\u039C\u0395 "
      u"\u039A\u0391\u0399 \u0393"};
  Operand paired{
      u"\U00010428\U00010429\U0001042A\U0001042B\U0001042C\U0001042D\U0001042E\U0001042F"
      u"\U00010430\U00010431"};
  Operand pairedUpper{
      u"\U00010400\U00010401\U00010402\U00010403\U00010404\U00010405\U00010406\U00010407"
      u"\U00010408\U00010409"};
  Operand spaced{u"    the brown fox juquay    "};

  ZRLong start = 0;
  ZRLong length = whole.length;
  ZRLong last = length - 1;
  ZRLong middle = length / 2;
  ZRLong four = 4;
  ZRLong wider = length + four;
  Unit unit = 'q';

  const String text{whole.units.data(), length};
  const Mutable source{spaced.string, four, length};  ///< `text`, for members that copy from one
  std::vector<Unit> target = std::vector<Unit>(whole.units.size());
  Mutable edited;
};

struct IcuTexts : Texts<icu::UnicodeString, icu::UnicodeString, char16_t> {
  UErrorCode status = U_ZERO_ERROR;
  std::unique_ptr<icu::Collator> collator{icu::Collator::createInstance(status)};

  void Restore(const Operand& before) { edited.setTo(before.string, 0, before.length); }
};

struct ZRTexts : Texts<ZRString, ZRStringMutator, unsigned short> {
  ZRStringRef__* textHandle = text.GetZRStringRef();
  ZRStringRef__* twinHandle = twin.string.GetZRStringRef();
  ZRStringRef__* upperHandle = upper.string.GetZRStringRef();
  ZRStringRef__* patternHandle = pattern.string.GetZRStringRef();
  ZRStringRef__* wordHandle = word.string.GetZRStringRef();
  ZRMutableStringRef__* editedHandle = edited.GetZRMutableStringRef();
  ZRLong result = 0;  ///< out-parameters of the handle functions
  unsigned char report = 0;
  unsigned short* buffer = nullptr;

  void Restore(const Operand& before) { edited.SetTo(before.string, 0, before.length); }
};

#endif
