// A few strings that share bodies, an array, and the plain texts that they must hold.
#ifndef ZRSTRING_TESTS_WORLD_H
#define ZRSTRING_TESTS_WORLD_H

#include <ZRString/ZRStringHandles.h>
#include <ZRString/ZRStringMutator.h>
#include <ZRString/ZRStringPtrArray.h>
#include <gtest/gtest.h>

#include <csignal>
#include <cstdio>
#include <random>
#include <stdexcept>
#include <vector>

#include "Memory.h"
#include "Text.h"

/// A string, the text that it must hold, and its body.
struct Slot {
  std::string name;
  std::unique_ptr<ZRString> string;
  Text text;
  const std::int32_t* body;
};

/// A range of a string, or of units that are its text.
struct Operand {
  Slot* slot;
  const unsigned short* units;  // null for some empty texts
  ZRLong start, length;         // the length is also taken for an inclusive end
  Text text, part;              // the whole, and the range

  ZRString* operator->() const { return slot->string.get(); }
  ZRString& operator*() const { return *slot->string; }
};

inline std::ostream& operator<<(std::ostream& stream, const Operand& operand) {
  return stream << operand.slot->name << ", " << testing::PrintToString(operand.text) << ", start "
                << operand.start << ", length " << operand.length;
}

/// The objects and arguments of one call, under the names that the table of operations uses.
struct Case {
  Operand target, source, replacement;  // the last two may be the target; units end with a zero
  Operand raw;  // the units of `source`, of which the range can be read; not always with a zero
  std::string bytes;         // the text of `source` in windows-1252
  UniStr255 record;          // of the range of `raw`
  ZRStringMutator* mutator;  // the target, or null if it is no mutator
  ZRStringPtrArray* array;
  ZRString* entry;  // one of those that the array holds
  unsigned short unit;
  ZRULong options;
  ZRLong start, length, index, count, capacity, released;  // the first two are the target's
  ZRStringNormalizationMode mode;
  Text room = Text(200, u'#');  // of a caller; calls write from unit 2

  // The results of the model, at first what was before: the target's text, the room and the array's
  // entries; and the body that the target then has, null for one that no other string has.
  Text text, written = room;
  std::vector<ZRString*> entries;
  const std::int32_t* body = nullptr;

  std::vector<std::vector<unsigned short>> memory = {};  // of operands; has exactly their size

  long long Size() const { return static_cast<long long>(target.text.size()); }
  unsigned short* Room() { return reinterpret_cast<unsigned short*>(room.data()); }
};

enum Kind {
  kQuery,    // changes no string, perhaps the array
  kEdit,     // changes the target, a mutator; if ICU fails, its text is in the error state
  kAttempt,  // as kEdit, but the same text keeps its body; 0 if ICU fails, with nothing changed
  kMake,     // replaces the target by a new string, a mutator by a mutator
  kSum,      // as kMake for a mutator, by members that edit a copy or by a create function
};

/// A call or its model: the text, which messages quote, and a function that returns a number.
struct Form {
  const char* text;
  long long (*call)(Case&);
  bool valid = false;  // calls a handle function, which refuses invalid arguments
};

/// An operation: its model, which runs after the call, and all forms of the call.
struct Operation {
  Operation(Kind itsKind, Form itsModel, std::initializer_list<Form> members,
            std::initializer_list<Form> functions = {})
      : kind(itsKind), model(itsModel), forms(members) {
    for (Form form : functions)
      forms.push_back((form.valid = true, form));
  }

  Kind kind;
  Form model;
  std::vector<Form> forms;
};

const std::vector<Operation>& Operations();

constexpr long long kNone = 12;  // the result of a call that finds no entry

/// The last call, which a crash prints. GCC's address sanitizer has better handlers.
inline const char* running = "";
#ifndef __SANITIZE_ADDRESS__
inline void PrintRunning(int signal) {
  std::fprintf(stderr, "crashed in or after this call: %s\n", running);
  std::signal(signal, SIG_DFL);
  std::raise(signal);
}
inline const auto handlers = {std::signal(SIGSEGV, PrintRunning),
                              std::signal(SIGABRT, PrintRunning)};
#endif

class World {
 public:
  explicit World(unsigned seed) : random_(seed) {
    for (Slot& slot : slots_)
      Reset(slot);
  }

  unsigned Below(std::size_t limit) { return static_cast<unsigned>(random_() % limit); }

  /// Draws and makes any call, and compares everything with the model.
  void Step() {
    const Operation& operation = Operations()[Below(Operations().size())];
    Step(operation, operation.forms[Below(operation.forms.size())], 0, 0);
  }

  /// A step in which `count` allocations fail after `point` others. @return whether one did
  bool Step(const Operation& operation, const Form& form, long point, long count) {
    if (testing::Test::HasFailure())
      return false;
    const Kind kind = operation.kind;
    Case c = Draw(kind, form.valid);
    long long result = 0;
    std::string complaint;
    bool thrown = false;
    running = form.text;
    heap.Fail(point, count);
    try {
      result = form.call(c);
    } catch (const std::bad_alloc&) {
      thrown = true;
    } catch (const std::out_of_range& error) {
      result = std::strcmp(error.what(), "invalid vector<T> subscript") ? 0 : kNone;
    } catch (const std::string& text) {
      complaint = text;
    }
    const bool failed = heap.Recover() && count > 0;
    EXPECT_TRUE(failed || !thrown) << "std::bad_alloc";
    EXPECT_EQ(complaint, "") << "what the call did";
    const bool loses = kind == kEdit || (kind == kSum && !form.valid);
    if (!thrown && (!failed || kind != kAttempt || result != 0))
      Settle(operation, c, result, failed && loses);
    ExpectAllAsModelled();
    if (testing::Test::HasFailure())
      ADD_FAILURE() << form.text << "\n  target: " << c.target << "\n  source: " << c.source
                    << "\n  replacement: " << c.replacement << "\n  unit " << c.unit << ", options "
                    << c.options << ", index " << c.index << ", count " << c.count << ", capacity "
                    << c.capacity << ", released " << c.released << ", mode " << c.mode;
    if (c.target.slot->text.size() > 64)
      Reset(*c.target.slot);
    return failed;
  }

