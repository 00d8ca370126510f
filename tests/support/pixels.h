// A small drawing surface whose pixels a test can read.
#ifndef KZM_TESTS_SUPPORT_PIXELS_H
#define KZM_TESTS_SUPPORT_PIXELS_H

#include <cairo.h>
#include <cstddef>
#include <cstdint>

#include <KZMUtilities/drawing.h>

namespace kzm::tests {

class Canvas {
 public:
  Canvas(int width, int height, cairo_format_t format = CAIRO_FORMAT_ARGB32)
      : surface_(cairo_image_surface_create(format, width, height)), cairo_(cairo_create(surface_)) {}
  ~Canvas() {
    cairo_destroy(cairo_);
    cairo_surface_destroy(surface_);
  }
  Canvas(const Canvas&) = delete;
  Canvas& operator=(const Canvas&) = delete;

  [[nodiscard]] cairo_t* cairo() const { return cairo_; }
  [[nodiscard]] cairo_surface_t* surface() const { return surface_; }
  [[nodiscard]] bool isSound() const { return cairo_status(cairo_) == CAIRO_STATUS_SUCCESS; }

  /// 0xAARRGGBB, the colors multiplied by alpha.
  [[nodiscard]] std::uint32_t pixel(int x, int y) const {
    cairo_surface_flush(surface_);
    const unsigned char* row =
        cairo_image_surface_get_data(surface_) + std::ptrdiff_t{y} * cairo_image_surface_get_stride(surface_);
    return reinterpret_cast<const std::uint32_t*>(row)[x];
  }
  [[nodiscard]] int alpha(int x, int y) const { return static_cast<int>(pixel(x, y) >> 24); }

  /// The painted area in pixels, each counting as much as it is covered.
  [[nodiscard]] double area() const {
    double sum = 0.0;
    for (int y = 0; y < cairo_image_surface_get_height(surface_); ++y)
      for (int x = 0; x < cairo_image_surface_get_width(surface_); ++x) sum += alpha(x, y) / 255.0;
    return sum;
  }

  void paint(double x, double y, double width, double height, std::uint32_t argb) const {
    const auto part = [argb](int shift) { return ((argb >> shift) & 0xFFU) / 255.0; };
    cairo_save(cairo_);
    cairo_set_operator(cairo_, CAIRO_OPERATOR_SOURCE);
    cairo_set_source_rgba(cairo_, part(16), part(8), part(0), part(24));
    cairo_rectangle(cairo_, x, y, width, height);
    cairo_fill(cairo_);
    cairo_restore(cairo_);
  }

 private:
  cairo_surface_t* surface_;
  cairo_t* cairo_;
};

constexpr std::uint32_t kRedPixel = 0xFFFF0000;
constexpr std::uint32_t kGreenPixel = 0xFF00FF00;
constexpr std::uint32_t kBluePixel = 0xFF0000FF;

}  // namespace kzm::tests

#endif
