#include "cli/monitor/page.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include <KZMUtilities/bytes.h>
#include <KZMUtilities/display_width.h>
#include <KZMUtilities/formatters.h>

#include "cli/show/placing.h"
#include "cli/words.h"

namespace kzm::cli {
namespace {

constexpr std::size_t kLeastPanel = 60;  // columns; wide enough for two values with graphs beside them
constexpr std::size_t kBetween = 2;      // two panels
constexpr Style kFaint{.faint = true};
constexpr Style kKey{.bold = true};

// ---- Blocks in panels ----------------------------------------------------------------------------------------------

using Panel = std::vector<PanelLine>;

// One after the other, with an empty line between, in panels of the given height. A block goes on in the next panel
// only where it would not fit into a whole one.
std::vector<Panel> flowed(const std::vector<Block>& blocks, std::size_t height) {
  std::vector<Panel> panels(1);
  for (const Block& block : blocks) {
    const std::size_t needed = block.size() + (panels.back().empty() ? 0 : 1);
    if (panels.back().size() + needed > height && block.size() <= height) panels.emplace_back();
    if (!panels.back().empty() && panels.back().size() < height) panels.back().emplace_back();
    for (const PanelLine& line : block) {
      if (panels.back().size() >= height) panels.emplace_back();
      panels.back().push_back(line);
    }
  }
  return panels;
}

struct Spread {
  std::vector<Panel> panels;
  std::size_t width = 0;   // of each
  std::size_t height = 0;  // of the highest
};

Spread spreadOver(std::size_t count, const Scene& scene, Size size) {
  const std::size_t width = (size.columns - (count - 1) * kBetween) / count;
  const std::vector<Block> blocks = blocksOf(scene, width);
  std::size_t height = std::max<std::size_t>(size.rows, 1);
  std::vector<Panel> panels = flowed(blocks, height);
  while (panels.size() > count) panels = flowed(blocks, ++height);
  return {std::move(panels), width, height};
}

// In as few panels as show all of it, or in as many as there is room for.
Spread spreadOver(const Scene& scene, Size size) {
  const std::size_t most = std::max<std::size_t>(1, (size.columns + kBetween) / (kLeastPanel + kBetween));
  Spread spread = spreadOver(1, scene, size);
  for (std::size_t count = 2; count <= most && spread.height > size.rows; ++count) {
    spread = spreadOver(count, scene, size);
  }
  return spread;
}

void paint(const PanelLine& line, std::size_t row, std::size_t left, std::size_t width, Frame& frame) {
  for (const Span& span : line) {
    if (span.column < width) frame.put(row, left + span.column, span.text, span.style, width - span.column);
  }
}

void paint(const Spread& spread, std::size_t first, std::size_t rows, Frame& frame) {
  for (std::size_t i = 0; i < spread.panels.size(); ++i) {
    const Panel& panel = spread.panels[i];
    const std::size_t left = i * (spread.width + kBetween);
    for (std::size_t row = 0; row < rows && first + row < panel.size(); ++row) {
      paint(panel[first + row], row, left, spread.width, frame);
    }
  }
}

// ---- Help ----------------------------------------------------------------------------------------------------------

std::string secondsText(double seconds) { return KZMUtilitiesFormatNumber({{"decimals", 1}}, seconds) + " s"; }

std::string throughputText(int format) {
  constexpr double kExample = 12'800'000.0;
  return KZMUtilitiesFormatBandwidth({{"bandwidthformat", format}, {"space", true}}, kExample);
}

// What a key does is shown rather than said where that is possible.
Panel helpLines(const Scene& scene, const Choices& choices) {
  const std::pair<std::string, std::string> rows[] = {
      {"q", word("Keys.Quit")},
      {"p", word("Keys.Pause")},
      {"?", word("Keys.Help")},
      {"+ -", secondsText(choices.seconds)},
      {"b", inLine(throughputText(0)) + " / " + inLine(throughputText(2))},
      {"↑ ↓ PgUp PgDn Home End", ""},
      {"s", "*"},
  };
  constexpr std::size_t kTexts = 6;
  Panel lines(1);
  for (const auto& [keys, text] : rows) lines.push_back({{1, keys, kKey}, {kTexts, inLine(text)}});
  const auto addSign = [&](const Topic* topic) {
    if (topic == choices.topic) lines.back().push_back({kTexts - 2, "▸", kKey});
  };
  addSign(nullptr);
  for (const Group& group : scene.groups) {
    if (group.items.empty()) continue;
    lines.push_back({{kTexts, inLine(word(group.topic->title))}});
    addSign(group.topic);
  }
  return lines;
}

// As a panel of its own.
Spread helpSpread(const Scene& scene, const Choices& choices, std::size_t width) {
  Panel lines = helpLines(scene, choices);
  const std::size_t height = lines.size();
  return {{std::move(lines)}, width, height};
}

// ---- The last line -------------------------------------------------------------------------------------------------

// Adds key and text while there is room; gives the next free column.
std::size_t putKey(std::string_view key, const std::string& text, std::size_t column, std::size_t end, Frame& frame) {
  const std::size_t row = frame.size().rows - 1;
  const std::size_t needed = displayWidth(key) + (text.empty() ? 0 : displayWidth(text) + 1);
  if (column + needed > end) return column;
  frame.put(row, column, key, kKey, needed);
  if (!text.empty()) frame.put(row, column + displayWidth(key) + 1, inLine(text), kFaint, needed);
  return column + needed + 2;
}

// How much is above and below what is seen, and the interval; a pause is a sign, and in other colors.
void putState(const Choices& choices, const Page& page, std::size_t& end, Frame& frame) {
  const std::size_t row = frame.size().rows - 1;
  const auto putBefore = [&](const std::string& text, Style style) {
    const std::size_t width = displayWidth(text);
    if (width + 1 > end) return;
    end -= width;
    frame.put(row, end, inLine(text), style, width);
    end -= 1;
  };
  putBefore("± " + secondsText(choices.seconds), kFaint);
  if (choices.paused) putBefore(" ‖ ", {.bold = true, .reverse = true});
  const std::size_t below = page.mostScrolled - choices.scrolled;
  if (below > 0) putBefore("▼" + std::to_string(below), kKey);
  if (choices.scrolled > 0) putBefore("▲" + std::to_string(choices.scrolled), kKey);
}

void putLastLine(const Choices& choices, const Page& page, Frame& frame) {
  std::size_t end = frame.size().columns - 1;
  putState(choices, page, end, frame);
  const std::pair<std::string_view, std::string> keys[] = {
      {"?", word("Keys.Help")},
      {"q", word("Keys.Quit")},
      {"p", word("Keys.Pause")},
      {"s", choices.topic == nullptr ? "*" : word(choices.topic->title)},
  };
  std::size_t column = 0;
  for (const auto& [key, text] : keys) column = putKey(key, text, column, end, frame);
}

std::vector<Group> chosen(const std::vector<Group>& groups, const Topic* topic) {
  std::vector<Group> some;
  std::ranges::copy_if(groups, std::back_inserter(some),
                       [topic](const Group& group) { return topic == nullptr || group.topic == topic; });
  return some;
}

}  // namespace

Page pageOf(const Scene& scene, const Choices& choices, Size size) {
  Page page{Frame(size)};
  if (size.rows == 0 || size.columns == 0) return page;
  page.lines = size.rows - 1;
  const std::vector<Group> groups = chosen(scene.groups, choices.topic);
  const Size room{page.lines, size.columns - 1};  // marks that join the last column of all are lost on some terminals
  const Spread spread =
      choices.help ? helpSpread(scene, choices, room.columns) : spreadOver({groups, scene.tracks, scene.texts}, room);
  page.mostScrolled = spread.height - std::min(spread.height, page.lines);
  Choices within = choices;
  within.scrolled = std::min(choices.scrolled, page.mostScrolled);
  paint(spread, within.scrolled, page.lines, page.frame);
  putLastLine(within, page, page.frame);
  return page;
}

}  // namespace kzm::cli
