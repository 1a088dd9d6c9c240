// A few strings that share bodies, an array, and the plain texts that they must hold.
#ifndef ZRSTRING_TESTS_WORLD_H
#define ZRSTRING_TESTS_WORLD_H

#include <ZRString/ZRStringHandles.h>
#include <ZRString/ZRStringMutator.h>
#include <ZRString/ZRStringPtrArray.h>

#include <initializer_list>
#include <random>
#include <string>
#include <vector>

#include "Text.h"

/// A string, the text that it must hold, and its body.
struct Slot {
  std::unique_ptr<ZRString> string;
  Text text;
  const std::int32_t* body;
};

/// A string as an operand: whole, or a range of it, whose units are `part`.
struct Operand {
  Slot* slot;
  ZRString* string;
  Text text;
  ZRLong start, length;
  Text part;

  ZRString* operator->() const { return string; }
  ZRString& operator*() const { return *string; }
  ZRStringRef__* Handle() const { return string->GetZRStringRef(); }
};

/// A raw text as an operand: a range of it, whose units are `part`.
template <typename Unit>
struct RawOperand {
  const Unit* units;
  ZRLong start, length;
  Text part;
};

/// The objects and arguments of one call, and the results of the call and of the model.
struct Case {
  Operand t, o, p, e;               // the target; two operands, each perhaps the target; a mutator
  ZRStringMutator* m;               // the target, or null if it is no mutator
  RawOperand<unsigned short> raw;   // perhaps in the target's own units
  RawOperand<unsigned short> z, y;  // terminated; `part` is the whole
  RawOperand<char> bytes;
  UniStr255 record;  // of raw.part
  unsigned short unit;
  ZRULong options;
  ZRLong index, count, capacity, released;
  int mode;
  ZRStringPtrArray* a;

  // The results of the call.
  ZRStringRef__* newString = nullptr;
  ZRMutableStringRef__* newMutable = nullptr;
  std::unique_ptr<ZRString> made;
  ZRLong number = -9;
  unsigned char flag = 9;

  // The results of the model, besides the target's text in t.text: the array's entries, the string
  // whose body the target then shares, and whether the target keeps its body.
  std::vector<Text> entries;
  const Slot* shared = nullptr;
  bool kept = false;

  long long Size() const { return static_cast<long long>(t.text.size()); }
  ZRMutableStringRef__* M() const { return m->GetZRMutableStringRef(); }
  ZRStringPtrArrayRef__* A() const { return a->GetZRStringPtrArrayRef(); }
};

enum Kind {
  kQuery,    // changes nothing
  kEdit,     // changes the target, a mutator; if ICU fails, its text is in the error state
  kAttempt,  // changes the target; if ICU fails, returns 0 and changes nothing
  kMake,     // makes a string, or a mutator if the target is one, that replaces the target
  kSum,      // as kMake, by members that edit a copy or by a create function
  kArray,    // changes the array
  kAppend,   // changes the array entry by entry
};

using Form = Text (*)(Case&);  // returns a text or the digits of a number

struct Operation {
  const char* name;
  Kind kind;
  Form model;
  std::vector<Form> members;
  std::vector<Form> functions = {};  // of the handle interface, with valid arguments only
};

const std::vector<Operation>& Operations();

class World {
 public:
  explicit World(unsigned seed) : random_(seed) {
    for (Slot& slot : slots_)
      Reset(slot);
  }
  ~World() { array_.DeleteAll(); }

  unsigned Below(std::size_t limit) { return static_cast<unsigned>(random_() % limit); }

