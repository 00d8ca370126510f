// The text styles of the panel: attribute sets of its own kind, which the library passes on and the drawing reads
// back from the runs.
#ifndef KZM_EXAMPLES_PANEL_STYLES_H
#define KZM_EXAMPLES_PANEL_STYLES_H

#include <memory>

#include <KZMUtilities/dictionary.h>
#include <KZMUtilities/drawing.h>

namespace kzm::panel {

struct TextStyle final : Object {
  TextStyle(double sizeInPoints, bool isBold, const Color& textColor)
      : size(sizeInPoints), bold(isBold), color(textColor) {}
  double size;
  bool bold;
  Color color;
};

/// The style of a number and that of its unit.
struct Styles {
  Value main;
  Value units;
};

inline Value style(double size, bool bold, float brightness) {
  const Color light = Color::fromHSBA(0.60, 0.05, 0.97, 1.0);
  return std::make_shared<const TextStyle>(size, bold, light.multiplyBrightness(brightness));
}

/// What a row is about, what is beside it, and the heading.
inline Styles valueStyles() { return {style(16.0, true, 1.0F), style(12.0, false, 0.70F)}; }
inline Styles sideStyles() { return {style(12.0, false, 0.70F), style(11.0, false, 0.62F)}; }
inline Styles headingStyles() { return {style(28.0, true, 1.0F), style(13.0, false, 0.70F)}; }
inline Value labelStyle() { return style(11.0, false, 0.62F); }

/// The card that all text is on: a shade from the one color to the other.
struct Shade {
  Color top;
  Color bottom;
};
inline Shade cardShade() {
  constexpr float kLit = 1.2F;
  const Color card = Color::fromHSBA(0.62, 0.32, 0.13, 1.0);
  return {card.multiplyBrightness(kLit), card};
}

}  // namespace kzm::panel

#endif
