#include <gtest/gtest.h>
#include <optional>
#include <thread>

#include <KZMUtilities/drawing.h>

#include "tests/support/pixels.h"

namespace kzm::tests {
namespace {

cairo_t* currentCairo() {
  const auto context = GraphicsContext::current();
  return context ? context->cairo() : nullptr;
}

TEST(GraphicsContext, IsCurrentForAsLongAsAsked) {
  const Canvas outer(2, 2);
  const Canvas inner(2, 2);
  EXPECT_FALSE(GraphicsContext::current().has_value());
  {
    const auto outerCurrent = GraphicsContext(outer.cairo()).makeCurrent();
    EXPECT_EQ(currentCairo(), outer.cairo());
    {
      const auto innerCurrent = GraphicsContext(inner.cairo()).makeCurrent();
      EXPECT_EQ(currentCairo(), inner.cairo());
    }
    EXPECT_EQ(currentCairo(), outer.cairo());
  }
  EXPECT_FALSE(GraphicsContext::current().has_value());
}

TEST(GraphicsContext, EachThreadHasItsOwn) {
  const Canvas canvas(2, 2);
  const auto current = GraphicsContext(canvas.cairo()).makeCurrent();
  std::thread([] {
    EXPECT_FALSE(GraphicsContext::current().has_value());
    const Canvas own(2, 2);
    const auto ownCurrent = GraphicsContext(own.cairo()).makeCurrent();
    EXPECT_EQ(currentCairo(), own.cairo());
    barGraphWithRectFill({{0, 0}, {2, 2}}, Color::fromRGBA(1, 0, 0, 1));
    EXPECT_GT(own.area(), 1.0);
  }).join();
  EXPECT_EQ(currentCairo(), canvas.cairo());
  EXPECT_EQ(canvas.area(), 0.0);
}

TEST(GraphicsContext, AHostSetsColorsAndOrientation) {
  const Canvas canvas(4, 4);
  const GraphicsContext upright(canvas.cairo(), false);
  const Color red = Color::fromRGBA(1, 0, 0, 1);
  upright.setFillColor(red);
  EXPECT_EQ(upright.fillColor(), red);
  EXPECT_EQ(upright.strokeColor(), Color()) << "the one color is not the other";
  upright.setStrokeColor(red);
  EXPECT_EQ(upright.strokeColor(), red);
  EXPECT_FALSE(upright.isFlipped());
  EXPECT_TRUE(GraphicsContext(canvas.cairo()).isFlipped()) << "down is the ordinary direction of y";
}

TEST(GraphicsContext, ColorsStaySetAfterABar) {
  const Canvas canvas(20, 20);
  const GraphicsContext context(canvas.cairo());
  const auto current = context.makeCurrent();
  const Color red = Color::fromRGBA(1, 0, 0, 1);
  const Color blue = Color::fromRGBA(0, 0, 1, 0.5);
  EXPECT_EQ(context.fillColor(), Color());
  barGraphWithRectFill({{1, 1}, {8, 8}}, red);
  barGraphWithRectBorder({{1, 1}, {8, 8}}, blue);
  EXPECT_EQ(context.fillColor(), red);
  EXPECT_EQ(context.strokeColor(), blue);
  barGraphWithRectFill({{1, 1}, {0, 0}}, blue);
  EXPECT_EQ(context.fillColor(), blue) << "also when there is nothing to draw";
}

TEST(GraphicsContext, WithoutOneNothingIsDrawn) {
  const Image image(Size{4, 4});
  barGraphWithRectFill({{0, 0}, {4, 4}}, Color());
  barGraphWithRectBorder({{0, 0}, {4, 4}}, Color());
  image.drawAtPoint({0, 0});
  const GraphicsContext none(nullptr);
  const auto current = none.makeCurrent();
  barGraphWithRectFill({{0, 0}, {4, 4}}, Color());
  barGraphWithRectBorder({{0, 0}, {4, 4}}, Color());
  image.drawInRect({{0, 0}, {4, 4}});
  EXPECT_EQ(none.cairo(), nullptr);
}

TEST(GraphicsContext, KeepsTheCairoContextAlive) {
  std::optional<GraphicsContext> context;
  {
    const Canvas canvas(4, 4);
    context.emplace(canvas.cairo());
  }
  const auto current = context->makeCurrent();
  barGraphWithRectFill({{0, 0}, {4, 4}}, Color());
  EXPECT_EQ(cairo_status(context->cairo()), CAIRO_STATUS_SUCCESS);
}

}  // namespace
}  // namespace kzm::tests
