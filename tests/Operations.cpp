// The table of operations: calls of a member and of its handle function, and their model.
#include <ZRString/ZRStringStream.h>

#include <new>
#include <stdexcept>

#include "Recorder.h"
#include "World.h"

namespace {

int Sign(int value) { return (value > 0) - (value < 0); }

/// The text with the range that begins at `start` replaced.
Text Spliced(const Case& c, const Text& range, const Text& part) {
  const auto first = static_cast<std::size_t>(std::clamp<long long>(c.t.start, 0, c.Size()));
  return c.t.text.substr(0, first) + part + c.t.text.substr(first + range.size());
}

/// The result of a search in the target's range.
ZRLong Found(const Case& c, std::size_t at) {
  return c.o.part.empty() || at == Text::npos
             ? -1
             : static_cast<ZRLong>(at) + std::max<ZRLong>(c.t.start, 0);
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

/// Collation of the units that worlds consist of: by characters first, then by their variants.
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
  return c.options == 3 ? Collated(c.t.part, c.o.part)
                        : Sign(Mapped(c.t.part, Lower).compare(Mapped(c.o.part, Lower)));
}

Text Trimmed(const Text& text) {
  const auto first = text.find_first_not_of(u' ');
  return first == Text::npos ? Text() : text.substr(first, text.find_last_not_of(u' ') + 1 - first);
}

Text Give(long long number) {
  const std::string digits = std::to_string(number);
  return Text(digits.begin(), digits.end());
}

Text Give(Text text) { return text; }

// Operands in the forms that calls take. Each function also sets the units that are meant.

const unsigned short* Raw(Case& c) { return c.o.part = c.raw.part, c.raw.units; }

unsigned short* Pattern(Case& c) {
  return const_cast<unsigned short*>(Raw(c) ? c.raw.units + c.raw.start : nullptr);
}

const UniStr255& Record(Case& c) { return c.o.part = c.raw.part, c.record; }

const unsigned short* Terminated(Case& c) { return c.o.part = c.z.part, c.z.units; }

const unsigned short* OldRaw(Case& c) {
  return c.o.part = Cut(c.z.part, c.o.start, c.o.length), c.z.units;
}

const unsigned short* NewRaw(Case& c) {
  return c.p.part = Cut(c.y.part, c.p.start, c.p.length), c.y.units;
}

/// For collation a raw operand must be terminated if its start is not 0.
signed char CompareRaw(Case& c) {
  if (c.options != 3)
    return c.t->ICompare(c.t.start, c.t.length, Raw(c), c.raw.start, c.raw.length, 0);
  if (c.o.start == 0)
    return c.t->ICompare(c.t.start, c.t.length, Pattern(c), 0, c.raw.length, c.options);
  return c.t->ICompare(c.t.start, c.t.length, OldRaw(c), c.o.start, c.o.length, c.options);
}

ZRStringRef__* Whole(Operand& operand) { return operand.part = operand.text, operand.Handle(); }

ZRLong Between(Operand& operand) {
  operand.part = CutBetween(operand.text, operand.start, operand.length);
  return operand.start;
}

ZRLong Prefix(Case& c) {
  c.o.start = 0;
  c.o.part = Cut(c.o.text, 0, c.o.length);
  return c.o.length;
}

unsigned short Unit(const Case& c, Text& text) { return text = Text(1, c.unit), c.unit; }

ZRStringMutator& Editable(Case& c) {
  c.o = c.e;
  return static_cast<ZRStringMutator&>(*c.o);
}

/// The units that pad the target to the capacity.
Text Padding(Case& c) { return c.p.part = Text(std::max(c.capacity - c.Size(), 0LL), c.unit); }

/// The index of the unit that SetCharAt() replaces.
std::size_t Pinned(const Case& c) { return std::clamp<long long>(c.t.start, 0, c.Size() - 1); }

/// A range of a string. A range that is the whole string shares its body.
Text RangeOf(Case& c) {
  const auto size = static_cast<ZRLong>(c.o.text.size());
  if (c.o.start == 0 && (c.o.length == -1 || c.o.length == size))
    c.shared = c.o.slot;
  return c.o.part;
}

/// Takes ownership of the string that a create function made.
ZRLong Made(Case& c, ZRLong status) {
  if (c.newString)
    c.made.reset(const_cast<ZRString*>(&GetZRStringFromRef(c.newString)));
  if (c.newMutable)
    c.made.reset(&GetZRStringMutatorFromRef(c.newMutable));
  return status;
}

constexpr std::size_t kRoom = 200;  // of a caller's array, filled with #; calls write from unit 2

template <typename Call>
Text Written(Call call) {
  Text units(kRoom, u'#');
  call(reinterpret_cast<unsigned short*>(units.data()));
  return units;
}

Text Filled(bool written, const Text& part) {
  return written ? u"##" + part + u'\0' + Text(kRoom - 3 - part.size(), u'#') : Text(kRoom, u'#');
}

/// Writes Zy and a zero unit into the open buffer. @return whether it held the old text
bool FillBuffer(const Case& c, unsigned short* units, ZRLong capacity) {
  const Text& text = c.t.text;
  const bool kept = units && std::equal(text.begin(), text.end(), units) && capacity >= c.capacity;
  if (units)
    std::copy_n(u"Zy", 3, units);
  return kept;
}

/// Whether `read` takes exactly what `write` puts into a stream.
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

/// Whether an array function accepted an index that may be outside the array.
bool Took(ZRLong status) {
  EXPECT_TRUE(status == 0 || status == 12) << status;
  return status == 0;
}

/// Puts a new copy of the operand into the array, which owns its entries here.
template <typename Call>
bool Stored(Case& c, Call call) {
  auto entry = std::make_unique<ZRString>(*c.o);
  return call(entry.get()) && entry.release();
}

/// The entry at a valid index; the caller becomes its owner.
std::unique_ptr<ZRString> Dropped(Case& c) {
  return std::unique_ptr<ZRString>(Inside(c) ? (*c.a)[c.index] : nullptr);
}

/// As Stored(), but replaces an entry, which is destroyed.
template <typename Call>
bool Replacing(Case& c, Call call) {
  const ZRString* const replaced = Inside(c) ? (*c.a)[c.index] : nullptr;
  const bool stored = Stored(c, call);
  if (stored)
    delete replaced;
  return stored;
}

/// The text of an entry, or 12 (the status) question marks if there is none.
template <typename Get>
Text EntryText(Get get) {
  try {
    return TextOf(*get());
  } catch (const std::out_of_range& error) {
    return Text(12, std::strcmp(error.what(), "invalid vector<T> subscript") ? u'!' : u'?');
  }
}

/// Whether a copy of the array has the same pointers.
bool SameEntries(const Case& c, const ZRStringPtrArray& copy) {
  return std::equal(c.a->Begin(), c.a->End(), copy.Begin(), copy.End());
}

}  // namespace

