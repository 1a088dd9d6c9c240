// The table of operations: calls of a member and of its handle function, and their model.
#include <ZRString/ZRStringStream.h>
#include <unicode/uchar.h>
#include <unicode/ucol.h>

#include <cstring>
#include <new>
#include <stdexcept>

#include "Recorder.h"
#include "World.h"

namespace {

// The model, in plain texts.

int Sign(int value) { return (value > 0) - (value < 0); }

/// The text with the range that begins at `start` replaced.
Text Spliced(const Case& c, const Text& range, const Text& part) {
  const auto first = static_cast<std::size_t>(std::clamp<long long>(c.t.start, 0, c.Size()));
  return c.t.text.substr(0, first) + part + c.t.text.substr(first + range.size());
}

/// The result of a search in the target's range.
long long Found(const Case& c, std::size_t at) {
  return c.o.part.empty() || at == Text::npos ? -1LL : at + std::max<ZRLong>(c.t.start, 0);
}

Text AllReplaced(Text text, const Text& oldText, const Text& newText) {
  for (std::size_t at = 0; (at = text.find(oldText, at)) != Text::npos && !oldText.empty();
       at += newText.size())
    text.replace(at, oldText.size(), newText);
  return text;
}

Text Padding(const Case& c) { return Text(std::max(c.capacity - c.Size(), 0LL), c.unit); }

Text Mapped(Text text, UChar32 (*map)(UChar32)) {
  std::transform(text.begin(), text.end(), text.begin(), map);
  return text;
}

int Collated(const Text& left, const Text& right) {
  UErrorCode status = U_ZERO_ERROR;
  static const UCollator* const collator = ucol_open("en_US", &status);
  return ucol_strcoll(collator, left.data(), left.size(), right.data(), right.size());
}

template <typename String>
int Orders(const String& left, const String& right) {
  return 32 * (left == right) + 16 * (left != right) + 8 * (left < right) + 4 * (left > right) +
         2 * (left <= right) + (left >= right);
}

/// A caller's room after a call has written a part of a text, if it did.
Text Filled(bool written, const Text& part) {
  Text room = Case().room;
  return written ? room.replace(2, part.size() + 1, part + u'\0') : room;
}

bool Inside(const Case& c) {
  return c.index >= 0 && c.index < static_cast<long long>(c.entries.size());
}

// Operands in the forms that calls take. Each function also sets the units that are meant.

ZRString& Whole(Operand& operand) { return operand.part = operand.text, *operand; }

ZRLong Between(Operand& operand) {
  operand.part = CutBetween(operand.text, operand.start, operand.length);
  return operand.start;
}

const unsigned short* Raw(Case& c) { return c.o = c.raw, c.raw.units; }

const unsigned short* Pattern(Case& c) { return Raw(c) ? Raw(c) + c.raw.start : nullptr; }

const char* Bytes(Case& c) {
  const bool null = !Raw(c);
  c.o.part.resize(c.raw.length < -1 ? 0 : c.o.part.size());  // for bytes, only -1 is to the zero
  return null ? nullptr : c.bytes.data();
}

const UniStr255& Record(Case& c) { return Raw(c), c.record; }

unsigned short Unit(const Case& c, Text& text) { return text = Text(1, c.unit), c.unit; }

const ZRStringMutator& Editable(const ZRStringMutator& copy) { return copy; }

/// What a handle function takes for an argument.
template <typename Argument>
const Argument& Handle(const Argument& argument) {
  return argument;
}
unsigned short* Handle(const unsigned short* units) { return const_cast<unsigned short*>(units); }
ZRStringRef__* Handle(const ZRString& string) { return string.GetZRStringRef(); }
ZRMutableStringRef__* Handle(ZRStringMutator* string) { return string->GetZRMutableStringRef(); }
ZRStringPtrArrayRef__* Handle(ZRStringPtrArray* array) { return array->GetZRStringPtrArrayRef(); }

/// Calls a handle function with arguments of which only an index may be invalid. Returns what it
/// writes to its last parameter if there is no argument for that, otherwise whether it succeeded.
template <typename... Parameters, typename... Arguments>
auto Called(ZRLong (*function)(Parameters...), const Arguments&... arguments) {
  const auto accepted = [&](auto... out) {
    const ZRLong status = function(Handle(arguments)..., out...);
    EXPECT_TRUE(status == kZRStatusSuccess || status == kZRStatusIndexOutside) << status;
    return status == kZRStatusSuccess;
  };
  if constexpr (sizeof...(Arguments) == sizeof...(Parameters)) {
    return accepted();
  } else {
    std::remove_pointer_t<decltype((Parameters(), ...))> out{};
    try {
      if (accepted(&out))
        return out;
      throw std::bad_alloc();  // or there is no such entry
    } catch (const std::exception& exception) {
      EXPECT_TRUE(dynamic_cast<const std::bad_alloc*>(&exception));
      EXPECT_EQ(out, decltype(out)());
      throw;
    }
  }
}

long long Give(Case&, long long number) { return number; }
long long Give(Case&, const Text& text) { return std::hash<Text>()(text); }
long long Give(Case& c, const ZRStringMutator& edited) { return &edited == c.m; }

/// A new string replaces the target.
long long Give(Case& c, const ZRString* made) {
  ZRString* const old = c.t.slot->string.release();
  c.t.slot->string.reset(const_cast<ZRString*>(made));
  return c.m && c.index % 2 ? Called(ZRMutableStringDestroy, c.m) : Called(ZRStringDestroy, *old);
}
long long Give(Case& c, ZRStringRef__* s) { return Give(c, &GetZRStringFromRef(s)); }
long long Give(Case& c, ZRMutableStringRef__* s) { return Give(c, &GetZRStringMutatorFromRef(s)); }

/// An operation: its model, which runs after the call, then all forms of its call.
template <typename... Forms>
Operation Row(const char* name, Kind kind, Function model, Forms... forms) {
  return {name, kind, model, {Form{forms}...}};
}

bool Begins(const unsigned short* units, const Text& text, std::size_t count) {
  return units && std::equal(text.c_str(), text.c_str() + count, units);
}

/// Writes Zy and a zero unit into the open buffer. @return whether it held the old text
bool FillBuffer(const Case& c, unsigned short* units) {
  const bool kept = Begins(units, c.t.text, c.t.text.size()) && c.m->GetCapacity() >= c.capacity;
  if (units)
    std::copy_n(u"Zy", 3, units);
  return kept && Called(ZRMutableStringGetCapacity, c.m) == c.m->GetCapacity();
}

/// Whether reading takes exactly the calls that writing makes.
template <typename From, typename To>
bool PassedOn(From& from, To& to) {
  Recorder stream;
  stream << from;
  stream.input.swap(stream.output);
  stream >> to;
  return stream.consumed == stream.input.size();
}

/// Whether a record of the array gives equal strings, which DeleteAll() destroys.
bool PassedOnAndDeleted(const Case& c) {
  struct OwningArray : ZRStringPtrArray {
    ~OwningArray() { DeleteAll(); }
  } read;
  const auto same = [](const ZRString* left, const ZRString* right) { return *left == *right; };
  const bool passed =
      PassedOn(*c.a, read) && std::equal(read.Begin(), read.End(), c.a->Begin(), c.a->End(), same);
  read.PushBack(nullptr);  // DeleteAll() skips it
  const bool holdsNull = !read[-1];
  return holdsNull && Called(ZRStringPtrArrayDeleteAll, read.GetZRStringPtrArrayRef()) &&
         read.Empty() && passed;
}

constexpr long long kNone = 12;

/// The address of an entry, or kNone.
template <typename Get>
long long Entry(Get get) {
  try {
    return reinterpret_cast<std::intptr_t>(get());
  } catch (const std::bad_alloc&) {
    return kNone;
  } catch (const std::out_of_range& error) {
    return std::strcmp(error.what(), "invalid vector<T> subscript") ? 0 : kNone;
  }
}

ZRStringPtrArray Pushed(ZRStringPtrArray copy, ZRString* entry) {
  copy.PushBack(entry);
  return copy;
}

bool AssignedFromCreated(const Case& c) {
  ZRStringPtrArrayRef__* const copy = Called(ZRStrPtrArrCreateFromZRStrPtrArr, c.a);
  *c.a = *GetZRStringPtrArrayFromRef(copy);
  return Called(ZRStringPtrArrayDestroy, copy);
}

}  // namespace

