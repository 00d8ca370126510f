// Colors: hue, saturation and brightness, and what they are in red, green and blue.
#include <algorithm>
#include <cmath>

#include <KZMUtilities/drawing.h>

namespace kzm {
namespace {

constexpr double kSectors = 6.0;  // of the color wheel, from red by yellow, green, cyan, blue and magenta

// 0 to 1; NaN is 0, and so is minus zero.
double component(double value) { return value > 0.0 ? std::min(value, 1.0) : 0.0; }

// The sector's distance from the primary color at `center`, counted around the wheel: 0 to 3.
double distance(double hue, double center) {
  const double apart = std::fabs(hue * kSectors - center);
  return std::min(apart, kSectors - apart);
}

// A primary is full within one sector of its own hue, and absent beyond two.
double primary(const Color& color, double center) {
  const double absence = std::clamp(distance(color.hue(), center) - 1.0, 0.0, 1.0);
  return color.brightness() * (1.0 - color.saturation() * absence);
}

double hueOf(double red, double green, double blue, double range) {
  if (range <= 0.0) return 0.0;
  const double greatest = std::max({red, green, blue});
  double sectors = 4.0 + (red - green) / range;
  if (greatest == red) {
    sectors = (green - blue) / range;
  } else if (greatest == green) {
    sectors = 2.0 + (blue - red) / range;
  }
  return (sectors < 0.0 ? sectors + kSectors : sectors) / kSectors;
}

}  // namespace

Color Color::fromHSBA(double hue, double saturation, double brightness, double alpha) noexcept {
  Color color;
  color.hue_ = component(hue);
  color.saturation_ = component(saturation);
  color.brightness_ = component(brightness);
  color.alpha_ = component(alpha);
  return color;
}

Color Color::fromRGBA(double red, double green, double blue, double alpha) noexcept {
  const double r = component(red);
  const double g = component(green);
  const double b = component(blue);
  const double greatest = std::max({r, g, b});
  const double range = greatest - std::min({r, g, b});
  return fromHSBA(hueOf(r, g, b, range), greatest > 0.0 ? range / greatest : 0.0, greatest, alpha);
}

double Color::red() const noexcept { return primary(*this, 0.0); }
double Color::green() const noexcept { return primary(*this, 2.0); }
double Color::blue() const noexcept { return primary(*this, 4.0); }

Color Color::multiplyBrightness(float factor) const noexcept {
  return fromHSBA(hue_, saturation_, brightness_ * static_cast<double>(factor), alpha_);
}

}  // namespace kzm
