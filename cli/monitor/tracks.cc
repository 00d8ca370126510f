#include "cli/monitor/tracks.h"

#include <limits>
#include <utility>

namespace kzm::cli {
namespace {

std::string keyOf(const Topic& topic, const Item& item, const Measured& reading) {
  return std::string(topic.name) + '\n' + item.id + '\n' + std::string(reading.name);
}

void add(const Measured& reading, double seconds, Track& track) {
  track.values.push_back(reading.value.value_or(std::numeric_limits<double>::quiet_NaN()));
  if (track.values.size() > Tracks::kMostValues) track.values.pop_front();
  if (isRate(reading.quantity)) track.total += reading.value.value_or(0.0) * seconds;
}

}  // namespace

void Tracks::add(const std::vector<Group>& groups, double seconds) {
  std::map<std::string, Track, std::less<>> tracks;
  for (const Group& group : groups) {
    for (const Item& item : group.items) {
      for (const Measured& reading : item.readings) {
        std::string key = keyOf(*group.topic, item, reading);
        Track track = std::move(tracks_[key]);
        cli::add(reading, seconds, track);
        tracks.insert_or_assign(std::move(key), std::move(track));
      }
    }
  }
  tracks_ = std::move(tracks);
}

const Track& Tracks::of(const Topic& topic, const Item& item, const Measured& reading) const {
  static const Track none;
  const auto track = tracks_.find(keyOf(topic, item, reading));
  return track == tracks_.end() ? none : track->second;
}

}  // namespace kzm::cli
