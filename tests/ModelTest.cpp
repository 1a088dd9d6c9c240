// Compares random operations, on strings that share bodies and on an array, with a model.
// Arguments: the number of operations and the seed; a failure prints both.
#include "World.h"

#include <gtest/gtest.h>

#include <cstdlib>

extern std::vector<std::string> programArguments;

TEST(Model, RandomOperationsAgreeWithPlainTexts) {
  const auto argument = [](std::size_t index, unsigned fallback) {
    return index < programArguments.size()
               ? std::strtoul(programArguments[index].c_str(), nullptr, 0)
               : fallback;
  };
  const unsigned long count = argument(0, 200000), seed = argument(1, 14);
  World world(static_cast<unsigned>(seed));
  for (unsigned long i = 0; i < count; ++i) {
    const std::string wrong = world.Step(Operations()[world.Below(Operations().size())]);
    ASSERT_EQ(wrong, "") << "operation " << i << " of seed " << seed;
  }
}
