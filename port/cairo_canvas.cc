#include "port/cairo_canvas.h"

#include <algorithm>
#include <cairo.h>
#include <cmath>
#include <optional>

#include "port/never_destroyed.h"

namespace kzm::port {
namespace {

// Where a quarter of an ellipse has the control points of its curve, as a part of its radius.
constexpr double kQuarterCurve = 0.5522847498;
// How far, in pixels, a curve may stray: a narrow bar's corners are no more than a pixel themselves.
constexpr double kTolerance = 0.01;
// A context that shows a point smaller or larger than this, in pixels, shows nothing that anybody could see; beyond it
// cairo's arithmetic fails.
constexpr double kSmallestScale = 1e-6;
constexpr double kLargestScale = 1e6;
constexpr double kLargestOffset = 1e9;
// Sides below this part of a pixel are below cairo's own precision.
constexpr double kSmallestSide = 0x1p-9;
// How far beyond what can be seen a shape is drawn, in points and in pixels: more than corners and lines reach.
constexpr double kMargin = 8.0;
// The magnification, in pixels to an image's point, from which the part that can be seen has one color.
constexpr double kLargestMagnification = 1e6;

struct Span {
  double start;
  double length;
  [[nodiscard]] double end() const { return start + length; }
};

// Gives the context back as it was: cairo's own save leaves out the path.
class Saved {
 public:
  explicit Saved(cairo_t* cairo) : cairo_(cairo), path_(cairo_copy_path(cairo)) {
    cairo_save(cairo_);
    cairo_new_path(cairo_);
    cairo_set_operator(cairo_, CAIRO_OPERATOR_OVER);
    cairo_set_tolerance(cairo_, kTolerance);
  }
  ~Saved() {
    cairo_restore(cairo_);
    cairo_new_path(cairo_);
    if (path_->status == CAIRO_STATUS_SUCCESS) cairo_append_path(cairo_, path_);
    cairo_path_destroy(path_);
  }
  Saved(const Saved&) = delete;
  Saved& operator=(const Saved&) = delete;