// Arguments: a range of the target, of an operand, of units, and inclusive ends.
#define ZR_OWN c.t.start, c.t.length
#define ZR_TARGET *c.t, ZR_OWN
#define ZR_SRC *c.o, c.o.start, c.o.length
#define ZR_NEW *c.p, c.p.start, c.p.length
#define ZR_RAW Raw(c), c.raw.start, c.raw.length
#define ZR_ZEROED c.o.units, c.o.start, c.o.length
#define ZR_NEW_ZEROED c.p.units, c.p.start, c.p.length
#define ZR_BETWEEN Between(c.t), c.t.length, *c.o, Between(c.o), c.o.length
#define ZR_CHARS Bytes(c), c.raw.start, c.raw.length
#define ZR_BYTES reinterpret_cast<const unsigned char*>(Bytes(c)), c.raw.start, c.raw.length

// The model, and forms of a call: of a member, of a handle function, of those that make a string.
#define ZR_IS(...) [](Case& c) -> long long { return Give(c, __VA_ARGS__); }
#define ZR_TEXT(...) ZR_IS((c.t.text = (__VA_ARGS__), true))
#define ZR_CHANGED(...) ZR_IS((c.t.text = (__VA_ARGS__)) != c.t.slot->text)
#define ZR_VALID(...) Form({ZR_IS(__VA_ARGS__), true})
#define ZR_PLAIN(...) ZR_VALID(Called(__VA_ARGS__))
#define ZR_NEW_STRING(...) ZR_IS(c.m ? new ZRStringMutator(__VA_ARGS__) : new ZRString(__VA_ARGS__))
#define ZR_CREATED(name, ...)                                        \
  ZR_VALID(c.m ? Give(c, Called(ZRMutableString##name, __VA_ARGS__)) \
               : Give(c, Called(ZRString##name, __VA_ARGS__)))

const std::vector<Operation> kOperations = {
    Row("ordering operators", kQuery, ZR_IS(Orders(c.t.text, c.o.text)), ZR_IS(Orders(*c.t, *c.o))),
    Row("Compare", kQuery, ZR_IS(Sign(c.t.part.compare(c.o.part))),
        ZR_IS(c.t->Compare(ZR_OWN, ZR_SRC)), ZR_IS(c.t->Compare(ZR_OWN, ZR_RAW)),
        ZR_IS(c.t->CompareBetween(ZR_BETWEEN)), ZR_IS(c.t->CompareCodePointOrder(ZR_OWN, ZR_SRC)),
        ZR_IS(c.t->CompareCodePointOrder(ZR_OWN, ZR_RAW)),
        ZR_IS(c.t->CompareCodePointOrderBetween(ZR_BETWEEN)),
        ZR_PLAIN(ZRStringCompare, ZR_TARGET, ZR_SRC),
        ZR_PLAIN(ZRStringCompareCodePointOrder, ZR_TARGET, ZR_SRC)),
    Row("ICompare", kQuery,
        ZR_IS(c.options == kZRCompareCollated
                  ? Collated(c.t.part, c.o.part)
                  : Sign(Mapped(c.t.part, u_tolower).compare(Mapped(c.o.part, u_tolower)))),
        ZR_IS(c.t->ICompare(ZR_OWN, ZR_SRC, c.options)),
        ZR_IS(c.o.start ? c.t->ICompare(ZR_OWN, ZR_ZEROED, c.options = kZRCompareCollated)
                        : c.t->ICompare(ZR_OWN, ZR_RAW, c.raw.start ? c.options = 0 : c.options)),
        ZR_IS(c.t->ICompareBetween(ZR_BETWEEN, c.options)),
        ZR_PLAIN(ZRStringICompare, ZR_TARGET, ZR_SRC, c.options)),
    Row("StartsWith", kQuery, ZR_IS(Cut(c.t.text, 0, c.o.part.size()) == c.o.part),
        ZR_IS(c.t->StartsWith(ZR_SRC)), ZR_IS(c.t->StartsWith(ZR_RAW))),
    Row("EndsWith", kQuery, ZR_IS(Cut(c.t.text, c.Size() - c.o.part.size(), -1) == c.o.part),
        ZR_IS(c.t->EndsWith(ZR_SRC)), ZR_IS(c.t->EndsWith(ZR_RAW))),
    Row("Find", kQuery, ZR_IS(Found(c, c.t.part.find(c.o.part))), ZR_IS(c.t->Find(ZR_SRC, ZR_OWN)),
        ZR_IS(c.t->Find(ZR_RAW, ZR_OWN)), ZR_PLAIN(ZRStringFind, ZR_TARGET, Whole(c.o)),
        ZR_PLAIN(ZRStringFindUniChars, ZR_TARGET, Pattern(c), c.raw.length)),
    Row("RFind", kQuery, ZR_IS(Found(c, c.t.part.rfind(c.o.part))),
        ZR_IS(c.t->RFind(ZR_SRC, ZR_OWN)), ZR_IS(c.t->RFind(ZR_RAW, ZR_OWN)),
        ZR_PLAIN(ZRStringRFind, ZR_TARGET, Whole(c.o)),
        ZR_PLAIN(ZRStringRFindUniChars, ZR_TARGET, Pattern(c), c.raw.length)),
    Row("LastIndexOf", kQuery, ZR_IS(static_cast<int>(c.t.text.rfind(char16_t(c.unit)))),
        ZR_IS(c.t->LastIndexOf(c.unit)),
        ZR_VALID(c.m ? Called(ZRMutableStringLastIndexOf, c.m, c.unit)
                     : Called(ZRStringLastIndexOf, *c.t, c.unit))),
    Row("a unit", kQuery, ZR_IS(c.index >= 0 && c.index < c.Size() ? c.t.text[c.index] : 0xFFFF),
        ZR_IS(c.t->CharAt(c.index)), ZR_IS((*c.t)[c.index])),
    Row("GetLength", kQuery, ZR_IS(c.Size()), ZR_IS(c.t->GetLength()),
        ZR_PLAIN(ZRStringGetLength, *c.t)),
    Row("IsEmpty", kQuery, ZR_IS(c.t.text.empty()), ZR_IS(c.t->IsEmpty()),
        ZR_PLAIN(ZRStringIsEmpty, *c.t)),
    Row("Extract", kQuery,
        ZR_IS(Filled(c.t.start >= 0 && c.t.start <= c.Size() && c.t.length >= -1, c.t.part)),
        ZR_IS((c.t->Extract(ZR_OWN, c.Room(), 2), c.room)),
        ZR_VALID((Called(ZRStringExtractIntoUniChars, ZR_TARGET, c.Room(), 2), c.room))),
    Row("ExtractBetween", kQuery,
        ZR_IS(
            Filled(c.t.start >= 0 && c.t.start <= std::min(c.t.length + 1LL, c.Size()), c.t.part)),
        ZR_IS((c.t->ExtractBetween(Between(c.t), c.t.length, c.Room(), 2), c.room))),
    Row("GetUniCharsAt", kQuery,
        ZR_IS(c.index >= 0 && c.index < c.Size() ? Filled(true, Cut(c.t.text, c.index, c.count))
                                                 : Filled(false, u"").replace(2, 1, u"\uFFFF")),
        ZR_VALID((Called(ZRStringGetUniCharsAt, *c.t, c.index, c.count, c.Room() + 2), c.room))),

    Row("SetTo", kEdit, ZR_TEXT(c.o.part), ZR_IS(c.m->SetTo(ZR_SRC)),
        ZR_IS(c.m->SetTo(Pattern(c), c.raw.length)),
        ZR_IS((Editable(*c.o).Extract(c.o.start, c.o.length, *c.m), true)),
        ZR_IS((c.o = c.t, c.m->Extract(ZR_OWN, *c.m), true)),
        ZR_IS((Editable(*c.o).ExtractBetween(Between(c.o), c.o.length, *c.m), true)),
        ZR_PLAIN(ZRMutableStringSetToZRString, c.m, ZR_SRC)),
    Row("SetCharAt", kEdit,
        ZR_TEXT(c.t.text.replace(std::max(std::min<int>(c.t.start, c.Size() - 1), 0), 1,
                                 !c.t.text.empty(), c.unit)),
        ZR_IS(c.m->SetCharAt(c.t.start, c.unit)),
        ZR_PLAIN(ZRMutableStringSetUniCharAt, c.m, c.t.start, c.unit)),
    Row("Append", kEdit, ZR_TEXT(c.t.text + c.o.part), ZR_IS(c.m->Append(ZR_SRC)),
        ZR_IS(c.m->Append(ZR_RAW)), ZR_IS(*c.m += Whole(c.o)), ZR_IS(*c.m += Unit(c, c.o.part)),
        ZR_PLAIN(ZRMutableStringAppend, c.m, Whole(c.o)),
        ZR_PLAIN(ZRMutableStringAppendUniChars, c.m, ZR_RAW)),
    Row("Insert", kEdit, ZR_TEXT(Spliced(c, u"", c.o.part)), ZR_IS(c.m->Insert(c.t.start, ZR_SRC)),
        ZR_IS(c.m->Insert(c.t.start, ZR_RAW)),
        ZR_PLAIN(ZRMutableStringInsert, c.m, c.t.start, ZR_SRC),
        ZR_PLAIN(ZRMutableStringInsertUniChars, c.m, c.t.start, ZR_RAW)),
    Row("Replace", kEdit, ZR_TEXT(Spliced(c, c.t.part, c.o.part)),
        ZR_IS(c.m->Replace(ZR_OWN, ZR_SRC)), ZR_IS(c.m->Replace(ZR_OWN, ZR_RAW)),
        ZR_IS(c.m->ReplaceBetween(ZR_BETWEEN)),
        ZR_PLAIN(ZRMutableStringReplaceBetween, c.m, ZR_OWN, Whole(c.o)),
        ZR_PLAIN(ZRMutableStringReplaceWithUniChars, c.m, ZR_OWN, ZR_RAW)),
    Row("Remove", kEdit, ZR_TEXT(Spliced(c, c.t.part, u"")), ZR_IS(c.m->Remove(ZR_OWN)),
        ZR_IS(c.m->RemoveBetween(Between(c.t), c.t.length)),
        ZR_PLAIN(ZRMutableStringRemoveBetween, c.m, c.t.length == -1 ? c.t.start : Between(c.t),
                 c.t.length)),
    Row("FindAndReplace", kEdit,
        ZR_TEXT(Spliced(c, c.t.part, AllReplaced(c.t.part, c.o.part, c.p.part))),
        ZR_IS(c.m->FindAndReplace(ZR_OWN, ZR_SRC, ZR_NEW)),
        ZR_IS(c.m->FindAndReplace(ZR_OWN, ZR_ZEROED, ZR_NEW)),
        ZR_IS(c.m->FindAndReplace(ZR_OWN, ZR_SRC, ZR_NEW_ZEROED)),
        ZR_IS(c.m->FindAndReplace(ZR_OWN, ZR_ZEROED, ZR_NEW_ZEROED)),
        ZR_PLAIN(ZRMutableStringFindAndReplace, c.m, ZR_OWN, Whole(c.o), Whole(c.p))),
    Row("PadLeading", kEdit, ZR_CHANGED(Padding(c) + c.t.text),
        ZR_IS(c.m->PadLeading(c.capacity, c.unit)),
        ZR_PLAIN(ZRMutableStringPadLeading, c.m, c.capacity, c.unit)),
    Row("PadTrailing", kEdit, ZR_CHANGED(c.t.text + Padding(c)),
        ZR_IS(c.m->PadTrailing(c.capacity, c.unit)),
        ZR_PLAIN(ZRMutableStringPadTrailing, c.m, c.capacity, c.unit)),
    Row("Truncate", kEdit, ZR_CHANGED(c.t.start < 0 ? c.t.text : Cut(c.t.text, 0, c.t.start)),
        ZR_IS(c.m->Truncate(c.t.start)), ZR_PLAIN(ZRMutableStringTruncate, c.m, c.t.start)),
    Row("Trim", kEdit,
        ZR_TEXT(c.t.text.erase(c.t.text.find_last_not_of(u' ') + 1)
                    .erase(0, c.t.text.find_first_not_of(u' '))),
        ZR_IS(c.m->Trim()), ZR_PLAIN(ZRMutableStringTrim, c.m)),
    Row("Reverse", kEdit, ZR_TEXT(Spliced(c, c.t.part, Text(c.t.part.rbegin(), c.t.part.rend()))),
        ZR_IS(c.m->Reverse(ZR_OWN)), ZR_PLAIN(ZRMutableStringReverse, c.m, ZR_OWN)),
    Row("ToUpper", kEdit, ZR_TEXT(Mapped(c.t.text, u_toupper)), ZR_IS(c.m->ToUpper()),
        ZR_PLAIN(ZRMutableStringToUpper, c.m)),
    Row("ToLower", kEdit, ZR_TEXT(Mapped(c.t.text, u_tolower)), ZR_IS(c.m->ToLower()),
        ZR_PLAIN(ZRMutableStringToLower, c.m)),
    Row("assignment", kEdit, ZR_TEXT(c.body = c.o.slot->body, c.o.text), ZR_IS(*c.m = *c.o),
        ZR_IS(*c.m = Editable(*c.o)), ZR_IS(*c.m = (c.o = c.t, *c.m))),
    Row("the open buffer", kEdit, ZR_TEXT(Text(u"Zy").substr(0, c.released)),
        ZR_IS(FillBuffer(c, c.m->GetBuffer(c.capacity)) && (c.m->ReleaseBuffer(c.released), true)),
        ZR_VALID(FillBuffer(c, Called(ZRMutableStringGetBufferWithCapacity, c.m, c.capacity)) &&
                 Called(ZRMutableStringReleaseBuffer, c.m, c.released))),
    Row("the terminated buffer", kAttempt, ZR_IS(true),
        ZR_IS(Begins(c.m->GetTerminatedBuffer(), c.t.text, c.t.text.size() + 1))),
    Row("Normalize", kAttempt,
        ZR_CHANGED(c.mode == kZRNormalizationNFKC || c.mode == kZRNormalizationNFKD
                       ? AllReplaced(c.t.text, u"\u00B2", u"2")
                       : c.t.text),
        ZR_IS(c.m->Normalize(c.mode))),
    Row("a string record", kEdit,
        ZR_TEXT(c.o.text.empty() ? (c.body = c.t.slot->body, c.t.text) : c.o.text),
        ZR_IS(PassedOn(*c.o, *c.m))),

    Row("a string of units", kMake, ZR_TEXT(c.o.part), ZR_NEW_STRING(ZR_RAW),
        ZR_NEW_STRING(Record(c)), ZR_NEW_STRING(ZRString(Pattern(c), c.raw.length)),
        ZR_NEW_STRING(ZRString((Whole(c.o), c.o.units))), ZR_CREATED(CreateFromUniChars, ZR_RAW),
        ZR_VALID(
            c.m ? Give(c, Called(ZRMutableStringCreateFromUniChars, ZR_RAW))
                : Give(c, Called(ZRStringCreateFromUniChars, (Whole(c.o), c.o.units), 0, -1)))),
    Row("a string of bytes", kMake, ZR_TEXT(c.o.part), ZR_NEW_STRING(ZR_CHARS),
        ZR_NEW_STRING(ZR_BYTES), ZR_CREATED(CreateFromCString, ZR_CHARS),
        ZR_CREATED(CreateFromLocalString, ZR_BYTES)),
    Row("a copy", kMake, ZR_TEXT(c.body = c.o.slot->body, c.o.text), ZR_NEW_STRING(*c.o),
        ZR_NEW_STRING(c.o->GetZRStringRef()), ZR_NEW_STRING(Editable(*c.o)),
        ZR_NEW_STRING(ZRStringMutator(*c.o).GetZRMutableStringRef()), ZR_CREATED(CreateCopy, *c.o)),
    Row("a range", kMake,
        ZR_TEXT(
            c.body = c.o.start == 0 && (c.o.length == -1 || c.o.length == ZRLong(c.o.text.size()))
                         ? c.o.slot->body
                         : nullptr,
            c.o.part),
        ZR_NEW_STRING(ZR_SRC), ZR_CREATED(CreateCopyRange, ZR_SRC),
        ZR_NEW_STRING(
            ZRString(*c.o, (c.o.part = Cut(c.o.text, c.o.start = 0, c.o.length), c.o.length)))),
    Row("an empty string", kMake, ZR_TEXT(u""), ZR_NEW_STRING(ZRStringMutator()),
        ZR_NEW_STRING(static_cast<ZRStringRef__*>(nullptr)),
        ZR_VALID(c.m ? Give(c, Called(ZRMutableStringCreateEmpty))
                     : Give(c, Called(ZRStringCreateFromCString, "", 0, 0)))),
    Row("a sum", kSum, ZR_TEXT(c.o.text + c.p.text), ZR_NEW_STRING(Editable(*c.o) + *c.p),
        ZR_NEW_STRING(*c.o + Unit(c, c.p.text)), ZR_NEW_STRING(Unit(c, c.o.text) + *c.p),
        ZR_PLAIN(ZRMutableStringAddStrings, *c.o, *c.p)),

    Row("an entry", kQuery, ZR_IS(c.entries.empty() ? kNone : Entry([&] {
          return Inside(c) ? c.entries[c.index] : c.entries.back();
        })),
        ZR_IS(Entry([&] { return c.a->GetString(c.index); })),
        ZR_IS(Entry([&] { return (*c.a)[c.index]; })),
        ZR_IS(Entry([&] { return std::as_const(*c.a)[c.index]; })),
        ZR_VALID(Entry([&] { return Called(GetZRStringRefAt, c.a, c.index); }))),
    Row("the size", kQuery, ZR_IS(c.entries.size()), ZR_IS(c.a->Size()),
        ZR_IS(c.a->End() - c.a->Begin()), ZR_PLAIN(ZRStringPtrArraySize, c.a)),
    Row("emptiness", kQuery, ZR_IS(c.entries.empty()), ZR_IS(c.a->Empty()),
        ZR_PLAIN(ZRStringPtrArrayIsEmpty, c.a)),
    Row("SetString", kQuery, ZR_IS(Inside(c) && (c.entries[c.index] = c.entry)),
        ZR_IS(c.a->SetString(c.index, c.entry)),
        ZR_PLAIN(SetZRStringRefAt, c.a, c.index, *c.entry)),
    Row("Insert into the array", kQuery,
        ZR_IS(Inside(c) && *c.entries.insert(c.entries.begin() + c.index, c.entry)),
        ZR_IS(c.a->Insert(c.index, c.entry)),
        ZR_PLAIN(InsertZRStringRefAt, c.a, c.index, *c.entry)),
    Row("PushBack", kQuery, ZR_IS((c.entries.push_back(c.entry), true)),
        ZR_IS((c.a->PushBack(c.entry), true)), ZR_IS((*c.a = Pushed(*c.a, c.entry), true)),
        ZR_PLAIN(ZRStringPtrArrayPushBack, c.a, *c.entry)),
    Row("Erase", kQuery, ZR_IS(Inside(c) && (c.entries.erase(c.entries.begin() + c.index), true)),
        ZR_IS((c.a->Erase(c.index), Inside(c))),
        ZR_IS(Inside(c) && c.a->Erase(c.a->Begin() + c.index) == c.a->Begin() + c.index),
        ZR_PLAIN(ZRStringPtrArrayErase, c.a, c.index)),
    Row("EraseAll", kQuery, ZR_IS((c.entries.clear(), true)), ZR_IS((c.a->EraseAll(), true)),
        ZR_PLAIN(ZRStringPtrArrayEraseAll, c.a)),
    Row("assignment of arrays", kQuery, ZR_IS(true), ZR_IS(&(*c.a = *c.a) == c.a),
        ZR_VALID(AssignedFromCreated(c))),
    Row("an array record", kQuery, ZR_IS(true), ZR_VALID(PassedOnAndDeleted(c))),
};

const std::vector<Operation>& Operations() { return kOperations; }
