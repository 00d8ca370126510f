#include <gtest/gtest.h>
#include <limits>

#include <KZMUtilities/drawing.h>

namespace kzm {
namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

void expectShade(const Color& color, double hue, double saturation, double brightness) {
  EXPECT_DOUBLE_EQ(color.hue(), hue);
  EXPECT_DOUBLE_EQ(color.saturation(), saturation);
  EXPECT_DOUBLE_EQ(color.brightness(), brightness);
  EXPECT_EQ(color.alpha(), 0.5);
}

void expectMixture(const Color& color, double red, double green, double blue) {
  EXPECT_NEAR(color.red(), red, 1e-15);
  EXPECT_NEAR(color.green(), green, 1e-15);
  EXPECT_NEAR(color.blue(), blue, 1e-15);
}

TEST(Color, ConvertsBothWays) {
  struct Case {
    const char* why;
    double red, green, blue;
    double hue, saturation, brightness;
  };
  constexpr Case cases[] = {
      {"red", 1.0, 0.0, 0.0, 0.0, 1.0, 1.0},          {"yellow", 1.0, 1.0, 0.0, 1.0 / 6.0, 1.0, 1.0},
      {"green", 0.0, 1.0, 0.0, 1.0 / 3.0, 1.0, 1.0},  {"cyan", 0.0, 1.0, 1.0, 0.5, 1.0, 1.0},
      {"blue", 0.0, 0.0, 1.0, 2.0 / 3.0, 1.0, 1.0},   {"magenta", 1.0, 0.0, 1.0, 5.0 / 6.0, 1.0, 1.0},
      {"dark pink", 0.5, 0.25, 0.25, 0.0, 0.5, 0.5},  {"white", 1.0, 1.0, 1.0, 0.0, 0.0, 1.0},
      {"gray", 0.25, 0.25, 0.25, 0.0, 0.0, 0.25},     {"black", 0.0, 0.0, 0.0, 0.0, 0.0, 0.0},
      {"orange", 1.0, 0.5, 0.0, 1.0 / 12., 1.0, 1.0}, {"rose", 1.0, 0.0, 0.5, 11. / 12., 1.0, 1.0},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.why);
    expectShade(Color::fromRGBA(c.red, c.green, c.blue, 0.5), c.hue, c.saturation, c.brightness);
    expectMixture(Color::fromHSBA(c.hue, c.saturation, c.brightness, 0.5), c.red, c.green, c.blue);
  }
}

TEST(Color, AHueOfOneLooksLikeZero) {
  const Color color = Color::fromHSBA(1.0, 1.0, 1.0, 1.0);
  EXPECT_EQ(color.red(), 1.0);
  EXPECT_EQ(color.green(), 0.0);
  EXPECT_EQ(color.blue(), 0.0);
  EXPECT_EQ(color.hue(), 1.0);
}

TEST(Color, CutsComponentsOff) {
  const Color above = Color::fromHSBA(2.0, kInf, 1.6, 1.0000001);
  EXPECT_EQ(above, Color::fromHSBA(1.0, 1.0, 1.0, 1.0));
  const Color below = Color::fromHSBA(-0.1, -kInf, kNan, kNan);
  EXPECT_EQ(below, Color::fromHSBA(0.0, 0.0, 0.0, 0.0));
  EXPECT_EQ(Color::fromRGBA(kNan, 7.0, -7.0, kInf), Color::fromRGBA(0.0, 1.0, 0.0, 1.0));
}

TEST(Color, BrightnessIsMultipliedAndTheRestKeptExactly) {
  struct Case {
    const char* why;
    double brightness;
    float factor;
    double result;
  };
  constexpr float kFloatInf = std::numeric_limits<float>::infinity();
  constexpr float kFloatNan = std::numeric_limits<float>::quiet_NaN();
  constexpr Case cases[] = {
      {"half", 0.5, 0.5F, 0.25},
      {"unchanged", 0.3, 1.0F, 0.3},
      {"nothing", 0.8, 0.0F, 0.0},
      {"the factor is widened, not rounded", 1.0, 0.1F, 0.10000000149011612},
      {"beyond the end is cut off", 0.8, 2.0F, 1.0},
      {"negative", 0.8, -1.0F, 0.0},
      {"endless", 0.8, kFloatInf, 1.0},
      {"nothing, endlessly, is not a number", 0.0, kFloatInf, 0.0},
      {"not a number", 0.8, kFloatNan, 0.0},
  };
  for (const Case& c : cases) {
    const Color color = Color::fromHSBA(0.123456789, 0.7, c.brightness, 0.9).multiplyBrightness(c.factor);
    EXPECT_EQ(color.hue(), 0.123456789) << c.why;
    EXPECT_EQ(color.saturation(), 0.7) << c.why;
    EXPECT_EQ(color.brightness(), c.result) << c.why;
    EXPECT_EQ(color.alpha(), 0.9) << c.why;
  }
}

TEST(Color, BlackRemembersWhatItWas) {
  const Color black = Color::fromHSBA(0.6, 0.7, 0.8, 1.0).multiplyBrightness(0.0F);
  EXPECT_EQ(black.blue(), 0.0);
  EXPECT_EQ(black.hue(), 0.6);
  EXPECT_EQ(black.saturation(), 0.7);
}

}  // namespace
}  // namespace kzm
