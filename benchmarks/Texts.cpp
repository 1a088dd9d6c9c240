#include "Texts.h"

#include <cstdlib>
#include <string_view>
#include <utility>

namespace {

constexpr std::string_view kSentence = "the brown fox jumps over lazy dogs ";
constexpr std::string_view kPattern = "quay";

Units FromAscii(std::string_view ascii) { return Units(ascii.begin(), ascii.end()); }

Units Plain(std::int32_t length) {
  Units units;
  while (units.size() < static_cast<std::size_t>(length) - kPattern.size())
    units.push_back(static_cast<unsigned char>(kSentence[units.size() % kSentence.size()]));
  units.insert(units.end(), kPattern.begin(), kPattern.end());
  return units;
}

Units WithOtherEnd(Units units) {
  ++units.back();
  return units;
}

Units InUpperCase(Units units) {
  for (unsigned short& unit : units)
    if (unit >= 'a' && unit <= 'z')
      unit = static_cast<unsigned short>(unit - 'a' + 'A');
  return units;
}

Units Decomposed(std::int32_t length) {
  Units units;
  while (units.size() < static_cast<std::size_t>(length))
    units.insert(units.end(), {'x', 'e', 0x0301});
  units.resize(static_cast<std::size_t>(length));
  return units;
}

Units Spaced(Units units) {
  units.insert(units.begin(), 4, ' ');
  units.insert(units.end(), 4, ' ');
  return units;
}

Units Slice(const Units& units, std::ptrdiff_t first, std::ptrdiff_t limit) {
  return Units(units.begin() + first, units.begin() + limit);
}

Units WithZero(Units units) {
  units.push_back(0);
  return units;
}

ZRLong LengthOf(const Units& units) { return static_cast<ZRLong>(units.size() - 1); }

}  // namespace

Text::Text(Units textUnits)
    : units(WithZero(std::move(textUnits))),
      icu(icu::ConstChar16Ptr(units.data()), LengthOf(units)),
      string(units.data(), 0, LengthOf(units)),
      handle(string.GetZRStringRef()),
      length(LengthOf(units)) {}

Texts::Texts(std::int32_t textLength)
    : text(Plain(textLength)),
      twin(WithOtherEnd(Plain(textLength))),
      upper(InUpperCase(Plain(textLength))),
      prefix(Slice(Plain(textLength), 0, textLength / 2)),
      suffix(Slice(Plain(textLength), textLength / 2, textLength)),
      pattern(FromAscii(kPattern)),
      word(FromAscii("ro")),
      decomposed(Decomposed(textLength)),
      spaced(Spaced(Plain(textLength))),
      length(textLength),
      last(textLength - 1),
      middle(textLength / 2),
      edited(text.RawIcu(), text.length),
      editedString(text.Raw(), 0, text.length),
      editedHandle(editedString.GetZRMutableStringRef()),
      sourceString(text.Raw(), 0, text.length),
      target(static_cast<std::size_t>(textLength) + 1) {
  UErrorCode status = U_ZERO_ERROR;
  collator.reset(icu::Collator::createInstance(status));
  if (U_FAILURE(status))
    std::abort();
}

void Texts::RestoreIcu(Before before) {
  switch (before) {
    case Before::kWhateverIsThere:
      return;
    case Before::kText:
      edited.setTo(text.icu, 0, text.length);
      return;
    case Before::kDecomposed:
      edited.setTo(decomposed.icu, 0, decomposed.length);
      return;
    case Before::kSpaced:
      edited.setTo(spaced.icu, 0, spaced.length);
      return;
  }
}

void Texts::RestoreString(Before before) {
  switch (before) {
    case Before::kWhateverIsThere:
      return;
    case Before::kText:
      editedString.SetTo(text.string, 0, text.length);
      return;
    case Before::kDecomposed:
      editedString.SetTo(decomposed.string, 0, decomposed.length);
      return;
    case Before::kSpaced:
      editedString.SetTo(spaced.string, 0, spaced.length);
      return;
  }
}
