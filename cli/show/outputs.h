// Readings for programs: one line at each refresh.
#ifndef KZM_CLI_SHOW_OUTPUTS_H
#define KZM_CLI_SHOW_OUTPUTS_H

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "cli/show/sections.h"
#include "cli/show/texts.h"

namespace kzm::cli {

/// How the lines are written.
struct LineChoice {
  const Texts& texts;
  bool constantWidth = false;  // every text has the room of the longest that can be in its place
};

/// One form of output.
struct Output {
  std::string_view name;
  std::string_view does;
  // One refresh, without the end of its line; null for the table, which is for people.
  std::string (*line)(const std::vector<Group>& groups, const LineChoice& choice);
  bool takesWidth = true;       // whether `constantWidth` changes something
  std::string_view first = {};  // before the first line
  std::string_view last = {};   // after the last one
};

/// All forms; the first is that without a choice.
[[nodiscard]] std::span<const Output> outputs();

}  // namespace kzm::cli

#endif
