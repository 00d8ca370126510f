// A machine, read again and again.
#ifndef KZM_CLI_SHOW_WATCH_H
#define KZM_CLI_SHOW_WATCH_H

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cli/show/gather.h"
#include "cli/show/sections.h"
#include "cli/show/topics.h"
#include "machine/files.h"

namespace kzm::cli {

/// The topics that are watched, in the order in which they are shown.
using Topics = std::vector<const Topic*>;

class Watch {
 public:
  /// Reads the counters for the first time. An interface that is not there is an InputError.
  Watch(machine::Root root, Topics shown, RowChoice choice);

  /// Whether some of the readings are rates, which need time between two readings of counters.
  [[nodiscard]] bool needsTime() const;

  /// When the counters were last read, by machine::secondsNow().
  [[nodiscard]] double seconds() const { return last_.seconds; }

  /// Reads all topics; rates are those since the reading before.
  [[nodiscard]] std::vector<Group> read();

 private:
  [[nodiscard]] Counters readCounters() const;
  void checkInterfaces() const;

  machine::Root root_;
  Topics shown_;
  RowChoice choice_;
  Counters last_;
};

}  // namespace kzm::cli

#endif
