// A stream that records calls, plays calls back, and throws when there are no more.
#ifndef ZRSTRING_TESTS_RECORDER_H
#define ZRSTRING_TESTS_RECORDER_H

#include <Velmar/IStream.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <utility>
#include <vector>

#include "Memory.h"

/// The type and the value of each call: 'l' ZRLong, 'u' ZRULong, 's' unsigned short.
using Calls = std::vector<std::pair<char, long long>>;

/// Throws std::out_of_range if there is nothing left to play back.
struct Recorder : Velmar::IStream {
  explicit Recorder(Calls played = {}) : input(std::move(played)) {}

  void Write(const ZRLong* value) override { output.emplace_back('l', *value); }
  void Write(const ZRULong* value) override { output.emplace_back('u', *value); }
  void Write(const unsigned short* value) override { output.emplace_back('s', *value); }
  void Read(ZRLong* value) override { Get('l', value); }
  void Read(ZRULong* value) override { Get('u', value); }
  void Read(unsigned short* value) override {
    Get('s', value);
    const bool more = consumed < input.size() && input[consumed].first == 's';
    EXPECT_TRUE(!more || value[1] == (kFresh << 8 | kFresh)) << "memory touched too early";
  }

  template <typename Value>
  void Get(char type, Value* value) {
    EXPECT_EQ(*value, 0) << "a variable holds 0 before it is read";
    EXPECT_EQ(input.at(consumed).first, type);
    *value = static_cast<Value>(input[consumed++].second);
  }

  Calls input, output;
  std::size_t consumed = 0;
};

#endif
