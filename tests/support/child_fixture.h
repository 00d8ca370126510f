// Children of the tests' own program on a main queue with a clock that is held. None outlives its test.
#ifndef KZM_TESTS_SUPPORT_CHILD_FIXTURE_H
#define KZM_TESTS_SUPPORT_CHILD_FIXTURE_H

#include <gtest/gtest.h>
#include <memory>
#include <signal.h>
#include <string>
#include <utility>
#include <vector>

#include "platform/child.h"
#include "tests/support/fake_log.h"
#include "tests/support/fake_main_queue.h"
#include "tests/support/processes.h"

namespace kzm::tests {

class ChildTest : public testing::Test {
 protected:
  using SharedChild = std::shared_ptr<platform::Child>;
  using Texts = std::vector<std::string>;
  using Reason = ExitStatus::Reason;

  static constexpr std::int64_t kSecond = 1'000'000'000;

  SharedChild make(ChildConfiguration configuration) {
    auto child = std::make_shared<platform::Child>(std::move(configuration), platform::Host{queue_, log_});
    children_.push_back(child);
    return child;
  }

  /// The tests' own program, doing what the arguments say.
  SharedChild helper(Texts arguments) {
    return make({.executable = KZM_CHILD_HELPER, .arguments = std::move(arguments)});
  }

  /// The same, with a pipe from its standard output.
  SharedChild talkingHelper(Texts arguments, const Pipe& output) {
    return make({.executable = KZM_CHILD_HELPER, .arguments = std::move(arguments), .standardOutput = output});
  }

  /// What the helper writes, and the child is over then.
  std::string outputOf(ChildConfiguration configuration) {
    const Pipe output;
    configuration.executable = configuration.executable.empty() ? KZM_CHILD_HELPER : configuration.executable;
    configuration.standardOutput = output;
    const SharedChild child = make(std::move(configuration));
    if (!child->launch()) return "(not started)";
    std::string text = readAll(output.readingEnd().descriptor());
    awaitEnd(child->processIdentifier());
    return text;
  }

  /// Waits for the child's end, and lets the library notice it.
  static void finish(platform::Child& child) {
    ASSERT_TRUE(awaitEnd(child.processIdentifier()));
    ASSERT_FALSE(child.isRunning());
  }

  void TearDown() override {
    for (const auto& weak : children_) {
      const SharedChild child = weak.lock();
      if (!child || !child->isRunning()) continue;
      ::kill(child->processIdentifier(), SIGKILL);
      finish(*child);
    }
    platform::RunningChild::collectEnded();
    EXPECT_EQ(queue_.watches(), 0U) << "every child's end was noticed";
    EXPECT_FALSE(hasChildren());
  }

  FakeMainQueue queue_;
  FakeLog log_;

 private:
  std::vector<std::weak_ptr<platform::Child>> children_;
};

}  // namespace kzm::tests

#endif
