// A stream that records calls, plays calls back, and throws when there are no more.
#ifndef ZRSTRING_TESTS_RECORDER_H
#define ZRSTRING_TESTS_RECORDER_H

#include <Velmar/IStream.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <utility>
#include <vector>

/// The type and the value of each call: 'l' ZRLong, 'u' ZRULong, 's' unsigned short.
using Calls = std::vector<std::pair<char, long long>>;

/// Throws std::out_of_range after `room` writes and after the last call that is played back.
struct Recorder : Velmar::IStream {
  explicit Recorder(Calls played = {}, std::size_t writes = SIZE_MAX)
      : input(std::move(played)), room(writes) {}

  void Write(const ZRLong* value) override { Put('l', *value); }
  void Write(const ZRULong* value) override { Put('u', *value); }
  void Write(const unsigned short* value) override { Put('s', *value); }
  void Read(ZRLong* value) override { Get('l', value); }
  void Read(ZRULong* value) override { Get('u', value); }
  void Read(unsigned short* value) override { Get('s', value); }

  void Put(char type, long long value) {
    if (output.size() == room)
      throw std::out_of_range("written");
    output.emplace_back(type, value);
  }

  template <typename Value>
  void Get(char type, Value* value) {
    EXPECT_EQ(*value, 0) << "a variable holds 0 before it is read";
    EXPECT_EQ(input.at(consumed).first, type);
    *value = static_cast<Value>(input[consumed++].second);
  }

  Calls input, output;
  std::size_t consumed = 0, room;
};

#endif
