#include <bit>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>

#include <KZMUtilities/conversions.h>

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

using Conversion = double (*)(double) noexcept;

struct Case {
  const char* why;
  Conversion convert;
  double given;
  double expected;
};

TEST(Conversions, AreExactToTheLastBit) {
  const Case cases[] = {
      {"boiling water", celciusToFahrenheit, 100.0, 211.99999141693155},
      {"freezing water", celciusToFahrenheit, 0.0, 32.0},
      {"where the scales meet", celciusToFahrenheit, -40.0, -39.99999656677262},
      {"body heat", celciusToFahrenheit, 37.0, 98.59999682426468},
      {"a processor", celciusToFahrenheit, 50.0, 121.99999570846578},
      {"boiling water", fahrenheitToCelcius, 212.0, 100.0},
      {"freezing water", fahrenheitToCelcius, 32.0, 0.0},
      {"where the scales meet", fahrenheitToCelcius, -40.0, -40.0},
      {"freezing water", celciusToKelvin, 0.0, 273.15},
      {"a room", celciusToKelvin, 21.6, 294.75},
      {"absolute zero", celciusToKelvin, -273.15, 0.0},
      {"absolute zero", kelvinToCelcius, 0.0, -273.15},
      {"freezing water", kelvinToCelcius, 273.15, 0.0},
      {"one", inchToCm, 1.0, 2.54},
      {"hundred", inchToCm, 100.0, 254.0},
      {"an inch, not quite", cmToInch, 2.54, 0.999998},
      {"one", cmToInch, 1.0, 0.3937},
      {"one", inchToMm, 1.0, 25.4},
      {"ten", inchToMm, 10.0, 254.0},
      {"an inch, not quite", mmToInch, 25.4, 0.999998},
      {"one", mmToInch, 1.0, 0.03937},
      {"halves", mmToCm, 25.0, 2.5},
      {"three tenths", mmToCm, 3.0, 0.3},
      {"one", cmToMm, 2.5, 25.0},
      {"one", milesToKm, 1.0, 1.609344},
      {"thousand", milesToKm, 1000.0, 1609.344},
      {"one", KmToMiles, 1.0, 0.621371192237},
      {"thousand", KmToMiles, 1000.0, 621.371192237},
      {"ten", mpsToKph, 10.0, 36.0},
      {"one", mpsToKph, 1.0, 3.6},
      {"a little above the truth", kphToMps, 3.6, 1.000000000000008},
      {"one", kphToMps, 1.0, 0.27777777777778},
      {"one", mpsToMph, 1.0, 2.2369362920544},
      {"ten", mpsToMph, 10.0, 22.369362920544},
      {"one", mphToMps, 1.0, 0.44704},
      {"hundred", mphToMps, 100.0, 44.704},
      {"one", mpsToKnots, 1.0, 1.94384},
      {"ten", mpsToKnots, 10.0, 19.4384},
      {"a fair day", inchToMillibar, 29.92, 1013.2074890666681},
      {"one", inchToMillibar, 1.0, 33.86388666666671},
  };
  for (const Case& c : cases) EXPECT_EQ(c.convert(c.given), c.expected) << c.why << " " << c.given;
}

TEST(Conversions, FahrenheitAndBackIsNotTheSame) {
  EXPECT_EQ(fahrenheitToCelcius(celciusToFahrenheit(100.0)), 99.99999523162865);
  EXPECT_EQ(fahrenheitToCelcius(celciusToFahrenheit(0.0)), 0.0);
}

TEST(Conversions, MmToCmDividesByTenInsteadOfMultiplyingByATenth) {
  EXPECT_EQ(std::bit_cast<std::uint64_t>(mmToCm(3.0)), 0x3FD3333333333333U);  // 3.0 * 0.1 ends in 4
}

TEST(Conversions, InchToMillibarDivides) { EXPECT_EQ(inchToMillibar(0.029529983071445), 1.0); }

TEST(Conversions, KeepTheirSpelling) {
  // That these names compile is the point: they are published so.
  const Conversion published[] = {celciusToFahrenheit, fahrenheitToCelcius, celciusToKelvin,
                                  kelvinToCelcius,     KmToMiles,           milesToKm};
  for (const Conversion convert : published) EXPECT_TRUE(std::isnan(convert(kNan)));
}

TEST(Conversions, LetExtremesThroughByTheOrdinaryRules) {
  constexpr Conversion all[] = {celciusToFahrenheit,
                                fahrenheitToCelcius,
                                celciusToKelvin,
                                kelvinToCelcius,
                                inchToCm,
                                cmToInch,
                                inchToMm,
                                mmToInch,
                                mmToCm,
                                cmToMm,
                                milesToKm,
                                KmToMiles,
                                mpsToKph,
                                kphToMps,
                                mpsToMph,
                                mphToMps,
                                mpsToKnots,
                                inchToMillibar};
  static_assert(std::size(all) == 18);
  for (const Conversion convert : all) {
    EXPECT_TRUE(std::isnan(convert(kNan)));
    EXPECT_EQ(convert(kInfinity), kInfinity);
    EXPECT_EQ(convert(-kInfinity), -kInfinity);
  }
  EXPECT_EQ(inchToCm(std::numeric_limits<double>::max()), kInfinity);
  EXPECT_TRUE(std::signbit(mpsToKph(-0.0)));
}

}  // namespace
