// The table of operations: how a member and a handle function are called, and the model of both.
#include <ZRString/ZRStringStream.h>

#include <new>
#include <stdexcept>

#include "Model.h"
#include "Recorder.h"

namespace {

int Sign(int value) { return (value > 0) - (value < 0); }

/// The text with the range that begins at `start` replaced.
Text Spliced(const Case& c, const Text& range, const Text& part) {
  const auto first = static_cast<std::size_t>(std::clamp<long long>(c.start, 0, c.Size()));
  return c.text.substr(0, first) + part + c.text.substr(first + range.size());
}

/// The index that a search inside the target's own range gives.
ZRLong Found(const Case& c, std::size_t at) {
  return c.part.empty() || at == Text::npos ? -1 : static_cast<ZRLong>(at) + std::max(c.start, 0);
}

Text AllReplaced(Text text, const Text& oldText, const Text& newText) {
  if (oldText.empty())
    return text;
  for (std::size_t at = 0; (at = text.find(oldText, at)) != Text::npos; at += newText.size())
    text.replace(at, oldText.size(), newText);
  return text;
}

template <typename Map>
Text Mapped(Text text, Map map) {
  std::transform(text.begin(), text.end(), text.begin(), map);
  return text;
}

char16_t Lower(char16_t unit) { return unit >= 'A' && unit <= 'Z' ? unit + 32 : unit; }
char16_t Upper(char16_t unit) { return unit >= 'a' && unit <= 'z' ? unit - 32 : unit; }

/// The order of the units that worlds are made of: of the characters first, then of their variants.
int Collated(const Text& left, const Text& right) {
  const Text order = u" *\u20AC2\u00B2abcxyz";
  const auto character = [&](char16_t unit) {
    return static_cast<char16_t>(order.find(unit == 0xB2 ? u'2' : Lower(unit)));
  };
  const auto variant = [&](char16_t unit) { return char16_t(unit == 0xB2 || unit != Lower(unit)); };
  const int characters = Sign(Mapped(left, character).compare(Mapped(right, character)));
  return characters ? characters : Sign(Mapped(left, variant).compare(Mapped(right, variant)));
}

int Compared(const Case& c) {
  return c.options == 3 ? Collated(c.own, c.part)
                        : Sign(Mapped(c.own, Lower).compare(Mapped(c.part, Lower)));
}

Text Trimmed(const Text& text) {
  const auto first = text.find_first_not_of(u' ');
  return first == Text::npos ? Text() : text.substr(first, text.find_last_not_of(u' ') + 1 - first);
}

/// What a handle function returned, where a member returns 1.
long long Done(ZRLong status) { return status == 0 ? 1 : -1000 - status; }

/// The same of one that makes a string.
long long Made(Case& c, ZRLong status) {
  if (c.newString)
    c.made.reset(const_cast<ZRString*>(&GetZRStringFromRef(c.newString)));
  if (c.newMutable)
    c.made.reset(&GetZRStringMutatorFromRef(c.newMutable));
  return Done(status);
}

constexpr std::size_t kRoom = 200;  // in a caller's array, filled with # and used from unit 2

template <typename Call>
Text Written(Call call) {
  Text units(kRoom, u'#');
  call(reinterpret_cast<unsigned short*>(units.data()));
  return units;
}

Text Filled(bool written, const Text& part) {
  return written ? u"##" + part + u'\0' + Text(kRoom - 3 - part.size(), u'#') : Text(kRoom, u'#');
}

/// Writes Zy and a zero unit through the open buffer; whether what was there before still was.
long long FillBuffer(const Case& c, unsigned short* units, ZRLong capacity) {
  if (!units)
    return 0;
  const bool kept = std::equal(c.text.begin(), c.text.end(), units) && capacity >= c.capacity;
  for (const unsigned short unit : {'Z', 'y', '\0'})
    *units++ = unit;
  return kept;
}

/// Whether what `write` puts into a stream is what `read` takes from it.
template <typename Write, typename Read>
bool PassedOn(Write write, Read read) {
  Recorder stream;
  write(stream);
  stream.input.swap(stream.output);
  read(stream);
  return stream.consumed == stream.input.size();
}

bool Inside(const Case& c) {
  return c.index >= 0 && c.index < static_cast<long long>(c.entries.size());
}

/// Puts a new string, a copy of the operand, into the array, which owns its entries here.
template <typename Call>
long long Stored(Case& c, Call call) {
  auto entry = std::make_unique<ZRString>(*c.o);
  const bool stored = call(entry.get());
  if (stored)
    entry.release();
  return stored;
}

/// The same in the place of an entry, which ends.
template <typename Call>
long long Replacing(Case& c, Call call) {
  ZRString* const replaced = Inside(c) ? (*c.a)[c.index] : nullptr;
  const long long stored = Stored(c, call);
  if (stored)
    delete replaced;
  return stored;
}

/// The entry at a valid index, whose ownership passes to the caller.
std::unique_ptr<ZRString> Dropped(Case& c) {
  return std::unique_ptr<ZRString>(Inside(c) ? (*c.a)[c.index] : nullptr);
}

/// A copy's entries are the same pointers, and the array is none the poorer for its end.
bool SameEntries(const Case& c, ZRStringPtrArray& copy) {
  const bool same = std::equal(c.a->Begin(), c.a->End(), copy.Begin(), copy.End());
  copy.EraseAll();
  return same && copy.Empty();
}

/// The text of an entry; 12 question marks, as the status, where there is none.
template <typename Get>
Text EntryText(Get get) {
  try {
    return TextOf(*get());
  } catch (const std::out_of_range&) {
    return Text(12, u'?');
  }
}

Text Unit(const Case& c) { return Text(1, c.unit); }

/// What fills the text up to the capacity.
Text Padding(Case& c) { return c.newPart = Text(std::max(c.capacity - c.Size(), 0LL), c.unit); }

/// The rule for a range of a string: the whole of it is shared.
void ShareWhole(Case& c, ZRLong start) {
  if (start == 0 && (c.oLength == -1 || c.oLength == static_cast<long long>(c.oText.size())))
    c.shared = c.operand;
}

// Operands as a call takes them; each says which units they are.

const unsigned short* Raw(Case& c) { return c.part = c.raw.text, c.raw.units; }

unsigned short* Pattern(Case& c) {
  return const_cast<unsigned short*>(Raw(c) ? c.raw.units + c.raw.start : nullptr);
}

/// Collated, a raw operand is a terminated text unless it is taken from its start.
signed char CompareRaw(Case& c) {
  if (c.options != 3)
    return c.s->ICompare(c.start, c.length, Raw(c), c.raw.start, c.raw.length, 0);
  if (c.oStart == 0)
    return c.s->ICompare(c.start, c.length, Pattern(c), 0, c.raw.length, c.options);
  c.part = Cut(c.z.text, c.oStart, c.oLength);
  return c.s->ICompare(c.start, c.length, c.z.units, c.oStart, c.oLength, c.options);
}

const unsigned short* OldRaw(Case& c) {
  c.part = Cut(c.z.text, c.oStart, c.oLength);
  return c.z.units;
}

const unsigned short* NewRaw(Case& c) {
  c.newPart = Cut(c.y.text, c.pStart, c.pLength);
  return c.y.units;
}

ZRStringRef__* Whole(Case& c) { return c.part = c.oText, c.O(); }

ZRStringRef__* NewWhole(Case& c) { return c.newPart = c.pText, c.p->GetZRStringRef(); }

ZRLong Between(Case& c) {
  c.own = CutBetween(c.text, c.start, c.length);
  c.part = CutBetween(c.oText, c.oStart, c.oLength);
  return c.start;
}

const UniStr255& Record(Case& c) { return c.part = c.raw.text, c.record; }

const unsigned char* Bytes(const Case& c) {
  return reinterpret_cast<const unsigned char*>(c.bytes);
}

}  // namespace

