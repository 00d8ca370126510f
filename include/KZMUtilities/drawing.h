// Bars, images and colors for graphs and icons, drawn with cairo into the context that the host has made current.
//
// Lengths are points: the units of the context's own coordinates. Without a current context nothing is drawn, and what
// cannot be drawn (a rectangle that is empty, negative or not finite, an empty image) is passed over: no call fails,
// and none puts the host's cairo context into an error state. Its source, path, line width, clip and transformation are
// as before after each call. Each thread has its own current context; one context or image is used by one thread at a
// time.
//
// The first drawing loads the library's canvas module, and cairo with it; a process that draws nothing loads neither.
// Where the module is missing, contexts are as if made with null, images are empty, and the log has one line of it.
#ifndef KZMUTILITIES_DRAWING_H
#define KZMUTILITIES_DRAWING_H

#include <memory>
#include <optional>
#include <string>

#include <KZMUtilities/export.h>

// The two cairo types that a host hands in, under the names that cairo gives them.
typedef struct _cairo cairo_t;                  // NOLINT(clang-diagnostic-reserved-identifier)
typedef struct _cairo_surface cairo_surface_t;  // NOLINT(clang-diagnostic-reserved-identifier)

namespace kzm {

// ---- Geometry and color ---------------------------------------------------------------------------------------------

struct Point {
  double x = 0.0;
  double y = 0.0;
  [[nodiscard]] friend bool operator==(const Point&, const Point&) = default;
};

struct Size {
  double width = 0.0;
  double height = 0.0;
  [[nodiscard]] friend bool operator==(const Size&, const Size&) = default;
};

struct Rect {
  Point origin{};
  Size size{};
  [[nodiscard]] friend bool operator==(const Rect&, const Rect&) = default;
};

/// A color as hue, saturation, brightness and alpha, each clamped to the range from 0 to 1; NaN becomes 0. Hue and
/// saturation are kept even where they cannot be seen, as in black.
class KZM_EXPORT Color {
 public:
  /// Opaque black.
  Color() noexcept = default;
  /// A hue of 1 looks like a hue of 0: red.
  [[nodiscard]] static Color fromHSBA(double hue, double saturation, double brightness, double alpha) noexcept;
  /// Grays get hue 0 and saturation 0.
  ///
  /// Example:
  ///   Color::fromRGBA(0.0, 1.0, 1.0, 1.0).hue()  // 0.5
  [[nodiscard]] static Color fromRGBA(double red, double green, double blue, double alpha) noexcept;

  [[nodiscard]] double hue() const noexcept { return hue_; }
  [[nodiscard]] double saturation() const noexcept { return saturation_; }
  [[nodiscard]] double brightness() const noexcept { return brightness_; }
  [[nodiscard]] double alpha() const noexcept { return alpha_; }
  [[nodiscard]] double red() const noexcept;
  [[nodiscard]] double green() const noexcept;
  [[nodiscard]] double blue() const noexcept;

  /// `multiplyBrightness:` The color with its brightness times the factor, clamped as everywhere (0.8 times 2.0 is 1).
  /// Hue, saturation and alpha stay exactly as they are.
  ///
  /// Example:
  ///   Color::fromHSBA(0.25, 1.0, 0.8, 1.0).multiplyBrightness(0.5F).brightness()  // 0.4
  [[nodiscard]] Color multiplyBrightness(float factor) const noexcept;

  [[nodiscard]] friend bool operator==(const Color&, const Color&) = default;

 private:
  double hue_ = 0.0;
  double saturation_ = 0.0;
  double brightness_ = 0.0;
  double alpha_ = 1.0;
};

// ---- Contexts and images --------------------------------------------------------------------------------------------

/// A place to draw: a caller's cairo context with a fill color and a stroke color that stay set until changed. Copies
/// are handles on the same one.
///
/// Example:
///   const GraphicsContext widget(nullptr);  // in a host: with the cairo context that its widget draws to
///   const auto drawing = widget.makeCurrent();
///   GraphicsContext::current()->isFlipped()  // true
class KZM_EXPORT GraphicsContext {
 public:
  /// Makes a context current on this thread for as long as it lives. After that, the one before is current again.
  class KZM_EXPORT Current {
   public:
    explicit Current(const GraphicsContext& context);
    ~Current();
    Current(const Current&) = delete;
    Current& operator=(const Current&) = delete;

   private:
    std::unique_ptr<GraphicsContext> previous_;
  };

  /// Keeps a reference on the cairo context; with null nothing is drawn. `flipped` says which way up images are: true
  /// when y grows downward, as in cairo itself, false when the host has turned the y axis upward.
  explicit GraphicsContext(cairo_t* cairo, bool flipped = true);

