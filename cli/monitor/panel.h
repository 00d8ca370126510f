// Readings as the lines of a column of the screen.
#ifndef KZM_CLI_MONITOR_PANEL_H
#define KZM_CLI_MONITOR_PANEL_H

#include <cstddef>
#include <string>
#include <vector>

#include "cli/monitor/tracks.h"
#include "cli/show/sections.h"
#include "cli/show/texts.h"
#include "cli/terminal/frame.h"

namespace kzm::cli {

/// A text at its place in a line.
struct Span {
  std::size_t column;
  std::string text;
  Style style = {};
};
using PanelLine = std::vector<Span>;

/// A topic: its heading, and the lines of its items.
using Block = std::vector<PanelLine>;

/// What is to be shown.
struct Scene {
  const std::vector<Group>& groups;
  const Tracks& tracks;
  const Texts& texts;
};

/// The topics that have items, in lines of the given width. Where a text is depends on the width and on the widest
/// texts that its readings can have, never on the readings themselves.
[[nodiscard]] std::vector<Block> blocksOf(const Scene& scene, std::size_t width);

}  // namespace kzm::cli

#endif
