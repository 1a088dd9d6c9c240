// Compares random operations, on strings that share bodies and on an array, with a model.
// --gtest_shuffle --gtest_repeat=100 makes more of them, each time with another seed, and
// --gtest_shuffle --gtest_random_seed=SEED repeats those of a seed other than 0.
#include <gtest/gtest.h>

#include "World.h"

TEST(Model, RandomOperationsAgreeWithPlainTexts) {
  const int seed = testing::UnitTest::GetInstance()->random_seed();
  World world(seed);
  for (int i = 0; i < 400000; ++i) {
    world.Step();
    ASSERT_FALSE(HasFailure()) << "operation " << i << " of seed " << seed;
  }
}
