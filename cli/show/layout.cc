#include "cli/show/layout.h"

#include <algorithm>
#include <utility>

#include <KZMUtilities/display_width.h>
#include <KZMUtilities/text.h>

#include "cli/show/placing.h"

namespace kzm::cli {
namespace {

constexpr std::size_t kIndent = 2;
constexpr std::size_t kGap = 2;
// The grid does not jump when a number grows by a digit.
constexpr std::size_t kLeastName = 22;
constexpr std::size_t kMostName = 40;
constexpr std::size_t kLeastCell = 12;

std::size_t widthOf(const Cell& cell) {
  std::size_t width = 0;
  for (const Piece& piece : cell) width += displayWidth(piece.text);
  return width;
}

// The width of the names, and of each column of cells; an empty one takes no room.
struct Grid {
  std::size_t name = kLeastName;
  std::vector<std::size_t> cells;

  void fit(std::size_t column, std::size_t width) {
    if (cells.size() <= column) cells.resize(column + 1);
    if (width > 0) cells[column] = std::max({kLeastCell, cells[column], width});
  }
};

Grid gridOf(const std::vector<Section>& sections) {
  Grid grid;
  for (const Section& section : sections) {
    for (std::size_t i = 0; i < section.columns.size(); ++i) grid.fit(i, displayWidth(section.columns[i]));
    for (const Row& row : section.rows) {
      grid.name = std::max(grid.name, std::min(kMostName, kIndent + displayWidth(row.name)));
      for (std::size_t i = 0; i < row.cells.size(); ++i) grid.fit(i, widthOf(row.cells[i]));
    }
  }
  return grid;
}

bool isRightToLeft(const Piece& piece) { return hasRightToLeft(piece.text); }

// Without a letter from right to left nothing in the line moves, and no marks get into copies of it.
bool needsIsolates(const Piece& name, const std::vector<Cell>& cells) {
  const auto holdsRightToLeft = [](const Cell& cell) { return std::ranges::any_of(cell, isRightToLeft); };
  return isRightToLeft(name) || std::ranges::any_of(cells, holdsRightToLeft);
}

// The pieces of a cell as they are, but the first and the last with the marks that isolate them together.
Cell isolatedCell(Cell cell) {
  std::string text;
  for (const Piece& piece : cell) text += piece.text;
  const std::string whole = kzm::isolated(text);
  const std::size_t place = whole.find(text);
  if (cell.empty()) return cell;
  cell.front().text.insert(0, whole.substr(0, place));
  cell.back().text += whole.substr(place + text.size());
  return cell;
}

// One line in the making, cut at the last column of the look.
class Line {
 public:
  explicit Line(const Look& look) : look_(look) {}

  void add(const Piece& piece) {
    if (cut_ || piece.text.empty()) return;
    const std::size_t room = look_.columns - width_;
    const std::size_t width = displayWidth(piece.text);
    cut_ = width > room;
    write(cutTo(piece.text, room), piece.emphasis);
    width_ += std::min(width, room);
  }
  void fill(std::size_t until) {
    if (until > width_) add({std::string(until - width_, ' ')});
  }
  void fillAndAdd(std::size_t until, const Cell& cell) {
    const std::size_t width = widthOf(cell);
    if (width == 0) return;
    if (until > width) fill(until - width);
    for (const Piece& piece : cell) add(piece);
  }
  [[nodiscard]] std::string take() { return std::move(text_); }

 private:
  void write(std::string_view text, Emphasis emphasis) {
    const bool styled = look_.styles && emphasis != Emphasis::plain;
    if (styled) text_ += emphasis == Emphasis::strong ? "\x1b[1m" : "\x1b[2m";
    text_ += text;
    if (styled) text_ += "\x1b[0m";
  }

  const Look& look_;
  std::string text_;
  std::size_t width_ = 0;
  bool cut_ = false;
};

std::string lineOf(const Piece& name, std::size_t indent, const std::vector<Cell>& cells, const Grid& grid,
                   const Look& look) {
  const bool isolates = needsIsolates(name, cells);
  const auto placed = [isolates](Cell cell) { return isolates ? isolatedCell(std::move(cell)) : cell; };
  Line line(look);
  line.fill(indent);
  const std::string shown = cutTo(name.text, grid.name - indent);
  for (const Piece& piece : placed({{shown, name.emphasis}})) line.add(piece);
  std::size_t until = grid.name;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    if (grid.cells[i] > 0) until += kGap + grid.cells[i];
    line.fillAndAdd(until, placed(cells[i]));
  }
  return line.take();
}

std::vector<Cell> headings(const Section& section) {
  std::vector<Cell> cells;
  for (const std::string& column : section.columns) cells.emplace_back(1, Piece{column, Emphasis::faint});
  return cells;
}

}  // namespace

Cell bar(double part) {
  const Bar bar = barOf(part, kBarColumns);
  return {{bar.full, Emphasis::plain}, {bar.empty, Emphasis::faint}};
}

std::vector<std::string> laidOut(const std::vector<Section>& sections, const Look& look) {
  const Grid grid = gridOf(sections);
  std::vector<std::string> lines;
  for (const Section& section : sections) {
    if (section.rows.empty()) continue;
    if (!lines.empty()) lines.emplace_back();
    lines.push_back(lineOf({section.title, Emphasis::strong}, 0, headings(section), grid, look));
    for (const Row& row : section.rows) lines.push_back(lineOf({row.name}, kIndent, row.cells, grid, look));
  }
  return lines;
}

}  // namespace kzm::cli
