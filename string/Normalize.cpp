#include <ZRString/ZRStringMutator.h>
#include <unicode/normlzr.h>
#include <unicode/unistr.h>

#include <utility>

#include "string/CodeUnits.h"
#include "string/Comparison.h"
#include "string/ZRStringImplementation.h"

namespace {

UNormalizationMode IcuMode(ZRStringNormalizationMode mode) {
  switch (mode) {
    case kZRNormalizationNFC:
      return UNORM_NFC;
    case kZRNormalizationNFKC:
      return UNORM_NFKC;
    case kZRNormalizationNFD:
      return UNORM_NFD;
    case kZRNormalizationNFKD:
      return UNORM_NFKD;
    case kZRNormalizationFCD:
      return UNORM_FCD;
  }
  return UNORM_NONE;
}

/// The least unit that can keep a text out of the form: each unit below it is in the form, alone
/// and next to any other below it. Sequences of them have neither a mark to reorder nor a pair to
/// compose. 0 for no form.
constexpr char16_t FirstUncertain(ZRStringNormalizationMode mode) {
  switch (mode) {
    case kZRNormalizationNFC:
    case kZRNormalizationFCD:
      return 0x0300;  // the first combining mark
    case kZRNormalizationNFD:
      return 0x00C0;  // the first letter that decomposes
    case kZRNormalizationNFKC:
    case kZRNormalizationNFKD:
      return 0x00A0;  // the no-break space
  }
  return 0;
}

/// Whether a text is certainly in a form already, and need not be checked by ICU.
bool IsCertain(Units text, ZRStringNormalizationMode mode) {
  const char16_t limit = FirstUncertain(mode);
  return text.first && AreBelow(text, limit);
}

}  // namespace

unsigned char ZRStringMutator::Normalize(ZRStringNormalizationMode mode) {
  const ZRLong length = GetLength();
  const char16_t* const units = ToIcu(GetBuffer());
  if (IsCertain({units, length}, mode))
    return 0;
  const icu::UnicodeString current(false, units, length);  // an alias, not a copy
  const UNormalizationMode icuMode = IcuMode(mode);
  UErrorCode status = U_ZERO_ERROR;
  if (icu::Normalizer::quickCheck(current, icuMode, status) == UNORM_YES)
    return 0;
  icu::UnicodeString normalized;
  icu::Normalizer::normalize(current, icuMode, 0, normalized, status);
  if (U_FAILURE(status) || normalized.isBogus())
    return 0;
  // Takes the result over, because copying it into the text could fail and lose the text.
  if (body_->IsShared()) {
    auto* const body = new ZRStringImplementation(std::move(normalized));
    body_->GiveUpShare();
    body_ = body;
  } else {
    TextOf(body_).swap(normalized);
  }
  return 1;
}
