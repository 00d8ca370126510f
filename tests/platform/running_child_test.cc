#include "platform/running_child.h"

#include <atomic>
#include <csignal>
#include <gtest/gtest.h>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "tests/support/child_fixture.h"

namespace kzm::tests {
namespace {

using RunningChildTest = ChildTest;

TEST_F(RunningChildTest, IsRunningIsTrueToTheMomentWithoutATurnOfTheQueue) {
  const Pipe input;
  const SharedChild child = make({.executable = KZM_CHILD_HELPER, .arguments = {"echo"}, .standardInput = input});
  ASSERT_TRUE(child->launch());
  EXPECT_TRUE(child->isRunning());
  EXPECT_EQ(child->exitStatus(), std::nullopt);
  input.writingEnd().close();
  ASSERT_TRUE(awaitEnd(child->processIdentifier()));
  EXPECT_FALSE(child->isRunning());
  EXPECT_FALSE(isChild(child->processIdentifier())) << "collected, not a zombie";
}

TEST_F(RunningChildTest, AChildThatCannotBeWatchedIsEnded) {
  const SharedChild child = helper({"block"});
  queue_.failAt(1);
  EXPECT_THROW(child->launch(), std::bad_alloc);
  siginfo_t end{};
  ASSERT_EQ(::waitid(P_ALL, 0, &end, WEXITED | WNOWAIT), 0);
  EXPECT_EQ(end.si_status, SIGKILL);
  platform::RunningChild::collectEnded();
  EXPECT_FALSE(isChild(end.si_pid)) << "collected, not a zombie";
}

TEST_F(RunningChildTest, TheQueueNoticesTheEndByItself) {
  const Pipe input;
  const SharedChild child =
      make({.executable = KZM_CHILD_HELPER, .arguments = {"echo", "exit", "5"}, .standardInput = input});
  std::vector<ExitStatus> endings;
  child->setTerminationHandler([&](const ExitStatus& status) { endings.push_back(status); });
  ASSERT_TRUE(child->launch());
  input.writingEnd().close();  // it ends now, and not before the start has returned
  ASSERT_TRUE(awaitEnd(child->processIdentifier()));
  EXPECT_TRUE(isZombie(child->processIdentifier()));
  queue_.runDue();
  EXPECT_FALSE(isChild(child->processIdentifier()));
  EXPECT_EQ(endings, std::vector<ExitStatus>{(ExitStatus{Reason::exited, 5})});
  queue_.runDue();
  EXPECT_EQ(endings.size(), 1U) << "called once";
}

TEST_F(RunningChildTest, TheHandlerRunsOnTheQueueOnlyEvenIfSomebodyElseSawTheEnd) {
  const SharedChild child = helper({"die"});
  std::optional<ExitStatus> ending;
  child->setTerminationHandler([&](const ExitStatus& status) { ending = status; });
  ASSERT_TRUE(child->launch());
  finish(*child);
  EXPECT_EQ(ending, std::nullopt);
  queue_.runDue();
  EXPECT_EQ(ending, (ExitStatus{Reason::signaled, SIGABRT}));
}

TEST_F(RunningChildTest, TheHandlerMayBeChangedWhileTheChildRuns) {
  const SharedChild child = helper({"exit", "0"});
  std::string calls;
  child->setTerminationHandler([&](const ExitStatus&) { calls += "first "; });
  ASSERT_TRUE(child->launch());
  child->setTerminationHandler([&](const ExitStatus&) { calls += "second "; });
  finish(*child);
  queue_.runDue();
  EXPECT_EQ(calls, "second ");
}

TEST_F(RunningChildTest, AHandlerThatIsClearedBeforeItsTurnIsNotCalled) {
  const SharedChild child = helper({"exit", "0"});
  int calls = 0;
  child->setTerminationHandler([&](const ExitStatus&) { ++calls; });
  ASSERT_TRUE(child->launch());
  finish(*child);
  child->setTerminationHandler(nullptr);
  queue_.runDue();
  EXPECT_EQ(calls, 0);
}

TEST_F(RunningChildTest, AHandlerThatComesTooLateIsNeitherCalledNorKept) {
  const SharedChild child = helper({"exit", "0"});
  ASSERT_TRUE(child->launch());
  finish(*child);
  const auto held = std::make_shared<int>(0);
  child->setTerminationHandler([held](const ExitStatus&) { ++*held; });
  queue_.runDue();
  EXPECT_EQ(*held, 0);
  EXPECT_EQ(held.use_count(), 1);
}

TEST_F(RunningChildTest, AHandlerMayHoldItsOwnChild) {
  SharedChild child = helper({"exit", "0"});
  const std::weak_ptr<platform::Child> weak = child;
  child->setTerminationHandler([child](const ExitStatus&) { EXPECT_FALSE(child->isRunning()); });
  ASSERT_TRUE(child->launch());
  ASSERT_TRUE(awaitEnd(child->processIdentifier()));
  child.reset();
  EXPECT_FALSE(weak.expired());
  queue_.runDue();
  EXPECT_TRUE(weak.expired());
}

TEST_F(RunningChildTest, AReleasedChildGoesOnWithoutItsPipesAndIsCollected) {
  SharedChild child;
  {
    const Pipe input;
    child = make({.executable = KZM_CHILD_HELPER, .arguments = {"echo", "exit", "4"}, .standardInput = input});
  }
  std::optional<ExitStatus> ending;
  child->setTerminationHandler([&](const ExitStatus& status) { ending = status; });
  ASSERT_TRUE(child->launch());
  const int process = child->processIdentifier();
  child.reset();
  ASSERT_TRUE(awaitEnd(process)) << "the end of its input, for nobody holds the pipe any more";
  queue_.runDue();
  EXPECT_EQ(ending, (ExitStatus{Reason::exited, 4})) << "the handler runs all the same";
  EXPECT_FALSE(isChild(process));
}

TEST_F(RunningChildTest, TheNextStartCollectsWhatNobodyAskedFor) {
  const std::ptrdiff_t descriptors = openDescriptors();
  SharedChild child = helper({"exit", "0"});
  ASSERT_TRUE(child->launch());
  const int process = child->processIdentifier();
  child.reset();
  ASSERT_TRUE(awaitEnd(process));
  EXPECT_FALSE(make({.executable = "/no/such/program"})->launch()) << "a start that fails collects too";
  EXPECT_FALSE(isChild(process));
  EXPECT_EQ(openDescriptors(), descriptors);
}

TEST_F(RunningChildTest, TheReleaseOfAnObjectCollectsToo) {
  SharedChild first = helper({"exit", "0"});
  ASSERT_TRUE(first->launch());
  ASSERT_TRUE(awaitEnd(first->processIdentifier()));
  const int process = first->processIdentifier();
  first.reset();
  EXPECT_FALSE(isChild(process));
}

TEST_F(RunningChildTest, AQuestionToAnyChildCollectsWhatHasEnded) {
  const SharedChild neverStarted = helper({"exit", "0"});
  const SharedChild running = helper({"block"});
  ASSERT_TRUE(running->launch());
  for (const SharedChild& asked : {neverStarted, running}) {
    for (const auto& question : {+[](platform::Child& child) { static_cast<void>(child.isRunning()); },
                                 +[](platform::Child& child) { static_cast<void>(child.exitStatus()); }}) {
      const SharedChild ended = helper({"exit", "0"});
      ASSERT_TRUE(ended->launch());
      ASSERT_TRUE(awaitEnd(ended->processIdentifier()));
      question(*asked);
      EXPECT_FALSE(isChild(ended->processIdentifier()));
    }
  }
  ::kill(running->processIdentifier(), SIGKILL);
  finish(*running);
}

TEST_F(RunningChildTest, AHostThatIgnoresSigchldLosesTheStatusButNotTheEnd) {
  const auto before = std::signal(SIGCHLD, SIG_IGN);
  const Pipe output;
  const SharedChild child = talkingHelper({"stubborn", "ready", "block"}, output);
  int calls = 0;
  child->setTerminationHandler([&](const ExitStatus&) { ++calls; });
  child->launchWithTimeout(1.0);
  EXPECT_EQ(readLine(output.readingEnd().descriptor()), "ready");
  EXPECT_TRUE(child->isRunning());
  queue_.advance(3 * kSecond);
  EXPECT_EQ(log_.lines.size(), 2U);
  finish(*child);
  queue_.runDue();
  EXPECT_EQ(calls, 1);
  EXPECT_EQ(child->exitStatus(), (ExitStatus{Reason::unknown, 0}));
  for (int number = 0; number < 50; ++number) {  // some of these are gone before their start returns
    const SharedChild brief = helper({"exit", "1"});
    ASSERT_TRUE(brief->launch());
    finish(*brief);
  }
  std::signal(SIGCHLD, before);
}

TEST_F(RunningChildTest, AHostThatTakesTheStatusItselfDoesNotHideTheEnd) {
  const Pipe input;
  const SharedChild child =
      make({.executable = KZM_CHILD_HELPER, .arguments = {"echo", "exit", "6"}, .standardInput = input});
  ASSERT_TRUE(child->launch());
  input.writingEnd().close();
  ASSERT_EQ(::waitpid(child->processIdentifier(), nullptr, 0), child->processIdentifier());
  EXPECT_FALSE(child->isRunning());
  EXPECT_EQ(child->exitStatus(), (ExitStatus{Reason::unknown, 0}));
  child->forceCancel();
  EXPECT_TRUE(log_.lines.empty());
}

TEST_F(RunningChildTest, ManyThreadsMaySeeOneEnd) {
  const SharedChild child = helper({"exit", "0"});
  std::atomic<int> calls = 0;
  child->setTerminationHandler([&](const ExitStatus&) { ++calls; });
  ASSERT_TRUE(child->launch());
  std::vector<std::thread> threads;
  for (int number = 0; number < 4; ++number) {
    threads.emplace_back([&] {
      while (child->isRunning()) std::this_thread::yield();
      EXPECT_EQ(child->exitStatus(), (ExitStatus{Reason::exited, 0}));
    });
  }
  for (std::thread& thread : threads) thread.join();
  queue_.runDue();
  EXPECT_EQ(calls, 1);
}

TEST_F(RunningChildTest, ManyThreadsMayStartChildrenAtOnce) {
  std::vector<std::thread> threads;
  std::atomic<int> ended = 0;
  for (int number = 0; number < 4; ++number) {
    threads.emplace_back([&] {
      for (int turn = 0; turn < 20; ++turn) {
        const Pipe output;
        auto child = std::make_shared<platform::Child>(
            ChildConfiguration{.executable = KZM_CHILD_HELPER, .arguments = {"descriptors"}, .standardOutput = output},
            platform::Host{queue_, log_});
        if (!child->launch()) continue;
        EXPECT_EQ(readAll(output.readingEnd().descriptor()), "0 1 2\n");
        if (awaitEnd(child->processIdentifier()) && !child->isRunning()) ++ended;
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(ended, 80);
}

}  // namespace
}  // namespace kzm::tests
