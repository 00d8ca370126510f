// Everything at once, from a cold start: many threads call all that there is, while others replace what is in the
// shared cache by its equal, switch the settings, and start and cancel children. No data race, and each answer is one
// of the two that a single thread gets.
#include <array>
#include <atomic>
#include <barrier>
#include <csignal>
#include <cstdint>
#include <functional>
#include <glib.h>
#include <gtest/gtest.h>
#include <memory>
#include <numeric>
#include <random>
#include <thread>
#include <vector>

#include <KZMSettings/KZMSettings.h>
#include <KZMUtilities/default_units.h>
#include <KZMUtilities/formatters.h>
#include <KZMUtilities/process.h>
#include <KZMUtilities/shared.h>

#include "tests/support/answers.h"
#include "tests/support/sweeps.h"

namespace kzm::tests {
namespace {

constexpr std::size_t kCallers = 16;

// No settings, as at the start, or the first unit of each list.
Dictionary settingsOf(std::size_t state) {
  Dictionary settings;
  if (state == 0) return settings;
  for (const UnitSetting& setting : unitSettings()) settings.set(setting.keyPath, 1);
  return settings;
}

// A new object that means the same.
Value equalTo(const Value& entry) {
  if (const Dictionary* texts = entry.dictionary()) return Dictionary(*texts);
  if (const auto* formatter = dynamic_cast<const NumberFormatter*>(entry.object())) {
    return std::make_shared<const NumberFormatter>(*formatter);
  }
  return std::make_shared<const Locale>(dynamic_cast<const Locale&>(*entry.object()));
}

void replaceEntries() {
  Cache& cache = *KZMUtilities::shared().cache();
  for (const Dictionary::Entry& entry : cache.entries()) cache.set(entry.key, equalTo(entry.value));
}

void startAndCancelAChild() {
  ChildProcess child({.executable = KZM_CHILD_HELPER, .arguments = {"block"}});
  ASSERT_TRUE(child.launch());
  child.forceCancel();
  while (child.isRunning()) std::this_thread::yield();
  EXPECT_EQ(child.exitStatus(), (ExitStatus{ExitStatus::Reason::signaled, SIGTERM}));
}

// All calls, some times over, each time in another order.
void callEverything(std::uint64_t seed, std::span<const Answers> expected) {
  std::mt19937_64 random(seed);
  std::vector<std::size_t> order(catalogue::callables().size());
  std::iota(order.begin(), order.end(), 0U);
  for (int rounds = inSweep(100, 25); rounds > 0; --rounds) {
    std::ranges::shuffle(order, random);
    for (const std::size_t number : order) {
      const catalogue::Callable& callable = catalogue::callables()[number];
      const std::string answer = answerOf(callable);
      EXPECT_TRUE(answer == expected[0][number] || answer == expected[1][number]) << callable.name << ": " << answer;
    }
  }
}

TEST(AllAtOnce, EachAnswerIsOneOfTheTwoThatASingleThreadGets) {
  const std::array expected{answersOfAnotherProcess(settingsOf(0)), answersOfAnotherProcess(settingsOf(1))};
  ASSERT_NE(expected[0], expected[1]);
  std::size_t switches = 0;
  const std::function<void()> disturbances[] = {
      replaceEntries,
      [&switches] { KZMSettingsUseObjects(settingsOf(++switches % 2)); },
      startAndCancelAChild,
  };
  std::atomic<std::size_t> callersLeft{kCallers};
  std::barrier start(std::ssize(disturbances) + static_cast<std::ptrdiff_t>(kCallers));
  std::vector<std::jthread> threads;
  for (const std::function<void()>& disturb : disturbances) {
    threads.emplace_back([&] {
      start.arrive_and_wait();
      while (callersLeft > 0) disturb();
    });
  }
  for (std::size_t caller = 0; caller < kCallers; ++caller) {
    threads.emplace_back([&, caller] {
      start.arrive_and_wait();
      callEverything(caller, expected);
      --callersLeft;
    });
  }
  while (callersLeft > 0) {
    if (g_main_context_iteration(nullptr, FALSE) == FALSE) std::this_thread::yield();
  }
}

}  // namespace
}  // namespace kzm::tests
