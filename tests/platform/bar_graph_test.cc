#include <gtest/gtest.h>
#include <limits>
#include <random>

#include <KZMUtilities/drawing.h>

#include "tests/support/pixels.h"

namespace kzm::tests {
namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kMax = std::numeric_limits<double>::max();

const Color kRed = Color::fromRGBA(1, 0, 0, 1);

void fill(const Canvas& canvas, const Rect& rect) {
  const auto current = GraphicsContext(canvas.cairo()).makeCurrent();
  barGraphWithRectFill(rect, kRed);
}

void outline(const Canvas& canvas, const Rect& rect) {
  const auto current = GraphicsContext(canvas.cairo()).makeCurrent();
  barGraphWithRectBorder(rect, kRed);
}

TEST(BarGraphFill, FillsExactlyTheRectangleWithRoundedCorners) {
  const Canvas canvas(24, 24);
  fill(canvas, {{4, 6}, {16, 10}});
  EXPECT_EQ(canvas.pixel(12, 11), kRedPixel) << "inside";
  EXPECT_EQ(canvas.pixel(12, 6), kRedPixel) << "the edges are full";
  EXPECT_EQ(canvas.pixel(12, 15), kRedPixel);
  EXPECT_EQ(canvas.pixel(4, 11), kRedPixel);
  EXPECT_EQ(canvas.pixel(19, 11), kRedPixel);
  EXPECT_EQ(canvas.pixel(12, 5), 0U) << "nothing beyond them";
  EXPECT_EQ(canvas.pixel(12, 16), 0U);
  EXPECT_EQ(canvas.pixel(3, 11), 0U);
  EXPECT_EQ(canvas.pixel(20, 11), 0U);
  for (const auto& [x, y] : {std::pair{4, 6}, {19, 6}, {4, 15}, {19, 15}}) {
    EXPECT_NEAR(canvas.alpha(x, y), 80, 8) << "the disc of radius 2 covers 0.315 of a corner pixel";
  }
}

void expectNothingOutside(const Canvas& canvas, const Size& size) {
  const int right = 4 + static_cast<int>(size.width + 0.99);
  const int bottom = 4 + static_cast<int>(size.height + 0.99);
  for (int y = 0; y < 16; ++y) {
    for (int x = 0; x < 24; ++x) {
      const bool inside = x >= 4 && y >= 4 && x < right && y < bottom;
      EXPECT_TRUE(inside || canvas.pixel(x, y) == 0) << "at " << x << ", " << y;
    }
  }
}

// A rounded rectangle lacks (4 - pi) times the two radii at its four corners.
TEST(BarGraphFill, NarrowBarsHaveEllipticalCornersAndStayInside) {
  struct Case {
    const char* why;
    Size size;
    double area;
  };
  constexpr Case cases[] = {
      {"ordinary: 160 less 0.8584 x 2 x 2", {16, 10}, 156.566},
      {"exactly twice the radius: a disc", {4, 4}, 12.566},
      {"narrow: 1.5 by 2", {3, 10}, 27.425},
      {"low: 2 by 0.5", {10, 1}, 9.142},
      {"small: a disc of radius 1", {2, 2}, 3.142},
      {"one pixel: a disc of radius 0.5", {1, 1}, 0.785},
      {"a hair", {0.5, 8}, 3.571},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.why);
    const Canvas canvas(24, 16);
    fill(canvas, {{4, 4}, c.size});
    EXPECT_NEAR(canvas.area(), c.area, 0.02 * c.area + 0.03);
    expectNothingOutside(canvas, c.size);
  }
}

TEST(BarGraph, WhatIsNoRectangleDrawsNothing) {
  constexpr Rect kCases[] = {
      {{4, 4}, {-8, 8}},   {{4, 4}, {8, -8}},      {{kNan, 4}, {8, 8}},  {{4, kNan}, {8, 8}},
      {{4, 4}, {kNan, 8}}, {{4, 4}, {8, kNan}},    {{-kInf, 4}, {8, 8}}, {{4, 4}, {kInf, 8}},
      {{4, 4}, {8, kInf}}, {{kMax, 4}, {kMax, 8}}, {{1e9, 4}, {8, 8}},   {{4, 4}, {0, -1}},
  };
  for (const Rect& rect : kCases) {
    const Canvas canvas(16, 16);
    fill(canvas, rect);
    outline(canvas, rect);
    EXPECT_EQ(canvas.area(), 0.0) << rect.origin.x << " " << rect.origin.y << " " << rect.size.width;
    EXPECT_TRUE(canvas.isSound());
  }
}

