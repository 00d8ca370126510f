#include "cli/terminal/changes.h"

#include <cstddef>

#include <KZMUtilities/display_width.h>

#include "core/rows.h"

namespace kzm::cli {
namespace {

constexpr std::string_view kClear = "\x1b[0m\x1b[2J";
constexpr std::size_t kMove = 6;  // fewer cells than these are written again rather than passed over

std::string sequenceOf(const Style& style, Dress dress) {
  std::string sequence = "\x1b[0";
  if (style.bold) sequence += ";1";
  if (style.faint) sequence += ";2";
  if (style.reverse) sequence += ";7";
  // clang-format off
  constexpr std::string_view kCodes[] = {"", ";31", ";32", ";33", ";34", ";35", ";36"};
  // clang-format on
  static_assert(core::haveAll<Color>(kCodes));
  if (dress == Dress::colors) sequence += kCodes[static_cast<std::size_t>(style.color)];
  return sequence + "m";
}

// The sequences in the making.
class Pen {
 public:
  explicit Pen(Dress dress) : dress_(dress) {}

  void move(std::size_t row, std::size_t column) {
    text_ += "\x1b[" + std::to_string(row + 1) + ";" + std::to_string(column + 1) + "H";
  }
  void write(const Glyph& glyph) {
    if (dress_ != Dress::none && glyph.style != style_) text_ += sequenceOf(glyph.style, dress_);
    style_ = glyph.style;
    text_ += glyph.text;
  }
  void add(std::string_view text) { text_ += text; }
  [[nodiscard]] std::string take() {
    if (dress_ != Dress::none && style_ != Style{}) text_ += "\x1b[0m";
    return std::move(text_);
  }

 private:
  Dress dress_;
  Style style_;
  std::string text_;
};

// A mark of direction joins the cell before it, so that a cell alone would get it again at each time.
bool turns(const Frame& frame, std::size_t row) { return hasRightToLeft(frame.textOf(row)); }

// The columns that differ, with the whole of a wide character.
std::vector<bool> differing(const Frame& before, const Frame& after, std::size_t row) {
  const std::size_t columns = after.size().columns;
  std::vector<bool> differs(columns);
  bool any = false;
  for (std::size_t i = 0; i < columns; ++i) {
    differs[i] = before.at(row, i) != after.at(row, i);
    if (differs[i] && after.at(row, i).text.empty()) differs[i - 1] = true;
    any = any || differs[i];
  }
  if (any && (turns(before, row) || turns(after, row))) differs.assign(columns, true);
  return differs;
}

void writeRow(const Frame& frame, std::size_t row, const std::vector<bool>& differs, Pen& pen) {
  std::size_t written = std::string::npos;  // the column after the last one that was written
  for (std::size_t i = 0; i < differs.size(); ++i) {
    if (!differs[i]) continue;
    if (written == std::string::npos || i - written >= kMove) {
      pen.move(row, i);
    } else {
      for (std::size_t between = written; between < i; ++between) pen.write(frame.at(row, between));
    }
    pen.write(frame.at(row, i));
    written = i + 1;
  }
}

}  // namespace

std::string changes(const Frame& before, const Frame& after, Dress dress) {
  const bool isNew = before.size() != after.size();
  const Frame empty(isNew ? after.size() : Size{});
  Pen pen(dress);
  if (isNew) pen.add(kClear);
  for (std::size_t row = 0; row < after.size().rows; ++row) {
    writeRow(after, row, differing(isNew ? empty : before, after, row), pen);
  }
  return pen.take();
}

}  // namespace kzm::cli
