// Draws four recorded readings, each with its name, its text and its last values, into the named file:
// small_panel [FILE.png]
// Prints: network 3.5 MB/s | memory 7.8 GB | processor 42 % | temperature 48°
#include <array>
#include <cairo.h>
#include <cstdio>
#include <string>

#include <KZMUtilities/KZMUtilities.h>

namespace {

using kzm::AttributedString;
using kzm::Color;
using kzm::Dictionary;
using Values = std::array<double, 8>;

constexpr kzm::Size kSize{240.0, 148.0};
constexpr double kMargin = 12.0;
constexpr double kRowHeight = 32.0;
constexpr double kBarsAt = 152.0;  // where the bars begin
constexpr double kBarWidth = 8.0;
constexpr double kBarHeight = 22.0;

const Color kBackground = Color::fromHSBA(0.6, 0.3, 0.12, 1.0);
const Color kStrong = Color::fromHSBA(0.0, 0.0, 1.0, 1.0);
const Color kFaint = Color::fromHSBA(0.6, 0.1, 0.6, 1.0);

// One digit below a hundred; the number's attributes say that it is strong, the unit has none.
Dictionary options() {
  const Dictionary rule{{"value", 100}, {"decimals", 1}};
  const kzm::Array rules{rule};
  return {{"space", true}, {"attributes-main", true}, {"decimals-mb", rules}, {"decimals-gb", rules}};
}

AttributedString temperature(const Dictionary& /*options*/, double celsius) {
  return AttributedString(KZMUtilitiesFormatSensor(kzm::SensorType::temperature, {{"units", true}}, celsius), true);
}

struct Reading {
  const char* name;
  AttributedString (*text)(const Dictionary& options, double value);
  double full;    // what a bar of full height is
  double hue;     // of the bars
  Values values;  // the last one is the newest
};

// clang-format off
//   name           text                                        full  hue   values
const Reading kReadings[] = {
    {"network",     KZMUtilitiesFormatBandwidthWithAttributes,  4e6,  0.55, {0, 9e5, 2e6, 3e6, 1e6, 2e6, 3e6, 3.7e6}},
    {"memory",      KZMUtilitiesFormatMemoryWithAttributes,     16e9, 0.35, {6e9, 6e9, 7e9, 7e9, 9e9, 9e9, 8e9, 8.4e9}},
    {"processor",   KZMUtilitiesFormatPercentageWithAttributes, 100,  0.12, {10, 30, 80, 95, 60, 20, 35, 42}},
    {"temperature", temperature,                                90,   0.03, {40, 41, 47, 55, 58, 52, 49, 48}},
};
// clang-format on

void setColor(cairo_t* cairo, const Color& color) {
  cairo_set_source_rgba(cairo, color.red(), color.green(), color.blue(), color.alpha());
}

// The host draws the text: what it makes of the attributes is its own.
void drawText(cairo_t* cairo, const AttributedString& text, double y) {
  cairo_move_to(cairo, kMargin, y);
  for (const AttributedString::Run& run : text.runs()) {
    setColor(cairo, run.attributes.isNull() ? kFaint : kStrong);
    cairo_show_text(cairo, std::string(run.text).c_str());
  }
}

void drawBars(const Reading& reading, double bottom) {
  double x = kBarsAt;
  for (const double value : reading.values) {
    const double height = kBarHeight * value / reading.full;
    kzm::barGraphWithRectFill({{x, bottom - height}, {kBarWidth, height}}, Color::fromHSBA(reading.hue, 0.7, 0.9, 1.0));
    x += kBarWidth + 2.0;
  }
}

}  // namespace

int main(int count, char** arguments) {
  const char* file = count > 1 ? arguments[1] : "small_panel.png";
  kzm::setCurrentLocale("en_001");
  const kzm::Image picture(kSize, 2.0);
  const kzm::Image::Focus focus(picture);
  kzm::barGraphWithRectFill({{}, kSize}, kBackground);
  cairo_t* const cairo = kzm::GraphicsContext::current()->cairo();
  double y = kMargin;
  for (const Reading& reading : kReadings) {
    const AttributedString text = reading.text(options(), reading.values.back());
    cairo_set_font_size(cairo, 10.0);
    drawText(cairo, AttributedString(reading.name), y + 8.0);
    cairo_set_font_size(cairo, 15.0);
    drawText(cairo, text, y + kBarHeight);
    drawBars(reading, y + kBarHeight);
    std::printf("%s%s %s", y > kMargin ? " | " : "", reading.name, text.text().c_str());
    y += kRowHeight;
  }
  std::printf("\n");
  return picture.writePNG(file) ? 0 : 1;
}
