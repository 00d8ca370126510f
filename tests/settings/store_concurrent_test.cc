#include <atomic>
#include <cstdint>
#include <gtest/gtest.h>
#include <string>
#include <thread>
#include <vector>

#include <KZMUtilities/dictionary.h>

#include "settings/store.h"
#include "tests/support/scratch_directory.h"

namespace kzm::settings {
namespace {

constexpr int kThreads = 4;

template <class Work>
void together(int threads, Work work) {
  std::vector<std::thread> running;
  for (int i = 0; i < threads; ++i) running.emplace_back(work, i);
  for (std::thread& thread : running) thread.join();
}

TEST(StoreConcurrent, FirstReadsByManyThreadsAllSeeTheFile) {
  const tests::ScratchDirectory scratch;
  const std::string path = scratch.write("settings.json", R"({"a": 7})");
  for (int round = 0; round < 50; ++round) {
    Store store(path, 0);
    together(kThreads, [&store](int) { EXPECT_EQ(store.find("a"), Value(7)); });
  }
}

TEST(StoreConcurrent, ReadersSeeWholeAndGrowingValuesWhileOneThreadWrites) {
  const tests::ScratchDirectory scratch;
  Store store(scratch.path("settings.json"), 5);
  std::atomic<bool> done{false};
  ASSERT_TRUE(store.set(Array{0, 0}, "pair"));
  together(kThreads + 1, [&](int thread) {
    if (thread == kThreads) {
      for (int i = 1; i <= 100; ++i) EXPECT_TRUE(store.set(Array{i, i}, "pair"));
      done = true;
      return;
    }
    std::int64_t last = 0;
    while (!done) {
      const Value pair = store.find("pair");
      ASSERT_NE(pair.array(), nullptr);
      const std::int64_t first = *pair.array()->at(0).integer();
      ASSERT_EQ(first, *pair.array()->at(1).integer());
      ASSERT_GE(first, last);
      last = first;
    }
  });
  EXPECT_EQ(store.find("pair"), (Array{100, 100}));
}

TEST(StoreConcurrent, AThreadSeesItsOwnChangeAndNoChangeIsLost) {
  const tests::ScratchDirectory scratch;
  Store store(scratch.path("settings.json"), 5);
  together(kThreads, [&store](int thread) {
    for (int i = 0; i < 20; ++i) {
      const std::string key = std::to_string(thread) + "." + std::to_string(i);
      EXPECT_TRUE(store.set(i, key));
      EXPECT_EQ(store.find(key), Value(i));
    }
  });
  EXPECT_EQ(store.objects().size(), 80U);
  EXPECT_EQ(Store(scratch.path("settings.json")).objects().size(), 80U);
}

TEST(StoreConcurrent, MovingToMemoryAmongReadersAndWritersIsFinal) {
  const tests::ScratchDirectory scratch;
  for (int round = 0; round < 10; ++round) {
    Store store(scratch.path("settings.json"), 5);
    together(kThreads, [&store](int thread) {
      if (thread == 0) {
        EXPECT_TRUE(store.set(1, "a"));
      }
      if (thread == 1) store.useObjects({{"b", 2}});
      for (int i = 0; i < 100; ++i) (void)store.find("a");
    });
    EXPECT_EQ(store.find("b"), Value(2));
  }
}

}  // namespace
}  // namespace kzm::settings
