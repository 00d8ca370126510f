// Draws, from another folder than that in which it was started, and says what came of it.
#include <cairo.h>
#include <iostream>
#include <unistd.h>

#include <KZMUtilities/drawing.h>

namespace {

const char* drawn() {
  const kzm::Image image({4.0, 4.0});
  const kzm::Image::Focus focus(image);
  kzm::barGraphWithRectFill({{0.0, 0.0}, {4.0, 4.0}}, kzm::Color());
  return image.size().width == 4.0 ? "an image" : "no image";
}

const char* kept(cairo_t* cairo) { return kzm::GraphicsContext(cairo).cairo() == cairo ? "a context" : "no context"; }

}  // namespace

int main() {
  if (chdir("/") != 0) return 1;
  cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 4, 4);
  cairo_t* cairo = cairo_create(surface);
  for (int turn = 0; turn < 2; ++turn) std::cout << drawn() << ", " << kept(cairo) << '\n';
  cairo_destroy(cairo);
  cairo_surface_destroy(surface);
}