// Arguments: the target's range, an operand with its range, its handle with its range, inclusive
// ends, the second operand, and raw operands.
#define ZR_OWN c.t.start, c.t.length
#define ZR_SRC *c.o, c.o.start, c.o.length
#define ZR_HANDLE c.o.Handle(), c.o.start, c.o.length
#define ZR_BETWEEN Between(c.t), c.t.length, *c.o, Between(c.o), c.o.length
#define ZR_NEW *c.p, c.p.start, c.p.length
#define ZR_RAW Raw(c), c.raw.start, c.raw.length
#define ZR_OLD_RAW OldRaw(c), c.o.start, c.o.length
#define ZR_NEW_RAW NewRaw(c), c.p.start, c.p.length
#define ZR_CHARS c.bytes.units, c.bytes.start, c.bytes.length
#define ZR_BYTES \
  reinterpret_cast<const unsigned char*>(c.bytes.units), c.bytes.start, c.bytes.length

// Forms of a call. A call without a result gives 1, and so does a status of 0.
#define ZR_IS(...) [](Case& c) -> Text { return Give(__VA_ARGS__); }
#define ZR_EDIT(...) ZR_IS(&c.m->__VA_ARGS__ == c.m)
#define ZR_DO(...) ZR_IS((__VA_ARGS__, 1))
#define ZR_DONE(...) ZR_IS((__VA_ARGS__) == 0)
#define ZR_NUMBER(...) ZR_IS((__VA_ARGS__) == 0 ? c.number : -1000)
#define ZR_FLAG(...) ZR_IS((__VA_ARGS__) == 0 ? c.flag : -1000)
#define ZR_WRITTEN(...) ZR_IS(Written([&](unsigned short* units) { __VA_ARGS__; }))
#define ZR_MAKE(...) \
  ZR_DO(c.made.reset(c.m ? new ZRStringMutator(__VA_ARGS__) : new ZRString(__VA_ARGS__)))