TEST(BarGraphFill, WithoutWidthOrHeightThereIsNothingToFill) {
  for (const Size& size : {Size{8, 0}, Size{0, 8}, Size{0, 0}, Size{1e-300, 8}, Size{8, 0.001}}) {
    const Canvas canvas(16, 16);
    fill(canvas, {{4, 4}, size});
    EXPECT_EQ(canvas.area(), 0.0) << size.width << " x " << size.height;
    EXPECT_TRUE(canvas.isSound());
  }
}

// A line there and back, half a point wide, and its ends.
TEST(BarGraphBorder, WithoutWidthOrHeightItIsStrokedAllTheSame) {
  for (const double thin : {0.002, 0.0019, 1e-9, 1e-300, 0.0}) {
    for (const Size& size : {Size{20, thin}, Size{thin, 20}}) {
      const Canvas canvas(32, 32);
      outline(canvas, {{6, 6}, size});
      EXPECT_NEAR(canvas.area(), 10.4, 0.5) << size.width << " x " << size.height;
      EXPECT_TRUE(canvas.isSound());
    }
  }
  const Canvas canvas(32, 32);
  outline(canvas, {{6, 6}, {0, 0}});
  EXPECT_LE(canvas.area(), 1.0) << "a point";
  EXPECT_TRUE(canvas.isSound());
}

TEST(BarGraph, HugeOnesShowWhatIsOnTheSurface) {
  const Canvas canvas(16, 16);
  fill(canvas, {{8, -1e9}, {1e12, 2e9}});
  EXPECT_EQ(canvas.pixel(7, 8), 0U);
  EXPECT_EQ(canvas.pixel(8, 8), kRedPixel);
  EXPECT_EQ(canvas.pixel(15, 0), kRedPixel);
  const Canvas corner(16, 16);
  fill(corner, {{-kMax / 2, 4}, {kMax, 1e300}});
  EXPECT_EQ(corner.pixel(0, 3), 0U);
  EXPECT_EQ(corner.pixel(0, 4), kRedPixel);
  EXPECT_TRUE(corner.isSound());
}

TEST(BarGraphBorder, IsOnTheEdgeHalfOutside) {
  const Canvas canvas(24, 24);
  outline(canvas, {{4, 6}, {16, 10}});
  for (const auto& [x, y] : {std::pair{12, 5}, {12, 6}, {12, 15}, {12, 16}, {3, 11}, {4, 11}, {19, 11}, {20, 11}}) {
    EXPECT_GE(canvas.alpha(x, y), 60) << "a quarter on each side, at " << x << ", " << y;
    EXPECT_LE(canvas.alpha(x, y), 72) << "a quarter on each side, at " << x << ", " << y;
  }
  EXPECT_EQ(canvas.pixel(12, 4), 0U);
  EXPECT_EQ(canvas.pixel(12, 11), 0U) << "not filled";
  EXPECT_EQ(canvas.pixel(12, 7), 0U);
}

TEST(BarGraph, LeavesTheCairoContextAsItWas) {
  const Canvas canvas(24, 24);
  cairo_t* cairo = canvas.cairo();
  cairo_set_line_width(cairo, 7.0);
  const double dashes[] = {3.0, 1.0};
  cairo_set_dash(cairo, dashes, 2, 0.5);
  cairo_set_operator(cairo, CAIRO_OPERATOR_CLEAR);
  cairo_set_source_rgba(cairo, 0.0, 1.0, 0.0, 1.0);
  cairo_translate(cairo, 2.0, 3.0);
  cairo_rectangle(cairo, 0.0, 0.0, 10.0, 20.0);
  cairo_clip(cairo);
  cairo_move_to(cairo, 5.0, 6.0);
  fill(canvas, {{1, 1}, {8, 8}});
  outline(canvas, {{1, 1}, {8, 8}});
  EXPECT_EQ(canvas.pixel(7, 8), kRedPixel) << "drawn over, whatever the host's operator";
  EXPECT_EQ(cairo_get_line_width(cairo), 7.0);
  EXPECT_EQ(cairo_get_dash_count(cairo), 2);
  EXPECT_EQ(cairo_get_operator(cairo), CAIRO_OPERATOR_CLEAR);
  double red = 1.0, green = 0.0, blue = 1.0, alpha = 0.0;
  cairo_pattern_get_rgba(cairo_get_source(cairo), &red, &green, &blue, &alpha);
  EXPECT_EQ(green, 1.0);
  EXPECT_EQ(red, 0.0);
  double x = 0.0, y = 0.0;
  cairo_get_current_point(cairo, &x, &y);
  EXPECT_EQ(x, 5.0);
  EXPECT_EQ(y, 6.0);
  double left = -1.0, top = -1.0, right = -1.0, bottom = -1.0;
  cairo_clip_extents(cairo, &left, &top, &right, &bottom);
  EXPECT_EQ(right - left, 10.0);
  EXPECT_EQ(bottom - top, 20.0);
  EXPECT_TRUE(canvas.isSound());
}