  /// The calling thread's current context, if any.
  [[nodiscard]] static std::optional<GraphicsContext> current();
  /// Makes this one current: `const auto drawing = context.makeCurrent();`
  [[nodiscard]] Current makeCurrent() const;

  /// The caller's own; null if there was none.
  [[nodiscard]] cairo_t* cairo() const noexcept;
  [[nodiscard]] bool isFlipped() const noexcept;
  /// Opaque black at first, both.
  [[nodiscard]] Color fillColor() const noexcept;
  [[nodiscard]] Color strokeColor() const noexcept;
  void setFillColor(const Color& color) const noexcept;
  void setStrokeColor(const Color& color) const noexcept;

 private:
  struct State;
  std::shared_ptr<State> state_;
};

/// A picture with a size in points. Copies are handles on the same pixels.
class KZM_EXPORT Image {
 public:
  /// Draws into an image for as long as it lives: its context is current, with y growing downward from its top.
  class KZM_EXPORT Focus {
   public:
    explicit Focus(const Image& image);

   private:
    GraphicsContext context_;
    GraphicsContext::Current current_;
  };

  /// Empty: no size, and drawing it does nothing.
  Image() noexcept;
  /// Transparent, with `scale` pixels to the point. Empty if a side is not above 0 or has more than 32767 pixels, and
  /// if the scale is NaN or not within 1e-6 to 1e6.
  ///
  /// Example:
  ///   Image(Size{16.0, 8.0}, 2.0).size().width  // 16.0
  ///   Image(Size{16.0, 8.0}, 0.0).size().width  // 0.0
  explicit Image(Size size, double scale = 1.0);
  /// A copy of an image surface's pixels and device scale; empty if it is none, finished or in an error state.
  ///
  /// Example:
  ///   Image::fromSurface(nullptr).size().width  // 0.0
  [[nodiscard]] static Image fromSurface(cairo_surface_t* surface);
  /// Empty if the file cannot be read.
  ///
  /// Example:
  ///   Image::fromPNG("/no/such/file.png").size().width  // 0.0
  [[nodiscard]] static Image fromPNG(const std::string& path);
  /// Writes the pixels; false if that fails, or if the image is empty.
  ///
  /// Example:
  ///   Image(Size{16.0, 8.0}).writePNG("/dev/null")  // true
  ///   Image().writePNG("/dev/null")                 // false
  [[nodiscard]] bool writePNG(const std::string& path) const;

  [[nodiscard]] Size size() const noexcept;

  /// `drawAtPoint:` Draws the image in its own size from the point on.
  void drawAtPoint(const Point& point) const;
  /// `drawInRect:` Draws the whole image over the rectangle, scaled to fit it, upright in every context.
  ///
  /// Example:
  ///   const Image image(Size{16.0, 8.0});
  ///   const Image::Focus drawing(image);
  ///   Image(Size{4.0, 4.0}).drawInRect({{0.0, 0.0}, {16.0, 8.0}});
  ///   image.size().width  // 16.0
  void drawInRect(const Rect& rect) const;

  /// `tint:` A copy in which every pixel has the color, its alpha times the pixel's own: same shape, other color.
  ///
  /// Example:
  ///   Image(Size{16.0, 8.0}).tint(Color::fromHSBA(0.5, 1.0, 1.0, 1.0)).size().height  // 8.0
  [[nodiscard]] Image tint(const Color& color) const;

 private:
  struct Pixels;
  explicit Image(std::shared_ptr<const Pixels> pixels) noexcept;
  std::shared_ptr<const Pixels> pixels_;
};

// ---- Bars -----------------------------------------------------------------------------------------------------------

/// `barGraphWithRect:fill:` Fills the rectangle, its corners rounded by 2 by 2 points, or by half a side that is
/// shorter than 4. The color stays the context's fill color.
///
/// Example:
///   const Image image(Size{16.0, 8.0});
///   const Image::Focus drawing(image);
///   barGraphWithRectFill({{0.0, 0.0}, {16.0, 4.0}}, Color::fromHSBA(0.375, 1.0, 0.5, 1.0));
///   GraphicsContext::current()->fillColor().hue()  // 0.375
KZM_EXPORT void barGraphWithRectFill(const Rect& rect, const Color& fill);

/// `barGraphWithRect:border:` Outlines the same shape with a line 0.5 wide, centered on the rectangle's edge: half of
/// it is outside. The color stays the context's stroke color.
///
/// Example:
///   const Image image(Size{16.0, 8.0});
///   const Image::Focus drawing(image);
///   barGraphWithRectBorder({{0.5, 0.5}, {15.0, 7.0}}, Color::fromHSBA(0.0, 0.0, 0.25, 1.0));
///   GraphicsContext::current()->strokeColor().brightness()  // 0.25
KZM_EXPORT void barGraphWithRectBorder(const Rect& rect, const Color& border);

}  // namespace kzm

#endif
