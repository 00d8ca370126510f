// The exported class on the real main queue, clock and log.
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <glib.h>
#include <gtest/gtest.h>
#include <optional>
#include <regex>
#include <string>
#include <thread>
#include <unistd.h>
#include <utility>

#include <KZMUtilities/process.h>

#include "tests/support/processes.h"

namespace kzm::tests {
namespace {

using Clock = std::chrono::steady_clock;

// The standard error of this process, caught in a pipe.
class CaughtErrors {
 public:
  CaughtErrors() : saved_(::fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 3)) {
    ::dup2(pipe_.writingEnd().descriptor(), STDERR_FILENO);
  }
  ~CaughtErrors() { release(); }
  CaughtErrors(const CaughtErrors&) = delete;
  CaughtErrors& operator=(const CaughtErrors&) = delete;

  std::string text() {
    release();
    return readAll(pipe_.readingEnd().descriptor());
  }

 private:
  void release() {
    if (saved_ < 0) return;
    ::dup2(saved_, STDERR_FILENO);
    ::close(std::exchange(saved_, -1));
    pipe_.writingEnd().close();
  }

  Pipe pipe_;
  int saved_;
};

template <typename Condition>
void runUntil(Condition condition) {
  const auto deadline = Clock::now() + std::chrono::seconds(20);
  while (!condition() && Clock::now() < deadline)
    if (!g_main_context_iteration(nullptr, FALSE)) std::this_thread::sleep_for(std::chrono::milliseconds(1));
}

TEST(ChildProcess, AStubbornChildIsKilledAfterItsTimeAndTwoSecondsMore) {
  const Pipe output;
  ChildProcess child(
      {.executable = KZM_CHILD_HELPER, .arguments = {"stubborn", "ready", "block"}, .standardOutput = output});
  std::optional<ExitStatus> ending;
  std::thread::id handlersThread;
  child.setTerminationHandler([&](const ExitStatus& status) {
    ending = status;
    handlersThread = std::this_thread::get_id();
  });
  CaughtErrors errors;
  const auto start = Clock::now();
  std::thread([&] { child.launchWithTimeout(0.5); }).join();
  runUntil([&] { return ending.has_value(); });
  const std::chrono::duration<double> seconds = Clock::now() - start;
  const std::string lines = errors.text();
  EXPECT_EQ(ending, (ExitStatus{ExitStatus::Reason::signaled, SIGKILL}));
  EXPECT_EQ(handlersThread, std::this_thread::get_id());
  EXPECT_GE(seconds.count(), 2.5);
  EXPECT_LT(seconds.count(), 10.0);
  const std::string banner = R"(\d{4}-\d\d-\d\d \d\d:\d\d:\d\d\.\d{3} [^ ]+\[\d+:\d+\] )";
  const std::regex expected(banner + "Task is still running, attempting to terminate\\.\n" + banner +
                            "Task did not terminate, sending SIGKILL\\.\n");
  EXPECT_TRUE(std::regex_match(lines, expected)) << lines;
}

TEST(ChildProcess, ABriefOneIsSilent) {
  CaughtErrors errors;
  ChildProcess child({.executable = KZM_CHILD_HELPER, .arguments = {"exit", "0"}});
  child.launchWithTimeout(0.05);
  ASSERT_TRUE(awaitEnd(child.processIdentifier()));
  const auto end = Clock::now() + std::chrono::milliseconds(100);
  runUntil([&] { return Clock::now() > end; });
  EXPECT_EQ(errors.text(), "");
  EXPECT_FALSE(child.isRunning());
}

TEST(ChildProcess, CopiesAreHandlesOnTheSameChild) {
  ChildProcess child({.executable = KZM_CHILD_HELPER, .arguments = {"block"}});
  ChildProcess copy = child;
  ASSERT_TRUE(copy.launch());
  EXPECT_TRUE(child.isRunning());
  EXPECT_EQ(child.processIdentifier(), copy.processIdentifier());
  CaughtErrors errors;
  child.forceCancel();
  ASSERT_TRUE(awaitEnd(child.processIdentifier()));
  EXPECT_FALSE(copy.isRunning());
  EXPECT_EQ(copy.exitStatus(), (ExitStatus{ExitStatus::Reason::signaled, SIGTERM}));
}

TEST(ChildProcess, ConnectionsMayBeSetUntilTheStart) {
  const Pipe output;
  const Pipe errors;
  ChildProcess child({.executable = KZM_CHILD_HELPER, .arguments = {"echo", "complain", "ready"}});
  child.setStandardInput(NullStream{});
  child.setStandardOutput(output);
  child.setStandardError(errors);
  ASSERT_TRUE(child.launch());
  EXPECT_EQ(readAll(output.readingEnd().descriptor()), "ready\n");
  EXPECT_EQ(readAll(errors.readingEnd().descriptor()), "complaint\n");
  ASSERT_TRUE(awaitEnd(child.processIdentifier()));
  EXPECT_FALSE(child.isRunning());
  child.cleanup();
  EXPECT_TRUE(std::holds_alternative<Pipe>(child.configuration().standardOutput));
}

TEST(ChildProcess, StreamsToNowhereLeadToTheNullDevice) {
  constexpr const char* kAllAreNull = "for n in 0 1 2; do [ /proc/self/fd/$n -ef /dev/null ] || exit 1; done";
  ChildProcess child({.executable = "/bin/sh",
                      .arguments = {"-c", kAllAreNull},
                      .standardInput = NullStream{},
                      .standardOutput = NullStream{},
                      .standardError = NullStream{}});
  ASSERT_TRUE(child.launch());
  ASSERT_TRUE(awaitEnd(child.processIdentifier()));
  EXPECT_FALSE(child.isRunning());
  EXPECT_EQ(child.exitStatus(), (ExitStatus{ExitStatus::Reason::exited, 0}));
}

TEST(ChildProcess, ABrokenStandardErrorNeitherEndsTheHostNorSparesTheChild) {
  std::signal(SIGPIPE, SIG_DFL);
  const int saved = ::fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 3);
  const Pipe broken;
  ::dup2(broken.writingEnd().descriptor(), STDERR_FILENO);
  broken.readingEnd().close();
  ChildProcess child({.executable = KZM_CHILD_HELPER, .arguments = {"block"}});
  child.launchWithTimeout(0.05);
  runUntil([&] { return !child.isRunning(); });
  ::dup2(saved, STDERR_FILENO);
  ::close(saved);
  EXPECT_EQ(child.exitStatus(), (ExitStatus{ExitStatus::Reason::signaled, SIGTERM}));
}

}  // namespace
}  // namespace kzm::tests
