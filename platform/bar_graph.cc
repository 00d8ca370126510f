// The bars of bar graphs: rounded rectangles in the current context.
#include <KZMUtilities/drawing.h>

#include "port/canvas.h"

namespace kzm {
namespace {

constexpr double kCornerRadius = 2.0;  // points, in both directions
constexpr double kOutlineWidth = 0.5;  // points

}  // namespace

void barGraphWithRectFill(const Rect& rect, const Color& fill) {
  const std::optional<GraphicsContext> context = GraphicsContext::current();
  if (!context) return;
  // Deliberate: the color of a bar stays the context's fill color, also when nothing can be drawn
  // (GraphicsContext.ColorsStaySetAfterABar).
  context->setFillColor(fill);
  port::canvas().fillRoundedRect(context->cairo(), rect, kCornerRadius, port::Paint(fill));
}

void barGraphWithRectBorder(const Rect& rect, const Color& border) {
  const std::optional<GraphicsContext> context = GraphicsContext::current();
  if (!context) return;
  // Deliberate: the color of a border stays the context's stroke color, also when nothing can be drawn
  // (GraphicsContext.ColorsStaySetAfterABar).
  context->setStrokeColor(border);
  // Deliberate: the rectangle of a border is not inset, so half of the line is outside it, along the edge of the fill
  // (BarGraphBorder.IsOnTheEdgeHalfOutside).
  port::canvas().strokeRoundedRect(context->cairo(), rect, kCornerRadius, kOutlineWidth, port::Paint(border));
}

}  // namespace kzm
