#include "machine/rates.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>
#include <vector>

#include "port/clocks.h"

namespace kzm::machine {
namespace {

// Drivers with 32-bit counters are those of slow devices: on a faster one they would wrap every few seconds. A greater
// step back is a reset.
constexpr double kMostBytesPerSecondOfWrapping = 250e6;

// No device moves so much in a second; a counter that says so is garbage.
constexpr double kMostBytesPerSecond = 1e13;

std::optional<double> within(double rate, double limit) {
  return rate >= 0 && rate <= limit ? std::optional(rate) : std::nullopt;
}

std::optional<double> rateOf(std::uint64_t earlier, std::uint64_t later, double seconds) {
  if (later >= earlier) return within(static_cast<double>(later - earlier) / seconds, kMostBytesPerSecond);
  constexpr std::uint64_t kLargest = std::numeric_limits<std::uint32_t>::max();
  if (earlier > kLargest) return std::nullopt;
  return within(static_cast<double>(kLargest - earlier + 1 + later) / seconds, kMostBytesPerSecondOfWrapping);
}

}  // namespace

std::vector<Rate> ratesBetween(const Sample& earlier, const Sample& later) {
  const double seconds = later.seconds - earlier.seconds;
  std::vector<Rate> rates;
  for (const Counter& counter : later.counters) {
    const auto before = std::ranges::find(earlier.counters, counter.name, &Counter::name);
    Rate rate{counter.name, {}, {}};
    if (before != earlier.counters.end() && seconds > 0) {
      rate.in = rateOf(before->in, counter.in, seconds);
      rate.out = rateOf(before->out, counter.out, seconds);
    }
    rates.push_back(rate);
  }
  return rates;
}

double secondsNow() { return port::steadySeconds(); }

}  // namespace kzm::machine
