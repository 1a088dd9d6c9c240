#include <ZRString/ZRStringMutator.h>
#include <unicode/normlzr.h>
#include <unicode/unistr.h>

#include <utility>

#include "string/CodeUnits.h"
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

}  // namespace

unsigned char ZRStringMutator::Normalize(ZRStringNormalizationMode mode) {
  const ZRLong length = GetLength();
  const icu::UnicodeString current(false, ToIcu(GetBuffer()), length);  // an alias, not a copy
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
