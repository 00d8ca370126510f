// Text in the styles of its runs, set with Pango.
#ifndef KZM_EXAMPLES_PANEL_LETTERING_H
#define KZM_EXAMPLES_PANEL_LETTERING_H

#include <memory>
#include <pango/pango.h>
#include <string>

#include <KZMUtilities/attributed_string.h>
#include <KZMUtilities/drawing.h>

namespace kzm::panel {

/// Whether the language of the locale is written from right to left.
[[nodiscard]] bool isRightToLeft(const std::string& locale);

/// One line of text in the given direction, to be drawn into the current drawing context.
class Line {
 public:
  Line(const AttributedString& text, bool rightToLeft);
  /// In points.
  [[nodiscard]] double width() const;
  /// How many of its characters no font has.
  [[nodiscard]] int missingGlyphs() const;
  /// Draws the line with its left end and its baseline at the point.
  void drawAt(const Point& point) const;

 private:
  struct Release {
    void operator()(PangoLayout* layout) const;
  };
  std::unique_ptr<PangoLayout, Release> layout_;
};

}  // namespace kzm::panel

#endif