 private:
  cairo_t* cairo_;
  cairo_path_t* path_;
};

// The pixels that a point of the context is wide and high.
Size pixelsPerPoint(cairo_t* cairo) {
  cairo_matrix_t matrix;
  cairo_get_matrix(cairo, &matrix);
  return {std::hypot(matrix.xx, matrix.yx), std::hypot(matrix.xy, matrix.yy)};
}

bool isWithin(double value, double smallest, double largest) { return value >= smallest && value <= largest; }

bool isUsable(cairo_t* cairo) {
  if (!cairo || cairo_status(cairo) != CAIRO_STATUS_SUCCESS) return false;
  if (cairo_surface_status(cairo_get_target(cairo)) != CAIRO_STATUS_SUCCESS) return false;
  cairo_matrix_t matrix;
  cairo_get_matrix(cairo, &matrix);
  const Size scale = pixelsPerPoint(cairo);
  const double area = std::fabs(matrix.xx * matrix.yy - matrix.xy * matrix.yx);
  return isWithin(scale.width, kSmallestScale, kLargestScale) &&
         isWithin(scale.height, kSmallestScale, kLargestScale) && area >= kSmallestScale * kSmallestScale &&
         std::fabs(matrix.x0) <= kLargestOffset && std::fabs(matrix.y0) <= kLargestOffset;
}

bool isRect(const Rect& rect) {
  const bool finite = std::isfinite(rect.origin.x) && std::isfinite(rect.origin.y) && std::isfinite(rect.size.width) &&
                      std::isfinite(rect.size.height);
  return finite && rect.size.width >= 0.0 && rect.size.height >= 0.0;
}

std::optional<Span> within(const Span& span, double lowest, double highest) {
  const double start = std::max(span.start, lowest);
  const double length = std::min(span.end(), highest) - start;
  if (!(length >= 0.0)) return std::nullopt;
  return Span{start, length};
}

// The part of the rectangle that can be seen, and a margin. Coordinates far outside are beyond cairo's numbers.
std::optional<Rect> visiblePart(cairo_t* cairo, const Rect& rect) {
  if (!isUsable(cairo) || !isRect(rect)) return std::nullopt;
  double left = 0.0;
  double top = 0.0;
  double right = 0.0;
  double bottom = 0.0;
  cairo_clip_extents(cairo, &left, &top, &right, &bottom);
  if (!(right > left && bottom > top)) return std::nullopt;
  const Size scale = pixelsPerPoint(cairo);
  const double marginX = kMargin + kMargin / scale.width;
  const double marginY = kMargin + kMargin / scale.height;
  const auto x = within({rect.origin.x, rect.size.width}, left - marginX, right + marginX);
  const auto y = within({rect.origin.y, rect.size.height}, top - marginY, bottom + marginY);
  if (!x || !y) return std::nullopt;
  return Rect{{x->start, y->start}, {x->length, y->length}};
}

// The same of a rectangle that is to be filled: one without an inside has nothing to fill.
std::optional<Rect> fillablePart(cairo_t* cairo, const Rect& rect) {
  const std::optional<Rect> part = visiblePart(cairo, rect);
  if (!part) return std::nullopt;
  const Size scale = pixelsPerPoint(cairo);
  const bool hasInside =
      part->size.width * scale.width >= kSmallestSide && part->size.height * scale.height >= kSmallestSide;
  return hasInside ? part : std::nullopt;
}

// One corner, from where the path is: first along (ax, ay), then along (bx, by), both a radius long.
void addCorner(cairo_t* cairo, double ax, double ay, double bx, double by) {
  constexpr double kRest = 1.0 - kQuarterCurve;
  cairo_rel_curve_to(cairo, ax * kQuarterCurve, ay * kQuarterCurve, ax + bx * kRest, ay + by * kRest, ax + bx, ay + by);
}

void addRoundedRect(cairo_t* cairo, const Rect& rect, double radius) {
  const auto [x, y] = rect.origin;
  const auto [width, height] = rect.size;
  // Each direction is cut by itself, so a narrow bar has elliptical corners.
  const double rx = std::min(radius, width / 2.0);
  const double ry = std::min(radius, height / 2.0);
  cairo_move_to(cairo, x + rx, y);
  cairo_line_to(cairo, x + width - rx, y);
  addCorner(cairo, rx, 0.0, 0.0, ry);
  cairo_line_to(cairo, x + width, y + height - ry);
  addCorner(cairo, 0.0, ry, -rx, 0.0);
  cairo_line_to(cairo, x + rx, y + height);
  addCorner(cairo, -rx, 0.0, 0.0, -ry);
  cairo_line_to(cairo, x, y + ry);
  addCorner(cairo, 0.0, -ry, rx, 0.0);
  cairo_close_path(cairo);
}

void setSource(cairo_t* cairo, const Paint& paint) {
  cairo_set_source_rgba(cairo, paint.red, paint.green, paint.blue, paint.alpha);
}

// From the context's coordinate to the image's, in one direction: image = context * scale + offset.
struct Mapping {
  double scale;
  double offset;
};

// Exact in the middle of what can be seen, and everywhere unless the image is magnified beyond all measure.
Mapping mapping(const Span& target, const Span& visible, double imageLength, double pixelsPerContextPoint) {
  const double middle = visible.start + visible.length / 2.0;
  const double imageMiddle = (middle - target.start) / target.length * imageLength;
  const double scale = std::max(imageLength / target.length, pixelsPerContextPoint / kLargestMagnification);
  return {scale, imageMiddle - middle * scale};
}

Mapping mirror(const Mapping& upright, double imageLength) { return {-upright.scale, imageLength - upright.offset}; }

cairo_matrix_t imageMatrix(cairo_t* cairo, const Size& size, const Rect& rect, const Rect& visible, bool isMirrored) {
  const Size pixels = pixelsPerPoint(cairo);
  const Mapping x =
      mapping({rect.origin.x, rect.size.width}, {visible.origin.x, visible.size.width}, size.width, pixels.width);
  Mapping y =
      mapping({rect.origin.y, rect.size.height}, {visible.origin.y, visible.size.height}, size.height, pixels.height);
  if (isMirrored) y = mirror(y, size.height);
  cairo_matrix_t matrix;
  cairo_matrix_init(&matrix, x.scale, 0.0, 0.0, y.scale, x.offset, y.offset);
  return matrix;
}

void paintSurface(cairo_t* cairo, cairo_surface_t* surface, const cairo_matrix_t& matrix, const Rect& visible) {
  const Saved saved(cairo);
  cairo_set_source_surface(cairo, surface, 0.0, 0.0);
  cairo_pattern_set_matrix(cairo_get_source(cairo), &matrix);
  // Beyond its edge a scaled image repeats it, or its border would fade into transparency.
  cairo_pattern_set_extend(cairo_get_source(cairo), CAIRO_EXTEND_PAD);
  cairo_rectangle(cairo, visible.origin.x, visible.origin.y, visible.size.width, visible.size.height);
  cairo_fill(cairo);
}

// Cairo reports a finished surface, whose pixels are gone, only by refusing to make another one like it.
bool isFinished(cairo_surface_t* surface) {
  const Surface similar(cairo_surface_create_similar_image(surface, CAIRO_FORMAT_A8, 1, 1));
  return cairo_surface_status(similar.get()) != CAIRO_STATUS_SUCCESS;
}

bool isImage(cairo_surface_t* surface) {
  return surface && cairo_surface_status(surface) == CAIRO_STATUS_SUCCESS &&
         cairo_surface_get_type(surface) == CAIRO_SURFACE_TYPE_IMAGE && !isFinished(surface);
}

Surface makePixels(int width, int height, double scaleX, double scaleY) {
  Surface surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height));
  if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS) return nullptr;
  cairo_surface_set_device_scale(surface.get(), scaleX, scaleY);
  return surface;
}

