#include <ZRString/ZRStringMutator.h>
#include <unicode/normlzr.h>

#include <functional>
#include <new>
#include <utility>

#include "string/CodeUnits.h"
#include "string/Range.h"
#include "string/ZRStringImplementation.h"

// The members of ZRStringMutator that work on every occurrence of a text or on the whole text.

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

/// The operand that a raw text is for an edit of `edited`: the caller's own units, without a copy,
/// unless the edit may change them.
icu::UnicodeString Operand(const icu::UnicodeString& edited, const unsigned short* text,
                           ZRLong start, ZRLong length) {
  const Units units = TerminatedUnits(text, start, length);
  const char16_t* const own = edited.getBuffer();
  const std::less<const char16_t*> before;
  const bool isOwn = own && before(units.first, own + edited.getCapacity()) &&
                     before(own, units.first + units.count);
  if (!isOwn)
    return icu::UnicodeString(false, units.first, units.count);
  icu::UnicodeString copy(units.first, units.count);
  if (copy.isBogus())
    throw std::bad_alloc();
  return copy;
}

void ReplaceAll(icu::UnicodeString& edited, ZRLong start, ZRLong length,
                const icu::UnicodeString& oldText, ZRLong oldStart, ZRLong oldLength,
                const icu::UnicodeString& newText, ZRLong newStart, ZRLong newLength) {
  edited.findAndReplace(start, Resolved(length), oldText, oldStart, Resolved(oldLength), newText,
                        newStart, Resolved(newLength));
}

/// FindAndReplace() where an operand is the string under edit: ICU 72 reads the operands anew at
/// each match, and so would read its own replacements. While a copy shares the body, the edit takes
/// another one. Out of line: inlined, it would make every call set up stack space for the copy.
[[gnu::noinline, gnu::cold]] ZRStringMutator& ReplaceAllByItself(
    ZRStringMutator& edited, ZRLong start, ZRLong length, const ZRString& oldText, ZRLong oldStart,
    ZRLong oldLength, const ZRString& newText, ZRLong newStart, ZRLong newLength) {
  const ZRString before(edited);
  return edited.FindAndReplace(start, length, &oldText == &edited ? before : oldText, oldStart,
                               oldLength, &newText == &edited ? before : newText, newStart,
                               newLength);
}

}  // namespace

ZRStringMutator& ZRStringMutator::FindAndReplace(ZRLong start, ZRLong length,
                                                 const ZRString& oldText, ZRLong oldStart,
                                                 ZRLong oldLength, const ZRString& newText,
                                                 ZRLong newStart, ZRLong newLength) {
  if (&oldText == this || &newText == this)
    return ReplaceAllByItself(*this, start, length, oldText, oldStart, oldLength, newText, newStart,
                              newLength);
  CopyOnWrite();
  ReplaceAll(TextOf(body_), start, length, TextOf(oldText.body_), oldStart, oldLength,
             TextOf(newText.body_), newStart, newLength);
  return *this;
}

ZRStringMutator& ZRStringMutator::FindAndReplace(ZRLong start, ZRLong length,
                                                 const unsigned short* oldText, ZRLong oldStart,
                                                 ZRLong oldLength, const ZRString& newText,
                                                 ZRLong newStart, ZRLong newLength) {
  if (&newText == this) {
    const ZRString before(*this);
    return FindAndReplace(start, length, oldText, oldStart, oldLength, before, newStart, newLength);
  }
  const icu::UnicodeString oldOperand = Operand(TextOf(body_), oldText, oldStart, oldLength);
  CopyOnWrite();
  ReplaceAll(TextOf(body_), start, length, oldOperand, 0, kZRToEnd, TextOf(newText.body_), newStart,
             newLength);
  return *this;
}

ZRStringMutator& ZRStringMutator::FindAndReplace(ZRLong start, ZRLong length,
                                                 const ZRString& oldText, ZRLong oldStart,
                                                 ZRLong oldLength, const unsigned short* newText,
                                                 ZRLong newStart, ZRLong newLength) {
  if (&oldText == this) {
    const ZRString before(*this);
    return FindAndReplace(start, length, before, oldStart, oldLength, newText, newStart, newLength);
  }
  const icu::UnicodeString newOperand = Operand(TextOf(body_), newText, newStart, newLength);
  CopyOnWrite();
  ReplaceAll(TextOf(body_), start, length, TextOf(oldText.body_), oldStart, oldLength, newOperand,
             0, kZRToEnd);
  return *this;
}

ZRStringMutator& ZRStringMutator::FindAndReplace(ZRLong start, ZRLong length,
                                                 const unsigned short* oldText, ZRLong oldStart,
                                                 ZRLong oldLength, const unsigned short* newText,
                                                 ZRLong newStart, ZRLong newLength) {
  const icu::UnicodeString oldOperand = Operand(TextOf(body_), oldText, oldStart, oldLength);
  const icu::UnicodeString newOperand = Operand(TextOf(body_), newText, newStart, newLength);
  CopyOnWrite();
  ReplaceAll(TextOf(body_), start, length, oldOperand, 0, kZRToEnd, newOperand, 0, kZRToEnd);
  return *this;
}

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
  // The result becomes the text as it is. A copy of it into the text could fail, and the text would
  // be lost.
  if (body_->IsShared()) {
    auto* const body = new ZRStringImplementation(std::move(normalized));
    body_->GiveUpShare();
    body_ = body;
  } else {
    TextOf(body_).swap(normalized);
  }
  return 1;
}

unsigned char ZRStringMutator::PadLeading(ZRLong targetLength, unsigned short padUnit) {
  CopyOnWrite();
  return TextOf(body_).padLeading(targetLength, padUnit);
}

unsigned char ZRStringMutator::PadTrailing(ZRLong targetLength, unsigned short padUnit) {
  CopyOnWrite();
  return TextOf(body_).padTrailing(targetLength, padUnit);
}

unsigned char ZRStringMutator::Truncate(ZRLong targetLength) {
  CopyOnWrite();
  return TextOf(body_).truncate(targetLength);
}

ZRStringMutator& ZRStringMutator::Trim() {
  CopyOnWrite();
  TextOf(body_).trim();
  return *this;
}

ZRStringMutator& ZRStringMutator::Reverse(ZRLong start, ZRLong length) {
  CopyOnWrite();
  TextOf(body_).reverse(start, Resolved(length));
  return *this;
}

ZRStringMutator& ZRStringMutator::ToUpper() {
  CopyOnWrite();
  TextOf(body_).toUpper();
  return *this;
}

ZRStringMutator& ZRStringMutator::ToLower() {
  CopyOnWrite();
  TextOf(body_).toLower();
  return *this;
}