#define ZR_MADE(name, ...)                                                \
  ZR_DONE(Made(c, c.m ? ZRMutableString##name(__VA_ARGS__, &c.newMutable) \
                      : ZRString##name(__VA_ARGS__, &c.newString)))
#define ZR_STORED(how, ...) ZR_IS(how(c, [&](ZRString* entry) { return __VA_ARGS__; }))
#define ZR_TEXT(...) ZR_DO(c.t.text = (__VA_ARGS__))

const std::vector<Operation>& Operations() {
  static const std::vector<Operation> operations = {
    {"ordering operators", kQuery,
     ZR_IS(c.t.text == c.o.text ? 103 : c.t.text < c.o.text ? 60 : 55),
     {ZR_IS(100 * (*c.t == *c.o) + 50 * (*c.t != *c.o) + 8 * (*c.t < *c.o) + 4 * (*c.t > *c.o) +
            2 * (*c.t <= *c.o) + (*c.t >= *c.o))}},
    {"Compare", kQuery, ZR_IS(Sign(c.t.part.compare(c.o.part))),
     {ZR_IS(c.t->Compare(ZR_OWN, ZR_SRC)), ZR_IS(c.t->Compare(ZR_OWN, ZR_RAW)),
      ZR_IS(c.t->CompareBetween(ZR_BETWEEN)), ZR_IS(c.t->CompareCodePointOrder(ZR_OWN, ZR_SRC)),
      ZR_IS(c.t->CompareCodePointOrder(ZR_OWN, ZR_RAW)),
      ZR_IS(c.t->CompareCodePointOrderBetween(ZR_BETWEEN))},
     {ZR_NUMBER(ZRStringCompare(c.t.Handle(), ZR_OWN, ZR_HANDLE, &c.number)),
      ZR_NUMBER(ZRStringCompareCodePointOrder(c.t.Handle(), ZR_OWN, ZR_HANDLE, &c.number))}},
    {"ICompare", kQuery, ZR_IS(Compared(c)),
     {ZR_IS(c.t->ICompare(ZR_OWN, ZR_SRC, c.options)), ZR_IS(CompareRaw(c)),
      ZR_IS(c.t->ICompareBetween(ZR_BETWEEN, c.options))},
     {ZR_NUMBER(ZRStringICompare(c.t.Handle(), ZR_OWN, ZR_HANDLE, c.options, &c.number))}},
    {"StartsWith", kQuery, ZR_IS(c.t.text.compare(0, c.o.part.size(), c.o.part) == 0),
     {ZR_IS(c.t->StartsWith(ZR_SRC)), ZR_IS(c.t->StartsWith(ZR_RAW))}},
    {"EndsWith", kQuery,
     ZR_IS(std::equal(c.o.part.rbegin(), c.o.part.rend(), c.t.text.rbegin(),
                      c.t.text.rbegin() + std::min(c.o.part.size(), c.t.text.size()))),
     {ZR_IS(c.t->EndsWith(ZR_SRC)), ZR_IS(c.t->EndsWith(ZR_RAW))}},
    {"Find", kQuery, ZR_IS(Found(c, c.t.part.find(c.o.part))),
     {ZR_IS(c.t->Find(ZR_SRC, ZR_OWN)), ZR_IS(c.t->Find(ZR_RAW, ZR_OWN))},
     {ZR_NUMBER(ZRStringFind(c.t.Handle(), ZR_OWN, Whole(c.o), &c.number)),
      ZR_NUMBER(ZRStringFindUniChars(c.t.Handle(), ZR_OWN, Pattern(c), c.raw.length, &c.number))}},
    {"RFind", kQuery, ZR_IS(Found(c, c.t.part.rfind(c.o.part))),
     {ZR_IS(c.t->RFind(ZR_SRC, ZR_OWN)), ZR_IS(c.t->RFind(ZR_RAW, ZR_OWN))},
     {ZR_NUMBER(ZRStringRFind(c.t.Handle(), ZR_OWN, Whole(c.o), &c.number)),
      ZR_NUMBER(ZRStringRFindUniChars(c.t.Handle(), ZR_OWN, Pattern(c), c.raw.length, &c.number))}},
    {"LastIndexOf", kQuery, ZR_IS(static_cast<int>(c.t.text.rfind(char16_t(c.unit)))),
     {ZR_IS(c.t->LastIndexOf(c.unit))},
     {ZR_NUMBER(c.m ? ZRMutableStringLastIndexOf(c.M(), c.unit, &c.number)
                    : ZRStringLastIndexOf(c.t.Handle(), c.unit, &c.number))}},
    {"a unit", kQuery, ZR_IS(c.index >= 0 && c.index < c.Size() ? c.t.text[c.index] : 0xFFFF),
     {ZR_IS(c.t->CharAt(c.index)), ZR_IS((*c.t)[c.index])}},
    {"GetLength", kQuery, ZR_IS(c.Size()), {ZR_IS(c.t->GetLength())},
     {ZR_NUMBER(ZRStringGetLength(c.t.Handle(), &c.number))}},
    {"IsEmpty", kQuery, ZR_IS(c.t.text.empty()), {ZR_IS(c.t->IsEmpty())},
     {ZR_FLAG(ZRStringIsEmpty(c.t.Handle(), &c.flag))}},
    {"Extract", kQuery,
     ZR_IS(Filled(c.t.start >= 0 && c.t.start <= c.Size() && c.t.length >= -1, c.t.part)),
     {ZR_WRITTEN(c.t->Extract(ZR_OWN, units, 2))},
     {ZR_WRITTEN(ZRStringExtractIntoUniChars(c.t.Handle(), ZR_OWN, units, 2))}},
    {"ExtractBetween", kQuery,
     ZR_IS(Filled(c.t.start >= 0 && c.t.start <= std::min(c.t.length + 1LL, c.Size()), c.t.part)),
     {ZR_WRITTEN(c.t->ExtractBetween(Between(c.t), c.t.length, units, 2))}},
    {"GetUniCharsAt", kQuery,
     ZR_IS(c.index >= 0 && c.index < c.Size()
               ? Filled(true, Cut(c.t.text, c.index, c.count))
               : Filled(false, u"").replace(2, 1, u"\uFFFF")),
     {ZR_WRITTEN(ZRStringGetUniCharsAt(c.t.Handle(), c.index, c.count, units + 2))}},

    {"SetTo", kEdit, ZR_TEXT(c.o.part),
     {ZR_EDIT(SetTo(ZR_SRC)), ZR_EDIT(SetTo(Pattern(c), c.raw.length)),
      ZR_DO(Editable(c).Extract(c.o.start, c.o.length, *c.m)),
      ZR_DO(Editable(c).ExtractBetween(Between(c.o), c.o.length, *c.m))},
     {ZR_DONE(ZRMutableStringSetToZRString(c.M(), ZR_HANDLE))}},
    {"SetCharAt", kEdit,
     ZR_TEXT(c.t.text.empty() ? u"" : c.t.text.replace(Pinned(c), 1, 1, c.unit)),
     {ZR_EDIT(SetCharAt(c.t.start, c.unit))},
     {ZR_DONE(ZRMutableStringSetUniCharAt(c.M(), c.t.start, c.unit))}},
    {"Append", kEdit, ZR_TEXT(c.t.text + c.o.part),
     {ZR_EDIT(Append(ZR_SRC)), ZR_EDIT(Append(ZR_RAW)), ZR_EDIT(operator+=((Whole(c.o), *c.o))),
      ZR_EDIT(operator+=(Unit(c, c.o.part)))},
     {ZR_DONE(ZRMutableStringAppend(c.M(), Whole(c.o))),
      ZR_DONE(ZRMutableStringAppendUniChars(c.M(), ZR_RAW))}},
    {"Insert", kEdit, ZR_TEXT(Spliced(c, u"", c.o.part)),
     {ZR_EDIT(Insert(c.t.start, ZR_SRC)), ZR_EDIT(Insert(c.t.start, ZR_RAW))},
     {ZR_DONE(ZRMutableStringInsert(c.M(), c.t.start, ZR_HANDLE)),
      ZR_DONE(ZRMutableStringInsertUniChars(c.M(), c.t.start, ZR_RAW))}},
    {"Replace", kEdit, ZR_TEXT(Spliced(c, c.t.part, c.o.part)),
     {ZR_EDIT(Replace(ZR_OWN, ZR_SRC)), ZR_EDIT(Replace(ZR_OWN, ZR_RAW)),
      ZR_EDIT(ReplaceBetween(ZR_BETWEEN))},
     {ZR_DONE(ZRMutableStringReplaceBetween(c.M(), ZR_OWN, Whole(c.o))),
      ZR_DONE(ZRMutableStringReplaceWithUniChars(c.M(), ZR_OWN, ZR_RAW))}},
    {"Remove", kEdit, ZR_TEXT(Spliced(c, c.t.part, u"")),
     {ZR_EDIT(Remove(ZR_OWN)), ZR_EDIT(RemoveBetween(Between(c.t), c.t.length))},
     {ZR_DONE(ZRMutableStringRemoveBetween(c.M(), c.t.length == -1 ? c.t.start : Between(c.t),
                                           c.t.length))}},
    {"FindAndReplace", kEdit,
     ZR_TEXT(Spliced(c, c.t.part, AllReplaced(c.t.part, c.o.part, c.p.part))),
     {ZR_EDIT(FindAndReplace(ZR_OWN, ZR_SRC, ZR_NEW)),
      ZR_EDIT(FindAndReplace(ZR_OWN, ZR_OLD_RAW, ZR_NEW)),
      ZR_EDIT(FindAndReplace(ZR_OWN, ZR_SRC, ZR_NEW_RAW)),
      ZR_EDIT(FindAndReplace(ZR_OWN, ZR_OLD_RAW, ZR_NEW_RAW))},
     {ZR_DONE(ZRMutableStringFindAndReplace(c.M(), ZR_OWN, Whole(c.o), Whole(c.p)))}},
    {"PadLeading", kEdit, ZR_IS((c.t.text = Padding(c) + c.t.text, !c.p.part.empty())),
     {ZR_IS(c.m->PadLeading(c.capacity, c.unit))},
     {ZR_FLAG(ZRMutableStringPadLeading(c.M(), c.capacity, c.unit, &c.flag))}},
    {"PadTrailing", kEdit, ZR_IS((c.t.text += Padding(c), !c.p.part.empty())),
     {ZR_IS(c.m->PadTrailing(c.capacity, c.unit))},
     {ZR_FLAG(ZRMutableStringPadTrailing(c.M(), c.capacity, c.unit, &c.flag))}},
    {"Truncate", kEdit,
     ZR_IS(c.t.start >= 0 && c.t.start < c.Size() ? (c.t.text.resize(c.t.start), 1) : 0),
     {ZR_IS(c.m->Truncate(c.t.start))},
     {ZR_FLAG(ZRMutableStringTruncate(c.M(), c.t.start, &c.flag))}},
    {"Trim", kEdit, ZR_TEXT(Trimmed(c.t.text)), {ZR_EDIT(Trim())},
     {ZR_DONE(ZRMutableStringTrim(c.M()))}},
    {"Reverse", kEdit, ZR_TEXT(Spliced(c, c.t.part, Text(c.t.part.rbegin(), c.t.part.rend()))),
     {ZR_EDIT(Reverse(ZR_OWN))}, {ZR_DONE(ZRMutableStringReverse(c.M(), ZR_OWN))}},
    {"ToUpper", kEdit, ZR_TEXT(Mapped(c.t.text, Upper)), {ZR_EDIT(ToUpper())},
     {ZR_DONE(ZRMutableStringToUpper(c.M()))}},
    {"ToLower", kEdit, ZR_TEXT(Mapped(c.t.text, Lower)), {ZR_EDIT(ToLower())},
     {ZR_DONE(ZRMutableStringToLower(c.M()))}},
    {"assignment", kEdit, ZR_TEXT(c.shared = c.o.slot, c.o.text),
     {ZR_EDIT(operator=(*c.o)), ZR_EDIT(operator=(Editable(c)))}},
    {"the open buffer", kEdit, ZR_TEXT(Text(u"Zy").substr(0, c.released)),
     {[](Case& c) -> Text {
       unsigned short* const units = c.m->GetBuffer(c.capacity);
       const bool filled = FillBuffer(c, units, c.m->GetCapacity());
       return c.m->ReleaseBuffer(c.released), Give(filled);
     }},
     {[](Case& c) -> Text {
       unsigned short* units = nullptr;
       ZRMutableStringGetBufferWithCapacity(c.M(), c.capacity, &units);
       ZRMutableStringGetCapacity(c.M(), &c.number);
       const bool filled = FillBuffer(c, units, c.number);
       return Give(ZRMutableStringReleaseBuffer(c.M(), c.released) == 0 && filled);
     }}},
    {"the terminated buffer", kAttempt, ZR_DO(c.kept = true),
     {[](Case& c) -> Text {
       const unsigned short* const units = c.m->GetTerminatedBuffer();
       return Give(units && Text(units, units + c.Size() + 1) == c.t.text + u'\0');
     }}},
    {"Normalize", kAttempt,
     [](Case& c) -> Text {
       const bool compatible = c.mode == kZRNormalizationNFKC || c.mode == kZRNormalizationNFKD;
       const Text normal = AllReplaced(c.t.text, compatible ? u"\u00B2" : u"", u"2");
       c.kept = normal == c.t.text;
       return c.t.text = normal, Give(!c.kept);
     },
     {ZR_IS(c.m->Normalize(static_cast<ZRStringNormalizationMode>(c.mode)))}},
    {"a string record", kEdit, ZR_TEXT(c.kept = c.o.text.empty(), c.kept ? c.t.text : c.o.text),
     {ZR_IS(PassedOn([&](auto& s) { s << *c.o; }, [&](auto& s) { s >> *c.m; }))}},

    {"a string of units", kMake, ZR_TEXT(c.o.part),
     {ZR_MAKE(ZR_RAW), ZR_MAKE(Record(c)), ZR_MAKE(ZRString(Pattern(c), c.raw.length)),
      ZR_MAKE(ZRString(Terminated(c)))},
     {ZR_MADE(CreateFromUniChars, ZR_RAW),
      ZR_DONE(Made(c, c.m ? ZRMutableStringCreateFromUniChars(ZR_RAW, &c.newMutable)
                          : ZRStringCreateFromUniChars(Terminated(c), 0, -1, &c.newString)))}},
    {"a string of bytes", kMake, ZR_TEXT(c.bytes.part), {ZR_MAKE(ZR_CHARS), ZR_MAKE(ZR_BYTES)},
     {ZR_MADE(CreateFromCString, ZR_CHARS), ZR_MADE(CreateFromLocalString, ZR_BYTES)}},
    {"a copy", kMake, ZR_TEXT(c.shared = c.o.slot, c.o.text),
     {ZR_MAKE(*c.o), ZR_MAKE(c.o.Handle()), ZR_MAKE(Editable(c)),
      ZR_MAKE(Editable(c).GetZRMutableStringRef())},
     {ZR_MADE(CreateCopy, c.o.Handle())}},
    {"a range", kMake, ZR_TEXT(RangeOf(c)), {ZR_MAKE(ZR_SRC), ZR_MAKE(ZRString(*c.o, Prefix(c)))},
     {ZR_MADE(CreateCopyRange, ZR_HANDLE)}},
    {"an empty string", kMake, ZR_TEXT(u""),
     {ZR_MAKE(ZRStringMutator()), ZR_MAKE(static_cast<ZRStringRef__*>(nullptr))},
     {ZR_DONE(Made(c, c.m ? ZRMutableStringCreateEmpty(&c.newMutable)
                          : ZRStringCreateFromCString("", 0, 0, &c.newString)))}},
    {"a sum", kSum, ZR_TEXT(c.o.text + c.p.text),
     {ZR_MAKE(ZRStringMutator(*c.o) + *c.p), ZR_MAKE(*c.o + Unit(c, c.p.text)),
      ZR_MAKE(Unit(c, c.o.text) + (c.p = c.e, *c.e))},
     {ZR_DONE(Made(c, ZRMutableStringAddStrings(c.o.Handle(), c.p.Handle(), &c.newMutable)))}},

    {"an entry", kQuery,
     ZR_IS(c.entries.empty() ? Text(12, u'?')
           : Inside(c)       ? c.entries[c.index]
                             : c.entries.back()),
     {ZR_IS(EntryText([&] { return c.a->GetString(c.index); })),
      ZR_IS(EntryText([&] { return (*c.a)[c.index]; })),
      ZR_IS(EntryText([&] { return static_cast<const ZRStringPtrArray&>(*c.a)[c.index]; }))},
     {[](Case& c) -> Text {
       const ZRLong status = GetZRStringRefAt(c.A(), c.index, &c.newString);
       return status == 0 ? TextOf(GetZRStringFromRef(c.newString)) : Text(status, u'?');
     }}},
    {"the size", kQuery, ZR_IS(c.entries.size()),
     {ZR_IS(c.a->Size()), ZR_IS(c.a->End() - c.a->Begin())},
     {ZR_IS(ZRStringPtrArraySize(c.A(), reinterpret_cast<ZRULong*>(&c.number)) == 0 ? c.number
                                                                                   : -1)}},
    {"emptiness", kQuery, ZR_IS(c.entries.empty()), {ZR_IS(c.a->Empty())},
     {ZR_FLAG(ZRStringPtrArrayIsEmpty(c.A(), &c.flag))}},
    {"SetString", kArray, ZR_IS(Inside(c) ? (c.entries[c.index] = c.o.text, 1) : 0),
     {ZR_STORED(Replacing, c.a->SetString(c.index, entry))},
     {ZR_STORED(Replacing, Took(SetZRStringRefAt(c.A(), c.index, entry->GetZRStringRef())))}},
    {"Insert into the array", kArray,
     ZR_IS(Inside(c) ? (c.entries.insert(c.entries.begin() + c.index, c.o.text), 1) : 0),
     {ZR_STORED(Stored, c.a->Insert(c.index, entry))},
     {ZR_STORED(Stored, Took(InsertZRStringRefAt(c.A(), c.index, entry->GetZRStringRef())))}},
    {"PushBack", kArray, ZR_DO(c.entries.push_back(c.o.text)),
     {ZR_STORED(Stored, (c.a->PushBack(entry), true))},
     {ZR_STORED(Stored, ZRStringPtrArrayPushBack(c.A(), entry->GetZRStringRef()) == 0)}},
    {"Erase", kArray, ZR_IS(Inside(c) ? (c.entries.erase(c.entries.begin() + c.index), 1) : 0),
     {ZR_IS((Dropped(c).reset(), c.a->Erase(c.index), Inside(c))),
      ZR_IS((Dropped(c).reset(),
             Inside(c) && c.a->Erase(c.a->Begin() + c.index) == c.a->Begin() + c.index))},
     {ZR_IS((Dropped(c).reset(), ZRStringPtrArrayErase(c.A(), c.index) == 0))}},
    {"DeleteAll", kArray, ZR_DO(c.entries.clear()),
     {ZR_DO(c.a->PushBack(nullptr), c.a->DeleteAll())},
     {ZR_DONE(ZRStringPtrArrayDeleteAll(c.A()))}},
    {"a copy of the array", kArray, [](Case&) -> Text { return Give(1); },
     {ZR_IS(SameEntries(c, ZRStringPtrArray(*c.a))),
      [](Case& c) -> Text {
        ZRStringPtrArray copy;
        const ZRStringPtrArray& itself = copy;
        copy.PushBack(&*c.t);
        copy = *c.a;
        copy = itself;
        const bool same = SameEntries(c, copy);
        return copy.EraseAll(), Give(same && copy.Empty());
      }},
     {[](Case& c) -> Text {
       ZRStringPtrArrayRef__* copy = nullptr;
       if (ZRStrPtrArrCreateFromZRStrPtrArr(c.A(), &copy) == 12 && !copy)
         throw std::bad_alloc();
       const ZRStringPtrArray& array = *GetZRStringPtrArrayFromRef(copy);
       const bool same = SameEntries(c, array) && ZRStringPtrArrayEraseAll(copy) == 0;
       const bool erased = array.Empty();
       return Give(ZRStringPtrArrayDestroy(copy) == 0 && same && erased);
     }}},
    {"an array record", kAppend,
     [](Case& c) -> Text {
       const std::vector<Text> copy = c.entries;
       return c.entries.insert(c.entries.end(), copy.begin(), copy.end()), Give(1);
     },
     {ZR_IS(PassedOn([&](auto& s) { s << *c.a; }, [&](auto& s) { s >> *c.a; }))}},
  };
  return operations;
}
