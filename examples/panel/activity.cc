#include "activity.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <optional>

#include "cli/machine/disks.h"
#include "cli/machine/network.h"
#include "styles.h"
#include "texts.h"

namespace kzm::panel {
namespace {

using machine::Counter;
using machine::Rate;
using machine::Sample;

struct Direction {
  Icon icon;
  double hue;
  Sample ActivitySamples::*samples;
  std::optional<double> Rate::*rate;
  std::uint64_t Counter::*total;
  AttributedString (*text)(const Styles& styles, double bytesPerSecond);
};
constexpr Direction kDirections[] = {
    {Icon::received, 0.55, &ActivitySamples::network, &Rate::in, &Counter::in, networkText},
    {Icon::sent, 0.42, &ActivitySamples::network, &Rate::out, &Counter::out, networkText},
    {Icon::read, 0.62, &ActivitySamples::disks, &Rate::in, &Counter::in, diskText},
    {Icon::written, 0.07, &ActivitySamples::disks, &Rate::out, &Counter::out, diskText},
};

// One KB/s shows nothing, one GB/s fills the meter; four bars are about one power of ten.
std::vector<double> meter(double bytesPerSecond) {
  constexpr double kBytesPerKilobyte = 1024.0;
  constexpr double kPowersOfTen = 6.0;
  constexpr int kBars = 24;
  return segments(std::log10(std::max(bytesPerSecond / kBytesPerKilobyte, 1.0)) / kPowersOfTen, kBars);
}

Row rowIn(const Direction& direction, const Sample& earlier, const Sample& later) {
  double rate = 0.0;
  double total = 0.0;
  for (const Rate& each : machine::ratesBetween(earlier, later)) rate += (each.*direction.rate).value_or(0.0);
  for (const Counter& each : later.counters) total += static_cast<double>(each.*direction.total);
  Row row = rowOf(direction.icon, direction.hue, direction.text(valueStyles(), rate));
  row.detail = memoryText(detailStyles(), total);
  row.levels = meter(rate);
  return row;
}

}  // namespace

ActivitySamples readActivity(const machine::Root& root) {
  const double seconds = machine::secondsNow();
  ActivitySamples samples{machine::readNetwork(root, seconds), machine::readDisks(root, seconds)};
  std::erase_if(samples.network.counters, [](const Counter& counter) { return counter.name == "lo"; });
  return samples;
}

std::vector<Row> activityRows(const ActivitySamples& earlier, const ActivitySamples& later) {
  std::vector<Row> rows;
  for (const Direction& direction : kDirections) {
    const Sample& last = later.*direction.samples;
    if (!last.counters.empty()) rows.push_back(rowIn(direction, earlier.*direction.samples, last));
  }
  return rows;
}

}  // namespace kzm::panel
