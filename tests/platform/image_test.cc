#include <bit>
#include <fstream>
#include <gtest/gtest.h>
#include <limits>
#include <string>

#include <KZMUtilities/drawing.h>

#include "tests/support/pixels.h"

namespace kzm::tests {
namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

// Red above, blue below, opaque.
Image redOverBlue(int width, int height) {
  const Canvas canvas(width, height);
  canvas.paint(0, 0, width, height / 2.0, kRedPixel);
  canvas.paint(0, height / 2.0, width, height / 2.0, kBluePixel);
  return Image::fromSurface(canvas.surface());
}

// What the image's own pixels are.
std::uint32_t pixelOf(const Image& image, int x, int y) {
  const Canvas canvas(64, 64);
  const auto current = GraphicsContext(canvas.cairo()).makeCurrent();
  image.drawAtPoint({0, 0});
  return canvas.pixel(x, y);
}

TEST(Image, AtAPointItCoversItsOwnSize) {
  const Canvas canvas(40, 40);
  const auto current = GraphicsContext(canvas.cairo()).makeCurrent();
  redOverBlue(16, 16).drawAtPoint({10, 20});
  EXPECT_EQ(canvas.pixel(10, 20), kRedPixel);
  EXPECT_EQ(canvas.pixel(25, 27), kRedPixel);
  EXPECT_EQ(canvas.pixel(10, 28), kBluePixel);
  EXPECT_EQ(canvas.pixel(25, 35), kBluePixel);
  for (const auto& [x, y] : {std::pair{9, 20}, {26, 20}, {10, 19}, {10, 36}}) EXPECT_EQ(canvas.pixel(x, y), 0U);
  EXPECT_EQ(canvas.area(), 256.0);
}

TEST(Image, IsUprightInBothOrientations) {
  const Canvas down(20, 20);
  {
    const auto current = GraphicsContext(down.cairo()).makeCurrent();
    redOverBlue(4, 4).drawInRect({{2, 3}, {8, 8}});
  }
  EXPECT_EQ(down.pixel(6, 3), kRedPixel);
  EXPECT_EQ(down.pixel(6, 10), kBluePixel);

  const Canvas up(20, 20);
  cairo_translate(up.cairo(), 0.0, 20.0);
  cairo_scale(up.cairo(), 1.0, -1.0);
  {
    const auto current = GraphicsContext(up.cairo(), false).makeCurrent();
    redOverBlue(4, 4).drawInRect({{2, 3}, {8, 8}});
    redOverBlue(4, 4).drawAtPoint({14, 0});
  }
  EXPECT_EQ(up.pixel(6, 9), kRedPixel) << "from 3 to 11 above the lower edge: rows 9 to 16";
  EXPECT_EQ(up.pixel(6, 16), kBluePixel);
  EXPECT_EQ(up.pixel(6, 8), 0U);
  EXPECT_EQ(up.pixel(6, 17), 0U);
  EXPECT_EQ(up.pixel(15, 16), kRedPixel);
  EXPECT_EQ(up.pixel(15, 19), kBluePixel);
}

TEST(Image, ScaledUpItsBordersDoNotFade) {
  const Canvas canvas(24, 24);
  const auto current = GraphicsContext(canvas.cairo()).makeCurrent();
  redOverBlue(2, 2).drawInRect({{4, 4}, {16, 16}});
  for (const auto& [x, y] : {std::pair{4, 4}, {19, 4}, {4, 19}, {19, 19}, {12, 4}, {4, 12}})
    EXPECT_EQ(canvas.alpha(x, y), 255) << x << ", " << y;
  EXPECT_EQ(canvas.pixel(4, 4), kRedPixel);
  EXPECT_EQ(canvas.pixel(19, 19), kBluePixel);
  EXPECT_EQ(canvas.area(), 256.0) << "and nothing outside";
}

TEST(Image, ScaledDownItKeepsBothHalves) {
  if (std::endian::native == std::endian::big)
    GTEST_SKIP() << "left out: pixman shrinks images with swapped bytes here";
  const Canvas canvas(8, 8);
  const auto current = GraphicsContext(canvas.cairo()).makeCurrent();
  redOverBlue(64, 64).drawInRect({{2, 2}, {4, 4}});
  EXPECT_EQ(canvas.pixel(3, 2), kRedPixel);
  EXPECT_EQ(canvas.pixel(3, 5), kBluePixel);
  EXPECT_EQ(canvas.area(), 16.0);
}

TEST(Image, MagnifiedBeyondMeasureItShowsTheColorThatIsThere) {
  const Canvas canvas(8, 8);
  const auto current = GraphicsContext(canvas.cairo()).makeCurrent();
  redOverBlue(4, 4).drawInRect({{-1e14, -1e12}, {4e14, 4e14}});
  EXPECT_EQ(canvas.pixel(0, 0), kRedPixel);
  EXPECT_EQ(canvas.pixel(7, 7), kRedPixel);
  redOverBlue(4, 4).drawInRect({{-1e300, -3.9e300}, {4e300, 4e300}});
  EXPECT_EQ(canvas.pixel(4, 4), kBluePixel);
}

TEST(Image, IsDrawnOverWhatIsThere) {
  const Canvas canvas(4, 4);
  canvas.paint(0, 0, 4, 4, kGreenPixel);
  const Canvas half(4, 4);
  half.paint(0, 0, 4, 4, 0x80FF0000);
  const auto current = GraphicsContext(canvas.cairo()).makeCurrent();
  Image::fromSurface(half.surface()).drawAtPoint({0, 0});
  EXPECT_EQ(canvas.pixel(1, 1), 0xFF807F00);
}

TEST(Image, IsACopyOfTheSurfaceItIsMadeFrom) {
  const Canvas canvas(4, 4);
  canvas.paint(0, 0, 4, 4, kRedPixel);
  const Image image = Image::fromSurface(canvas.surface());
  canvas.paint(0, 0, 4, 4, kBluePixel);
  EXPECT_EQ(pixelOf(image, 1, 1), kRedPixel);
}

TEST(Image, TakesSizeAndPixelsFromADeviceScale) {
  const Canvas canvas(8, 8);
  canvas.paint(0, 0, 8, 4, kRedPixel);
  cairo_surface_set_device_scale(canvas.surface(), 2.0, 2.0);
  const Image image = Image::fromSurface(canvas.surface());
  EXPECT_EQ(image.size(), (Size{4, 4}));
  EXPECT_EQ(pixelOf(image, 3, 1), kRedPixel);
  EXPECT_EQ(pixelOf(image, 3, 2), 0U);
  EXPECT_EQ(image.tint(Color::fromRGBA(0, 0, 1, 1)).size(), (Size{4, 4}));
  EXPECT_EQ(pixelOf(image.tint(Color::fromRGBA(0, 0, 1, 1)), 3, 1), kBluePixel);
}

TEST(Image, HasAllPixelsOfASurfaceWithADeviceOffset) {
  for (const double scale : {1.0, 2.0}) {
    const Canvas canvas(8, 8);
    canvas.paint(0, 0, 2, 2, kRedPixel);
    canvas.paint(6, 6, 2, 2, kBluePixel);
    cairo_surface_set_device_scale(canvas.surface(), scale, scale);
    cairo_surface_set_device_offset(canvas.surface(), 2.0, 1.0);
    const Image image = Image::fromSurface(canvas.surface());
    EXPECT_EQ(pixelOf(image, 0, 0), kRedPixel);
    const int last = static_cast<int>(8 / scale) - 1;
    EXPECT_EQ(pixelOf(image, last, last), kBluePixel);
    EXPECT_EQ(pixelOf(image.tint(Color::fromRGBA(0, 1, 0, 1)), 0, 0), kGreenPixel);
  }
}

TEST(Image, FocusDrawsIntoItFromTheTop) {
  const Canvas canvas(16, 16);
  const auto outer = GraphicsContext(canvas.cairo()).makeCurrent();
  const Image image(Size{8, 8}, 2.0);
  {
    const Image::Focus focus(image);
    barGraphWithRectFill({{0, 0}, {8, 4}}, Color::fromRGBA(1, 0, 0, 1));
  }
  EXPECT_EQ(GraphicsContext::current()->cairo(), canvas.cairo()) << "the one before is current again";
  image.drawAtPoint({4, 4});
  EXPECT_EQ(canvas.pixel(8, 5), kRedPixel);
  EXPECT_EQ(canvas.pixel(8, 9), 0U);
}

TEST(Image, MayBeDrawnIntoItself) {
  const Image image = redOverBlue(8, 8);
  {
    const Image::Focus focus(image);
    image.drawInRect({{0, 0}, {4, 8}});
  }
  EXPECT_EQ(pixelOf(image, 1, 1), kRedPixel);
  EXPECT_EQ(pixelOf(image, 1, 6), kBluePixel);
}

TEST(Image, WhatCannotBeIsEmpty) {
  constexpr Size kSizes[] = {
      {0, 4}, {4, 0}, {-4, 4}, {kNan, 4}, {4, std::numeric_limits<double>::infinity()}, {32768, 1}, {1e300, 1e300}};
  for (const Size& size : kSizes) EXPECT_EQ(Image(size).size(), Size{}) << size.width << " x " << size.height;
  EXPECT_EQ(Image(Size{4, 4}, 0.0).size(), Size{});
  EXPECT_EQ(Image(Size{4, 4}, kNan).size(), Size{});
  EXPECT_EQ(Image::fromSurface(nullptr).size(), Size{});
  const Canvas finished(4, 4);
  cairo_surface_finish(finished.surface());
  EXPECT_EQ(Image::fromSurface(finished.surface()).size(), Size{});
  unsigned char data[64] = {};
  cairo_surface_t* foreign = cairo_image_surface_create_for_data(data, CAIRO_FORMAT_ARGB32, 4, 4, 16);
  EXPECT_EQ(Image::fromSurface(foreign).size(), (Size{4, 4}));
  cairo_surface_finish(foreign);
  EXPECT_EQ(Image::fromSurface(foreign).size(), Size{});
  cairo_surface_destroy(foreign);
  EXPECT_EQ(Image::fromPNG("/no/such/file").size(), Size{});
  const Canvas canvas(4, 4);
  const auto current = GraphicsContext(canvas.cairo()).makeCurrent();
  const Image empty;
  empty.drawAtPoint({0, 0});
  empty.drawInRect({{0, 0}, {4, 4}});
  EXPECT_EQ(empty.tint(Color()).size(), Size{});
  EXPECT_FALSE(empty.writePNG(testing::TempDir() + "kzm_empty.png"));
  { const Image::Focus focus(empty); }
  EXPECT_TRUE(canvas.isSound());
  EXPECT_EQ(canvas.area(), 0.0);
}

TEST(Image, CanBeAsLargeAndAsFineAsThis) {
  constexpr struct {
    const char* why;
    Size size;
    double scale;
    bool isPossible;
  } kCases[] = {
      {"the widest", {32767, 1}, 1, true},
      {"the highest", {1, 32767}, 1, true},
      {"wider", {32767.5, 1}, 1, false},
      {"higher", {1, 32767.5}, 1, false},
      {"wider by its scale", {16384, 1}, 2, false},
      {"a part of a pixel is one", {0.5, 0.25}, 1, true},
      {"the coarsest", {1e6, 1e6}, 1e-6, true},
      {"coarser", {1e6, 1e6}, 0.9e-6, false},
      {"the finest", {1e-6, 1e-6}, 1e6, true},
      {"finer", {1e-6, 1e-6}, 1e6 + 0.5, false},
  };
  for (const auto& row : kCases)
    EXPECT_EQ(Image(row.size, row.scale).size(), row.isPossible ? row.size : Size{}) << row.why;
}

TEST(Image, ItsPixelsMayBeWiderThanHigh) {
  const Canvas canvas(8, 8);
  canvas.paint(6, 2, 2, 2, kRedPixel);
  cairo_surface_set_device_scale(canvas.surface(), 1.0, 2.0);
  const Image image = Image::fromSurface(canvas.surface());
  EXPECT_EQ(image.size(), (Size{8, 4}));
  EXPECT_EQ(pixelOf(image, 6, 1), kRedPixel);
  EXPECT_EQ(pixelOf(image, 7, 1), kRedPixel);
  for (const auto& [x, y] : {std::pair{5, 1}, {6, 0}, {6, 2}}) EXPECT_EQ(pixelOf(image, x, y), 0U) << x << ", " << y;
}

TEST(Image, GoesThroughAFile) {
  const std::string path = testing::TempDir() + "kzm_image.png";
  ASSERT_TRUE(redOverBlue(6, 4).writePNG(path));
  const Image image = Image::fromPNG(path);
  EXPECT_EQ(image.size(), (Size{6, 4}));
  EXPECT_EQ(pixelOf(image, 5, 1), kRedPixel);
  EXPECT_EQ(pixelOf(image, 5, 2), kBluePixel);
  std::ofstream(path) << "\x89PNG\r\n\x1a\nbroken";
  EXPECT_EQ(Image::fromPNG(path).size(), Size{});
}

TEST(Tint, KeepsTheShapeAndTouchesOnlyItsCopy) {
  const Canvas canvas(4, 4);
  canvas.paint(1, 1, 2, 2, kGreenPixel);
  canvas.paint(3, 3, 1, 1, 0x8000FF00);
  const Image image = Image::fromSurface(canvas.surface());
  const Image red = image.tint(Color::fromRGBA(1, 0, 0, 1));
  EXPECT_EQ(red.size(), (Size{4, 4}));
  EXPECT_EQ(pixelOf(red, 0, 0), 0U) << "transparent corners stay so";
  EXPECT_EQ(pixelOf(red, 1, 1), kRedPixel);
  EXPECT_EQ(pixelOf(red, 3, 3), 0x80800000);
  EXPECT_EQ(pixelOf(image.tint(Color::fromRGBA(1, 0, 0, 0.5)), 3, 3), 0x40400000U);
  EXPECT_EQ(pixelOf(image.tint(Color::fromRGBA(1, 0, 0, 0)), 1, 1), 0U);
  EXPECT_EQ(pixelOf(image, 1, 1), kGreenPixel) << "the receiver is as before";
}

TEST(Tint, AnImageWithoutAlphaGetsOne) {
  const Canvas canvas(4, 4, CAIRO_FORMAT_RGB24);
  canvas.paint(0, 0, 4, 4, kGreenPixel);
  const Image tinted = Image::fromSurface(canvas.surface()).tint(Color::fromRGBA(1, 0, 0, 0.5));
  EXPECT_EQ(pixelOf(tinted, 1, 1), 0x80800000) << "translucent, not dark";
}

TEST(Tint, NeedsNoCurrentContext) {
  const Image tinted = redOverBlue(4, 4).tint(Color::fromRGBA(0, 1, 0, 1));
  EXPECT_FALSE(GraphicsContext::current().has_value());
  EXPECT_EQ(pixelOf(tinted, 2, 3), kGreenPixel);
}

}  // namespace
}  // namespace kzm::tests
