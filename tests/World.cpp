// The strings and the array that random operations work on, and what must hold after each.
#include <cstdlib>
#include <sstream>

#include "Model.h"

namespace {

struct Given {
  Text text;
  ExactText units;
  bool terminated;
};

/// Raw texts: short ones, and one that a string keeps in storage of its own, which ICU shares.
const std::vector<Given>& GivenTexts() {
  static const std::vector<Given> texts = [] {
    std::vector<Given> made;
    for (const Text& text :
         {Text(u""), Text(u"ab"), Text(u" b2A*\u00B2"), Text(27, u'a'), u"\u00B2" + Text(27, u'b'),
          Text(u"abAb2 ab\u20AC\u00B2") + Text(40, u'a')})
      for (const bool terminated : {false, true})
        made.push_back({text, ExactText(text, terminated), terminated});
    return made;
  }();
  return texts;
}

constexpr char kBytes[] = "aB\x80 b\xB2";
const Text kDecoded = u"aB\u20AC b\u00B2";
constexpr ZRLong kByteCount = 6;
constexpr std::size_t kLongest = 64;

}  // namespace

World::World(unsigned seed) : random_(seed) {
  for (std::size_t i = 0; i < kSlots; ++i)
    Reset(i);
}

void World::Reset(std::size_t slot) {
  Slot& reset = slots_[slot];
  reset.text = GivenTexts()[Below(GivenTexts().size())].text;
  if (slot < kStrings)
    reset.string = std::make_unique<ZRString>(Make(reset.text));
  else
    reset.string = std::make_unique<ZRStringMutator>(Make(reset.text));
  reset.body = BodyOf(*reset.string);
}

ZRLong World::Edge(bool valid) {
  const auto edge = Pick<ZRLong>(
      {0, 1, 2, 3, 5, 6, 26, INT_MAX - 1, INT_MAX, 0, 1, 2, -1, -2, INT_MIN, INT_MIN + 1});
  return valid && edge < 0 ? 0 : edge;
}

RawOperand World::DrawRaw(Case& c, bool valid) {
  RawOperand raw;
  const unsigned kind = Below(8);
  if (kind == 0 && !valid) {
    raw.length = Pick<ZRLong>({-2, -1, 0, 3});
    return raw;
  }
  Text text = kind < 3 ? c.text : c.oText;
  raw.units = kind < 3 ? c.s->GetBuffer() : c.o->GetBuffer();
  bool terminated = false;
  if (kind > 3) {
    const Given& given = GivenTexts()[Below(GivenTexts().size())];
    text = given.text;
    raw.units = given.units.Units();
    terminated = given.terminated;
  }
  const auto size = static_cast<ZRLong>(text.size());
  raw.start = Below(2) ? 0 : Below(size + 1);
  raw.length = Below(size - raw.start + 1);
  if (terminated && !valid && Below(2))
    raw.length = Pick<ZRLong>({-1, -2, INT_MIN});
  raw.text = text.substr(raw.start, raw.length < 0 ? size : raw.length);
  return raw;
}

RawOperand World::DrawTerminated(Case& c, bool valid) {
  RawOperand raw;
  if (c.m && Below(3) == 0) {
    raw.units = c.m->GetTerminatedBuffer();
    raw.text = c.text;
  } else if (valid || Below(8) != 0) {
    const Given& given = GivenTexts()[1 + 2 * Below(GivenTexts().size() / 2)];
    raw.units = given.units.Units();
    raw.text = given.text;
  }
  return raw;
}

Case World::Draw(Kind kind, bool valid) {
  Case c{};
  c.target = Below(kSlots);
  if (kind == kMakeString)
    c.target %= kStrings;
  else if (kind == kEdit || kind == kAttempt || kind == kMakeMutable || kind == kSum)
    c.target = kStrings + c.target % kStrings;
  // Every other operand is the target itself.
  c.operand = Below(3) == 0 ? c.target : Below(kSlots);
  c.second = Below(3) == 0 ? c.target : Below(kSlots);
  c.editable = kStrings + Below(kSlots - kStrings);
  c.s = slots_[c.target].string.get();
  c.m = c.target < kStrings ? nullptr : static_cast<ZRStringMutator*>(c.s);
  c.o = slots_[c.operand].string.get();
  c.p = slots_[c.second].string.get();
  c.e = static_cast<ZRStringMutator*>(slots_[c.editable].string.get());
  c.text = slots_[c.target].text;
  c.oText = slots_[c.operand].text;
  c.pText = slots_[c.second].text;
  c.eText = slots_[c.editable].text;
  for (ZRLong* const start : {&c.start, &c.oStart, &c.pStart})
    *start = Below(3) == 0 ? 0 : Edge(valid);
  for (ZRLong* const length : {&c.length, &c.oLength, &c.pLength})
    *length = Below(3) == 0 ? -1 : Edge(valid);
  c.own = Cut(c.text, c.start, c.length);
  c.part = Cut(c.oText, c.oStart, c.oLength);
  c.newPart = Cut(c.pText, c.pStart, c.pLength);
  c.z = DrawTerminated(c, valid);
  c.y = DrawTerminated(c, valid);
  c.raw = DrawRaw(c, valid);
  c.byteStart = Below(kByteCount + 1);
  c.byteLength = Below(kByteCount - c.byteStart + 1);
  c.decoded = kDecoded.substr(c.byteStart, c.byteLength);
  c.bytes = kBytes;
  if (!valid && Below(4) == 0) {
    c.byteLength = Pick<ZRLong>({-1, -2, INT_MIN});
    c.decoded = c.byteLength == -1 ? kDecoded.substr(c.byteStart) : u"";
  }
  if (!valid && Below(8) == 0) {
    c.bytes = nullptr;
    c.decoded = u"";
  }
  std::copy(c.raw.text.begin(), c.raw.text.end(), c.record.units);
  c.record.length = Below(2) ? -1 : static_cast<ZRLong>(c.raw.text.size());
  c.unit = Pick<unsigned short>({'a', 'b', 'A', ' ', '*', 0xB2, 0x20AC});
  c.options = Pick<ZRULong>({0u, 1u, 2u, 3u, 3u, 0x8000u});
  c.index = Below(2) ? Below(6) : Edge(false);
  c.count = std::max<ZRLong>(Edge(true), 1);
  c.capacity = Pick<ZRLong>({-1, 0, 1, 5, 27, 28, 40});
  if (valid)
    c.capacity = std::max<ZRLong>(c.capacity, 0);
  c.released = Pick<ZRLong>({-1, 0, 1, 2});
  c.mode = Pick({2, 3, 3, 4, 5, 5, 6, 7, INT_MIN});
  c.a = &array_;
  c.entries = entries_;
  return c;
}

