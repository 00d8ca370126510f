// Readings as the rows of a table.
#ifndef KZM_CLI_SHOW_SECTIONS_H
#define KZM_CLI_SHOW_SECTIONS_H

#include <vector>

#include "cli/show/layout.h"
#include "cli/show/texts.h"
#include "cli/show/topics.h"

namespace kzm::cli {

/// A topic and its items at one moment.
struct Group {
  const Topic* topic;
  std::vector<Item> items;
};

/// The rows of one topic. A part of a whole has a bar beside it.
[[nodiscard]] Section sectionOf(const Group& group, const Texts& texts);

/// Those of all groups. A single one that has no rows says so.
[[nodiscard]] std::vector<Section> sectionsOf(const std::vector<Group>& groups, const Texts& texts);

}  // namespace kzm::cli

#endif