TEST(BarGraph, HonorsTheHostsClip) {
  const Canvas canvas(24, 24);
  cairo_rectangle(canvas.cairo(), 0.0, 0.0, 10.0, 24.0);
  cairo_clip(canvas.cairo());
  fill(canvas, {{4, 6}, {16, 10}});
  EXPECT_EQ(canvas.pixel(9, 11), kRedPixel);
  EXPECT_EQ(canvas.pixel(10, 11), 0U);
}

TEST(BarGraph, AContextInAnErrorStateIsLeftAlone) {
  const Canvas canvas(8, 8);
  cairo_restore(canvas.cairo());  // without a save before: an error for good
  ASSERT_FALSE(canvas.isSound());
  fill(canvas, {{0, 0}, {8, 8}});
  outline(canvas, {{0, 0}, {8, 8}});
  Image(Size{2, 2}).drawInRect({{0, 0}, {8, 8}});
  EXPECT_EQ(canvas.area(), 0.0);
}

// A bar of eight by eight pixels at the left upper corner, however large a point is and wherever the origin.
double areaOfBar(double scaleX, double scaleY, double offsetX, double offsetY) {
  const Canvas canvas(16, 16);
  cairo_matrix_t matrix;
  cairo_matrix_init(&matrix, scaleX, 0.0, 0.0, scaleY, offsetX, offsetY);
  cairo_set_matrix(canvas.cairo(), &matrix);
  fill(canvas, {{-offsetX / scaleX, -offsetY / scaleY}, {8.0 / scaleX, 8.0 / scaleY}});
  EXPECT_TRUE(canvas.isSound());
  return canvas.area();
}

TEST(BarGraph, ContextsBeyondMeasureShowNothing) {
  constexpr struct {
    const char* why;
    double scaleX, scaleY, offsetX, offsetY;
    bool isShown;
  } kCases[] = {
      {"the smallest points", 1e-6, 1e-6, 0, 0, true},     {"narrower ones", 0.9e-6, 2e-6, 0, 0, false},
      {"lower ones", 2e-6, 0.9e-6, 0, 0, false},           {"the largest points", 1e6, 1e6, 0, 0, true},
      {"wider ones", 1e6 + 0.5, 1, 0, 0, false},           {"higher ones", 1, 1e6 + 0.5, 0, 0, false},
      {"the farthest origin", 1, 1, 1e9, 1e9, true},       {"the farthest before it", 1, 1, -1e9, -1e9, true},
      {"farther to the right", 1, 1, 1e9 + 0.5, 0, false}, {"farther to the left", 1, 1, -1e9 - 0.5, 0, false},
      {"farther below", 1, 1, 0, 1e9 + 0.5, false},        {"farther above", 1, 1, 0, -1e9 - 0.5, false},
  };
  for (const auto& row : kCases) {
    const double area = areaOfBar(row.scaleX, row.scaleY, row.offsetX, row.offsetY);
    EXPECT_EQ(area > 40.0, row.isShown) << row.why << ": " << area;
    EXPECT_EQ(area == 0.0, !row.isShown) << row.why << ": " << area;
  }
}

// Every magnitude, sign and kind of number, in contexts that are scaled, turned and moved in every way.
TEST(BarGraph, NothingPutsTheContextIntoAnErrorState) {
  std::mt19937 random(20);
  constexpr double kNumbers[] = {0.0, 1.0, 3.0,  -2.0,  0.1,  1e-3, 1e-9, 1e-160, 1e-310, 7.5,    1e3,  1e5,  3e6,
                                 1e7, 1e9, 1e15, 1e160, kMax, -1e3, -1e9, kInf,   kNan,   -1e160, 16.0, -0.5, 2.0};
  const auto pick = [&] { return kNumbers[random() % std::size(kNumbers)]; };
  const Image image(Size{3, 5});
  for (int turn = 0; turn < 20'000; ++turn) {
    const Canvas canvas(8, 8);
    cairo_matrix_t matrix;
    cairo_matrix_init(&matrix, pick(), pick(), pick(), pick(), pick(), pick());
    if (turn % 2 == 0) cairo_transform(canvas.cairo(), &matrix);
    if (!canvas.isSound()) continue;  // a transformation that cairo itself refuses
    const GraphicsContext context(canvas.cairo(), turn % 3 == 0);
    const auto current = context.makeCurrent();
    const Rect rect{{pick(), pick()}, {pick(), pick()}};
    barGraphWithRectFill(rect, kRed);
    barGraphWithRectBorder(rect, kRed);
    image.drawInRect(rect);
    image.drawAtPoint(rect.origin);
    ASSERT_TRUE(canvas.isSound()) << turn << ": " << rect.origin.x << " " << rect.origin.y << " " << rect.size.width
                                  << " " << rect.size.height;
  }
}

}  // namespace
}  // namespace kzm::tests
