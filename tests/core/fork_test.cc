// What a process may call that was forked off a host.
#include <atomic>
#include <csignal>
#include <gtest/gtest.h>
#include <mutex>
#include <string>
#include <thread>
#include <unistd.h>
#include <vector>

#include <KZMUtilities/KZMUtilities.h>

#include "tests/support/processes.h"
#include "tests/support/settings.h"

namespace kzm {
namespace {

using tests::endOf;

bool formatsRight() {
  return KZMUtilitiesFormatMemory({{"space", true}}, 1073741824.0) == "1 GB" &&
         KZMUtilitiesFormatNumber({{"decimals", 1}}, 2.25) == "2.2";
}

bool coldCallsAreRight() {
  const std::optional<TimeZone> zone = TimeZone::named("Asia/Tokyo");
  return zone && zone->offsetFromGMT(0) == 32400 && matchForExpression("12 Files", "(\\d+) files") == "12" &&
         KZMUtilitiesFormatNumber({{"decimals", 7}}, 0.0000001) == "0.0000001";
}

bool startsAChild() {
  ChildProcess child({.executable = "/bin/true"});
  if (!child.launch()) return false;
  while (child.isRunning()) ::usleep(1000);
  return child.exitStatus() == ExitStatus{ExitStatus::Reason::exited, 0};
}

TEST(Fork, TheChildOfAHostThatIsNotInsideACallMayCallEverything) {
  tests::useNoSettings();
  ASSERT_TRUE(formatsRight());
  std::mutex outside;
  outside.lock();
  std::thread waiting([&] { const std::lock_guard lock(outside); });
  EXPECT_EQ(endOf([] { return formatsRight() && coldCallsAreRight() && startsAChild() ? 0 : 1; }), 0);
  outside.unlock();
  waiting.join();
}

TEST(Fork, TheHostsChildrenAreNotTheForkedOnes) {
  ChildProcess sleeping({.executable = "/bin/sleep", .arguments = {"100"}});
  ASSERT_TRUE(sleeping.launch());
  const int end = endOf([&] {
    sleeping.forceCancel();
    const bool isUnknown = sleeping.exitStatus() == ExitStatus{ExitStatus::Reason::unknown, 0};
    return !sleeping.isRunning() && isUnknown ? 0 : 1;
  });
  EXPECT_EQ(end, 0);
  EXPECT_TRUE(sleeping.isRunning()) << "it got no signal";
  ::kill(sleeping.processIdentifier(), SIGKILL);
  while (sleeping.isRunning()) ::usleep(1000);
}

TEST(Fork, TheChildOfAHostInsideCallsMayBecomeAnotherProgram) {
  std::atomic<bool> goesOn{true};
  std::vector<std::thread> busy;
  for (int i = 0; i < 4; ++i) {
    busy.emplace_back([&goesOn, i] {
      for (int digits = 0; goesOn; ++digits) {
        static_cast<void>(KZMUtilitiesFormatNumber({{"decimals", digits % 1000 + i}}, 2.25));
        if (i == 0) tests::useOnlySetting("a", digits);
      }
    });
  }
  for (int i = 0; i < 50; ++i) {
    EXPECT_EQ(endOf([] { return ::execl("/bin/true", "/bin/true", nullptr); }), 0);
  }
  goesOn = false;
  for (std::thread& thread : busy) thread.join();
}

}  // namespace
}  // namespace kzm
