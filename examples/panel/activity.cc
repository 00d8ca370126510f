#include "activity.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>

#include "cli/words.h"
#include "machine/disks.h"
#include "machine/network.h"
#include "styles.h"
#include "texts.h"

namespace kzm::panel {
namespace {

using machine::Counter;
using machine::Rate;
using machine::Sample;

struct Direction {
  Icon icon;
  const char* topic;
  const char* column;
  double hue;
  Sample ActivitySamples::*samples;
  std::optional<double> Rate::*rate;
  AttributedString (*text)(const Styles& styles, double bytesPerSecond);
};
constexpr Direction kDirections[] = {
    {Icon::received, "Topics.Network", "Columns.received", 0.55, &ActivitySamples::network, &Rate::in, networkText},
    {Icon::sent, "Topics.Network", "Columns.sent", 0.42, &ActivitySamples::network, &Rate::out, networkText},
    {Icon::read, "Topics.Disk activity", "Columns.read", 0.62, &ActivitySamples::disks, &Rate::in, diskText},
    {Icon::written, "Topics.Disk activity", "Columns.written", 0.07, &ActivitySamples::disks, &Rate::out, diskText},
};

// One KB/s shows nothing, one GB/s fills the meter; four bars are about one power of ten.
std::vector<double> meter(double bytesPerSecond) {
  constexpr double kBytesPerKilobyte = 1024.0;
  constexpr double kPowersOfTen = 6.0;
  constexpr int kBars = 24;
  return segments(std::log10(std::max(bytesPerSecond / kBytesPerKilobyte, 1.0)) / kPowersOfTen, kBars);
}

// All of them are in the one figure.
std::string namesOf(const Sample& sample) {
  std::string names;
  for (const Counter& each : sample.counters) names += (names.empty() ? "" : ", ") + each.name;
  return names;
}

Row rowIn(const Direction& direction, const Sample& earlier, const Sample& later) {
  double rate = 0.0;
  for (const Rate& each : machine::ratesBetween(earlier, later)) rate += (each.*direction.rate).value_or(0.0);
  Row row = rowOf(direction.icon, direction.hue,
                  {labelText({cli::word(direction.topic)}), direction.text(valueStyles(), rate)},
                  {labelText({cli::word(direction.column)}), labelText({namesOf(later)})});
  row.levels = meter(rate);
  return row;
}

}  // namespace

ActivitySamples readActivity(const machine::Root& root) {
  const double seconds = machine::secondsNow();
  ActivitySamples samples{machine::readNetwork(root, seconds), machine::readDisks(root, seconds)};
  const auto isUnused = [](const Counter& counter) { return counter.in == 0 && counter.out == 0; };
  std::erase_if(samples.network.counters, [](const Counter& counter) { return counter.name == "lo"; });
  std::erase_if(samples.network.counters, isUnused);
  std::erase_if(samples.disks.counters, isUnused);
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