  /// Draws the arguments of an operation; `valid` ones are accepted by the handle functions.
  Case Draw(Kind kind, bool valid) {
    const auto slot = [&](Slot& of) -> Operand {
      const ZRLong start = Below(3) == 0 ? 0 : Edge(valid), length = Below(3) ? Edge(valid) : -1;
      return {&of, of.string.get(), of.text, start, length, Cut(of.text, start, length)};
    };
    const bool edits = kind == kEdit || kind == kAttempt || kind == kSum;
    Case c{};
    c.t = slot(slots_[edits ? kStrings + Below(kSlots - kStrings) : Below(kSlots)]);
    c.m = c.t.slot < slots_ + kStrings ? nullptr : static_cast<ZRStringMutator*>(c.t.string);
    c.o = slot(Below(3) == 0 ? *c.t.slot : slots_[Below(kSlots)]);
    c.p = slot(Below(3) == 0 ? *c.t.slot : slots_[Below(kSlots)]);
    c.e = slot(slots_[kStrings + Below(kSlots - kStrings)]);
    for (RawOperand<unsigned short>* const each : {&c.z, &c.y}) {
      if (c.m && Below(3) == 0)
        *each = {c.m->GetTerminatedBuffer(), 0, -1, c.t.text};
      else if (valid || Below(8))
        *each = Given(Below(kGiven), true);
    }
    const unsigned place = Below(10);
    c.raw = place < 3   ? RawOperand<unsigned short>{c.t.string->GetBuffer(), 0, 0, c.t.text}
            : place < 4 ? RawOperand<unsigned short>{c.o.string->GetBuffer(), 0, 0, c.o.text}
                        : Given(Below(kGiven), place < 7);
    Narrow(c.raw, place > 3 && place < 7 && !valid);
    c.bytes = {"aB\x80 b\xB2", 0, 0, u"aB\u20AC b\u00B2"};
    Narrow(c.bytes, !valid);
    if (!valid && Below(8) == 0)
      c.raw = {nullptr, 0, Pick({-2, -1, 0, 3}), u""};
    if (!valid && Below(8) == 0)
      c.bytes = {nullptr, 5, Pick({-2, -1, 0, 3}), u""};
    std::copy(c.raw.part.begin(), c.raw.part.end(), c.record.units);
    c.record.length = Below(2) ? -1 : static_cast<ZRLong>(c.raw.part.size());
    c.unit = static_cast<char16_t>(Pick({'a', 'b', 'A', ' ', '*', 0xB2, 0x20AC}));
    c.options = Pick({0, 1, 2, 3, 3, 0x8000});
    c.index = Below(2) ? Below(6) : Edge(false);
    c.count = std::max<ZRLong>(Edge(true), 1);
    c.capacity = Pick({valid ? 0 : -1, 0, 1, 5, 27, 28, 40});
    c.released = Pick({-1, 0, 1, 2});
    c.mode = Pick({2, 3, 3, 4, 5, 5, 6, 7, INT_MIN});
    c.a = &array_;
    c.entries = entries_;
    return c;
  }

  /// Draws, calls and checks an operation. @return what is wrong; empty if nothing is
  std::string Step(const Operation& operation) {
    const std::size_t members = operation.members.size();
    const std::size_t form = Below(members + operation.functions.size());
    const bool valid = form >= members;
    Case c = Draw(operation.kind, valid);
    const Text result = (valid ? operation.functions[form - members] : operation.members[form])(c);
    const std::string wrong = Settle(operation, c, result);
    return wrong.empty() ? "" : operation.name + (", form " + std::to_string(form)) + ": " + wrong;
  }

  /// Compares a call with the model, whose state it then updates. @return what is wrong
  std::string Settle(const Operation& operation, Case& c, const Text& result) {
    const Text expected = operation.model(c);
    Slot& slot = *c.t.slot;
    const std::int32_t* const before = slot.body;
    const std::int32_t* const sharedBody = c.shared ? c.shared->body : nullptr;
    const bool takesAnother =
        HoldersOf(before) > 1 || operation.kind >= kMake || c.o.slot == &slot || c.p.slot == &slot;
    if (operation.kind == kMake || operation.kind == kSum) {
      slot.string.swap(c.made);
      if (c.m && Below(2) == 0)
        ZRMutableStringDestroy((c.made.release(), c.M()));
      else
        ZRStringDestroy(c.made.release()->GetZRStringRef());
    }
    if (operation.kind != kQuery && operation.kind < kArray && !c.kept) {
      slot.body = nullptr;
      const std::int32_t* const body = BodyOf(*slot.string);
      // An edit keeps the target's body if nothing shares it and the target is no operand.
      if (sharedBody ? body != sharedBody : HoldersOf(body) || (body != before && !takesAnother))
        return "the target has another body than it must";
      slot.body = body;
      slot.text = c.t.text;
    }
    entries_ = c.entries;
    const std::string difference = result == expected ? Difference() : "another result";
    if (slot.text.size() > 64)
      Reset(slot);
    if (entries_.size() > 5)
      array_.DeleteAll(), entries_.clear();
    return difference;
  }

