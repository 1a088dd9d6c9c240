#include <ZRString/ZRStringMutator.h>
#include <unicode/unistr.h>

#include <functional>

#include "string/CodeUnits.h"
#include "string/Range.h"
#include "string/ZRStringImplementation.h"

namespace {

/// A raw operand for an edit of `edited`: an alias of the caller's units, or a copy if they lie in
/// the storage of `edited`, where the edit may change them.
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
    ThrowBadAlloc();
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
