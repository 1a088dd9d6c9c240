// A stream that records calls, plays calls back, and throws at a chosen call.
#ifndef ZRSTRING_TESTS_RECORDER_H
#define ZRSTRING_TESTS_RECORDER_H

#include <Velmar/IStream.h>
#include <gtest/gtest.h>

#include <ostream>
#include <stdexcept>
#include <vector>

/// One call of a stream: its transfer interface and its value.
struct Call {
  char type;  // 'l' ZRLong, 'u' ZRULong, 's' unsigned short
  long long value;
  bool operator==(const Call& other) const { return type == other.type && value == other.value; }
};

inline std::ostream& operator<<(std::ostream& out, const Call& call) {
  return out << call.type << call.value;
}

using Calls = std::vector<Call>;

/// Stores nothing if there is nothing left to play back.
struct Recorder : Velmar::IStream {
  explicit Recorder(Calls played = {}) : input(std::move(played)) {}

  void Write(const ZRLong* value) override { Put({'l', *value}); }
  void Write(const ZRULong* value) override { Put({'u', *value}); }
  void Write(const unsigned short* value) override { Put({'s', *value}); }
  void Read(ZRLong* value) override { Get('l', value); }
  void Read(ZRULong* value) override { Get('u', value); }
  void Read(unsigned short* value) override { Get('s', value); }

  void Put(const Call& call) {
    if (output.size() == throwAt)
      throw std::runtime_error("stream");
    output.push_back(call);
  }

  template <typename Value>
  void Get(char type, Value* value) {
    if (consumed == throwAt)
      throw std::runtime_error("stream");
    EXPECT_EQ(*value, 0) << "a variable holds 0 before it is read";
    if (consumed < input.size()) {
      EXPECT_EQ(input[consumed].type, type);
      *value = static_cast<Value>(input[consumed].value);
    }
    ++consumed;
  }

  Calls input, output;
  std::size_t consumed = 0, throwAt = SIZE_MAX;
};

#endif
