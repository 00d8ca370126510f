#include "cli/monitor/panel.h"

#include <algorithm>
#include <utility>

#include <KZMUtilities/display_width.h>
#include <KZMUtilities/text.h>

#include "cli/monitor/graph.h"
#include "cli/show/placing.h"
#include "cli/words.h"
#include "core/rows.h"

namespace kzm::cli {
namespace {

constexpr std::size_t kLeastWidth = 24;  // in less room the lines are cut
constexpr std::size_t kMarker = 2;       // of a level, before the name
constexpr std::size_t kLeastName = 8;    // a shorter name goes on a line of its own
constexpr std::size_t kMostName = 24;
constexpr std::size_t kLeastTrail = 14;  // a shorter graph or bar goes on a line of its own
constexpr std::size_t kGap = 1;

constexpr Style kStrong{.bold = true};
constexpr Style kFaint{.faint = true};

// Where things are in a line.
struct Grid {
  std::size_t width;
  std::size_t value = 0;        // the room of a value
  std::size_t part = 0;         // the room of a percentage
  std::size_t name = 0;         // the room of a name before two values; 0: names have lines of their own
  std::size_t perLine = 2;      // values in a line
  std::size_t trailColumn = 0;  // of graphs and bars beside the values; 0: they have lines of their own

  [[nodiscard]] std::size_t endOf(std::size_t index) const {
    if (perLine == 1) return width;
    return name > 0 ? kMarker + name + (index + 1) * (kGap + value) : width - (1 - index) * (kGap + value);
  }
};

std::size_t widestValue(const Scene& scene) {
  std::size_t widest = 0;
  for (const Group& group : scene.groups) {
    if (group.items.empty()) continue;
    for (const std::string_view column : group.topic->columns) {
      if (!column.empty()) widest = std::max(widest, displayWidth(word(column)));
    }
    for (const Item& item : group.items) {
      for (std::size_t i = 0; i < item.readings.size() && i < 2; ++i) {
        widest = std::max(widest, displayWidth(scene.texts.widest(item.readings[i])));
      }
    }
  }
  return widest;
}

Grid gridOf(const Scene& scene, std::size_t width) {
  Grid grid{
      .width = width, .value = widestValue(scene), .part = displayWidth(scene.texts.widest({"part", Quantity::part}))};
  const std::size_t values = kMarker + 2 * (kGap + grid.value);
  const std::size_t left = width > values ? width - values : 0;
  const std::size_t trail = kGap + kLeastTrail;
  if (left >= kLeastName + trail) {
    grid.name = std::min(left - trail, kMostName);
    grid.trailColumn = values + grid.name + kGap;
  } else if (left >= kLeastName) {
    grid.name = std::min(left, kMostName);
  } else if (left == 0) {
    grid.perLine = 1;
  }
  return grid;
}

// ---- Spans ---------------------------------------------------------------------------------------------------------

Style styleOf(Emphasis emphasis) {
  return {.bold = emphasis == Emphasis::strong, .faint = emphasis == Emphasis::faint};
}

// A cell whose last column is before `end`. As a whole where its parts could change places.
void addAtEnd(std::size_t end, const Cell& cell, PanelLine& line) {
  std::string text;
  for (const Piece& piece : cell) text += piece.text;
  std::size_t column = end - std::min(end, displayWidth(text));
  if (hasRightToLeft(text)) {
    line.push_back({column, isolated(text), styleOf(cell.front().emphasis)});
    return;
  }
  for (const Piece& piece : cell) {
    line.push_back({column, piece.text, styleOf(piece.emphasis)});
    column += displayWidth(piece.text);
  }
}

void addAtEnd(std::size_t end, const std::string& text, Style style, PanelLine& line) {
  line.push_back({end - std::min(end, displayWidth(text)), inLine(text), style});
}

// The color only repeats what the sign says.
void addMarker(Level level, PanelLine& line) {
  if (level == Level::warning) line.push_back({0, "!", {.color = Color::yellow, .bold = true, .reverse = true}});
  if (level == Level::critical) line.push_back({0, "!!", {.color = Color::red, .bold = true, .reverse = true}});
}

Level levelOf(const Item& item) {
  Level level = Level::normal;
  for (const Measured& reading : item.readings) level = std::max(level, levelOf(reading));
  return level;
}

Color colorOf(Level level) {
  constexpr Color kColors[] = {Color::green, Color::yellow, Color::red};
  static_assert(core::haveAll<Level>(kColors));
  return kColors[static_cast<std::size_t>(level)];
}

// ---- Graphs and bars -----------------------------------------------------------------------------------------------

// The least height of a full graph: less is noise.
double leastTop(Quantity quantity) { return isRate(quantity) ? 1024.0 : 1.0; }

void addGraph(std::size_t column, std::size_t width, const Track& track, Quantity quantity, Color color,
              PanelLine& line) {
  const double top = isPart(quantity) ? 1.0 : topOf(track.values, width, leastTop(quantity));
  line.push_back({column, graph(track.values, width, top), {.color = color}});
}

void addBar(std::size_t column, std::size_t width, const Measured& reading, PanelLine& line) {
  const Bar bar = barOf(reading.value.value_or(0.0), width);
  line.push_back({column, bar.full, {.color = colorOf(levelOf(reading))}});
  line.push_back({column + displayWidth(bar.full), bar.empty, kFaint});
}

// What is beside the values of an item, or below them.
struct Trail {
  const Scene& scene;
  const Topic& topic;
  const Item& item;
  const Grid& grid;

