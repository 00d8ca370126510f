// Thousands of launches in a row, on the real main queue: nothing is left over, whether anybody runs it or not.
#include <chrono>
#include <cstdio>
#include <glib.h>
#include <gtest/gtest.h>

#include <KZMUtilities/process.h>

#include "tests/support/long_runs.h"
#include "tests/support/processes.h"
#include "tests/support/sweeps.h"

namespace kzm::tests {
namespace {

// Starts children one after another, each with pipes and a watchdog far away, and returns how many ended as they
// should.
template <typename AwaitEnd>
int launchMany(int count, AwaitEnd awaitEndOf) {
  int ended = 0;
  for (int number = 0; number < count; ++number) {
    const Pipe output;
    ChildProcess child({.executable = KZM_CHILD_HELPER,
                        .arguments = {"exit", "7"},
                        .standardInput = Pipe(),
                        .standardOutput = output});
    if (!child.launch()) continue;
    readAll(output.readingEnd().descriptor());
    awaitEndOf(child);
    if (child.exitStatus() == ExitStatus{ExitStatus::Reason::exited, 7}) ++ended;
  }
  return ended;
}

void withoutRunningTheQueue(ChildProcess& child) { awaitEnd(child.processIdentifier()); }

void runningTheQueue(ChildProcess& child) {
  bool called = false;
  child.setTerminationHandler([&](const ExitStatus&) { called = true; });
  while (!called && child.isRunning()) g_main_context_iteration(nullptr, TRUE);
  while (g_main_context_iteration(nullptr, FALSE)) {
  }
}

template <typename AwaitEnd>
void expectNothingLeft(const char* how, AwaitEnd awaitEndOf) {
  const int launches = static_cast<int>(inSoak("KZM_SOAK_LAUNCHES", inSweep<std::size_t>(5000, 200)));
  g_main_context_default();  // opens a descriptor when it is first needed, and keeps it
  launchMany(20, awaitEndOf);
  const std::size_t memory = heldMemory();
  const std::ptrdiff_t before = openDescriptors();
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(launchMany(launches, awaitEndOf), launches);
  const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
  const std::ptrdiff_t after = openDescriptors();
  std::printf("%s: %d launches in %.1f s, descriptors before %td after %td, memory before %zu after %zu\n", how,
              launches, seconds.count(), before, after, memory, heldMemory());
  EXPECT_EQ(after, before);
  EXPECT_LE(heldMemory(), memory + kCachedMemory);
  EXPECT_FALSE(hasChildren());
}

TEST(Launches, LeaveNothingWithoutARunOfTheMainLoop) {
  expectNothingLeft("queue not run", withoutRunningTheQueue);
  EXPECT_FALSE(g_main_context_pending(nullptr)) << "nothing waits for a main loop that nobody runs";
}

TEST(Launches, LeaveNothingWithAQueueThatRuns) { expectNothingLeft("queue run", runningTheQueue); }

}  // namespace
}  // namespace kzm::tests
