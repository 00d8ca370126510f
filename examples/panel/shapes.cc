#include "shapes.h"

#include <algorithm>
#include <cairo.h>
#include <numbers>

namespace kzm::panel {
namespace {

// In points.
constexpr double kBarGap = 2.5;
constexpr double kSharp = 0.25;  // puts an outline half a point wide onto whole pixels at a scale of 2

// How bright the parts of a bar are, next to its color.
constexpr float kTrackBrightness = 0.24F;
constexpr float kOutlineBrightness = 0.42F;
constexpr float kFilledOutlineBrightness = 0.85F;

void drawBar(const Rect& rect, const Color& fill, const Color& outline) {
  barGraphWithRectFill(rect, fill);
  barGraphWithRectBorder(rect, outline);
}

}  // namespace

void fillRounded(const Rect& rect, double radius, const Color& top, const Color& bottom) {
  cairo_t* cairo = GraphicsContext::current()->cairo();
  if (cairo == nullptr) return;
  constexpr double kQuarter = std::numbers::pi / 2.0;
  const auto [x, y] = rect.origin;
  const auto [width, height] = rect.size;
  cairo_new_path(cairo);
  cairo_arc(cairo, x + width - radius, y + radius, radius, -kQuarter, 0.0);
  cairo_arc(cairo, x + width - radius, y + height - radius, radius, 0.0, kQuarter);
  cairo_arc(cairo, x + radius, y + height - radius, radius, kQuarter, 2.0 * kQuarter);
  cairo_arc(cairo, x + radius, y + radius, radius, 2.0 * kQuarter, 3.0 * kQuarter);
  cairo_close_path(cairo);
  cairo_pattern_t* shade = cairo_pattern_create_linear(x, y, x, y + height);
  cairo_pattern_add_color_stop_rgb(shade, 0.0, top.red(), top.green(), top.blue());
  cairo_pattern_add_color_stop_rgb(shade, 1.0, bottom.red(), bottom.green(), bottom.blue());
  cairo_set_source(cairo, shade);
  cairo_fill(cairo);
  cairo_pattern_destroy(shade);
}

void drawBars(const Page& page, const Rect& all, const std::vector<double>& levels, const Color& color) {
  const auto count = static_cast<double>(levels.size());
  const double width = (all.size.width - (count - 1.0) * kBarGap) / count - 2.0 * kSharp;
  double x = all.origin.x + kSharp;
  for (const double level : levels) {
    const double filledWidth = width * std::clamp(level, 0.0, 1.0);
    const Rect track = rectOf(x, all.origin.y + kSharp, width, all.size.height - 2.0 * kSharp);
    const Rect filled = rectOf(x, track.origin.y, filledWidth, track.size.height);
    drawBar(page.place(track), color.multiplyBrightness(kTrackBrightness),
            color.multiplyBrightness(kOutlineBrightness));
    drawBar(page.place(filled), color, color.multiplyBrightness(kFilledOutlineBrightness));
    x += width + 2.0 * kSharp + kBarGap;
  }
}

}  // namespace kzm::panel