  [[nodiscard]] const Track& track(std::size_t index) const {
    return scene.tracks.of(topic, item, item.readings[index]);
  }
  [[nodiscard]] bool isEmpty() const {
    const Quantity first = item.readings.front().quantity;
    return !isRate(first) && first != Quantity::load && !isPart(item.readings.back().quantity);
  }

  // Two rates share the room.
  void addRates(std::size_t column, std::size_t room, PanelLine& line) const {
    constexpr Color kColors[] = {Color::cyan, Color::magenta};
    const std::size_t count = item.readings.size();
    const std::size_t width = (room - (count - 1) * kGap) / count - 1;
    for (std::size_t i = 0; i < count; ++i) {
      const Measured& reading = item.readings[i];
      const std::size_t start = column + i * (width + 1 + kGap);
      line.push_back({start, std::string(signOf(reading.name)), kFaint});
      addGraph(start + 1, width, track(i), reading.quantity, kColors[i % 2], line);
    }
  }

  // A part that is beside its amounts has its percentage in the trail.
  void addPart(std::size_t column, std::size_t room, PanelLine& line) const {
    const Measured& part = item.readings.back();
    const std::size_t before = grid.part + kGap;
    if (item.readings.size() > 1) addAtEnd(column + grid.part, scene.texts.cell(part), line);
    if (part.name == "busy") {
      addGraph(column, room, track(item.readings.size() - 1), part.quantity, colorOf(levelOf(part)), line);
    } else {
      addBar(column + before, room - before, part, line);
    }
  }

  void add(std::size_t column, std::size_t room, PanelLine& line) const {
    const Measured& first = item.readings.front();
    if (isRate(first.quantity)) {
      addRates(column, room, line);
    } else if (isPart(item.readings.back().quantity)) {
      addPart(column, room, line);
    } else {
      addGraph(column, room, track(0), first.quantity, Color::green, line);
    }
  }
};

// ---- Lines ---------------------------------------------------------------------------------------------------------

// The readings that have columns: a part beside its amounts is in the trail.
std::size_t valuesOf(const Item& item) { return std::min<std::size_t>(item.readings.size(), 2); }

void addName(const Item& item, const Grid& grid, PanelLine& line) {
  addMarker(levelOf(item), line);
  const std::size_t room = grid.name > 0 ? grid.name : grid.width - kMarker;
  line.push_back({kMarker, inLine(cutTo(item.name, room))});
}

// Values in their columns, or each on a line of its own with its word before it.
void addValues(const std::vector<Cell>& cells, const Topic& topic, const Grid& grid, Block& block) {
  for (std::size_t i = 0; i < cells.size(); ++i) {
    if (grid.perLine == 1) {
      block.emplace_back();
      if (!topic.columns[i].empty()) block.back().push_back({2 * kMarker, inLine(word(topic.columns[i])), kFaint});
    }
    addAtEnd(grid.endOf(i), cells[i], block.back());
  }
}

// What the rates have come to since the program started.
void addTotals(const Scene& scene, const Topic& topic, const Item& item, const Grid& grid, Block& block) {
  std::vector<Cell> cells;
  for (const Measured& reading : item.readings) {
    const double total = scene.tracks.of(topic, item, reading).total;
    cells.push_back({{scene.texts.text({"total", Quantity::space, total}), Emphasis::faint}});
  }
  block.push_back({{kMarker, "Σ", kFaint}});
  addValues(cells, topic, grid, block);
}

void addItem(const Scene& scene, const Topic& topic, const Item& item, const Grid& grid, Block& block) {
  block.emplace_back();
  addName(item, grid, block.back());
  if (grid.name == 0 && grid.perLine == 2) block.emplace_back();
  std::vector<Cell> cells;
  for (std::size_t i = 0; i < valuesOf(item); ++i) cells.push_back(scene.texts.cell(item.readings[i]));
  addValues(cells, topic, grid, block);
  const Trail trail{scene, topic, item, grid};
  if (!trail.isEmpty()) {
    if (grid.trailColumn == 0) block.emplace_back();
    const std::size_t column = grid.trailColumn == 0 ? kMarker : grid.trailColumn;
    trail.add(column, grid.width - column, block.back());
  }
  if (isRate(item.readings.front().quantity)) addTotals(scene, topic, item, grid, block);
}

void addHeading(const Topic& topic, const Grid& grid, Block& block) {
  const std::string title = word(topic.title);
  const std::size_t room = grid.name > 0 ? kMarker + grid.name : grid.width;
  block.push_back({{0, inLine(cutTo(title, room)), kStrong}});
  if (topic.columns[0].empty() || grid.perLine == 1) return;
  if (grid.name == 0) block.emplace_back();
  for (std::size_t i = 0; i < topic.columns.size(); ++i) {
    addAtEnd(grid.endOf(i), word(topic.columns[i]), kFaint, block.back());
  }
}

}  // namespace

std::vector<Block> blocksOf(const Scene& scene, std::size_t width) {
  const Grid grid = gridOf(scene, std::max(width, kLeastWidth));
  std::vector<Block> blocks;
  for (const Group& group : scene.groups) {
    if (group.items.empty()) continue;
    blocks.emplace_back();
    addHeading(*group.topic, grid, blocks.back());
    for (const Item& item : group.items) addItem(scene, *group.topic, item, grid, blocks.back());
  }
  return blocks;
}

}  // namespace kzm::cli
