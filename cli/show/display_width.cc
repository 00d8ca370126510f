#include "cli/show/display_width.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace kzm::cli {
namespace {

struct Range {
  char32_t first;
  char32_t last;
  std::size_t columns;
};

// What does not take one column, in order.
constexpr Range kRanges[] = {
    {0x0300, 0x036F, 0},  // combining marks
    {0x0483, 0x0489, 0},   {0x0591, 0x05BD, 0},   {0x0610, 0x061A, 0}, {0x064B, 0x065F, 0},
    {0x093C, 0x093C, 0},   {0x0941, 0x0948, 0},   {0x094D, 0x094D, 0}, {0x0E31, 0x0E31, 0},
    {0x0E34, 0x0E3A, 0},   {0x0E47, 0x0E4E, 0},   {0x1100, 0x115F, 2},  // Hangul
    {0x1AB0, 0x1AFF, 0},   {0x200B, 0x200F, 0},                         // joiners and marks of direction
    {0x202A, 0x202E, 0},   {0x2060, 0x2069, 0},   {0x20D0, 0x20FF, 0}, {0x2E80, 0x303E, 2},    // ideographs and kana
    {0x3041, 0xA4CF, 2},   {0xAC00, 0xD7A3, 2},   {0xF900, 0xFAFF, 2}, {0xFE00, 0xFE0F, 0},    // variation selectors
    {0xFE30, 0xFE6F, 2},   {0xFF00, 0xFF60, 2},   {0xFFE0, 0xFFE6, 2}, {0x1F300, 0x1F64F, 2},  // pictographs
    {0x1F900, 0x1F9FF, 2}, {0x20000, 0x3FFFD, 2},
};

std::size_t columnsOf(char32_t character) noexcept {
  const auto* range = std::lower_bound(std::begin(kRanges), std::end(kRanges), character,
                                       [](const Range& row, char32_t wanted) { return row.last < wanted; });
  return range != std::end(kRanges) && range->first <= character ? range->columns : 1;
}

bool continues(char byte) noexcept { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

// Takes one character off the front; a broken one counts as whatever its bytes say.
std::string_view takeCharacter(std::string_view& text, char32_t& character) noexcept {
  const auto lead = static_cast<unsigned char>(text.front());
  character = lead < 0xC0U ? lead : lead & (lead < 0xE0U ? 0x1FU : lead < 0xF0U ? 0x0FU : 0x07U);
  std::size_t size = 1;
  while (size < text.size() && size < 4 && continues(text[size])) {
    character = (character << 6U) | (static_cast<unsigned char>(text[size]) & 0x3FU);
    ++size;
  }
  const std::string_view taken = text.substr(0, size);
  text.remove_prefix(size);
  return taken;
}

}  // namespace

std::size_t displayWidth(std::string_view text) noexcept {
  std::size_t width = 0;
  while (!text.empty()) {
    char32_t character = 0;
    takeCharacter(text, character);
    width += columnsOf(character);
  }
  return width;
}

std::string_view fitting(std::string_view text, std::size_t columns) noexcept {
  std::size_t size = 0;
  std::string_view rest = text;
  while (!rest.empty()) {
    char32_t character = 0;
    const std::string_view taken = takeCharacter(rest, character);
    const std::size_t width = columnsOf(character);
    if (width > columns) break;
    columns -= width;
    size += taken.size();
  }
  return text.substr(0, size);
}

}  // namespace kzm::cli
