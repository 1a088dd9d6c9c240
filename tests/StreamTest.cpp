// Records: the exact calls made on the stream, and what a failing stream or a bad length leaves.
#include <ZRString/ZRStringStream.h>
#include <gtest/gtest.h>

#include <new>
#include <utility>

#include "Memory.h"
#include "Recorder.h"
#include "Text.h"

namespace {

const std::pair<Text, Calls> kRecords[] = {
    {u"", {{'l', 0}}},
    {u"x", {{'l', 1}, {'s', 'x'}}},
    {{0xDC00, 0, 0xD800}, {{'l', 3}, {'s', 0xDC00}, {'s', 0}, {'s', 0xD800}}},
};

struct OwningArray : ZRStringPtrArray {
  ~OwningArray() { DeleteAll(); }
};

}  // namespace

TEST(Stream, AStringIsExactlyTheseCallsAndIsKeptIfOneThrows) {
  for (const auto& [text, calls] : kRecords) {
    for (const bool reversed : {false, true}) {
      ZRStringMutator string(Make(text));
      Recorder stream(calls);
      SCOPED_TRACE(reversed ? "string >> stream, then string << stream"
                            : "stream << string >> string");
      EXPECT_EQ(&(reversed ? string >> stream : stream << string), &stream);
      EXPECT_EQ(stream.output, calls) << "writing";

      string = Make(u"abc");
      for (auto call = calls.begin(); call != calls.end(); ++call) {
        Recorder failing(Calls(calls.begin(), call));
        const long before = heap.live;
        EXPECT_THROW(failing >> string, std::out_of_range);
        EXPECT_EQ(heap.live, before) << "a leak";
        EXPECT_EQ(TextOf(string), u"abc");
      }
      EXPECT_EQ(&(reversed ? string << stream : stream >> string), &stream);
      EXPECT_EQ(TextOf(string), text.empty() ? u"abc" : text) << "reading";
      EXPECT_EQ(stream.consumed, calls.size()) << "reading";
    }
  }
}

TEST(Stream, AnArrayIsExactlyTheseCallsAndGetsWhatIsComplete) {
  OwningArray array;
  Calls calls = {{'u', 3}};
  for (const auto& [text, each] : kRecords) {
    array.PushBack(new ZRString(Make(text)));
    calls.insert(calls.end(), each.begin(), each.end());
  }
  for (std::size_t n = 0; n < calls.size(); ++n) {
    SCOPED_TRACE(n);
    Recorder failing(Calls(calls.begin(), calls.begin() + n));
    OwningArray read;
    EXPECT_THROW(failing >> read, std::out_of_range);
    EXPECT_EQ(read.Size(), (n > 1) + (n > 3));  // after the count, records of 1 and 2 calls
  }
  Recorder stream(calls);
  EXPECT_EQ(&(stream << array >> array), &stream);
  EXPECT_EQ(stream.output, calls) << "stream << array";
  EXPECT_EQ(stream.consumed, calls.size()) << "stream >> array";
  EXPECT_EQ(array.Size(), 6u) << "stream >> array";
  for (int i = 3; i < 6; ++i) {
    EXPECT_EQ(TextOf(*array[i]), kRecords[i - 3].first);
    EXPECT_EQ(dynamic_cast<ZRStringMutator*>(array[i]), nullptr);
  }
}

TEST(Stream, ANegativeLengthIsNoText) {
  Recorder stream({{'l', -1}, {'u', 1}, {'l', -1}});
  ZRStringMutator string(Make(u"abc"));
  stream >> string;
  EXPECT_EQ(TextOf(string), u"abc");
  ZRStringPtrArray array;
  EXPECT_THROW(stream >> array, std::bad_alloc);
  EXPECT_TRUE(array.Empty());
}
