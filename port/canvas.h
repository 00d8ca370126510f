// Drawing on cairo that leaves the host's context as it was and never puts it into an error state.
#ifndef KZM_PORT_CANVAS_H
#define KZM_PORT_CANVAS_H

#include <cairo.h>
#include <memory>

#include <KZMUtilities/drawing.h>

namespace kzm::port {

struct SurfaceRelease {
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
};
using Surface = std::unique_ptr<cairo_surface_t, SurfaceRelease>;

/// The rectangle with corners of `radius`, each direction cut to half the side. Empty and impossible ones are passed
/// over.
void fillRoundedRect(cairo_t* cairo, const Rect& rect, double radius, const Color& color);
/// The same shape's outline, centered on its edge; a shape without width or height has one too.
void strokeRoundedRect(cairo_t* cairo, const Rect& rect, double radius, double lineWidth, const Color& color);

/// The whole surface, `size` points large, scaled into the rectangle; upside down in the context's coordinates if
/// `mirrored`. Source-over, full opacity, borders as solid as the rest.
void drawSurface(cairo_t* cairo, cairo_surface_t* surface, const Size& size, const Rect& rect, bool mirrored);

/// A transparent image surface; null if there can be none of that size.
[[nodiscard]] Surface makeSurface(const Size& size, double scale);
/// An image surface of its own with alpha, and the same pixels and device scale, whatever its device
/// offset; null if the original is unusable.
[[nodiscard]] Surface copySurface(cairo_surface_t* original);
/// In points.
[[nodiscard]] Size surfaceSize(cairo_surface_t* surface);
/// Every pixel becomes the color times the pixel's own alpha.
void fillSourceIn(cairo_surface_t* surface, const Color& color);

}  // namespace kzm::port

#endif
