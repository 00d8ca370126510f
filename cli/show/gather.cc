#include "cli/show/gather.h"

#include <utility>

namespace kzm::cli {
namespace {

// The rates come in the order of the later counters.
std::vector<Activity> activities(const machine::Sample& earlier, const machine::Sample& later) {
  std::vector<Activity> all;
  for (machine::Rate& rate : machine::ratesBetween(earlier, later)) {
    const machine::Counter& counter = later.counters[all.size()];
    all.push_back({std::move(rate), counter.in != 0 || counter.out != 0});
  }
  return all;
}

}  // namespace

Snapshot ratesOf(const Counters& earlier, const Counters& later) {
  Snapshot snapshot;
  snapshot.network = activities(earlier.network, later.network);
  snapshot.disks = activities(earlier.disks, later.disks);
  snapshot.processor = machine::loadBetween(earlier.processor, later.processor);
  return snapshot;
}

}  // namespace kzm::cli
