// Drawing on cairo that leaves the host's context as it was and never puts it into an error state.
#ifndef KZM_PORT_CANVAS_H
#define KZM_PORT_CANVAS_H

#include <memory>
#include <string>

#include <KZMUtilities/drawing.h>

namespace kzm::port {

struct Release {
  void operator()(cairo_t* cairo) const;
  void operator()(cairo_surface_t* surface) const;
};
using Context = std::unique_ptr<cairo_t, Release>;
using Surface = std::unique_ptr<cairo_surface_t, Release>;

/// A color as cairo takes it.
struct Paint {
  explicit Paint(const Color& color)
      : red(color.red()), green(color.green()), blue(color.blue()), alpha(color.alpha()) {}
  double red;
  double green;
  double blue;
  double alpha;
};

/// Everything for which cairo is needed. This class does nothing and has nothing to give: it is the canvas of a process
/// that cannot load cairo.
class Canvas {
 public:
  Canvas() = default;
  Canvas(const Canvas&) = delete;
  Canvas& operator=(const Canvas&) = delete;
  virtual ~Canvas() = default;

  /// One more reference on the caller's context.
  [[nodiscard]] virtual Context kept(cairo_t* /*cairo*/) const { return nullptr; }
  [[nodiscard]] virtual Context contextOn(cairo_surface_t* /*surface*/) const { return nullptr; }
  virtual void release(cairo_t* /*cairo*/) const {}
  virtual void release(cairo_surface_t* /*surface*/) const {}

  /// The rectangle with corners of `radius`, each direction cut to half the side. Empty and impossible ones are passed
  /// over.
  virtual void fillRoundedRect(cairo_t* /*cairo*/, const Rect&, double /*radius*/, const Paint&) const {}
  /// The same shape's outline, centered on its edge; a shape without width or height has one too.
  virtual void strokeRoundedRect(cairo_t* /*cairo*/, const Rect&, double /*radius*/, double /*lineWidth*/,
                                 const Paint&) const {}

  /// The whole surface, `size` points large, scaled into the rectangle; upside down in the context's coordinates if
  /// `isMirrored`. Source-over, full opacity, borders as solid as the rest.
  virtual void drawSurface(cairo_t* /*cairo*/, cairo_surface_t* /*surface*/, const Size& /*size*/, const Rect&,
                           bool /*isMirrored*/) const {}

  /// A transparent image surface; null if there can be none of that size.
  [[nodiscard]] virtual Surface makeSurface(const Size& /*size*/, double /*scale*/) const { return nullptr; }
  /// An image surface of its own with alpha, and the same pixels and device scale, whatever its device
  /// offset; null if the original is unusable.
  [[nodiscard]] virtual Surface copySurface(cairo_surface_t* /*original*/) const { return nullptr; }
  /// Never null, but in an error state if the file cannot be read.
  [[nodiscard]] virtual Surface readPNG(const std::string& /*path*/) const { return nullptr; }
  [[nodiscard]] virtual bool writePNG(cairo_surface_t* /*surface*/, const std::string& /*path*/) const { return false; }
  /// In points.
  [[nodiscard]] virtual Size surfaceSize(cairo_surface_t* /*surface*/) const { return {}; }
  /// Every pixel becomes the color times the pixel's own alpha.
  virtual void fillSourceIn(cairo_surface_t* /*surface*/, const Paint&) const {}
};

/// The process's canvas. Never destroyed.
[[nodiscard]] const Canvas& canvas();

inline void Release::operator()(cairo_t* cairo) const { canvas().release(cairo); }
inline void Release::operator()(cairo_surface_t* surface) const { canvas().release(surface); }

}  // namespace kzm::port

#endif
