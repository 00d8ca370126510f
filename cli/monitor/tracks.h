// What became of each reading since the program started.
#ifndef KZM_CLI_MONITOR_TRACKS_H
#define KZM_CLI_MONITOR_TRACKS_H

#include <cstddef>
#include <deque>
#include <map>
#include <string>
#include <vector>

#include "cli/show/sections.h"

namespace kzm::cli {

/// The past of one reading.
struct Track {
  std::deque<double> values;  // the latest last; NaN where it was not known
  double total = 0;           // of a rate: what it has come to
};

/// The past of all of them.
class Tracks {
 public:
  /// As many as the graphs of a wide terminal show.
  static constexpr std::size_t kMostValues = 512;

  /// Adds the readings, which are those of the given number of seconds. What is not among them is forgotten.
  void add(const std::vector<Group>& groups, double seconds);

  /// The past of a reading, by its place among those that were added last.
  [[nodiscard]] const Track& of(const Topic& topic, const Item& item, const Measured& reading) const;

 private:
  std::map<std::string, Track, std::less<>> tracks_;
};

}  // namespace kzm::cli

#endif
