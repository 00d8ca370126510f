// What grows: threads, options and decimals rules.
#include <algorithm>
#include <barrier>
#include <cstdio>
#include <string>
#include <thread>
#include <vector>

#include <KZMUtilities/bytes.h>
#include <KZMUtilities/formatters.h>

#include "bench/calls.h"
#include "bench/options.h"
#include "bench/parts.h"
#include "bench/report.h"
#include "bench/sweep.h"
#include "bench/values.h"

namespace kzm::bench {
namespace {

void numberPass(Span values) {
  for (const double value : values) keep(KZMUtilitiesFormatNumber(oneDigit().dictionary, value));
}

// Processor time of one call while the given number of threads make it, in nanoseconds: the middle one of all rounds.
double timeInThreads(std::size_t count) {
  constexpr std::size_t kRounds = 31;
  std::vector<double> times(count * kRounds);
  std::barrier start(static_cast<std::ptrdiff_t>(count));
  std::vector<std::jthread> threads;
  for (std::size_t thread = 0; thread < count; ++thread) {
    threads.emplace_back([&, thread] {
      numberPass(readings());
      start.arrive_and_wait();
      for (std::size_t i = 0; i < kRounds; ++i) times[thread * kRounds + i] = timeOfOne(numberPass, readings());
    });
  }
  threads.clear();
  const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
  std::nth_element(times.begin(), middle, times.end());
  return *middle;
}

Dictionary withOthers(int count) {
  Dictionary options{{"space", true}, {"decimals-gb", Array{Dictionary{{"value", 100.0}, {"decimals", 1}}}}};
  for (int i = 2; i < count; ++i) options.set("another-" + std::to_string(i), i);
  return options;
}

// None of them is met, so that all of them are read.
Dictionary withRules(int count) {
  Array rules;
  for (int i = 0; i < count; ++i) rules.push_back(Dictionary{{"value", -1.0 - i}, {"decimals", 1}});
  Dictionary options;
  for (const char* key : {"decimals-kb", "decimals-mb", "decimals-gb", "decimals-tb", "decimals-pb"}) {
    options.set(key, rules);
  }
  return options;
}

template <auto Make, int Count>
void memoryPass(Span values) {
  static const Dictionary options = Make(Count);
  for (const double value : values) keep(KZMUtilitiesFormatMemory(options, value));
}

}  // namespace

void measureThreads() {
  const double alone = timeInThreads(1);
  const double inTwo = timeInThreads(2);
  const double inMany = timeInThreads(64);
  printHeading("Threads", "times one");
  printRow("two threads", 2.0 * alone / inTwo, atLeast(1.9));
  printHeading("Threads", "million/s");
  constexpr double kCores = 2.0;
  printRow("numbers by 64 threads on two cores", kCores * 1e3 / inMany, atLeast(72.0));
}

void measureGrowth() {
  constexpr int kFew = 2;
  constexpr int kMany = 34;
  const std::vector<double> times = leastTimes({{scaledRates(), floorPass},
                                                {sizes(), memoryPass<withOthers, 2>},
                                                {sizes(), memoryPass<withOthers, 16000>},
                                                {sizes(), memoryPass<withRules, kFew>},
                                                {sizes(), memoryPass<withRules, kMany>}});
  printHeading("Growth", "x 2 options");
  printRow("memory with 16,000 options", times[2] / times[1], atMost(1.18));
  printHeading("Growth", "x floor");
  printRow("each further decimals rule", (times[4] - times[3]) / (kMany - kFew) / times[0], atMost(0.05));
}

}  // namespace kzm::bench
