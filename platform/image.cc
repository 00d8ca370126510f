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
  const port::Context context = surface ? port::canvas().contextOn(surface) : nullptr;
  return GraphicsContext(context.get());
}

}  // namespace

Image::Focus::Focus(const Image& image)
    : context_(contextOn(image.pixels_ ? image.pixels_->surface.get() : nullptr)), current_(context_) {}

Image::Image() noexcept = default;
Image::Image(std::shared_ptr<const Pixels> pixels) noexcept : pixels_(std::move(pixels)) {}
Image::Image(Size size, double scale) : pixels_(Pixels::make(port::canvas().makeSurface(size, scale), size)) {}

Image Image::fromSurface(cairo_surface_t* surface) {
  port::Surface copy = port::canvas().copySurface(surface);
  if (!copy) return {};
  const Size size = port::canvas().surfaceSize(copy.get());
  return Image(Pixels::make(std::move(copy), size));
}

Image Image::fromPNG(const std::string& path) {
  const port::Surface surface = port::canvas().readPNG(path);
  return fromSurface(surface.get());
}

bool Image::writePNG(const std::string& path) const {
  return pixels_ && port::canvas().writePNG(pixels_->surface.get(), path);
}

Size Image::size() const noexcept { return pixels_ ? pixels_->size : Size{}; }

void Image::drawAtPoint(const Point& point) const { drawInRect({point, size()}); }

void Image::drawInRect(const Rect& rect) const {
  const std::optional<GraphicsContext> context = GraphicsContext::current();
  if (!context || !pixels_) return;
  port::canvas().drawSurface(context->cairo(), pixels_->surface.get(), pixels_->size, rect, !context->isFlipped());
}

Image Image::tint(const Color& color) const {
  if (!pixels_) return {};
  port::Surface copy = port::canvas().copySurface(pixels_->surface.get());
  if (copy) port::canvas().fillSourceIn(copy.get(), port::Paint(color));
  return Image(Pixels::make(std::move(copy), pixels_->size));
}

}  // namespace kzm
