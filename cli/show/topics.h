// What can be shown, and how each topic's readings become rows.
#ifndef KZM_CLI_SHOW_TOPICS_H
#define KZM_CLI_SHOW_TOPICS_H

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <KZMUtilities/dictionary.h>

#include "cli/show/gather.h"
#include "cli/show/layout.h"
#include "machine/files.h"

namespace kzm::cli {

/// What decides over the rows.
struct RowChoice {
  Dictionary bandwidth = {};                 // options of KZMUtilitiesFormatBandwidth
  std::vector<std::string> interfaces = {};  // these alone; all when empty
  bool all = false;                          // also what was never used, and every processor
};

/// One topic.
struct Topic {
  std::string_view name;
  std::string_view does;
  bool needsTime;  // rates: two readings with time between
  void (*read)(const machine::Root& root, Snapshot& snapshot);
  Section (*section)(const Snapshot& snapshot, const RowChoice& choice);
};

/// All topics, in the order in which they are shown.
[[nodiscard]] std::span<const Topic> topics();

}  // namespace kzm::cli

#endif