  /// Checks that a failed call has changed nothing; kAppend may have appended some entries.
  std::string Unchanged(const Operation& operation, const Case& c) {
    if (operation.kind == kAppend && array_.Size() <= 2 * c.entries.size())
      entries_.insert(entries_.end(), c.entries.begin(),
                      c.entries.begin() + (array_.Size() - c.entries.size()));
    return Difference();
  }

  /// Checks that a failed edit has only lost the target's text, which then reads as empty.
  std::string Lost(const Case& c) {
    c.t.slot->body = BodyOf(*c.t.string);
    c.t.slot->text.clear();
    return Difference();
  }

 private:
  static constexpr std::size_t kStrings = 3, kSlots = 6, kGiven = 6;  // then come mutators

  /// Raw texts in memory of exactly their size: short ones, and ones too long for the body.
  static RawOperand<unsigned short> Given(std::size_t index, bool terminated) {
    static const Text texts[kGiven] = {u"",
                                       u"ab",
                                       u" b2A*\u00B2",
                                       Text(27, u'a'),
                                       u"\u00B2" + Text(27, u'b'),
                                       u"abAb2 ab\u20AC\u00B2" + Text(40, u'a')};
    static const auto exact = [](bool zero) {
      std::vector<ExactText> made;
      for (const Text& text : texts)
        made.emplace_back(text, zero);
      return made;
    };
    static const std::vector<ExactText> units[] = {exact(false), exact(true)};
    return {units[terminated][index].Units(), 0, -1, texts[index]};
  }

  template <typename Unit>
  void Narrow(RawOperand<Unit>& raw, bool toTheZero) {
    const auto size = static_cast<ZRLong>(raw.part.size());
    raw.start = Below(2) ? 0 : Below(size + 1);
    raw.length = toTheZero && Below(2) ? Pick({-1, -1, -2, INT_MIN}) : Below(size - raw.start + 1);
    const bool none = sizeof(Unit) == 1 && raw.length < -1;  // for bytes, only -1 is to the zero
    raw.part = raw.part.substr(raw.start, none ? 0 : raw.length);
  }

  ZRLong Pick(std::initializer_list<int> values) { return values.begin()[Below(values.size())]; }

  ZRLong Edge(bool valid) {
    const ZRLong edge =
        Pick({0, 1, 2, 3, 5, 6, 26, INT_MAX - 1, INT_MAX, 0, 1, 2, -1, -2, INT_MIN, INT_MIN + 1});
    return valid ? std::max<ZRLong>(edge, 0) : edge;
  }

  void Reset(Slot& slot) {
    slot.text = Given(Below(kGiven), false).part;
    if (&slot < slots_ + kStrings)
      slot.string = std::make_unique<ZRString>(Make(slot.text));
    else
      slot.string = std::make_unique<ZRStringMutator>(Make(slot.text));
    slot.body = BodyOf(*slot.string);
  }

  int HoldersOf(const std::int32_t* body) const {
    int holders = 0;
    for (const Slot& slot : slots_)
      holders += slot.body == body;
    for (auto entry = array_.Begin(); entry != array_.End(); ++entry)
      holders += BodyOf(**entry) == body;
    return holders;
  }

  std::string Difference() const {
    for (const Slot& slot : slots_) {
      const std::string name = "string " + std::to_string(&slot - slots_);
      if (TextOf(*slot.string) != slot.text)
        return name + " has another text";
      if (BodyOf(*slot.string) != slot.body || Holders(*slot.string) != HoldersOf(slot.body))
        return name + " has another body or number of holders";
    }
    const auto holds = [](const ZRString* entry, const Text& text) {
      return TextOf(*entry) == text;
    };
    const bool same =
        std::equal(array_.Begin(), array_.End(), entries_.begin(), entries_.end(), holds);
    return same ? "" : "the array has other entries";
  }

  std::mt19937 random_;
  Slot slots_[kSlots];
  ZRStringPtrArray array_;
  std::vector<Text> entries_;
};

#endif
