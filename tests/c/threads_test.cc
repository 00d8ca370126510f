#include <gtest/gtest.h>
#include <thread>
#include <vector>

#include "tests/c/text.h"

namespace kzm::tests {
namespace {

TEST(Threads, HaveTheirOwnOptionsAndErrors) {
  const auto calls = [](int thread) {
    const std::string good = "{\"space\": true, \"n\": " + std::to_string(thread) + "}";
    const std::string bad = "{\"n\": " + std::to_string(thread);
    for (int i = 0; i < 1000; ++i) {
      EXPECT_EQ(text(kzm_format_memory(good.c_str(), 1073741824.0)), "1 GB");
      EXPECT_EQ(lastError(), "");
      EXPECT_EQ(text(kzm_format_memory(bad.c_str(), 1.0)), "NULL");
      EXPECT_EQ(lastError(), "malformed JSON at byte " + std::to_string(bad.size() + 1));
    }
  };
  std::vector<std::jthread> threads;
  for (int thread = 0; thread < 40; thread += 10) threads.emplace_back(calls, thread);
}

}  // namespace
}  // namespace kzm::tests
