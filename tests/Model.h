// The library's operations, each beside what it makes of plain texts that share nothing.
#ifndef ZRSTRING_TESTS_MODEL_H
#define ZRSTRING_TESTS_MODEL_H

#include <ZRString/ZRStringHandles.h>
#include <ZRString/ZRStringMutator.h>
#include <ZRString/ZRStringPtrArray.h>

#include <initializer_list>
#include <random>
#include <string>
#include <vector>

#include "Text.h"

/// What a call gives: a number or a text.
struct Result {
  Result(long long value) : number(value) {}
  Result(Text value) : text(std::move(value)) {}
  bool operator==(const Result& other) const {
    return number == other.number && text == other.text;
  }

  long long number = 0;
  Text text;
};

/// A raw operand, its range and the units in that.
struct RawOperand {
  const unsigned short* units = nullptr;
  ZRLong start = 0, length = 0;
  Text text;
};

/// The objects and arguments of one call, and what it and the model make of them.
struct Case {
  std::size_t target, operand, second, editable;  // slots of the world

  ZRString* s;               // the target
  ZRStringMutator* m;        // the same, where it is one
  const ZRString *o, *p;     // operands; any may be the target or share its body
  const ZRStringMutator* e;  // one that is a mutator
  Text text, oText, pText, eText;
  ZRLong start, length, oStart, oLength, pStart, pLength;
  RawOperand raw;   // perhaps in the target's own units
  RawOperand z, y;  // terminated; the whole texts
  const char* bytes;
  ZRLong byteStart, byteLength;
  Text decoded;  // of the bytes' range
  UniStr255 record;
  unsigned short unit;
  ZRULong options;
  ZRLong index, count, capacity, released;
  int mode;
  ZRStringPtrArray* a;

  // The ranges that the call is about: the target's, the operand's and the second operand's.
  Text own, part, newPart;

  // What the call gives.
  ZRStringRef__* newString = nullptr;
  ZRMutableStringRef__* newMutable = nullptr;
  std::unique_ptr<ZRString> made;
  ZRLong number = -9;

  // What the model gives: `text`, the array's entries, and of the target's body, which is
  // otherwise its own afterwards, the slot it is shared with or that it stays.
  std::vector<Text> entries;
  std::size_t shared = SIZE_MAX;
  bool kept = false;

  long long Size() const { return static_cast<long long>(text.size()); }
  ZRStringRef__* S() const { return s->GetZRStringRef(); }
  ZRMutableStringRef__* M() const { return m->GetZRMutableStringRef(); }
  ZRStringRef__* O() const { return o->GetZRStringRef(); }
  ZRStringPtrArrayRef__* A() const { return a->GetZRStringPtrArrayRef(); }
  ZRMutableStringRef__* E() const {
    return const_cast<ZRStringMutator*>(e)->GetZRMutableStringRef();
  }
};

enum Kind {
  kQuery,       // changes nothing
  kEdit,        // changes the target, a mutator; when ICU fails, its text is in the error state
  kAttempt,     // changes the target; when ICU fails, gives 0 and changes nothing
  kMake,        // makes a string or a mutator, which becomes the target
  kMakeString,  // a string only
  kMakeMutable,
  kSum,     // makes a mutator by members that edit it, or a create function
  kArray,   // changes the array
  kAppend,  // changes the array entry by entry
};

using Form = Result (*)(Case&);

struct Operation {
  const char* name;
  Kind kind;
  Form model;
  std::vector<Form> members;
  std::vector<Form> functions = {};  // of the handle interface, with valid arguments only
};

const std::vector<Operation>& Operations();

/// A handful of strings that share bodies, an array, and what they must hold.
class World {
 public:
  explicit World(unsigned seed);
  ~World() { array_.DeleteAll(); }

  unsigned Below(std::size_t limit) { return static_cast<unsigned>(random_() % limit); }

  /// Arguments for an operation: `valid` ones are those that the handle functions take.
  Case Draw(Kind kind, bool valid);

  /// Draws, calls and settles an operation. @return what is wrong then, and where
  std::string Step(const Operation& operation);

  /// Takes over what the model says of a call that has been made. @return what is wrong then
  std::string Settle(const Operation& operation, Case& c, const Result& result);

  /// What a call that threw or refused has changed; kAppend may have appended some entries.
  std::string Unchanged(const Operation& operation, const Case& c);

  /// What a call has changed beside losing the target's text to ICU's error state.
  std::string Lost(const Case& c);

 private:
  struct Slot {
    std::unique_ptr<ZRString> string;
    Text text;
    const std::int32_t* body = nullptr;
  };

  template <typename Value>
  Value Pick(std::initializer_list<Value> values) {
    return values.begin()[Below(values.size())];
  }

  std::string Difference() const;
  void Reset(std::size_t slot);
  ZRLong Edge(bool valid);
  RawOperand DrawRaw(Case& c, bool valid);
  RawOperand DrawTerminated(Case& c, bool valid);
  int HoldersOf(const std::int32_t* body) const;

  static constexpr std::size_t kStrings = 3, kSlots = 6;  // the last ones hold mutators

  std::mt19937 random_;
  Slot slots_[kSlots];
  ZRStringPtrArray array_;
  std::vector<Text> entries_;
};

#endif
