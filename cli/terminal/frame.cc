#include "cli/terminal/frame.h"

#include <algorithm>

#include <KZMUtilities/display_width.h>

#include "cli/show/placing.h"

namespace kzm::cli {
namespace {

// Takes a character off the front, with the marks around it. Marks alone remain where no character is left.
std::string_view takeGlyph(std::string_view& text) {
  std::string_view taken = fitting(text, 1);
  if (displayWidth(taken) == 0) taken = fitting(text, 2);
  text.remove_prefix(taken.size());
  return taken;
}

}  // namespace

// A wide character of which one half is overwritten is none any more.
void Frame::parted(std::size_t row, std::size_t column) {
  if (column == 0 || column >= size_.columns || !at(row, column).text.empty()) return;
  for (const std::size_t half : {column - 1, column}) glyphs_[row * size_.columns + half] = {};
}

std::size_t Frame::put(std::size_t row, std::size_t column, std::string_view text, Style style, std::size_t room) {
  if (column >= size_.columns) return 0;
  const std::string cut = cutTo(text, std::min(room, size_.columns - column));
  parted(row, column);
  parted(row, column + displayWidth(cut));
  Glyph* cell = &glyphs_[row * size_.columns + column];
  std::size_t taken = 0;
  for (std::string_view rest = cut; !rest.empty();) {
    const std::string_view glyph = takeGlyph(rest);
    const std::size_t width = displayWidth(glyph);
    if (width == 0) {
      if (taken > 0) cell[taken - 1].text += glyph;
      break;
    }
    for (std::size_t i = 0; i < width; ++i) cell[taken + i] = {i == 0 ? std::string(glyph) : "", style};
    taken += width;
  }
  return taken;
}

std::string Frame::textOf(std::size_t row) const {
  std::string text;
  for (std::size_t column = 0; column < size_.columns; ++column) text += at(row, column).text;
  text.erase(text.find_last_not_of(' ') + 1);
  return text;
}

}  // namespace kzm::cli
