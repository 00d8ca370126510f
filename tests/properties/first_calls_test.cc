// Whoever calls what first: each call gives what it gives to everybody.
#include <algorithm>
#include <cstdio>
#include <gtest/gtest.h>
#include <numeric>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "tests/support/answers.h"
#include "tests/support/draws.h"
#include "tests/support/processes.h"

namespace kzm::tests {
namespace {

constexpr std::size_t kThreads = 4;

// In a process that has never called: the calls in an order of their own, each on one of several threads, which take
// turns. How many answers are not the expected ones; each of those is shown.
int differences(const Answers& expected, std::mt19937_64& random) {
  std::vector<std::size_t> order(expected.size());
  std::iota(order.begin(), order.end(), 0U);
  std::ranges::shuffle(order, random);
  int different = 0;
  const auto tryPart = [&](std::size_t part) {
    for (std::size_t i = part * order.size() / kThreads; i < (part + 1) * order.size() / kThreads; ++i) {
      const catalogue::Callable& callable = catalogue::callables()[order[i]];
      const std::string answer = answerOf(callable);
      if (answer == expected[order[i]]) continue;
      ++different;
      std::fprintf(stderr, "%s: %s\n", std::string(callable.name).c_str(), answer.c_str());
    }
  };
  for (std::size_t part = 0; part < kThreads; ++part) std::thread(tryPart, part).join();
  return different;
}

TEST(FirstCalls, MayComeInAnyOrderFromAnyThread) {
  const Answers expected = answersOfAnotherProcess({});
  forDraws(50, 10, [&](Input& input) {
    std::mt19937_64 random(input.take<std::uint64_t>());
    EXPECT_EQ(endOf([&] { return differences(expected, random); }), 0);
  });
}

}  // namespace
}  // namespace kzm::tests
