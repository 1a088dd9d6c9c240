// A few strings that share bodies, an array, and the plain texts that they must hold.
#ifndef ZRSTRING_TESTS_WORLD_H
#define ZRSTRING_TESTS_WORLD_H

#include <ZRString/ZRStringHandles.h>
#include <ZRString/ZRStringMutator.h>
#include <ZRString/ZRStringPtrArray.h>

#include <random>
#include <vector>

#include "Text.h"

/// A string, the text that it must hold, and its body.
struct Slot {
  std::unique_ptr<ZRString> string;
  Text text;
  const std::int32_t* body;
};

/// A range of a string, or of units that are its text.
struct Operand {
  Slot* slot;
  const unsigned short* units;  // null for some empty texts
  ZRLong start, length;
  Text text, part;  // the whole, and the range

  ZRString* operator->() const { return slot->string.get(); }
  ZRString& operator*() const { return *slot->string; }
};

/// The objects and arguments of one call, and the results of the model.
struct Case {
  Operand t, o, p;  // the target, and two operands, each perhaps the target; units end with a zero
  Operand raw;      // the units of `o`, of which the range can be read; not always with a zero
  std::string bytes;   // the text of `o` in windows-1252
  UniStr255 record;    // of the range of `raw`
  ZRStringMutator* m;  // the target, or null if it is no mutator
  ZRStringPtrArray* a;
  ZRString* entry;  // one of those that the array holds
  unsigned short unit;
  ZRULong options;
  ZRLong index, count, capacity, released;
  ZRStringNormalizationMode mode;
  Text room = Text(200, u'#');  // of a caller; calls write from unit 2

  // The results of the model, besides the target's text in t.text: the array's entries, and the
  // body that the target then has; null for one that no other string has.
  std::vector<ZRString*> entries;
  const std::int32_t* body = nullptr;

  std::vector<std::vector<unsigned short>> memory = {};  // of operands; has exactly their size

  long long Size() const { return static_cast<long long>(t.text.size()); }
  unsigned short* Room() { return reinterpret_cast<unsigned short*>(room.data()); }
};

enum Kind {
  kQuery,    // changes no string, perhaps the array
  kEdit,     // changes the target, a mutator; if ICU fails, its text is in the error state
  kAttempt,  // as kEdit, but if the text stays the same or ICU fails, returns 0 and changes nothing
  kMake,     // replaces the target by a new string, a mutator by a mutator
  kSum,      // as kMake for a mutator, by members that edit a copy or by a create function
};

using Function = long long (*)(Case&);  // returns a number or the hash of a text

struct Form {
  Function call;
  bool valid = false;  // calls a handle function, which refuses invalid arguments
};

struct Operation {
  const char* name;
  Kind kind;
  Function model;
  std::vector<Form> forms;
};

const std::vector<Operation>& Operations();

class World {
 public:
  explicit World(unsigned seed) : random_(seed) {
    for (Slot& slot : slots_)
      Reset(slot);
  }

  unsigned Below(std::size_t limit) { return static_cast<unsigned>(random_() % limit); }

  /// Draws the arguments of an operation; `valid` ones are accepted by the handle functions.
  Case Draw(Kind kind, bool valid) {
    Case c{};
    const auto exact = [&](const Text& text, bool zero) {
      c.memory.emplace_back(text.c_str(), text.c_str() + text.size() + zero);
      return c.memory.back().data();
    };
    const auto operand = [&](Slot& slot) -> Operand {
      const ZRLong start = Below(3) ? Edge(valid) : 0, length = Below(3) ? Edge(valid) : -1;
      const bool own = c.m && &slot == c.t.slot && Below(2);
      const bool zero = valid || !slot.text.empty() || Below(2);
      const unsigned short* const units = own ? c.m->GetTerminatedBuffer() : exact(slot.text, zero);
      return {&slot, units, start, length, slot.text, Cut(slot.text, start, length)};
    };
    const std::size_t first = kind == kQuery || kind == kMake ? 0 : kStrings;
    c.t = operand(slots_[first + Below(kSlots - first)]);
    c.m = dynamic_cast<ZRStringMutator*>(c.t.slot->string.get());
    c.o = operand(Below(3) ? slots_[Below(kSlots)] : *c.t.slot);
    c.p = operand(Below(3) ? slots_[Below(kSlots)] : *c.t.slot);
    c.raw = c.o;
    const unsigned place = valid ? 0 : Below(3);
    if (place > 0)
      c.raw.units = place == 1 ? c.o->GetBuffer() : exact(c.o.text, false);
    const auto size = static_cast<ZRLong>(c.o.text.size());
    c.raw.start = Below(2) ? Below(size + 1) : 0;
    c.raw.length = Below(size - c.raw.start + 1);
    if (place == 0 && !valid && Below(2))
      c.raw.length = Pick({-1, -1, -2, INT_MIN});
    c.raw.part = c.o.text.substr(c.raw.start, c.raw.length);  // a negative length: all
    if (!valid && Below(8) == 0)
      c.raw = {c.o.slot, nullptr, 5, Pick({-2, -1, 0, 3}), u"", u""};
    for (const char16_t each : c.o.text)
      c.bytes += static_cast<char>(each == 0x20AC ? 0x80 : each);
    const Text rest = Cut(c.raw.text, c.raw.start, -1);
    std::copy(rest.begin(), rest.end(), c.record.units);
    c.record.length = c.raw.length < 0 ? -1 : static_cast<ZRLong>(c.raw.part.size());
    c.a = &array_;
    c.entry = &pool_[Below(std::size(pool_))];
    c.entries = entries_;
    c.unit = Unit();
    c.options = Pick({0, 1, 2, 3, 3, 0x8000});
    c.index = Below(2) ? Below(6) : Edge(false);
    c.count = std::max<ZRLong>(c.t.length, 1);
    c.capacity = Pick({valid ? 0 : -1, 0, 1, 5, 27, 28, 40});
    c.released = Pick({-1, 0, 1, 2});
    c.mode = static_cast<ZRStringNormalizationMode>(Pick({2, 3, 3, 4, 5, 5, 6, 7, INT_MIN}));
    return c;
  }

