// What can be shown, and the readings that each topic has.
#ifndef KZM_CLI_SHOW_TOPICS_H
#define KZM_CLI_SHOW_TOPICS_H

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "cli/show/gather.h"
#include "cli/show/readings.h"
#include "machine/files.h"

namespace kzm::cli {

/// What decides over the rows.
struct RowChoice {
  std::vector<std::string> interfaces = {};  // these alone; all when empty
  bool all = false;                          // also what was never used, and every processor
};

/// One topic.
struct Topic {
  std::string_view name;
  std::string_view does;
  std::string_view title;                   // the key of its word
  std::array<std::string_view, 2> columns;  // the keys of the headings of its first readings, if any
  // Reads counters whose difference makes rates; null where one reading is enough.
  void (*count)(const machine::Root& root, Counters& counters);
  void (*read)(const machine::Root& root, Snapshot& snapshot);
  std::vector<Item> (*items)(const Snapshot& snapshot, const RowChoice& choice);
};

/// All topics, in the order in which they are shown.
[[nodiscard]] std::span<const Topic> topics();

}  // namespace kzm::cli

#endif
