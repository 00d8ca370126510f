// What a terminal shows, cell by cell.
#ifndef KZM_CLI_TERMINAL_FRAME_H
#define KZM_CLI_TERMINAL_FRAME_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kzm::cli {

/// Of the colors that every terminal has; the user's theme decides how they look.
enum class Color : std::uint8_t { usual, red, green, yellow, blue, magenta, cyan };

struct Style {
  Color color = Color::usual;
  bool bold = false;
  bool faint = false;
  bool reverse = false;

  friend bool operator==(const Style&, const Style&) = default;
};

/// One cell.
struct Glyph {
  std::string text = " ";  // a character and the marks that join it; empty for the right half of a wide one
  Style style = {};

  friend bool operator==(const Glyph&, const Glyph&) = default;
};

struct Size {
  std::size_t rows = 0;
  std::size_t columns = 0;

  friend bool operator==(const Size&, const Size&) = default;
};

class Frame {
 public:
  Frame() = default;
  explicit Frame(Size size) : size_(size), glyphs_(size.rows * size.columns) {}

  [[nodiscard]] Size size() const { return size_; }
  [[nodiscard]] const Glyph& at(std::size_t row, std::size_t column) const {
    return glyphs_[row * size_.columns + column];
  }

  /// Writes the text into a row that is there, from the column on, in the given number of columns at most: a longer one
  /// is cut and ends in "…". Gives the number of columns that it takes.
  std::size_t put(std::size_t row, std::size_t column, std::string_view text, Style style, std::size_t room);

  /// The row as text, without the spaces at its end.
  [[nodiscard]] std::string textOf(std::size_t row) const;

 private:
  void parted(std::size_t row, std::size_t column);

  Size size_;
  std::vector<Glyph> glyphs_;
};

}  // namespace kzm::cli

#endif
