// The table of operations: calls of a member and of its handle function, and their model.
#include <ZRString/ZRStringInterop.h>
#include <ZRString/ZRStringOutput.h>
#include <ZRString/ZRStringStream.h>
#include <unicode/uchar.h>
#include <unicode/ucol.h>

#include <cstring>
#include <new>

#include "Recorder.h"
#include "World.h"

namespace {

// The model, in plain texts.

int Sign(int value) { return (value > 0) - (value < 0); }

/// The text with the range that begins at `start` replaced.
Text Spliced(const Case& c, const Text& range, const Text& part) {
  const auto first = static_cast<std::size_t>(std::clamp<long long>(c.target.start, 0, c.Size()));
  return c.target.text.substr(0, first) + part + c.target.text.substr(first + range.size());
}

/// The result of a search in the target's range.
long long Found(const Case& c, std::size_t at) {
  return c.source.part.empty() || at == Text::npos ? -1LL
                                                   : at + std::max<ZRLong>(c.target.start, 0);
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

Text Trimmed(Text text) {
  return text.erase(text.find_last_not_of(u' ') + 1).erase(0, text.find_first_not_of(u' '));
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

/// The body of a string of this range.
const std::int32_t* SharedBy(const Operand& range) {
  const bool whole = range.length == -1 || range.length == ZRLong(range.text.size());
  return range.start == 0 && whole ? range.slot->body : nullptr;
}

bool Inside(const Case& c) {
  return c.index >= 0 && c.index < static_cast<long long>(c.entries.size());
}

/// The target gets a text, and a body unless it is a new one.
bool Becomes(Case& c, const Text& text, const std::int32_t* body = nullptr) {
  return c.text = text, c.body = body, true;
}

/// The target gets a text; the call returns whether it is another one.
bool Changes(Case& c, const Text& text) { return Becomes(c, text) && text != c.target.text; }

/// The caller's room gets units.
bool Writes(Case& c, const Text& units) { return c.written.replace(2, units.size(), units), true; }

// Operands in the forms that calls take. Each function also sets the part that is meant.

ZRString& Whole(Operand& operand) { return operand.part = operand.text, *operand; }

/// Ten times the text, which can be more than the conversions keep on the stack.
const Text& Tenfold(Operand& operand) {
  operand.part.clear();
  for (int i = 0; i < 10; ++i)
    operand.part += operand.text;
  return operand.part;
}

/// The length is an inclusive end.
Operand& Between(Operand& operand) {
  operand.part = CutBetween(operand.text, operand.start, operand.length);
  return operand;
}

const Operand& Raw(Case& c) { return c.source = c.raw; }

const unsigned short* Units(Case& c) { return Raw(c).units ? c.raw.units + c.raw.start : nullptr; }

const char* Chars(Case& c) {
  const bool null = !Raw(c).units;
  c.source.part.resize(c.raw.length < -1 ? 0 : c.source.part.size());  // only -1 is to the zero
  return null ? nullptr : c.bytes.data();
}

const unsigned char* Bytes(Case& c) { return reinterpret_cast<const unsigned char*>(Chars(c)); }

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

/// Calls a handle function with arguments of which only an index may be invalid, and only if the
/// function may return `kRefusal`. Returns what it writes to its last parameter if there is no
/// argument for that, otherwise whether it succeeded. Throws a std::string if it misbehaves, short
/// enough to need no allocation.
template <ZRLong kRefusal = kZRStatusSuccess, typename... Parameters, typename... Arguments>
auto Called(ZRLong (*function)(Parameters...), const Arguments&... arguments) {
  const auto accepted = [&](auto... out) {
    const ZRLong status = function(Handle(arguments)..., out...);
    if (status != kZRStatusSuccess && status != kRefusal)
      throw "status " + std::to_string(status);
    return status == kZRStatusSuccess;
  };
  if constexpr (sizeof...(Arguments) == sizeof...(Parameters)) {
    return accepted();
  } else {
    std::remove_pointer_t<decltype((Parameters(), ...))> out{};
    try {
      if (accepted(&out))
        return out;
    } catch (const std::bad_alloc&) {
      if (out == decltype(out)())
        throw;
    }
    if (out != decltype(out)())
      throw std::string("wrote an output");
    throw std::out_of_range("invalid vector<T> subscript");  // as the array's members
  }
}

long long Number(const Case&, long long number) { return number; }
long long Number(const Case&, const void* at) { return reinterpret_cast<std::intptr_t>(at); }
long long Number(const Case& c, const ZRStringMutator& edited) { return &edited == c.mutator; }

/// The string that was made replaces the target.
bool Made(Case& c, const ZRString& made) {
  ZRString* const old = c.target.slot->string.release();
  c.target.slot->string.reset(const_cast<ZRString*>(&made));
  return c.mutator && c.index % 2 ? Called(ZRMutableStringDestroy, c.mutator)
                                  : Called(ZRStringDestroy, *old);
}
bool Made(Case& c, ZRStringRef__* s) { return Made(c, GetZRStringFromRef(s)); }
bool Made(Case& c, ZRMutableStringRef__* s) { return Made(c, GetZRStringMutatorFromRef(s)); }

/// By constructors or create functions, of ZRStringMutator if the target is one.
template <typename... Arguments>
bool New(Case& c, const Arguments&... arguments) {
  return Made(c, c.mutator ? *new ZRStringMutator(arguments...) : *new ZRString(arguments...));
}
template <typename Create, typename CreateMutable, typename... Arguments>
bool Created(Case& c, Create create, CreateMutable createMutable, const Arguments&... arguments) {
  return c.mutator ? Made(c, Called(createMutable, arguments...))
                   : Made(c, Called(create, arguments...));
}

bool Begins(const unsigned short* units, const Text& text, std::size_t count) {
  return units && std::equal(text.c_str(), text.c_str() + count, units);
}

/// Writes Zy and a zero unit into the open buffer. @return whether it held the old text
bool FillBuffer(const Case& c, unsigned short* units) {
  const bool kept =
      Begins(units, c.target.text, c.Size()) && c.mutator->GetCapacity() >= c.capacity;
  if (units)
    std::copy_n(u"Zy", 3, units);
  return kept && Called(ZRMutableStringGetCapacity, c.mutator) == c.mutator->GetCapacity();
}

/// Whether reading takes exactly the calls that writing makes.
template <typename From, typename To>
bool WrittenAndRead(From& from, To& to) {
  Recorder stream;
  stream << from;
  stream.input.swap(stream.output);
  stream >> to;
  return stream.consumed == stream.input.size();
}

/// Whether a record of the array gives equal strings, which DeleteAll() destroys.
bool WrittenReadAndDeleted(ZRStringPtrArray& array) {
  struct OwningArray : ZRStringPtrArray {
    ~OwningArray() { DeleteAll(); }
  } read;
  const auto same = [](const ZRString* left, const ZRString* right) { return *left == *right; };
  const bool passed = WrittenAndRead(array, read) &&
                      std::equal(read.Begin(), read.End(), array.Begin(), array.End(), same);
  read.PushBack(nullptr);  // DeleteAll() skips it
  const bool holdsNull = !read.End()[-1];
  return holdsNull && Called(ZRStringPtrArrayDeleteAll, static_cast<ZRStringPtrArray*>(&read)) &&
         read.Empty() && passed;
}

ZRStringPtrArray Pushed(ZRStringPtrArray copy, ZRString* entry) {
  copy.PushBack(entry);
  return copy;
}

/// By functions that throw nothing and have a status for std::bad_alloc.
template <typename Create, typename... Sources>
bool AssignedFromCreated(ZRStringPtrArray& array, Create create, Sources... sources) {
  ZRStringPtrArrayRef__* created = nullptr;
  ZRLong status = kZRStatusSuccess;
  try {
    status = create(sources..., &created);
  } catch (const std::bad_alloc&) {
    throw std::string("std::bad_alloc");
  }
  if (status == kZRStatusIndexOutside && !created)
    throw std::bad_alloc();
  array = *GetZRStringPtrArrayFromRef(created);
  return ZRStringPtrArrayDestroy(created) + status == kZRStatusSuccess;
}

/// Writes a string where a stream has units already, so that the stream allocates nothing.
bool Serialized(const ZRString& string) {
  static std::basic_ostringstream<unsigned short> stream(std::basic_string<unsigned short>(200, 0));
  return stream.seekp(0), (stream << string).tellp() == string.GetLength();
}

}  // namespace

using Row = Operation;

// A call in the names of a case, and its text for messages.
#define ZR_DO(...)                                                                             \
  Form {                                                                                       \
    #__VA_ARGS__, [](Case& c) -> long long {                                                   \
      [[maybe_unused]] auto& [target, source, replacement, raw, bytes, record, mutator, array, \
                              entry, unit, options, start, length, index, count, capacity,     \
                              released, mode, room, text, written, entries, body, memory] = c; \
      return Number(c, __VA_ARGS__);                                                           \
    }                                                                                          \
  }

// A range of a string, and one of units, as three arguments.
#define ZR_STRING(operand) *operand, operand.start, operand.length
#define ZR_UNITS(operand) operand.units, operand.start, operand.length

// Each row: the kind, the model, calls of members, and calls of handle functions.
const std::vector<Operation> kOperations = {
    // Comparisons.
    Row(kQuery, ZR_DO(Orders(target.text, source.text)), {ZR_DO(Orders(*target, *source))}),
    Row(kQuery, ZR_DO(Sign(target.part.compare(source.part))),
        {ZR_DO(target->Compare(start, length, ZR_STRING(source))),
         ZR_DO(target->Compare(start, length, ZR_UNITS(Raw(c)))),
         ZR_DO(target->CompareBetween(Between(target).start, length, ZR_STRING(Between(source)))),
         ZR_DO(target->CompareCodePointOrder(start, length, ZR_STRING(source))),
         ZR_DO(target->CompareCodePointOrder(start, length, ZR_UNITS(Raw(c)))),
         ZR_DO(target->CompareCodePointOrderBetween(Between(target).start, length,
                                                    ZR_STRING(Between(source))))},
        {ZR_DO(Called(ZRStringCompare, ZR_STRING(target), ZR_STRING(source))),
         ZR_DO(Called(ZRStringCompareCodePointOrder, ZR_STRING(target), ZR_STRING(source)))}),
    Row(kQuery,
        ZR_DO(options == kZRCompareCollated
                  ? Collated(target.part, source.part)
                  : Sign(Mapped(target.part, u_tolower).compare(Mapped(source.part, u_tolower)))),
        {ZR_DO(target->ICompare(start, length, ZR_STRING(source), options)),
         // Collated, units from a start other than 0 are read up to their zero unit.
         ZR_DO(source.start
                   ? target->ICompare(start, length, ZR_UNITS(source), options = kZRCompareCollated)
                   : target->ICompare(start, length, ZR_UNITS(Raw(c)),
                                      raw.start ? options = 0 : options)),
         ZR_DO(target->ICompareBetween(Between(target).start, length, ZR_STRING(Between(source)),
                                       options))},
        {ZR_DO(Called(ZRStringICompare, ZR_STRING(target), ZR_STRING(source), options))}),
    Row(kQuery, ZR_DO(Cut(target.text, 0, source.part.size()) == source.part),
        {ZR_DO(target->StartsWith(ZR_STRING(source))),
         ZR_DO(target->StartsWith(ZR_UNITS(Raw(c))))}),
    Row(kQuery, ZR_DO(Cut(target.text, c.Size() - source.part.size(), -1) == source.part),
        {ZR_DO(target->EndsWith(ZR_STRING(source))), ZR_DO(target->EndsWith(ZR_UNITS(Raw(c))))}),

    // Searches.
    Row(kQuery, ZR_DO(Found(c, target.part.find(source.part))),
        {ZR_DO(target->Find(ZR_STRING(source), start, length)),
         ZR_DO(target->Find(ZR_UNITS(Raw(c)), start, length))},
        {ZR_DO(Called(ZRStringFind, ZR_STRING(target), Whole(source))),
         ZR_DO(Called(ZRStringFindUniChars, ZR_STRING(target), Units(c), raw.length))}),
    Row(kQuery, ZR_DO(Found(c, target.part.rfind(source.part))),
        {ZR_DO(target->RFind(ZR_STRING(source), start, length)),
         ZR_DO(target->RFind(ZR_UNITS(Raw(c)), start, length))},
        {ZR_DO(Called(ZRStringRFind, ZR_STRING(target), Whole(source))),
         ZR_DO(Called(ZRStringRFindUniChars, ZR_STRING(target), Units(c), raw.length))}),
    Row(kQuery, ZR_DO(static_cast<int>(target.text.rfind(char16_t(unit)))),
        {ZR_DO(target->LastIndexOf(unit))},
        {ZR_DO(mutator ? Called(ZRMutableStringLastIndexOf, mutator, unit)
                       : Called(ZRStringLastIndexOf, *target, unit))}),

    // Units and lengths.
    Row(kQuery, ZR_DO(index >= 0 && index < c.Size() ? target.text[index] : 0xFFFF),
        {ZR_DO(target->CharAt(index)), ZR_DO((*target)[index])}),
    Row(kQuery, ZR_DO(c.Size()), {ZR_DO(target->GetLength())},
        {ZR_DO(Called(ZRStringGetLength, *target))}),
    Row(kQuery, ZR_DO(target.text.empty()), {ZR_DO(target->IsEmpty())},
        {ZR_DO(Called(ZRStringIsEmpty, *target))}),

    // Units copied to a caller's room.
    Row(kQuery,
        ZR_DO(start != std::clamp<ZRLong>(start, 0, c.Size()) || length < -1 ||
              Writes(c, target.part + u'\0')),
        {ZR_DO((target->Extract(start, length, c.Room(), 2), true))},
        {ZR_DO(Called(ZRStringExtractIntoUniChars, ZR_STRING(target), c.Room(), 2))}),
    Row(kQuery,
        ZR_DO(start < 0 || std::min(length + 1LL, c.Size()) < start ||
              Writes(c, target.part + u'\0')),
        {ZR_DO((target->ExtractBetween(Between(target).start, length, c.Room(), 2), true))}),
    Row(kQuery,
        ZR_DO(Writes(c, index >= 0 && index < c.Size() ? Cut(target.text, index, count) + u'\0'
                                                       : u"\uFFFF")),
        {}, {ZR_DO(Called(ZRStringGetUniCharsAt, *target, index, count, c.Room() + 2))}),

    // Edits that take another text.
    Row(kEdit, ZR_DO(Becomes(c, source.part)),
        {ZR_DO(mutator->SetTo(ZR_STRING(source))), ZR_DO(mutator->SetTo(Units(c), raw.length)),
         ZR_DO((Editable(*source).Extract(source.start, source.length, *mutator), true)),
         ZR_DO((source = target, mutator->Extract(start, length, *mutator), true)),
         ZR_DO((Editable(*source).ExtractBetween(Between(source).start, source.length, *mutator),
                true))},
        {ZR_DO(Called(ZRMutableStringSetToZRString, mutator, ZR_STRING(source)))}),
    Row(kEdit, ZR_DO(Becomes(c, source.text, source.slot->body)),
        {ZR_DO(*mutator = *source), ZR_DO(*mutator = Editable(*source)),
         ZR_DO(*mutator = (source = target, *mutator))}),
    Row(kEdit,
        ZR_DO(source.text.empty() ? Becomes(c, target.text, target.slot->body)
                                  : Becomes(c, source.text)),
        {ZR_DO(WrittenAndRead(*source, *mutator))}),

    // Edits that insert and remove.
    Row(kEdit, ZR_DO(Becomes(c, target.text + source.part)),
        {ZR_DO(mutator->Append(ZR_STRING(source))), ZR_DO(mutator->Append(ZR_UNITS(Raw(c)))),
         ZR_DO(*mutator += Whole(source)), ZR_DO(*mutator += Unit(c, source.part))},
        {ZR_DO(Called(ZRMutableStringAppend, mutator, Whole(source))),
         ZR_DO(Called(ZRMutableStringAppendUniChars, mutator, ZR_UNITS(Raw(c))))}),
    Row(kEdit, ZR_DO(Becomes(c, Spliced(c, u"", source.part))),
        {ZR_DO(mutator->Insert(start, ZR_STRING(source))),
         ZR_DO(mutator->Insert(start, ZR_UNITS(Raw(c))))},
        {ZR_DO(Called(ZRMutableStringInsert, mutator, start, ZR_STRING(source))),
         ZR_DO(Called(ZRMutableStringInsertUniChars, mutator, start, ZR_UNITS(Raw(c))))}),
    Row(kEdit, ZR_DO(Becomes(c, Spliced(c, target.part, source.part))),
        {ZR_DO(mutator->Replace(start, length, ZR_STRING(source))),
         ZR_DO(mutator->Replace(start, length, ZR_UNITS(Raw(c)))),
         ZR_DO(mutator->ReplaceBetween(Between(target).start, length, ZR_STRING(Between(source))))},
        {ZR_DO(Called(ZRMutableStringReplaceBetween, mutator, start, length, Whole(source))),
         ZR_DO(Called(ZRMutableStringReplaceWithUniChars, mutator, start, length,
                      ZR_UNITS(Raw(c))))}),
    Row(kEdit, ZR_DO(Becomes(c, Spliced(c, target.part, u""))),
        {ZR_DO(mutator->Remove(start, length)),
         ZR_DO(mutator->RemoveBetween(Between(target).start, length))},
        {ZR_DO(Called(ZRMutableStringRemoveBetween, mutator,
                      length == -1 ? start : Between(target).start, length))}),
    Row(kEdit,
        ZR_DO(Becomes(
            c, Spliced(c, target.part, AllReplaced(target.part, source.part, replacement.part)))),
        {ZR_DO(mutator->FindAndReplace(start, length, ZR_STRING(source), ZR_STRING(replacement))),
         ZR_DO(mutator->FindAndReplace(start, length, ZR_UNITS(source), ZR_STRING(replacement))),
         ZR_DO(mutator->FindAndReplace(start, length, ZR_STRING(source), ZR_UNITS(replacement))),
         ZR_DO(mutator->FindAndReplace(start, length, ZR_UNITS(source), ZR_UNITS(replacement)))},
        {ZR_DO(Called(ZRMutableStringFindAndReplace, mutator, start, length, Whole(source),
                      Whole(replacement)))}),
    Row(kEdit, ZR_DO(Changes(c, Padding(c) + target.text)),
        {ZR_DO(mutator->PadLeading(capacity, unit))},
        {ZR_DO(Called(ZRMutableStringPadLeading, mutator, capacity, unit))}),
    Row(kEdit, ZR_DO(Changes(c, target.text + Padding(c))),
        {ZR_DO(mutator->PadTrailing(capacity, unit))},
        {ZR_DO(Called(ZRMutableStringPadTrailing, mutator, capacity, unit))}),
    Row(kEdit, ZR_DO(Changes(c, start < 0 ? target.text : Cut(target.text, 0, start))),
        {ZR_DO(mutator->Truncate(start))},
        {ZR_DO(Called(ZRMutableStringTruncate, mutator, start))}),
    Row(kEdit, ZR_DO(Becomes(c, Trimmed(target.text))), {ZR_DO(mutator->Trim())},
        {ZR_DO(Called(ZRMutableStringTrim, mutator))}),

    // Edits that map units.
    Row(kEdit,
        ZR_DO((target.start = std::min<ZRLong>(start, c.Size() - 1),
               Becomes(c, c.Size() > 0 ? Spliced(c, u"?", Text(1, unit)) : u""))),
        {ZR_DO(mutator->SetCharAt(start, unit))},
        {ZR_DO(Called(ZRMutableStringSetUniCharAt, mutator, start, unit))}),
    Row(kEdit,
        ZR_DO(Becomes(c, Spliced(c, target.part, Text(target.part.rbegin(), target.part.rend())))),
        {ZR_DO(mutator->Reverse(start, length))},
        {ZR_DO(Called(ZRMutableStringReverse, mutator, start, length))}),
    Row(kEdit, ZR_DO(Becomes(c, Mapped(target.text, u_toupper))), {ZR_DO(mutator->ToUpper())},
        {ZR_DO(Called(ZRMutableStringToUpper, mutator))}),
    Row(kEdit, ZR_DO(Becomes(c, Mapped(target.text, u_tolower))), {ZR_DO(mutator->ToLower())},
        {ZR_DO(Called(ZRMutableStringToLower, mutator))}),
    Row(kAttempt,
        ZR_DO(Changes(c, mode == kZRNormalizationNFKC || mode == kZRNormalizationNFKD
                             ? AllReplaced(target.text, u"\u00B2", u"2")
                             : target.text)),
        {ZR_DO(mutator->Normalize(mode))}),

    // Buffers.
    Row(kEdit, ZR_DO(Becomes(c, Text(u"Zy").substr(0, released))),
        {ZR_DO(FillBuffer(c, mutator->GetBuffer(capacity)) &&
               (mutator->ReleaseBuffer(released), true))},
        {ZR_DO(FillBuffer(c, Called(ZRMutableStringGetBufferWithCapacity, mutator, capacity)) &&
               Called(ZRMutableStringReleaseBuffer, mutator, released))}),
    Row(kAttempt, ZR_DO(true),
        {ZR_DO(Begins(mutator->GetTerminatedBuffer(), target.text, target.text.size() + 1))}),

    // New strings.
    Row(kMake, ZR_DO(Becomes(c, source.part)),
        {ZR_DO(New(c, ZR_UNITS(Raw(c)))), ZR_DO(New(c, Record(c))),
         ZR_DO(New(c, ZRString(Units(c), raw.length))),
         ZR_DO(New(c, ZRString((Whole(source), source.units)))),
         ZR_DO(New(c, Chars(c), raw.start, raw.length)),
         ZR_DO(New(c, Bytes(c), raw.start, raw.length)), ZR_DO(New(c, FromUtf16(Tenfold(source)))),
         ZR_DO(New(c, FromUtf8(ToUtf8(Tenfold(source))))),
         ZR_DO(New(c, FromUtf8(ToUtf8(Whole(source)))))},
        {ZR_DO(Created(c, ZRStringCreateFromUniChars, ZRMutableStringCreateFromUniChars,
                       ZR_UNITS(Raw(c)))),
         ZR_DO(Created(c, ZRStringCreateFromUniChars, ZRMutableStringCreateFromUniChars,
                       (Whole(source), source.units), 0, mutator ? source.text.size() : -1)),
         ZR_DO(Created(c, ZRStringCreateFromCString, ZRMutableStringCreateFromCString, Chars(c),
                       raw.start, raw.length)),
         ZR_DO(Created(c, ZRStringCreateFromLocalString, ZRMutableStringCreateFromLocalString,
                       Bytes(c), raw.start, raw.length))}),
    Row(kMake, ZR_DO(Becomes(c, source.text, source.slot->body)),
        {ZR_DO(New(c, *source)), ZR_DO(New(c, source->GetZRStringRef())),
         ZR_DO(New(c, Editable(*source))),
         ZR_DO(New(c, ZRStringMutator(*source).GetZRMutableStringRef()))},
        {ZR_DO(Created(c, ZRStringCreateCopy, ZRMutableStringCreateCopy, *source))}),
    Row(kMake, ZR_DO(Becomes(c, Cut(source.text, source.start, source.length), SharedBy(source))),
        {ZR_DO(New(c, ZR_STRING(source))),
         ZR_DO((source.start = 0, New(c, ZRString(*source, source.length))))},
        {ZR_DO(Created(c, ZRStringCreateCopyRange, ZRMutableStringCreateCopyRange,
                       ZR_STRING(source)))}),
    Row(kMake, ZR_DO(Becomes(c, u"")),
        {ZR_DO(New(c, ZRStringMutator())), ZR_DO(New(c, static_cast<ZRStringRef__*>(nullptr)))},
        {ZR_DO(mutator ? Made(c, Called(ZRMutableStringCreateEmpty))
                       : Made(c, Called(ZRStringCreateFromCString, "", 0, 0)))}),
    Row(kSum, ZR_DO(Becomes(c, source.text + replacement.text)),
        {ZR_DO(New(c, Editable(*source) + *replacement)),
         ZR_DO(New(c, *source + Unit(c, replacement.text))),
         ZR_DO(New(c, Unit(c, source.text) + *replacement))},
        {ZR_DO(Made(c, Called(ZRMutableStringAddStrings, *source, *replacement)))}),

    // Arrays, and output.
    Row(kQuery,
        ZR_DO(entries.empty() ? kNone : Number(c, Inside(c) ? entries[index] : entries.back())),
        {ZR_DO(array->GetString(index)), ZR_DO((*array)[index]),
         ZR_DO(std::as_const (*array)[index])},
        {ZR_DO(Called<kZRStatusIndexOutside>(GetZRStringRefAt, array, index))}),
    Row(kQuery, ZR_DO(entries.size()), {ZR_DO(array->Size()), ZR_DO(array->End() - array->Begin())},
        {ZR_DO(Called(ZRStringPtrArraySize, array))}),
    Row(kQuery, ZR_DO(entries.empty()), {ZR_DO(array->Empty())},
        {ZR_DO(Called(ZRStringPtrArrayIsEmpty, array))}),
    Row(kQuery, ZR_DO(Inside(c) && (entries[index] = entry)),
        {ZR_DO(array->SetString(index, entry))},
        {ZR_DO(Called<kZRStatusIndexOutside>(SetZRStringRefAt, array, index, *entry))}),
    Row(kQuery, ZR_DO(Inside(c) && *entries.insert(entries.begin() + index, entry)),
        {ZR_DO(array->Insert(index, entry))},
        {ZR_DO(Called<kZRStatusIndexOutside>(InsertZRStringRefAt, array, index, *entry))}),
    Row(kQuery, ZR_DO((entries.push_back(entry), true)),
        {ZR_DO((array->PushBack(entry), true)), ZR_DO((*array = Pushed(*array, entry), true))},
        {ZR_DO(Called(ZRStringPtrArrayPushBack, array, *entry))}),
    Row(kQuery, ZR_DO(Inside(c) && (entries.erase(entries.begin() + index), true)),
        {ZR_DO((array->Erase(index), Inside(c))),
         ZR_DO(Inside(c) && array->Erase(array->Begin() + index) == array->Begin() + index)},
        {ZR_DO(Called<kZRStatusIndexOutside>(ZRStringPtrArrayErase, array, index))}),
    Row(kQuery, ZR_DO((entries.clear(), true)),
        {ZR_DO((array->EraseAll(), true)),
         ZR_DO(AssignedFromCreated(*array, ZRStringPtrArrayCreate))},
        {ZR_DO(Called(ZRStringPtrArrayEraseAll, array))}),
    Row(kQuery, ZR_DO(true),
        {ZR_DO(&(*array = *array) == array), ZR_DO(WrittenReadAndDeleted(*array)),
         ZR_DO(AssignedFromCreated(*array, ZRStrPtrArrCreateFromZRStrPtrArr, Handle(array))),
         ZR_DO(Serialized(*target))}),
};

const std::vector<Operation>& Operations() { return kOperations; }
