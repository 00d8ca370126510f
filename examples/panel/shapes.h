// What the panel is drawn of besides text: plates with round corners, and bars.
#ifndef KZM_EXAMPLES_PANEL_SHAPES_H
#define KZM_EXAMPLES_PANEL_SHAPES_H

#include <vector>

#include <KZMUtilities/drawing.h>

namespace kzm::panel {

[[nodiscard]] constexpr Rect rectOf(double x, double y, double width, double height) {
  return {Point{x, y}, Size{width, height}};
}

/// Puts things where they belong in the direction of writing: places are given as from left to right.
struct Page {
  double width;
  bool mirrored;
  [[nodiscard]] Rect place(const Rect& rect) const {
    const double x = mirrored ? width - rect.origin.x - rect.size.width : rect.origin.x;
    return rectOf(x, rect.origin.y, rect.size.width, rect.size.height);
  }
};

/// Fills the rectangle, its corners rounded, with a shade from the one color to the other.
void fillRounded(const Rect& rect, double radius, const Color& top, const Color& bottom);

/// Bars side by side that share the rectangle, each filled by its level, 0 to 1, from where writing starts.
void drawBars(const Page& page, const Rect& all, const std::vector<double>& levels, const Color& color);

}  // namespace kzm::panel

#endif