// Draws all over a surface of ours, in a context of ours; false if that fails.
template <typename SetSource>
bool paintOver(cairo_surface_t* surface, cairo_operator_t compositing, SetSource set) {
  const Context cairo(cairo_create(surface));
  set(cairo.get());
  cairo_set_operator(cairo.get(), compositing);
  cairo_paint(cairo.get());
  return cairo_status(cairo.get()) == CAIRO_STATUS_SUCCESS;
}

class CairoCanvas final : public Canvas {
 public:
  Context kept(cairo_t* cairo) const override { return Context(cairo_reference(cairo)); }
  Context contextOn(cairo_surface_t* surface) const override { return Context(cairo_create(surface)); }
  void release(cairo_t* cairo) const override { cairo_destroy(cairo); }
  void release(cairo_surface_t* surface) const override { cairo_surface_destroy(surface); }

  void fillRoundedRect(cairo_t* cairo, const Rect& rect, double radius, const Paint& paint) const override {
    const std::optional<Rect> part = fillablePart(cairo, rect);
    if (!part) return;
    const Saved saved(cairo);
    addRoundedRect(cairo, *part, radius);
    setSource(cairo, paint);
    cairo_set_fill_rule(cairo, CAIRO_FILL_RULE_WINDING);
    cairo_fill(cairo);
  }

  void strokeRoundedRect(cairo_t* cairo, const Rect& rect, double radius, double lineWidth,
                         const Paint& paint) const override {
    const std::optional<Rect> part = visiblePart(cairo, rect);
    if (!part) return;
    const Saved saved(cairo);
    addRoundedRect(cairo, *part, radius);
    setSource(cairo, paint);
    cairo_set_line_width(cairo, lineWidth);
    cairo_set_dash(cairo, nullptr, 0, 0.0);
    cairo_set_line_join(cairo, CAIRO_LINE_JOIN_MITER);
    cairo_stroke(cairo);
  }

  void drawSurface(cairo_t* cairo, cairo_surface_t* surface, const Size& size, const Rect& rect,
                   bool isMirrored) const override {
    const std::optional<Rect> part = fillablePart(cairo, rect);
    if (!part) return;
    // An image that is drawn into itself is drawn as it was before.
    const Surface copy = cairo_get_target(cairo) == surface ? copySurface(surface) : nullptr;
    paintSurface(cairo, copy ? copy.get() : surface, imageMatrix(cairo, size, rect, *part, isMirrored), *part);
  }

  Surface makeSurface(const Size& size, double scale) const override {
    constexpr double kMostPixels = 32767.0;  // of a side; cairo has none larger
    const double width = std::ceil(size.width * scale);
    const double height = std::ceil(size.height * scale);
    const bool isPossible = isWithin(scale, kSmallestScale, kLargestScale) && isWithin(width, 1.0, kMostPixels) &&
                            isWithin(height, 1.0, kMostPixels);
    return isPossible ? makePixels(static_cast<int>(width), static_cast<int>(height), scale, scale) : nullptr;
  }

  Surface copySurface(cairo_surface_t* original) const override {
    if (!isImage(original)) return nullptr;
    double scaleX = 1.0;
    double scaleY = 1.0;
    double offsetX = 0.0;
    double offsetY = 0.0;
    cairo_surface_get_device_scale(original, &scaleX, &scaleY);
    cairo_surface_get_device_offset(original, &offsetX, &offsetY);
    Surface copy =
        makePixels(cairo_image_surface_get_width(original), cairo_image_surface_get_height(original), scaleX, scaleY);
    const bool isCopied = copy && paintOver(copy.get(), CAIRO_OPERATOR_SOURCE, [&](cairo_t* cairo) {
                            cairo_set_source_surface(cairo, original, offsetX / scaleX, offsetY / scaleY);
                            cairo_pattern_set_filter(cairo_get_source(cairo), CAIRO_FILTER_NEAREST);
                          });
    return isCopied ? std::move(copy) : nullptr;
  }

  Surface readPNG(const std::string& path) const override {
    return Surface(cairo_image_surface_create_from_png(path.c_str()));
  }

  bool writePNG(cairo_surface_t* surface, const std::string& path) const override {
    return cairo_surface_write_to_png(surface, path.c_str()) == CAIRO_STATUS_SUCCESS;
  }

  Size surfaceSize(cairo_surface_t* surface) const override {
    double scaleX = 1.0;
    double scaleY = 1.0;
    cairo_surface_get_device_scale(surface, &scaleX, &scaleY);
    return {cairo_image_surface_get_width(surface) / scaleX, cairo_image_surface_get_height(surface) / scaleY};
  }

  void fillSourceIn(cairo_surface_t* surface, const Paint& paint) const override {
    paintOver(surface, CAIRO_OPERATOR_IN, [&](cairo_t* cairo) { setSource(cairo, paint); });
  }
};

}  // namespace
}  // namespace kzm::port

const kzm::port::Canvas* kzmCairoCanvas() {
  static const kzm::port::NeverDestroyed<kzm::port::CairoCanvas> canvas;
  return &*canvas;
}