// Arguments: the target's range, an operand with its range, a raw operand, ranges by their ends.
#define ZR_OWN c.start, c.length
#define ZR_SRC *c.o, c.oStart, c.oLength
#define ZR_RAW Raw(c), c.raw.start, c.raw.length
#define ZR_HANDLE c.O(), c.oStart, c.oLength
#define ZR_BETWEEN Between(c), c.length, ZR_SRC
#define ZR_NEW *c.p, c.pStart, c.pLength

// Forms of a call: a number or a text; an edit, which gives its string; a handle function alone,
// with c.number, with a flag; one that writes to units[2] on; the making of a string or a mutator.
#define ZR_GIVES(...) [](Case& c) -> Result { return __VA_ARGS__; }
#define ZR_EDIT(...) [](Case& c) -> Result { return &c.m->__VA_ARGS__ == c.m; }
#define ZR_DO(...) [](Case& c) -> Result { return __VA_ARGS__, 1; }
#define ZR_DONE(...) [](Case& c) -> Result { return Done(__VA_ARGS__); }
#define ZR_NUMBER(...) [](Case& c) -> Result { return (__VA_ARGS__) == 0 ? c.number : -1000; }
#define ZR_FLAG(...)                       \
  [](Case& c) -> Result {                  \
    unsigned char flag = 9;                \
    return (__VA_ARGS__) == 0 ? flag : -1; \
  }
