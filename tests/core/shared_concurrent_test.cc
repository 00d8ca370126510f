// First calls from many threads at once, and calls while a host changes the cache: no data race, and always one answer.
#include <atomic>
#include <barrier>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include <KZMUtilities/bytes.h>
#include <KZMUtilities/formatters.h>
#include <KZMUtilities/percentage.h>
#include <KZMUtilities/shared.h>

namespace kzm {
namespace {

constexpr int kThreads = 8;

// Runs the work on every thread, all of them starting at the same moment.
void together(const std::function<void(int)>& work) {
  std::barrier start(kThreads);
  std::vector<std::jthread> threads;
  for (int i = 0; i < kThreads; ++i) {
    threads.emplace_back([&, i] {
      start.arrive_and_wait();
      work(i);
    });
  }
}

TEST(SharedStateConcurrent, FirstCallsOfEverythingAgree) {
  std::vector<std::string> texts(kThreads);
  std::vector<const NumberFormatter*> formatters(kThreads);
  together([&](int i) {
    const auto thread = static_cast<std::size_t>(i);
    std::string& text = texts[thread];
    text += KZMUtilitiesFormatBandwidth({{"space", true}}, 5e6);
    text += KZMUtilitiesFormatMemory({}, 5e9) + KZMUtilitiesFormatSpace({}, 5e12);
    text += KZMUtilitiesFormatDiskActivity({}, 1e4) + KZMUtilitiesFormatPercentage({}, 99.6);
    text += KZMUtilitiesFormatBandwidthWithAttributes({{"attributes-main", "x"}}, 1.0).text();
    text += KZMUtilitiesPosixLocale(std::make_shared<const Locale>("de_CH"))->identifier();
    formatters[thread] = KZMUtilitiesDecimalFormatterWithFractions(7, 7).get();
  });
  const std::set<std::string> different(texts.begin(), texts.end());
  ASSERT_EQ(different.size(), 1U);
  EXPECT_EQ(*different.begin(), "5 MB/s5GB5TB10KB/s100%0KB/sde_CH_POSIX");
  EXPECT_EQ(std::set(formatters.begin(), formatters.end()).size(), 1U) << "all get the formatter that was stored first";
}

TEST(SharedStateConcurrent, CallsGoOnWhileAHostChangesTheCache) {
  std::atomic<int> odd{0};
  together([&](int i) {
    for (int round = 0; round < 300; ++round) {
      if (i == 0) {
        KZMUtilities::shared().cache()->set("NumberFormatter-Decimal-0.0",
                                            std::make_shared<const NumberFormatter>(round % 2, round % 2));
      } else if (i == 1 && round % 10 == 0) {
        KZMUtilities::shared().setCache(std::make_shared<Cache>());
      } else {
        const std::string text = KZMUtilitiesFormatMemory({}, 5 * 1073741824.0);
        if (text != "5GB" && text != "5.0GB") ++odd;
      }
    }
  });
  EXPECT_EQ(odd, 0);
  KZMUtilities::shared().setCache(nullptr);
}

}  // namespace
}  // namespace kzm
