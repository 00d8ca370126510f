#include "cli/show/watch.h"

#include <algorithm>

#include "cli/errors.h"
#include "cli/listing.h"
#include "machine/network.h"

namespace kzm::cli {

Watch::Watch(machine::Root root, Topics shown, RowChoice choice)
    : root_(std::move(root)), shown_(std::move(shown)), choice_(std::move(choice)), last_(readCounters()) {
  if (!choice_.interfaces.empty()) checkInterfaces();
}

bool Watch::needsTime() const {
  return std::ranges::any_of(shown_, [](const Topic* topic) { return topic->count != nullptr; });
}

Counters Watch::readCounters() const {
  Counters counters;
  counters.seconds = machine::secondsNow();
  for (const Topic* topic : shown_) {
    if (topic->count != nullptr) topic->count(root_, counters);
  }
  return counters;
}

std::vector<Group> Watch::read() {
  Counters now = readCounters();
  Snapshot snapshot = ratesOf(last_, now);
  last_ = std::move(now);
  for (const Topic* topic : shown_) topic->read(root_, snapshot);
  std::vector<Group> groups;
  for (const Topic* topic : shown_) groups.push_back({topic, topic->items(snapshot, choice_)});
  return groups;
}

// Also where the network is not among the topics: the name is wrong all the same.
void Watch::checkInterfaces() const {
  const machine::Sample network = machine::readNetwork(root_, last_.seconds);
  for (const std::string& wanted : choice_.interfaces) {
    if (std::ranges::find(network.counters, wanted, &machine::Counter::name) != network.counters.end()) continue;
    std::string names;
    for (const machine::Counter& counter : network.counters) addToList(names, counter.name);
    throw InputError("no interface " + inQuotes(wanted) + "; there are " + names);
  }
}

}  // namespace kzm::cli
