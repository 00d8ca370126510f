// Images: pixels that handles share, drawn into the current context.
#include <utility>

#include <KZMUtilities/drawing.h>

#include "port/canvas.h"

namespace kzm {

struct Image::Pixels {
  port::Surface surface;
  Size size;

  [[nodiscard]] static std::shared_ptr<const Pixels> make(port::Surface surface, const Size& size) {
    if (!surface || !(size.width > 0.0 && size.height > 0.0)) return nullptr;
    return std::make_shared<const Pixels>(std::move(surface), size);
  }
  Pixels(port::Surface pixels, const Size& points) : surface(std::move(pixels)), size(points) {}
};

namespace {

GraphicsContext contextOn(cairo_surface_t* surface) {
  if (!surface) return GraphicsContext(nullptr);
  cairo_t* cairo = cairo_create(surface);
  GraphicsContext context(cairo);
  cairo_destroy(cairo);
  return context;
}

}  // namespace

Image::Focus::Focus(const Image& image)
    : context_(contextOn(image.pixels_ ? image.pixels_->surface.get() : nullptr)), current_(context_) {}

Image::Image() noexcept = default;
Image::Image(std::shared_ptr<const Pixels> pixels) noexcept : pixels_(std::move(pixels)) {}
Image::Image(Size size, double scale) : pixels_(Pixels::make(port::makeSurface(size, scale), size)) {}

Image Image::fromSurface(cairo_surface_t* surface) {
  port::Surface copy = port::copySurface(surface);
  if (!copy) return {};
  const Size size = port::surfaceSize(copy.get());
  return Image(Pixels::make(std::move(copy), size));
}

Image Image::fromPNG(const std::string& path) {
  const port::Surface surface(cairo_image_surface_create_from_png(path.c_str()));
  return fromSurface(surface.get());
}

bool Image::writePNG(const std::string& path) const {
  return pixels_ && cairo_surface_write_to_png(pixels_->surface.get(), path.c_str()) == CAIRO_STATUS_SUCCESS;
}

Size Image::size() const noexcept { return pixels_ ? pixels_->size : Size{}; }

void Image::drawAtPoint(const Point& point) const { drawInRect({point, size()}); }

void Image::drawInRect(const Rect& rect) const {
  const std::optional<GraphicsContext> context = GraphicsContext::current();
  if (!context || !pixels_) return;
  port::drawSurface(context->cairo(), pixels_->surface.get(), pixels_->size, rect, !context->isFlipped());
}

Image Image::tint(const Color& color) const {
  if (!pixels_) return {};
  port::Surface copy = port::copySurface(pixels_->surface.get());
  if (copy) port::fillSourceIn(copy.get(), color);
  return Image(Pixels::make(std::move(copy), pixels_->size));
}

}  // namespace kzm
