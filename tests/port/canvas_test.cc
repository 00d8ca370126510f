#include "port/canvas.h"

#include <gtest/gtest.h>

namespace kzm::port {
namespace {

TEST(Canvas, OfAProcessWithoutCairoDrawsNothingAndHasNothingToGive) {
  const Canvas none;
  const Paint paint(Color{});
  const Rect rect{{0.0, 0.0}, {4.0, 4.0}};
  none.fillRoundedRect(nullptr, rect, 1.0, paint);
  none.strokeRoundedRect(nullptr, rect, 1.0, 1.0, paint);
  none.drawSurface(nullptr, nullptr, {4.0, 4.0}, rect, true);
  none.fillSourceIn(nullptr, paint);
  none.release(static_cast<cairo_t*>(nullptr));
  none.release(static_cast<cairo_surface_t*>(nullptr));
  EXPECT_EQ(none.kept(nullptr), nullptr);
  EXPECT_EQ(none.contextOn(nullptr), nullptr);
  EXPECT_EQ(none.makeSurface({4.0, 4.0}, 1.0), nullptr);
  EXPECT_EQ(none.copySurface(nullptr), nullptr);
  EXPECT_EQ(none.readPNG("/dev/null"), nullptr);
  EXPECT_FALSE(none.writePNG(nullptr, "/dev/null"));
  EXPECT_EQ(none.surfaceSize(nullptr), Size{});
}

}  // namespace
}  // namespace kzm::port
