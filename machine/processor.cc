#include "machine/processor.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kzm::machine {
namespace {

// After the name: user, nice, system, idle, iowait, irq, softirq, steal. What follows is counted in user and nice.
constexpr std::size_t kIdle = 3;
constexpr std::size_t kWaiting = 4;
constexpr std::size_t kCounted = 8;

// Ticks of ten thousand years: a greater number is garbage, and smaller ones add up without overflow.
constexpr std::uint64_t kMostTicks = std::uint64_t{1} << 48U;

std::optional<ProcessorTime> timeIn(std::string_view line) {
  const std::vector<std::string_view> fields = fieldsOf(line);
  if (fields.size() <= 1 + kIdle || !fields[0].starts_with("cpu")) return std::nullopt;
  ProcessorTime time{shownText(fields[0]), 0, 0};
  for (std::size_t i = 0; i < std::min(kCounted, fields.size() - 1); ++i) {
    const std::optional<std::uint64_t> ticks = countIn(fields[i + 1]);
    if (!ticks || *ticks > kMostTicks) return std::nullopt;
    time.total += *ticks;
    if (i == kIdle || i == kWaiting) time.idle += *ticks;
  }
  return time;
}

// The kernel's count of waiting time may step back a little.
std::optional<double> busyBetween(const ProcessorTime& earlier, const ProcessorTime& later) {
  if (later.total <= earlier.total) return std::nullopt;
  const auto total = static_cast<double>(later.total - earlier.total);
  const double idle = static_cast<double>(later.idle) - static_cast<double>(earlier.idle);
  return std::clamp(1.0 - idle / total, 0.0, 1.0);
}

}  // namespace

std::vector<ProcessorTime> readProcessor(const Root& root) {
  std::vector<ProcessorTime> times;
  const std::string text = readText(root.at("proc/stat"));
  for (const std::string_view line : linesOf(text)) {
    if (const std::optional<ProcessorTime> time = timeIn(line)) times.push_back(*time);
  }
  return times;
}

std::vector<ProcessorLoad> loadBetween(const std::vector<ProcessorTime>& earlier,
                                       const std::vector<ProcessorTime>& later) {
  std::vector<ProcessorLoad> loads;
  for (const ProcessorTime& time : later) {
    const auto before = std::ranges::find(earlier, time.name, &ProcessorTime::name);
    loads.push_back({time.name, before != earlier.end() ? busyBetween(*before, time) : std::nullopt});
  }
  return loads;
}

std::optional<std::array<double, 3>> readLoadAverages(const Root& root) {
  const std::string text = readText(root.at("proc/loadavg"));
  const std::vector<std::string_view> fields = fieldsOf(text);
  if (fields.size() < 3) return std::nullopt;
  std::array<double, 3> averages{};
  for (std::size_t i = 0; i < averages.size(); ++i) {
    const std::optional<double> average = numberIn(fields[i]);
    if (!average || *average < 0) return std::nullopt;
    averages[i] = *average;
  }
  return averages;
}

}  // namespace kzm::machine
