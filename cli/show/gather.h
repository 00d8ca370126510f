// All measurements of one moment.
#ifndef KZM_CLI_SHOW_GATHER_H
#define KZM_CLI_SHOW_GATHER_H

#include <array>
#include <optional>
#include <vector>

#include "machine/memory.h"
#include "machine/processor.h"
#include "machine/rates.h"
#include "machine/sensors.h"
#include "machine/volumes.h"

namespace kzm::cli {

/// What only means something beside a second reading. Topics that are not asked for stay empty, here and below.
struct Counters {
  double seconds = 0;  // when they were read, by machine::secondsNow()
  machine::Sample network;
  machine::Sample disks;
  std::vector<machine::ProcessorTime> processor;
};

/// The activity of an interface or a disk.
struct Activity {
  machine::Rate rate;
  bool wasUsed = false;  // it carried something since the machine started
};

/// What a screenful is made of.
struct Snapshot {
  std::vector<Activity> network;
  std::vector<Activity> disks;
  std::vector<machine::ProcessorLoad> processor;
  std::optional<std::array<double, 3>> loadAverages;
  machine::Memory memory;
  std::vector<machine::Volume> volumes;
  std::vector<machine::SensorReading> sensors;
  std::vector<machine::Battery> batteries;
};

/// The rates between two readings, and nothing else yet.
[[nodiscard]] Snapshot ratesOf(const Counters& earlier, const Counters& later);

}  // namespace kzm::cli

#endif