  /// Draws, calls and checks an operation. @return what is wrong; empty if nothing is
  std::string Step(const Operation& operation) {
    const std::size_t form = Below(operation.forms.size());
    Case c = Draw(operation.kind, operation.forms[form].valid);
    const std::string wrong = Settle(operation, c, operation.forms[form].call(c));
    return wrong.empty() ? "" : operation.name + (", form " + std::to_string(form)) + ": " + wrong;
  }

  /// Compares a call with the model, whose state it then updates. The call may have lost the
  /// target's text, which then reads as empty, if `mayLose`. @return what is wrong
  std::string Settle(const Operation& operation, Case& c, long long result, bool mayLose = false) {
    const bool right = result == operation.model(c);
    Slot& slot = *c.t.slot;
    if (mayLose && !slot.string->GetBuffer())
      c.t.text.clear();
    else if (!right)
      return "another result";
    if (operation.kind != kQuery) {
      // An edit keeps a body that no other string has, if the target is no operand.
      const bool keeps = operation.kind == kAttempt && c.t.text == slot.text;
      const bool edits = operation.kind < kMake && c.o.slot != &slot && c.p.slot != &slot;
      if (!c.body && (keeps || (edits && HoldersOf(slot.body) == 1)))
        c.body = slot.body;
      slot.body = nullptr;
      const std::int32_t* const body = BodyOf(*slot.string);
      if (c.body ? body != c.body : HoldersOf(body) > 0)
        return "the target has another body than it must";
      slot.body = body;
      slot.text = c.t.text;
    }
    entries_ = c.entries;
    const std::string difference = Difference();
    if (slot.text.size() > 64)
      Reset(slot);
    return difference;
  }

  /// @return how the objects differ from what they must be; empty if they do not
  std::string Difference() const {
    for (const auto& [string, text, body] : slots_)
      if (TextOf(*string) != text || BodyOf(*string) != body || Holders(*string) != HoldersOf(body))
        return "a string has another text, body or number of holders";
    const bool same = std::equal(array_.Begin(), array_.End(), entries_.begin(), entries_.end());
    return same ? "" : "the array has other entries";
  }

 private:
  static constexpr std::size_t kStrings = 3, kSlots = 6;  // the others are mutators

  ZRLong Pick(std::initializer_list<int> values) { return values.begin()[Below(values.size())]; }

  ZRLong Edge(bool valid) {
    return std::max<ZRLong>(valid ? 0 : INT_MIN, Pick({0, 1, 2, 0, 1, 2, 3, 5, 6, 26, INT_MAX - 1,
                                                       INT_MAX, -1, -2, INT_MIN, INT_MIN + 1}));
  }

  char16_t Unit() { return Pick({'a', 'a', 'a', 'b', 'A', ' ', '*', '2', 0xB2, 0x20AC}); }

  /// Gives a string a new text, perhaps too long for the body itself.
  void Reset(Slot& slot) {
    slot.text.clear();
    for (int runs = Pick({0, 1, 1, 5}); runs > 0; --runs)
      slot.text += Text(Pick({1, 1, 2, 27}), Unit());
    const ZRString made = Make(slot.text);
    slot.string.reset(&slot < slots_ + kStrings ? new ZRString(made) : new ZRStringMutator(made));
    slot.body = BodyOf(made);
  }

  int HoldersOf(const std::int32_t* body) const {
    const auto holds = [&](const Slot& slot) { return slot.body == body; };
    return std::count_if(slots_, slots_ + kSlots, holds);
  }

  std::mt19937 random_;
  Slot slots_[kSlots];
  ZRString pool_[3] = {Make(u""), Make(u"ab"), Make(Text(30, u'a'))};  // for the array
  ZRStringPtrArray array_;
  std::vector<ZRString*> entries_;
};

#endif
