// The text of the panel can be read: its contrast with the card that it is on.
#include "examples/panel/styles.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace kzm::panel {
namespace {

// As WCAG 2 defines them.
double linear(double component) {
  return component <= 0.04045 ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
}
double luminance(const Color& color) {
  return 0.2126 * linear(color.red()) + 0.7152 * linear(color.green()) + 0.0722 * linear(color.blue());
}
double contrast(const Color& first, const Color& second) {
  const double one = luminance(first) + 0.05;
  const double other = luminance(second) + 0.05;
  return std::max(one, other) / std::min(one, other);
}

const Color& colorOf(const Value& style) { return dynamic_cast<const TextStyle&>(*style.object()).color; }

TEST(Styles, ContrastIsThatOfTheDefinition) {
  const Color black = Color::fromHSBA(0.0, 0.0, 0.0, 1.0);
  const Color white = Color::fromHSBA(0.0, 0.0, 1.0, 1.0);
  EXPECT_NEAR(contrast(black, white), 21.0, 1e-6);
  EXPECT_NEAR(contrast(white, white), 1.0, 1e-6);
}

TEST(Styles, DimTextHasAContrastOfFourAndAHalfAtLeast) {
  const Shade card = cardShade();
  for (const Styles& styles : {valueStyles(), sideStyles(), headingStyles(), Styles{labelStyle(), labelStyle()}}) {
    for (const Value& style : {styles.main, styles.units}) {
      EXPECT_GE(contrast(colorOf(style), card.top), 4.5);
      EXPECT_GE(contrast(colorOf(style), card.bottom), 4.5);
    }
  }
}

}  // namespace
}  // namespace kzm::panel
