#include "platform/child.h"

#include <atomic>
#include <csignal>
#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "tests/support/child_fixture.h"

namespace kzm::tests {
namespace {

constexpr const char* kTerminating = "Task is still running, attempting to terminate.";
constexpr const char* kKilling = "Task did not terminate, sending SIGKILL.";

bool isOpen(const Pipe& pipe) { return pipe.readingEnd().isOpen() || pipe.writingEnd().isOpen(); }

TEST(TimeoutNanoseconds, CutsTowardZero) {
  constexpr double kInf = std::numeric_limits<double>::infinity();
  struct Case {
    const char* why;
    double seconds;
    std::optional<std::int64_t> nanoseconds;
  };
  const Case cases[] = {
      {"half a second", 0.5, 500'000'000},
      {"the part of a nanosecond is cut", 1.9e-9, 1},
      {"less than a nanosecond", 0.9e-9, 0},
      {"a day", 86400.0, 86'400'000'000'000},
      {"zero: when the main loop next runs", 0.0, 0},
      {"minus zero", -0.0, 0},
      {"negative", -1.0, 0},
      {"minus infinity", -kInf, 0},
      {"not a number", std::numeric_limits<double>::quiet_NaN(), 0},
      {"the longest that is armed", 9.2e9, 9'200'000'000'000'000'000},
      {"longer: never", 9.3e9, std::nullopt},
      {"the greatest number", std::numeric_limits<double>::max(), std::nullopt},
      {"infinity: never", kInf, std::nullopt},
  };
  for (const Case& c : cases) EXPECT_EQ(platform::timeoutNanoseconds(c.seconds), c.nanoseconds) << c.why;
}

TEST_F(ChildTest, IsNothingBeforeTheStart) {
  const SharedChild child = helper({"exit", "0"});
  EXPECT_FALSE(child->isRunning());
  EXPECT_EQ(child->processIdentifier(), 0);
  EXPECT_EQ(child->exitStatus(), std::nullopt);
  child->forceCancel();
  EXPECT_TRUE(log_.lines.empty());
  EXPECT_EQ(queue_.pendingTimers(), 0U);
}

TEST_F(ChildTest, ThatEndsInTimeIsLeftAlone) {
  const SharedChild child = helper({"exit", "7"});
  child->launchWithTimeout(0.5);
  EXPECT_EQ(queue_.delays(), std::vector<std::int64_t>{500'000'000});
  finish(*child);
  queue_.advance(10 * kSecond);
  EXPECT_TRUE(log_.lines.empty());
  EXPECT_EQ(queue_.delays().size(), 1U) << "no kill timer";
  EXPECT_EQ(child->exitStatus(), (ExitStatus{Reason::exited, 7}));
}

TEST_F(ChildTest, ThatIgnoresTheRequestIsKilledTwoSecondsLater) {
  const Pipe output;
  const SharedChild child = talkingHelper({"stubborn", "ready", "block"}, output);
  child->launchWithTimeout(60.0);
  EXPECT_EQ(readLine(output.readingEnd().descriptor()), "ready");
  queue_.advance(60 * kSecond - 1);
  EXPECT_TRUE(log_.lines.empty()) << "not a nanosecond too early";
  queue_.advance(1);
  EXPECT_EQ(log_.lines, Texts{kTerminating});
  queue_.advance(2 * kSecond - 1);
  EXPECT_TRUE(child->isRunning());
  EXPECT_EQ(log_.lines, Texts{kTerminating});
  queue_.advance(1);
  EXPECT_EQ(log_.lines, (Texts{kTerminating, kKilling}));
  finish(*child);
  EXPECT_EQ(child->exitStatus(), (ExitStatus{Reason::signaled, SIGKILL}));
}

TEST_F(ChildTest, ThatEndsWithinTheGraceIsNotKilled) {
  const Pipe output;
  const SharedChild child = talkingHelper({"polite", "ready", "block"}, output);
  child->launchWithTimeout(1.0);
  EXPECT_EQ(readLine(output.readingEnd().descriptor()), "ready");
  queue_.advance(kSecond);
  finish(*child);
  queue_.advance(2 * kSecond);
  EXPECT_EQ(log_.lines, Texts{kTerminating});
  EXPECT_EQ(child->exitStatus(), (ExitStatus{Reason::exited, 3}));
}

TEST_F(ChildTest, ForceCancelNeedsNoWatchdog) {
  const SharedChild child = helper({"block"});
  ASSERT_TRUE(child->launch());
  child->forceCancel();
  EXPECT_EQ(log_.lines, Texts{kTerminating});
  EXPECT_EQ(queue_.delays(), std::vector<std::int64_t>{2'000'000'000});
  finish(*child);
  EXPECT_EQ(child->exitStatus(), (ExitStatus{Reason::signaled, SIGTERM}));
  child->forceCancel();
  EXPECT_EQ(log_.lines, Texts{kTerminating}) << "nothing is left to stop";
}

TEST_F(ChildTest, ATimeoutOfZeroFiresWhenTheMainLoopNextRuns) {
  const SharedChild child = helper({"block"});
  child->launchWithTimeout(0.0);
  EXPECT_TRUE(log_.lines.empty()) << "not before the queue runs";
  queue_.runDue();
  EXPECT_EQ(log_.lines, Texts{kTerminating});
  finish(*child);
}

TEST_F(ChildTest, TheWatchdogKeepsTheChildUntilItFires) {
  SharedChild child = helper({"exit", "0"});
  const std::weak_ptr<platform::Child> weak = child;
  child->launchWithTimeout(5.0);
  finish(*child);
  child.reset();
  EXPECT_FALSE(weak.expired());
  queue_.advance(5 * kSecond);
  EXPECT_TRUE(weak.expired());
}

TEST_F(ChildTest, AnEndlessTimeoutKeepsNothing) {
  SharedChild child = helper({"exit", "0"});
  const std::weak_ptr<platform::Child> weak = child;
  child->launchWithTimeout(std::numeric_limits<double>::infinity());
  EXPECT_EQ(queue_.pendingTimers(), 0U);
  finish(*child);
  child.reset();
  EXPECT_TRUE(weak.expired());
}

TEST_F(ChildTest, AFailedStartCleansUpAndIsSilent) {
  const Pipe input;
  const Pipe output;
  const SharedChild child = make({.executable = "/no/such/program", .standardInput = input, .standardOutput = output});
  child->launchWithTimeout(1.0);
  EXPECT_FALSE(child->isRunning());
  EXPECT_EQ(queue_.pendingTimers(), 0U);
  EXPECT_EQ(queue_.watches(), 0U);
  EXPECT_TRUE(log_.lines.empty());
  EXPECT_FALSE(isOpen(input));
  EXPECT_TRUE(isOpen(output));
  EXPECT_TRUE(std::holds_alternative<NullStream>(child->configuration().standardOutput));
}

TEST_F(ChildTest, AFailedLaunchChangesNothing) {
  const Pipe input;
  const SharedChild child = make({.executable = "/no/such/program", .standardInput = input});
  EXPECT_FALSE(child->launch());
  EXPECT_TRUE(input.readingEnd().isOpen());
  EXPECT_TRUE(input.writingEnd().isOpen());
}

TEST_F(ChildTest, CleanupClosesTheInputAndClearsOutputAndHandler) {
  const Pipe input;
  const Pipe output;
  int calls = 0;
  const SharedChild child = make(
      {.executable = KZM_CHILD_HELPER, .arguments = {"exit", "0"}, .standardInput = input, .standardOutput = output});
  child->setTerminationHandler([&](const ExitStatus&) { ++calls; });
  ASSERT_TRUE(child->launch());
  child->cleanup();
  EXPECT_FALSE(isOpen(input));
  EXPECT_TRUE(output.readingEnd().isOpen());
  EXPECT_TRUE(std::holds_alternative<NullStream>(child->configuration().standardOutput));
  finish(*child);
  queue_.runDue();
  EXPECT_EQ(calls, 0);
}

TEST_F(ChildTest, CleanupOnlyClearsTheOutputAndDoesNotCloseIt) {
  const Pipe output;
  const SharedChild child = make({.executable = KZM_CHILD_HELPER, .standardInput = Pipe(), .standardOutput = output});
  child->cleanup();
  EXPECT_TRUE(output.readingEnd().isOpen());
  EXPECT_TRUE(output.writingEnd().isOpen());
}

TEST_F(ChildTest, CleanupEndsSilentlyIfTheInputIsNotAPipe) {
  const Pipe output;
  int calls = 0;
  const SharedChild child = talkingHelper({"exit", "0"}, output);
  child->setTerminationHandler([&](const ExitStatus&) { ++calls; });
  ASSERT_TRUE(child->launch());
  EXPECT_NO_THROW(child->cleanup());
  EXPECT_TRUE(std::holds_alternative<Pipe>(child->configuration().standardOutput));
  finish(*child);
  queue_.runDue();
  EXPECT_EQ(calls, 1) << "the handler comes after the step that failed";
}

TEST_F(ChildTest, CleanupTwiceNeverClosesAReusedNumber) {
  const Pipe input;
  const SharedChild child = make({.executable = KZM_CHILD_HELPER, .standardInput = input});
  child->cleanup();
  const Pipe other;  // gets the numbers that have just become free
  child->cleanup();
  EXPECT_TRUE(other.readingEnd().duplicate().isOpen());
  EXPECT_TRUE(other.writingEnd().duplicate().isOpen());
}

TEST_F(ChildTest, StartsOnlyOnce) {
  const SharedChild child = helper({"block"});
  ASSERT_TRUE(child->launch());
  const int first = child->processIdentifier();
  const std::ptrdiff_t descriptors = openDescriptors();
  EXPECT_FALSE(child->launch());
  child->launchWithTimeout(1.0);
  EXPECT_EQ(child->processIdentifier(), first);
  EXPECT_TRUE(child->isRunning());
  EXPECT_EQ(queue_.pendingTimers(), 0U) << "a refused start arms nothing";
  EXPECT_EQ(openDescriptors(), descriptors);
  child->forceCancel();
  finish(*child);
  EXPECT_FALSE(child->launch()) << "not after its end either";
}

TEST_F(ChildTest, ASecondStartIsAFailedStartAndCleansUp) {
  const Pipe input;
  const SharedChild child = make({.executable = KZM_CHILD_HELPER, .arguments = {"echo"}, .standardInput = input});
  child->launchWithTimeout(60.0);
  EXPECT_TRUE(input.writingEnd().isOpen());
  child->launchWithTimeout(60.0);
  EXPECT_FALSE(input.writingEnd().isOpen());
  finish(*child);
  EXPECT_EQ(child->exitStatus(), (ExitStatus{Reason::exited, 0}));
}

TEST_F(ChildTest, AChildWithoutItsWatchdogIsEnded) {
  const SharedChild child = helper({"block"});
  queue_.failAt(2);  // the watch on the child is the first
  EXPECT_THROW(child->launchWithTimeout(60.0), std::bad_alloc);
  finish(*child);
  EXPECT_EQ(child->exitStatus(), (ExitStatus{Reason::signaled, SIGKILL}));
}

TEST_F(ChildTest, ManyStartsAtOnceAreOne) {
  const SharedChild child = helper({"block"});
  std::atomic<int> started = 0;
  std::vector<std::thread> threads;
  for (int number = 0; number < 8; ++number) threads.emplace_back([&] { started += child->launch() ? 1 : 0; });
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(started, 1);
  child->forceCancel();
  finish(*child);
}

}  // namespace
}  // namespace kzm::tests