#define ZR_WRITTEN(...) \
  [](Case& c) -> Result { return Written([&](unsigned short* units) { __VA_ARGS__; }); }
#define ZR_MAKE(type, ...) [](Case& c) -> Result { return c.made.reset(new type(__VA_ARGS__)), 1; }
#define ZR_MAKE_EITHER(...)                                     \
  [](Case& c) -> Result {                                       \
    if (c.m)                                                    \
      return c.made.reset(new ZRStringMutator(__VA_ARGS__)), 1; \
    return c.made.reset(new ZRString(__VA_ARGS__)), 1;          \
  }
#define ZR_MADE(...) [](Case& c) -> Result { return Made(c, __VA_ARGS__); }
#define ZR_MADE_EITHER(name, ...)                                          \
  [](Case& c) -> Result {                                                  \
    return Made(c, c.m ? ZRMutableString##name(__VA_ARGS__, &c.newMutable) \
                       : ZRString##name(__VA_ARGS__, &c.newString));       \
  }
#define ZR_STORED(how, ...) \
  [](Case& c) -> Result { return how(c, [&](ZRString* entry) { return __VA_ARGS__; }); }
#define ZR_TEXT(...) [](Case& c) -> Result { return c.text = (__VA_ARGS__), 1; }

const std::vector<Operation>& Operations() {
  static const std::vector<Operation> operations = {
    {"ordering operators", kQuery, ZR_GIVES(c.text == c.oText ? 103 : c.text < c.oText ? 60 : 55),
     {ZR_GIVES(100 * (*c.s == *c.o) + 50 * (*c.s != *c.o) + 8 * (*c.s < *c.o) + 4 * (*c.s > *c.o) +
               2 * (*c.s <= *c.o) + (*c.s >= *c.o))}},
    {"Compare", kQuery, ZR_GIVES(Sign(c.own.compare(c.part))),
     {ZR_GIVES(c.s->Compare(ZR_OWN, ZR_SRC)), ZR_GIVES(c.s->Compare(ZR_OWN, ZR_RAW)),
      ZR_GIVES(c.s->CompareBetween(ZR_BETWEEN)), ZR_GIVES(c.s->CompareCodePointOrder(ZR_OWN, ZR_SRC)),
      ZR_GIVES(c.s->CompareCodePointOrder(ZR_OWN, ZR_RAW)),
      ZR_GIVES(c.s->CompareCodePointOrderBetween(ZR_BETWEEN))},
     {ZR_NUMBER(ZRStringCompare(c.S(), ZR_OWN, ZR_HANDLE, &c.number)),
      ZR_NUMBER(ZRStringCompareCodePointOrder(c.S(), ZR_OWN, ZR_HANDLE, &c.number))}},
    {"ICompare", kQuery, ZR_GIVES(Compared(c)), {ZR_GIVES(c.s->ICompare(ZR_OWN, ZR_SRC, c.options)),
      ZR_GIVES(CompareRaw(c)), ZR_GIVES(c.s->ICompareBetween(ZR_BETWEEN, c.options))},
     {ZR_NUMBER(ZRStringICompare(c.S(), ZR_OWN, ZR_HANDLE, c.options, &c.number))}},
    {"StartsWith", kQuery, ZR_GIVES(c.text.compare(0, c.part.size(), c.part) == 0),
     {ZR_GIVES(c.s->StartsWith(ZR_SRC)), ZR_GIVES(c.s->StartsWith(ZR_RAW))}},
    {"EndsWith", kQuery,
     ZR_GIVES(c.part.size() <= c.text.size() &&
              c.text.substr(c.text.size() - c.part.size()) == c.part),
     {ZR_GIVES(c.s->EndsWith(ZR_SRC)), ZR_GIVES(c.s->EndsWith(ZR_RAW))}},
    {"Find", kQuery, ZR_GIVES(Found(c, c.own.find(c.part))),
     {ZR_GIVES(c.s->Find(ZR_SRC, ZR_OWN)), ZR_GIVES(c.s->Find(ZR_RAW, ZR_OWN))},
     {ZR_NUMBER(ZRStringFind(c.S(), ZR_OWN, Whole(c), &c.number)),
      ZR_NUMBER(ZRStringFindUniChars(c.S(), ZR_OWN, Pattern(c), c.raw.length, &c.number))}},
    {"RFind", kQuery, ZR_GIVES(Found(c, c.own.rfind(c.part))),
     {ZR_GIVES(c.s->RFind(ZR_SRC, ZR_OWN)), ZR_GIVES(c.s->RFind(ZR_RAW, ZR_OWN))},
     {ZR_NUMBER(ZRStringRFind(c.S(), ZR_OWN, Whole(c), &c.number)),
      ZR_NUMBER(ZRStringRFindUniChars(c.S(), ZR_OWN, Pattern(c), c.raw.length, &c.number))}},
    {"LastIndexOf", kQuery, ZR_GIVES(static_cast<int>(c.text.rfind(static_cast<char16_t>(c.unit)))),
     {ZR_GIVES(c.s->LastIndexOf(c.unit))},
     {ZR_NUMBER(c.m ? ZRMutableStringLastIndexOf(c.M(), c.unit, &c.number)
                    : ZRStringLastIndexOf(c.S(), c.unit, &c.number))}},
    {"a unit", kQuery, ZR_GIVES(c.index >= 0 && c.index < c.Size() ? c.text[c.index] : 0xFFFF),
     {ZR_GIVES(c.s->CharAt(c.index)), ZR_GIVES((*c.s)[c.index])}},
    {"GetLength", kQuery, ZR_GIVES(c.Size()), {ZR_GIVES(c.s->GetLength())},
     {ZR_NUMBER(ZRStringGetLength(c.S(), &c.number))}},
    {"IsEmpty", kQuery, ZR_GIVES(c.text.empty()), {ZR_GIVES(c.s->IsEmpty())},
     {ZR_FLAG(ZRStringIsEmpty(c.S(), &flag))}},
    {"Extract", kQuery,
     ZR_GIVES(Filled(c.start >= 0 && c.start <= c.Size() && c.length >= -1, c.own)),
     {ZR_WRITTEN(c.s->Extract(ZR_OWN, units, 2))},
     {ZR_WRITTEN(ZRStringExtractIntoUniChars(c.S(), ZR_OWN, units, 2))}},
    {"ExtractBetween", kQuery,
     ZR_GIVES(Filled(c.start >= 0 && c.start <= std::min(c.length + 1LL, c.Size()), c.own)),
     {ZR_WRITTEN(c.s->ExtractBetween(Between(c), c.length, units, 2))}},
    {"GetUniCharsAt", kQuery,
     [](Case& c) -> Result {
       if (c.index >= 0 && c.index < c.Size())
         return Filled(true, Cut(c.text, c.index, c.count));
       return Filled(false, u"").replace(2, 1, u"\uFFFF");
     },
     {ZR_WRITTEN(ZRStringGetUniCharsAt(c.S(), c.index, c.count, units + 2))}},

    {"SetTo", kEdit, ZR_TEXT(c.part),
     {ZR_EDIT(SetTo(ZR_SRC)), ZR_EDIT(SetTo(Pattern(c), c.raw.length))},
     {ZR_DONE(ZRMutableStringSetToZRString(c.M(), ZR_HANDLE))}},
    {"SetCharAt", kEdit,
     [](Case& c) -> Result {
       if (!c.text.empty())
         c.text[std::clamp<long long>(c.start, 0, c.Size() - 1)] = c.unit;
       return 1;
     },
     {ZR_EDIT(SetCharAt(c.start, c.unit))},
     {ZR_DONE(ZRMutableStringSetUniCharAt(c.M(), c.start, c.unit))}},
    {"+=", kEdit, ZR_TEXT(c.text + Unit(c)), {ZR_EDIT(operator+=(c.unit))}},
    {"Append", kEdit, ZR_TEXT(c.text + c.part), {ZR_EDIT(Append(ZR_SRC)), ZR_EDIT(Append(ZR_RAW)),
      ZR_EDIT(operator+=((Whole(c), *c.o)))}, {ZR_DONE(ZRMutableStringAppend(c.M(), Whole(c))),
      ZR_DONE(ZRMutableStringAppendUniChars(c.M(), ZR_RAW))}},
    {"Insert", kEdit, ZR_TEXT(Spliced(c, u"", c.part)),
     {ZR_EDIT(Insert(c.start, ZR_SRC)), ZR_EDIT(Insert(c.start, ZR_RAW))},
     {ZR_DONE(ZRMutableStringInsert(c.M(), c.start, ZR_HANDLE)),
      ZR_DONE(ZRMutableStringInsertUniChars(c.M(), c.start, ZR_RAW))}},
    {"Replace", kEdit, ZR_TEXT(Spliced(c, c.own, c.part)), {ZR_EDIT(Replace(ZR_OWN, ZR_SRC)),
      ZR_EDIT(Replace(ZR_OWN, ZR_RAW)), ZR_EDIT(ReplaceBetween(ZR_BETWEEN))},
     {ZR_DONE(ZRMutableStringReplaceBetween(c.M(), ZR_OWN, Whole(c))),
      ZR_DONE(ZRMutableStringReplaceWithUniChars(c.M(), ZR_OWN, ZR_RAW))}},
    {"Remove", kEdit, ZR_TEXT(Spliced(c, c.own, u"")),
     {ZR_EDIT(Remove(ZR_OWN)), ZR_EDIT(RemoveBetween(Between(c), c.length))},
     {ZR_DONE(ZRMutableStringRemoveBetween(c.M(), c.length == -1 ? c.start : Between(c),
                                           c.length))}},
    {"FindAndReplace", kEdit, ZR_TEXT(Spliced(c, c.own, AllReplaced(c.own, c.part, c.newPart))),
     {ZR_EDIT(FindAndReplace(ZR_OWN, ZR_SRC, ZR_NEW)),
      ZR_EDIT(FindAndReplace(ZR_OWN, OldRaw(c), c.oStart, c.oLength, ZR_NEW)),
      ZR_EDIT(FindAndReplace(ZR_OWN, ZR_SRC, NewRaw(c), c.pStart, c.pLength)),
      ZR_EDIT(FindAndReplace(ZR_OWN, OldRaw(c), c.oStart, c.oLength, NewRaw(c), c.pStart,
                             c.pLength))},
     {ZR_DONE(ZRMutableStringFindAndReplace(c.M(), ZR_OWN, Whole(c), NewWhole(c)))}},
    {"PadLeading", kEdit, ZR_GIVES(c.text = Padding(c) + c.text, !c.newPart.empty()),
     {ZR_GIVES(c.m->PadLeading(c.capacity, c.unit))},
     {ZR_FLAG(ZRMutableStringPadLeading(c.M(), c.capacity, c.unit, &flag))}},
    {"PadTrailing", kEdit, ZR_GIVES(c.text += Padding(c), !c.newPart.empty()),
     {ZR_GIVES(c.m->PadTrailing(c.capacity, c.unit))},
     {ZR_FLAG(ZRMutableStringPadTrailing(c.M(), c.capacity, c.unit, &flag))}},
    {"Truncate", kEdit,
     [](Case& c) -> Result {
       const bool longer = c.start >= 0 && c.start < c.Size();
       c.text.resize(longer ? c.start : c.text.size());
       return longer;
     },
     {ZR_GIVES(c.m->Truncate(c.start))}, {ZR_FLAG(ZRMutableStringTruncate(c.M(), c.start, &flag))}},
    {"Trim", kEdit, ZR_TEXT(Trimmed(c.text)), {ZR_EDIT(Trim())},
     {ZR_DONE(ZRMutableStringTrim(c.M()))}},
    {"Reverse", kEdit, ZR_TEXT(Spliced(c, c.own, Text(c.own.rbegin(), c.own.rend()))),
     {ZR_EDIT(Reverse(ZR_OWN))}, {ZR_DONE(ZRMutableStringReverse(c.M(), ZR_OWN))}},
    {"ToUpper", kEdit, ZR_TEXT(Mapped(c.text, Upper)), {ZR_EDIT(ToUpper())},
     {ZR_DONE(ZRMutableStringToUpper(c.M()))}},
    {"ToLower", kEdit, ZR_TEXT(Mapped(c.text, Lower)), {ZR_EDIT(ToLower())},
     {ZR_DONE(ZRMutableStringToLower(c.M()))}},
    {"Extract into a mutator", kEdit, ZR_TEXT(Cut(c.eText, c.oStart, c.oLength)),
     {ZR_DO(c.e->Extract(c.oStart, c.oLength, *c.m))}},
    {"ExtractBetween into a mutator", kEdit, ZR_TEXT(CutBetween(c.eText, c.oStart, c.oLength)),
     {ZR_DO(c.e->ExtractBetween(c.oStart, c.oLength, *c.m))}},
    {"assignment of a string", kEdit, ZR_TEXT(c.shared = c.operand, c.oText),
     {ZR_EDIT(operator=(*c.o))}},
    {"assignment of a mutator", kEdit, ZR_TEXT(c.shared = c.editable, c.eText),
     {ZR_EDIT(operator=(*c.e))}},
    {"the open buffer", kEdit, ZR_TEXT(Text(u"Zy").substr(0, c.released)),
     {[](Case& c) -> Result {
       unsigned short* const units = c.m->GetBuffer(c.capacity);
       const long long filled = FillBuffer(c, units, c.m->GetCapacity());
       return c.m->ReleaseBuffer(c.released), filled;
     }},
     {[](Case& c) -> Result {
       unsigned short* units = nullptr;
       ZRMutableStringGetBufferWithCapacity(c.M(), c.capacity, &units);
       ZRMutableStringGetCapacity(c.M(), &c.number);
       const long long filled = FillBuffer(c, units, c.number);
       return ZRMutableStringReleaseBuffer(c.M(), c.released) == 0 ? filled : -1;
     }}},
    {"the terminated buffer", kAttempt, ZR_DO(c.kept = true),
     {[](Case& c) -> Result {
       const unsigned short* const units = c.m->GetTerminatedBuffer();
       return units && Text(units, units + c.text.size() + 1) == c.text + u'\0';
     }}},
    {"Normalize", kAttempt,
     [](Case& c) -> Result {
       const bool compatible = c.mode == kZRNormalizationNFKC || c.mode == kZRNormalizationNFKD;
       const Text normal = AllReplaced(c.text, compatible ? u"\u00B2" : u"", u"2");
       c.kept = normal == c.text;
       return c.text = normal, !c.kept;
     },
     {ZR_GIVES(c.m->Normalize(static_cast<ZRStringNormalizationMode>(c.mode)))}},
    {"a string record", kEdit, ZR_TEXT(c.kept = c.oText.empty(), c.kept ? c.text : c.oText),
     {ZR_GIVES(PassedOn([&](auto& s) { s << *c.o; }, [&](auto& s) { s >> *c.m; }))}},

    {"a string of units", kMake, ZR_TEXT(c.part),
     {ZR_MAKE_EITHER(ZR_RAW), ZR_MAKE_EITHER(Record(c))},
     {ZR_MADE_EITHER(CreateFromUniChars, ZR_RAW)}},
    {"a string of a prefix of units", kMakeString, ZR_TEXT(c.part),
     {ZR_MAKE(ZRString, Pattern(c), c.raw.length)}},
    {"a string of a terminated text", kMakeString, ZR_TEXT(c.z.text),
     {ZR_MAKE(ZRString, c.z.units)},
     {ZR_MADE(ZRStringCreateFromUniChars(c.z.units, 0, -1, &c.newString))}},
    {"a string of bytes", kMake, ZR_TEXT(c.decoded),
     {ZR_MAKE_EITHER(c.bytes, c.byteStart, c.byteLength),
      ZR_MAKE_EITHER(Bytes(c), c.byteStart, c.byteLength)},
     {ZR_MADE_EITHER(CreateFromCString, c.bytes, c.byteStart, c.byteLength),
      ZR_MADE_EITHER(CreateFromLocalString, Bytes(c), c.byteStart, c.byteLength)}},
    {"a copy", kMake, ZR_TEXT(c.shared = c.operand, c.oText),
     {ZR_MAKE_EITHER(*c.o), ZR_MAKE_EITHER(c.O())}, {ZR_MADE_EITHER(CreateCopy, c.O())}},
    {"a copy of a mutator", kMake, ZR_TEXT(c.shared = c.editable, c.eText),
     {ZR_MAKE_EITHER(*c.e), ZR_MAKE_EITHER(c.E())}},
    {"a prefix", kMakeString, ZR_TEXT(ShareWhole(c, 0), Cut(c.oText, 0, c.oLength)),
     {ZR_MAKE(ZRString, *c.o, c.oLength)}},
    {"a range", kMake, ZR_TEXT(ShareWhole(c, c.oStart), c.part), {ZR_MAKE_EITHER(ZR_SRC)},
     {ZR_MADE_EITHER(CreateCopyRange, ZR_HANDLE)}},
    {"an empty mutator", kMakeMutable, ZR_TEXT(Text()),
     {[](Case& c) -> Result { return c.made.reset(new ZRStringMutator), 1; }},
     {ZR_MADE(ZRMutableStringCreateEmpty(&c.newMutable))}},
    {"a sum", kSum, ZR_TEXT(c.oText + c.pText),
     {ZR_MAKE(ZRStringMutator, ZRStringMutator(*c.o) + *c.p)},
     {ZR_MADE(ZRMutableStringAddStrings(c.O(), NewWhole(c), &c.newMutable))}},
    {"string + unit", kSum, ZR_TEXT(c.oText + Unit(c)),
     {ZR_MAKE(ZRStringMutator, *c.o + c.unit)}},
    {"unit + string", kSum, ZR_TEXT(Unit(c) + c.oText),
     {ZR_MAKE(ZRStringMutator, c.unit + *c.o)}},

    {"an entry", kQuery,
     [](Case& c) -> Result {
       if (c.entries.empty())
         return Text(12, u'?');
       return Inside(c) ? c.entries[c.index] : c.entries.back();
     },
     {ZR_GIVES(EntryText([&] { return c.a->GetString(c.index); })),
      ZR_GIVES(EntryText([&] { return (*c.a)[c.index]; })),
      ZR_GIVES(EntryText([&] { return static_cast<const ZRStringPtrArray&>(*c.a)[c.index]; }))},
     {[](Case& c) -> Result {
       const ZRLong status = GetZRStringRefAt(c.A(), c.index, &c.newString);
       return status == 0 ? TextOf(GetZRStringFromRef(c.newString)) : Text(status, u'?');
     }}},
    {"the size", kQuery, ZR_GIVES(static_cast<long long>(c.entries.size())),
     {ZR_GIVES(c.a->Size()), ZR_GIVES(c.a->End() - c.a->Begin())},
     {[](Case& c) -> Result {
       ZRULong size = 9;
       return ZRStringPtrArraySize(c.A(), &size) == 0 ? size : -1LL;
     }}},
    {"emptiness", kQuery, ZR_GIVES(c.entries.empty()), {ZR_GIVES(c.a->Empty())},
     {ZR_FLAG(ZRStringPtrArrayIsEmpty(c.A(), &flag))}},
    {"SetString", kArray, ZR_GIVES(Inside(c) ? c.entries[c.index] = c.oText, 1 : 0),
     {ZR_STORED(Replacing, c.a->SetString(c.index, entry))},
     {ZR_STORED(Replacing, SetZRStringRefAt(c.A(), c.index, entry->GetZRStringRef()) == 0)}},
    {"Insert into the array", kArray,
     ZR_GIVES(Inside(c) ? c.entries.insert(c.entries.begin() + c.index, c.oText), 1 : 0),
     {ZR_STORED(Stored, c.a->Insert(c.index, entry))},
     {ZR_STORED(Stored, InsertZRStringRefAt(c.A(), c.index, entry->GetZRStringRef()) == 0)}},
    {"PushBack", kArray, ZR_DO(c.entries.push_back(c.oText)),
     {ZR_STORED(Stored, (c.a->PushBack(entry), true))},
     {ZR_STORED(Stored, ZRStringPtrArrayPushBack(c.A(), entry->GetZRStringRef()) == 0)}},
    {"Erase", kArray, ZR_GIVES(Inside(c) ? c.entries.erase(c.entries.begin() + c.index), 1 : 0),
     {ZR_GIVES(Dropped(c).reset(), c.a->Erase(c.index), Inside(c))},
     {ZR_GIVES(Dropped(c).reset(), ZRStringPtrArrayErase(c.A(), c.index) == 0)}},
    {"DeleteAll", kArray, ZR_DO(c.entries.clear()), {ZR_DO(c.a->DeleteAll())},
     {ZR_DONE(ZRStringPtrArrayDeleteAll(c.A()))}},
    {"a copy of the array", kArray, [](Case&) -> Result { return 1; },
     {[](Case& c) -> Result {
        ZRStringPtrArray copy(*c.a);
        return SameEntries(c, copy);
      },
      [](Case& c) -> Result {
        ZRStringPtrArray copy;
        copy.PushBack(c.s);
        copy = *c.a;
        return SameEntries(c, copy);
      }},
     {[](Case& c) -> Result {
       ZRStringPtrArrayRef__* copy = nullptr;
       if (ZRStrPtrArrCreateFromZRStrPtrArr(c.A(), &copy) == 12)
         throw std::bad_alloc();
       const bool same = SameEntries(c, *GetZRStringPtrArrayFromRef(copy));
       return ZRStringPtrArrayDestroy(copy) == 0 && same;
     }}},
    {"an array record", kAppend,
     [](Case& c) -> Result {
       const std::vector<Text> copy = c.entries;
       return c.entries.insert(c.entries.end(), copy.begin(), copy.end()), 1;
     },
     {ZR_GIVES(PassedOn([&](auto& s) { s << *c.a; }, [&](auto& s) { s >> *c.a; }))}},

  };
  return operations;
}