 private:
  static constexpr std::size_t kStrings = 3, kSlots = 6;  // the others are mutators

  /// Draws the arguments of an operation; `valid` ones are accepted by the handle functions.
  Case Draw(Kind kind, bool valid) {
    Case c{};
    const auto exact = [&](const Text& text, bool zero) {
      c.memory.emplace_back(text.c_str(), text.c_str() + text.size() + zero);
      return c.memory.back().data();
    };
    const auto operand = [&](Slot& slot) -> Operand {
      const ZRLong start = Below(3) ? Edge(valid) : 0, length = Below(3) ? Edge(valid) : -1;
      const bool own = c.mutator && &slot == c.target.slot && Below(2);
      const bool zero = valid || !slot.text.empty() || Below(2);
      const unsigned short* const units =
          own ? c.mutator->GetTerminatedBuffer() : exact(slot.text, zero);
      return {&slot, units, start, length, slot.text, Cut(slot.text, start, length)};
    };
    const std::size_t first = kind == kQuery || kind == kMake ? 0 : kStrings;
    c.target = operand(slots_[first + Below(kSlots - first)]);
    c.start = c.target.start, c.length = c.target.length;
    c.mutator = dynamic_cast<ZRStringMutator*>(c.target.slot->string.get());
    c.source = operand(Below(3) ? slots_[Below(kSlots)] : *c.target.slot);
    c.replacement = operand(Below(3) ? slots_[Below(kSlots)] : *c.target.slot);
    c.raw = c.source;
    const unsigned place = valid ? 0 : Below(3);
    if (place > 0)
      c.raw.units = place == 1 ? c.source->GetBuffer() : exact(c.source.text, false);
    const auto size = static_cast<ZRLong>(c.source.text.size());
    c.raw.start = Below(2) ? Below(size + 1) : 0;
    c.raw.length = Below(size - c.raw.start + 1);
    if (place == 0 && !valid && Below(2))
      c.raw.length = Pick({-1, -1, -2, INT_MIN});
    c.raw.part = c.source.text.substr(c.raw.start, c.raw.length);  // a negative length: all
    if (!valid && Below(8) == 0)
      c.raw = {c.source.slot, nullptr, 5, Pick({-2, -1, 0, 3}), u"", u""};
    for (const char16_t each : c.source.text)
      c.bytes += static_cast<char>(each == 0x20AC ? 0x80 : each);
    const Text rest = Cut(c.raw.text, c.raw.start, -1);
    std::copy(rest.begin(), rest.end(), c.record.units);
    c.record.length = c.raw.length < 0 ? -1 : static_cast<ZRLong>(c.raw.part.size());
    c.array = &array_;
    c.entry = &pool_[Below(std::size(pool_))];
    c.text = c.target.text;
    c.entries = entries_;
    c.unit = Unit();
    c.options = Pick({0, 1, 2, 3, 3, 0x8000});
    c.index = Below(2) ? Below(6) : Edge(false);
    c.count = std::max<ZRLong>(c.target.length, 1);
    c.capacity = Pick({valid ? 0 : -1, 0, 1, 5, 27, 28, 40});
    c.released = Pick({-1, 0, 1, 2});
    c.mode = static_cast<ZRStringNormalizationMode>(Pick({2, 3, 3, 4, 5, 5, 6, 7, INT_MIN}));
    return c;
  }

  /// Compares the result of a call with that of the model, and updates what the objects must be.
  /// The call may have lost the target's text, which then reads as empty, if `mayLose`.
  void Settle(const Operation& operation, Case& c, long long result, bool mayLose) {
    const long long expected = operation.model.call(c);
    Slot& slot = *c.target.slot;
    if (mayLose && !slot.string->GetBuffer())
      c.text.clear();
    else
      EXPECT_EQ(result, expected) << "the result, from " << operation.model.text;
    EXPECT_EQ(c.room, c.written);
    entries_ = c.entries;
    if (operation.kind == kQuery)
      return;
    // An edit keeps a body that no other string has, if the target is no operand.
    const bool keeps = operation.kind == kAttempt && c.text == slot.text;
    const bool edits =
        operation.kind < kMake && c.source.slot != &slot && c.replacement.slot != &slot;
    if (!c.body && (keeps || (edits && HoldersOf(slot.body) == 1)))
      c.body = slot.body;
    slot.body = nullptr;
    const std::int32_t* const body = BodyOf(*slot.string);
    slot.body = c.body || HoldersOf(body) > 0 ? c.body : body;
    slot.text = c.text;
  }

  void ExpectAllAsModelled() const {
    for (const Slot& slot : slots_) {
      EXPECT_EQ(TextOf(*slot.string), slot.text) << "the text of " << slot.name;
      EXPECT_EQ(BodyOf(*slot.string), slot.body)
          << "the body of " << slot.name << (slot.body ? "" : ", which must be a new one");
      EXPECT_EQ(Holders(*slot.string), HoldersOf(slot.body)) << "the holders of " << slot.name;
    }
    EXPECT_EQ(std::vector(array_.Begin(), array_.End()), entries_) << "the array";
  }

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
    slot.name = (&slot < slots_ + kStrings ? "ZRString " : "ZRStringMutator ") +
                std::to_string(&slot - slots_);
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
