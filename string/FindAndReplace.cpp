#include <ZRString/ZRStringMutator.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <string>

#include "string/CodeUnits.h"
#include "string/Growth.h"
#include "string/Range.h"
#include "string/Search.h"
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

using Traits = std::char_traits<char16_t>;

Units Behind(Units text, std::int32_t count) { return {text.first + count, text.count - count}; }

/// Writes `text` with every occurrence of `oldText` in its first `searched` units replaced. The
/// result may overlap the text, if nothing is overwritten before it has been read.
void WriteReplaced(Units text, std::int32_t searched, Units oldText, Units newText, char16_t* to) {
  std::int32_t place;
  while ((place = IndexOf({text.first, searched}, oldText)) >= 0) {
    Traits::move(to, text.first, place);
    Traits::copy(to + place, newText.first, newText.count);
    to += place + newText.count;
    text = Behind(text, place + oldText.count);
    searched -= place + oldText.count;
  }
  Traits::move(to, text.first, text.count);
}

/// The room that ICU asks for when a text outgrows a capacity while it grows from `length` to
/// `limit` by `step` units at a time.
std::int32_t GrownCapacity(std::int64_t capacity, std::int64_t length, std::int64_t step,
                           std::int64_t limit) {
  std::int64_t asked = 0;
  while (capacity < limit) {
    length += ((capacity - length) / step + 1) * step;
    asked = std::min<std::int64_t>(length + length / 4 + 128, kMaxLength);
    // ICU adds a zero unit and a 32-bit count, and rounds up to 16 bytes.
    capacity = (((asked + 1) * 2 + 4 + 15) / 16 * 16 - 4) / 2;
  }
  return static_cast<std::int32_t>(asked);
}

/// ICU's findAndReplace(), which in ICU 72 takes quadratic time if the lengths differ: it moves the
/// rest of the text at each match. The storage is what ICU would leave.
void ReplaceAll(icu::UnicodeString& edited, Units range, Units oldText, Units newText) {
  const std::int32_t first = range.first && oldText.count > 0 ? IndexOf(range, oldText) : -1;
  if (first < 0)
    return;
  const Units searched = Behind(range, first);
  Units rest = Behind(searched, oldText.count);
  std::int32_t place = IndexOf(rest, oldText);
  const auto kept = static_cast<std::int32_t>(searched.first - edited.getBuffer());
  if (place < 0)
    return ReplaceUnlessTooLong(edited, kept, oldText.count, newText);
  std::int64_t matches = 1;
  for (; place >= 0; place = IndexOf(rest, oldText)) {
    rest = Behind(rest, place + oldText.count);
    ++matches;
  }
  const Units whole = UnitsOf(edited);
  const std::int64_t step = std::int64_t{newText.count} - oldText.count;
  const std::int64_t grown = whole.count + matches * step;
  if (step > 0 && grown > kMaxGrown)
    return edited.setToBogus();

  const auto length = static_cast<std::int32_t>(grown);
  rest = Behind(whole, kept);
  if (length <= edited.getCapacity()) {
    char16_t* const to = edited.getBuffer(length) + kept;
    if (step > 0)  // reads from the end of the room
      rest.first = Traits::move(to + (length - whole.count), rest.first, rest.count);
    WriteReplaced(rest, searched.count, oldText, newText, to);
    edited.releaseBuffer(length);
    return;
  }
  icu::UnicodeString roomier(GrownCapacity(edited.getCapacity(), whole.count, step, length), 0, 0);
  if (roomier.isBogus())
    roomier = icu::UnicodeString(length, 0, 0);
  char16_t* const to = roomier.getBuffer(length);
  if (!to)
    return edited.setToBogus();
  Traits::copy(to, whole.first, kept);
  WriteReplaced(rest, searched.count, oldText, newText, to + kept);
  roomier.releaseBuffer(length);
  edited.swap(roomier);
}

void ReplaceAll(icu::UnicodeString& edited, ZRLong start, ZRLong length,
                const icu::UnicodeString& oldText, ZRLong oldStart, ZRLong oldLength,
                const icu::UnicodeString& newText, ZRLong newStart, ZRLong newLength) {
  if (!newText.isBogus())
    ReplaceAll(edited, UnitsOf(edited, start, length), UnitsOf(oldText, oldStart, oldLength),
               UnitsOf(newText, newStart, newLength));
}

/// FindAndReplace() where an operand is the string under edit, which would be overwritten while it
/// is read. While a copy shares the body, the edit takes another one; so a string with an open
/// buffer must not come here, whose buffer would be closed. Out of line: inlined, it would make
/// every call set up stack space for the copy.
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
  if ((&oldText == this || &newText == this) && TextOf(body_).getBuffer())
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
  if (&newText == this && TextOf(body_).getBuffer()) {
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
  if (&oldText == this && TextOf(body_).getBuffer()) {
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
