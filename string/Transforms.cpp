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
  if (!before(units.first, own + edited.getCapacity()) || !before(own, units.first + units.count))
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
  ReplaceAll(body_->text, start, length, oldText.body_->text, oldStart, oldLength,
             newText.body_->text, newStart, newLength);
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
  const icu::UnicodeString oldOperand = Operand(body_->text, oldText, oldStart, oldLength);
  CopyOnWrite();
  ReplaceAll(body_->text, start, length, oldOperand, 0, kZRToEnd, newText.body_->text, newStart,
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
  const icu::UnicodeString newOperand = Operand(body_->text, newText, newStart, newLength);
  CopyOnWrite();
  ReplaceAll(body_->text, start, length, oldText.body_->text, oldStart, oldLength, newOperand, 0,
             kZRToEnd);
  return *this;
}

ZRStringMutator& ZRStringMutator::FindAndReplace(ZRLong start, ZRLong length,
                                                 const unsigned short* oldText, ZRLong oldStart,
                                                 ZRLong oldLength, const unsigned short* newText,
                                                 ZRLong newStart, ZRLong newLength) {
  const icu::UnicodeString oldOperand = Operand(body_->text, oldText, oldStart, oldLength);
  const icu::UnicodeString newOperand = Operand(body_->text, newText, newStart, newLength);
  CopyOnWrite();
  ReplaceAll(body_->text, start, length, oldOperand, 0, kZRToEnd, newOperand, 0, kZRToEnd);
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
    body_->text.swap(normalized);
  }
  return 1;
}

unsigned char ZRStringMutator::PadLeading(ZRLong targetLength, unsigned short padUnit) {
  CopyOnWrite();
  return body_->text.padLeading(targetLength, padUnit);
}

unsigned char ZRStringMutator::PadTrailing(ZRLong targetLength, unsigned short padUnit) {
  CopyOnWrite();
  return body_->text.padTrailing(targetLength, padUnit);
}

unsigned char ZRStringMutator::Truncate(ZRLong targetLength) {
  CopyOnWrite();
  return body_->text.truncate(targetLength);
}

ZRStringMutator& ZRStringMutator::Trim() {
  CopyOnWrite();
  body_->text.trim();
  return *this;
}

ZRStringMutator& ZRStringMutator::Reverse(ZRLong start, ZRLong length) {
  CopyOnWrite();
  body_->text.reverse(start, Resolved(length));
  return *this;
}

ZRStringMutator& ZRStringMutator::ToUpper() {
  CopyOnWrite();
  body_->text.toUpper();
  return *this;
}

ZRStringMutator& ZRStringMutator::ToLower() {
  CopyOnWrite();
  body_->text.toLower();
  return *this;
}