int World::HoldersOf(const std::int32_t* body) const {
  int holders = 0;
  for (const Slot& slot : slots_)
    holders += slot.body == body;
  for (auto entry = array_.Begin(); entry != array_.End(); ++entry)
    holders += BodyOf(**entry) == body;
  return holders;
}

std::string World::Difference() const {
  for (std::size_t i = 0; i < kSlots; ++i) {
    const Slot& slot = slots_[i];
    const std::string name = "string " + std::to_string(i);
    if (TextOf(*slot.string) != slot.text)
      return name + " has another text";
    if (BodyOf(*slot.string) != slot.body)
      return name + " has another body";
    if (Holders(*slot.string) != HoldersOf(slot.body))
      return name + " has another number of holders";
  }
  const auto holds = [](const ZRString* entry, const Text& text) { return TextOf(*entry) == text; };
  return std::equal(array_.Begin(), array_.End(), entries_.begin(), entries_.end(), holds)
             ? ""
             : "the array has other entries";
}

std::string World::Unchanged(const Operation& operation, const Case& c) {
  if (operation.kind == kAppend && array_.Size() <= 2 * c.entries.size())
    entries_.insert(entries_.end(), c.entries.begin(),
                    c.entries.begin() + (array_.Size() - c.entries.size()));
  return Difference();
}

std::string World::Lost(const Case& c) {
  Slot& slot = slots_[c.target];
  slot.body = BodyOf(*slot.string);
  slot.text.clear();  // as it reads
  return slot.string->GetLength() != 0 ? "lost and not empty" : Difference();
}

std::string World::Settle(const Operation& operation, Case& c, const Result& result) {
  const Result expected = operation.model(c);
  Slot& slot = slots_[c.target];
  const std::int32_t* const before = slot.body;
  const bool shared = HoldersOf(before) > 1;
  const std::int32_t* const sharedBody = c.shared == SIZE_MAX ? nullptr : slots_[c.shared].body;
  if (operation.kind >= kMake && operation.kind <= kSum) {
    if (!c.made)
      return "nothing was made";
    slot.string.swap(c.made);
    if (c.m && Below(2) == 0)
      ZRMutableStringDestroy(
          static_cast<ZRStringMutator*>(c.made.release())->GetZRMutableStringRef());
    else if (Below(2) == 0)
      ZRStringDestroy(c.made.release()->GetZRStringRef());
    c.made.reset();
    slot.body = nullptr;
  }
  if (operation.kind < kArray && operation.kind != kQuery && !c.kept) {
    const std::int32_t* const body = BodyOf(*slot.string);
    slot.body = nullptr;
    // An edit takes no other body for a target that holds its own alone and is no operand.
    const bool takesAnother =
        shared || operation.kind >= kMake || c.operand == c.target || c.second == c.target;
    if (sharedBody ? body != sharedBody : HoldersOf(body) != 0 || (body != before && !takesAnother))
      return "the target has another body than it must";
    slot.body = body;
    slot.text = c.text;
  }
  entries_ = c.entries;
  if (!(result == expected))
    return "another result: " + std::to_string(result.number);
  const std::string difference = Difference();
  if (slot.text.size() > kLongest)
    Reset(c.target);
  if (entries_.size() > 5) {
    array_.DeleteAll();
    entries_.clear();
  }
  return difference;
}

std::string World::Step(const Operation& operation) {
  const std::size_t members = operation.members.size();
  const std::size_t form = Below(members + operation.functions.size());
  const bool valid = form >= members;
  Case c = Draw(operation.kind, valid);
  const Result result = (valid ? operation.functions[form - members] : operation.members[form])(c);
  const std::string wrong = Settle(operation, c, result);
  return wrong.empty()
             ? wrong
             : std::string(operation.name) + ", form " + std::to_string(form) + ": " + wrong;
}
