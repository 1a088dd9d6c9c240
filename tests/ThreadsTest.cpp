// Several threads at their first and later collated comparisons.
#include <ZRString/ZRString.h>
#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

#include "Text.h"

TEST(Threads, FirstAndLaterUseOfTheProcessCollatorMayCoincide) {
  std::atomic<int> waiting{4};
  std::atomic<int> wrong{0};
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([&] {
      const ZRString left = Make(u"\u00E4pfel und birnen");
      const ZRString right = Make(u"zitronen");
      --waiting;
      while (waiting > 0)
        std::this_thread::yield();
      for (int round = 0; round < 2000; ++round)
        wrong += left.ICompare(0, -1, right, 0, -1, 3) != -1;
    });
  }
  for (auto& thread : threads)
    thread.join();
  EXPECT_EQ(wrong, 0);
}
