// Draws the monitor's screen for a machine that is always the same: picture [--locale ID] ROWS COLUMNS FILE.png
#include <algorithm>
#include <array>
#include <exception>
#include <iostream>
#include <memory>
#include <pango/pangocairo.h>
#include <string>
#include <string_view>
#include <vector>

#include "cli/errors.h"
#include "cli/monitor/page.h"
#include "cli/numbers.h"
#include "cli/process_options.h"
#include "tests/cli/monitor/example.h"

namespace kzm::screens {
namespace {

using cli::Frame;
using cli::Glyph;
using cli::Style;

// In pixels.
constexpr double kCellWidth = 8.0;
constexpr double kCellHeight = 17.0;
constexpr double kMargin = 8.0;
constexpr double kFontSize = 13.29;  // at which a character is as wide as a cell

struct Paint {
  double red;
  double green;
  double blue;
};
constexpr Paint kBackground{0.07, 0.08, 0.10};
constexpr Paint kFaintText{0.55, 0.57, 0.60};
// Those of cli::Color, in its order.
constexpr std::array<Paint, 7> kPaints = {{{0.85, 0.86, 0.88},
                                           {0.94, 0.33, 0.31},
                                           {0.45, 0.78, 0.42},
                                           {0.90, 0.75, 0.30},
                                           {0.40, 0.60, 0.95},
                                           {0.80, 0.52, 0.85},
                                           {0.36, 0.76, 0.80}}};

Paint paintOf(const Style& style) {
  const bool isUsual = style.color == cli::Color::usual;
  return style.faint && isUsual ? kFaintText : kPaints[static_cast<std::size_t>(style.color)];
}

// Cells that are drawn as one text, so that letters join: a word, or what is isolated.
struct Run {
  std::size_t column = 0;
  std::size_t columns = 0;
  std::string text = {};
  Style style = {};
};

bool holds(const Glyph& glyph, std::string_view mark) { return glyph.text.find(mark) != std::string::npos; }
bool begins(const Glyph& glyph) { return holds(glyph, "\u2066") || holds(glyph, "\u2067") || holds(glyph, "\u2068"); }

std::vector<Run> runsOf(const Frame& frame, std::size_t row) {
  std::vector<Run> runs;
  bool isolated = false;
  bool goesOn = false;
  for (std::size_t column = 0; column < frame.size().columns; ++column) {
    const Glyph& glyph = frame.at(row, column);
    const bool isSpace = glyph.text == " " && !isolated && !glyph.style.reverse;
    goesOn = goesOn && !isSpace && !begins(glyph) && runs.back().style == glyph.style;
    if (!isSpace && !goesOn) runs.push_back({.column = column, .style = glyph.style});
    isolated = (isolated || begins(glyph)) && !holds(glyph, "\u2069");
    goesOn = !isSpace && (isolated || !holds(glyph, "\u2069"));
    if (isSpace) continue;
    runs.back().text += glyph.text;
    ++runs.back().columns;
  }
  return runs;
}

class Canvas {
 public:
  explicit Canvas(cli::Size size)
      : surface_(cairo_image_surface_create(CAIRO_FORMAT_RGB24, pixels(size.columns, kCellWidth),
                                            pixels(size.rows, kCellHeight)),
                 cairo_surface_destroy),
        context_(cairo_create(surface_.get()), cairo_destroy),
        layout_(pango_cairo_create_layout(context_.get()), g_object_unref) {
    use(kBackground);
    cairo_paint(context_.get());
  }

  void draw(std::size_t row, const Run& run) const {
    const double x = kMargin + static_cast<double>(run.column) * kCellWidth;
    const double y = kMargin + static_cast<double>(row) * kCellHeight;
    const double width = static_cast<double>(run.columns) * kCellWidth;
    use(paintOf(run.style));
    if (run.style.reverse) {
      cairo_rectangle(context_.get(), x, y, width, kCellHeight);
      cairo_fill(context_.get());
      use(kBackground);
    }
    drawText(run, x, y, width);
  }

  [[nodiscard]] bool write(const std::string& file) const {
    return cairo_surface_write_to_png(surface_.get(), file.c_str()) == CAIRO_STATUS_SUCCESS;
  }

 private:
  static int pixels(std::size_t cells, double size) {
    return static_cast<int>(static_cast<double>(cells) * size + 2 * kMargin);
  }
  void use(const Paint& paint) const { cairo_set_source_rgb(context_.get(), paint.red, paint.green, paint.blue); }

  // Fonts of other scripts keep to no grid: their text is made to fit.
  void drawText(const Run& run, double x, double y, double width) const {
    PangoFontDescription* font = pango_font_description_from_string("DejaVu Sans Mono");
    pango_font_description_set_absolute_size(font, kFontSize * PANGO_SCALE);
    pango_font_description_set_weight(font, run.style.bold ? PANGO_WEIGHT_BOLD : PANGO_WEIGHT_NORMAL);
    pango_layout_set_font_description(layout_.get(), font);
    pango_font_description_free(font);
    pango_layout_set_text(layout_.get(), run.text.c_str(), -1);
    int textWidth = 0;
    int textHeight = 0;
    pango_layout_get_pixel_size(layout_.get(), &textWidth, &textHeight);
    cairo_save(context_.get());
    cairo_translate(context_.get(), x, y + (kCellHeight - static_cast<double>(textHeight)) / 2);
    if (textWidth > 0 && textWidth > width + 1) cairo_scale(context_.get(), width / textWidth, 1.0);
    pango_cairo_show_layout(context_.get(), layout_.get());
    cairo_restore(context_.get());
  }

  std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)> surface_;
  std::unique_ptr<cairo_t, decltype(&cairo_destroy)> context_;
  std::unique_ptr<PangoLayout, decltype(&g_object_unref)> layout_;
};

int picture(cli::Words words) {
  while (!words.empty() && cli::takeProcessOption(words)) {
  }
  if (words.size() != 3) throw cli::InputError("usage: picture [--locale ID] ROWS COLUMNS FILE.png");
  constexpr int kMost = 1000;
  const cli::Size size{.rows = static_cast<std::size_t>(cli::integerIn(words[0], 1, kMost)),
                       .columns = static_cast<std::size_t>(cli::integerIn(words[1], 1, kMost))};
  const tests::Example machine = tests::example();
  const cli::Texts texts;
  const Frame frame = cli::pageOf({machine.groups, machine.tracks, texts}, {}, size).frame;
  const Canvas canvas(size);
  for (std::size_t row = 0; row < size.rows; ++row) {
    for (const Run& run : runsOf(frame, row)) canvas.draw(row, run);
  }
  if (canvas.write(std::string(words[2]))) return 0;
  throw cli::InputError("cannot write " + cli::inQuotes(words[2]));
}

}  // namespace
}  // namespace kzm::screens

int main(int count, char** arguments) {
  try {
    return kzm::screens::picture(std::vector<std::string_view>(arguments + 1, arguments + count));
  } catch (const std::exception& error) {
    std::cerr << "picture: " << error.what() << '\n';
    return 2;
  }
}
