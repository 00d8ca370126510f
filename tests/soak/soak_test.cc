// Very many calls of every kind: what is held stays as it is once everything has been called, and so do the answers.
#include <algorithm>
#include <cstdio>
#include <gtest/gtest.h>
#include <random>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include <KZMUtilities/shared.h>

#include "catalogue/callables.h"
#include "tests/support/long_runs.h"
#include "tests/support/processes.h"
#include "tests/support/sample_calls.h"
#include "tests/support/sweeps.h"

namespace kzm::tests {
namespace {

using catalogue::Callable;
using catalogue::Json;
using catalogue::Parameter;

constexpr std::size_t kThreads = 2;
constexpr std::size_t kVariants = 16;  // of the arguments of each call

// What each parameter gets one of, by its name or, after those, by its kind.
// clang-format off
constexpr struct Samples { std::string_view what; const char* json; } kSamples[] = {
    {"pattern",          R"(["(\\d+) and", "a|b", "["])"},
    {"target",           R"(["%@", "of"])"},
    {"dictionary",       R"([{}, {"space": true, "units": true, "short": true, "decimals": 1},
                             {"bandwidthformat": 2, "decimals-mb": [{"value": 10.0, "decimals": 2}]},
                             {"attributes-main": "bold", "attributes-units": "gray", "decimals": 3}])"},
    {"double",           R"([0.0, -0.5, 0.95, 42.25, 1023.9, 1048576.0, 123456789.125, 1e16, 1e300, "NaN"])"},
    {"integer",          "[0, 1, 2, 3, 7, -1]"},
    {"string",           R"(["", "Units.Weather.North", "12 and more than a string has room for, in %@"])"},
    {"string|null",      R"(["north", null])"},
    {"locale",           R"(["ar_EG", "de_CH", "en_US"])"},
    {"time|null",        R"([1700000000.5, -62135596800.0, 0.0, null])"},
    {"timezone",         R"(["America/New_York", "UTC", "Asia/Kathmandu"])"},
    {"units",            "[1048575, 28]"},
    {"attributes",       R"([{"weight": "bold"}, null])"},
    {"attributedstring", R"([{"runs": [{"text": "12 %@ of a text", "attributes": "bold"},
                                       {"text": " and so on", "attributes": null}]}])"},
};
// clang-format on

Json samplesOf(const Parameter& parameter) {
  for (const std::string_view what : {parameter.name, parameter.kind}) {
    const auto* samples = std::ranges::find(kSamples, what, &Samples::what);
    if (samples != std::end(kSamples)) return Json::parse(samples->json);
  }
  throw std::invalid_argument("no samples for a parameter of kind " + std::string(parameter.kind));
}

struct Call {
  const Callable* callable;
  Json arguments;
  std::string answer;

  [[nodiscard]] bool isAnsweredAsBefore() const {
    return callable->call(arguments).json == answer || readsTheClock(*callable);
  }
};

Call anyCallOf(const Callable& callable, std::mt19937& randomness) {
  Call call{&callable, Json::array(), {}};
  for (const Parameter& parameter : parametersOf(callable)) {
    const Json samples = samplesOf(parameter);
    call.arguments.push_back(samples[randomness() % samples.size()]);
  }
  call.answer = callable.call(call.arguments).json;
  return call;
}

std::vector<Call> allCalls() {
  std::mt19937 randomness;
  std::vector<Call> calls;
  for (const Callable& callable : catalogue::callables()) {
    for (std::size_t variant = 0; variant < kVariants; ++variant) calls.push_back(anyCallOf(callable, randomness));
  }
  return calls;
}

// The given number of calls, any of these in any order; the name of one that was answered in another way.
std::string differenceIn(const std::vector<Call>& calls, std::size_t count, std::size_t seed) {
  std::mt19937 randomness(static_cast<std::mt19937::result_type>(seed));
  for (; count > 0; --count) {
    const Call& call = calls[randomness() % calls.size()];
    if (!call.isAnsweredAsBefore()) return std::string(call.callable->name) + call.arguments.dump();
  }
  return {};
}

// From several threads, which end.
void makeCalls(const std::vector<Call>& calls, std::size_t count) {
  std::vector<std::jthread> threads;
  for (std::size_t thread = 0; thread < kThreads; ++thread) {
    threads.emplace_back([&, thread] { EXPECT_EQ(differenceIn(calls, count / kThreads, thread), ""); });
  }
}

TEST(Soak, HoldsNoMoreOnceEverythingHasBeenCalled) {
  const std::size_t count = inSoak("KZM_SOAK_CALLS", inSweep<std::size_t>(500'000, 100'000));
  const std::vector<Call> calls = allCalls();
  makeCalls(calls, 20 * calls.size());
  const std::size_t memory = heldMemory();
  const std::size_t keys = KZMUtilities::shared().cache()->size();
  const std::ptrdiff_t descriptors = openDescriptors();
  makeCalls(calls, count);
  std::printf("%zu calls; memory before %zu after %zu, keys before %zu after %zu\n", count, memory, heldMemory(), keys,
              KZMUtilities::shared().cache()->size());
  EXPECT_LE(heldMemory(), memory + kCachedMemory);
  EXPECT_EQ(KZMUtilities::shared().cache()->size(), keys);
  EXPECT_EQ(openDescriptors(), descriptors);
}

}  // namespace
}  // namespace kzm::tests
