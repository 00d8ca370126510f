// Readings in rows and columns, as lines of text.
#ifndef KZM_CLI_SHOW_LAYOUT_H
#define KZM_CLI_SHOW_LAYOUT_H

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace kzm::cli {

enum class Emphasis : std::uint8_t { plain, strong, faint };

/// A part of a line.
struct Piece {
  std::string text;
  Emphasis emphasis = Emphasis::plain;

  friend bool operator==(const Piece&, const Piece&) = default;
};
using Cell = std::vector<Piece>;

/// A name and its readings.
struct Row {
  std::string name;
  std::vector<Cell> cells;
};

/// Rows under a heading; `columns` are the headings of the cells.
struct Section {
  std::string title;
  std::vector<std::string> columns;
  std::vector<Row> rows;
};

/// What the lines are made for.
struct Look {
  bool styles = false;                                            // bold and faint, by the terminal's escape sequences
  std::size_t columns = std::numeric_limits<std::size_t>::max();  // longer lines are cut
};

/// A bar, the given part of `kBarColumns` filled; a part outside 0 to 1 is the next of them, NaN is 0.
inline constexpr std::size_t kBarColumns = 20;
[[nodiscard]] Cell bar(double part);

/// The lines of all sections, one grid: names at the left, cells at the right of their columns. Sections without rows
/// are left out; an empty line is between two.
[[nodiscard]] std::vector<std::string> laidOut(const std::vector<Section>& sections, const Look& look);

}  // namespace kzm::cli

#endif
