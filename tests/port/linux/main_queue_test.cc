#include "port/main_queue.h"

#include <chrono>
#include <glib.h>
#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <string>
#include <unistd.h>

#include <KZMUtilities/process.h>

namespace kzm::port {
namespace {

using Clock = std::chrono::steady_clock;

void runAll() {
  while (g_main_context_iteration(nullptr, FALSE)) {
  }
}

TEST(MainQueue, RunsWhenTheMainLoopNextRunsAndOnce) {
  int runs = 0;
  mainQueue().after(0, [&] { ++runs; });
  EXPECT_EQ(runs, 0);
  runAll();
  runAll();
  EXPECT_EQ(runs, 1);
}

TEST(MainQueue, NeverRunsTooEarly) {
  const auto start = Clock::now();
  bool ran = false;
  mainQueue().after(10'500'001, [&] { ran = true; });
  while (!ran) g_main_context_iteration(nullptr, TRUE);
  EXPECT_GE(Clock::now() - start, std::chrono::nanoseconds(10'500'001));
}

TEST(MainQueue, WaitsForTheFarthestTimes) {
  const auto held = std::make_shared<int>(0);
  mainQueue().after(9'200'000'000'000'000'000, [held] { ++*held; });
  mainQueue().after(std::numeric_limits<std::int64_t>::max(), [held] { ++*held; });
  runAll();
  EXPECT_EQ(*held, 0);
  EXPECT_EQ(held.use_count(), 3);
}

TEST(MainQueue, ReleasesAnActionThatHasRun) {
  const auto held = std::make_shared<int>(0);
  mainQueue().after(0, [held] { ++*held; });
  runAll();
  EXPECT_EQ(*held, 1);
  EXPECT_EQ(held.use_count(), 1);
}

TEST(MainQueue, WatchesADescriptorUntilTheWatchIsGone) {
  const Pipe pipe;
  int runs = 0;
  std::unique_ptr<MainQueue::Watch> watch;
  watch = mainQueue().whenReadable(pipe.readingEnd().descriptor(), [&] {
    if (++runs == 2) watch.reset();
  });
  runAll();
  EXPECT_EQ(runs, 0);
  ASSERT_EQ(::write(pipe.writingEnd().descriptor(), "x", 1), 1);
  runAll();
  EXPECT_EQ(runs, 2) << "each time the main loop finds it readable";
}

TEST(MainQueue, AWatchMayGoBeforeAnythingHappens) {
  const Pipe pipe;
  const auto held = std::make_shared<int>(0);
  auto watch = mainQueue().whenReadable(pipe.readingEnd().descriptor(), [held] { ++*held; });
  ASSERT_EQ(::write(pipe.writingEnd().descriptor(), "x", 1), 1);
  watch.reset();
  runAll();
  EXPECT_EQ(*held, 0);
  EXPECT_EQ(held.use_count(), 1);
}

}  // namespace
}  // namespace kzm::port
