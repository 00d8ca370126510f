// No value of a range has a wider text than the widest: many values, options, ranges and measures, in many locales.
#include <array>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <random>
#include <string>

#include <KZMLocalization/KZMLocalization.h>
#include <KZMUtilities/KZMUtilities.h>

#include "tests/support/settings.h"

namespace kzm {
namespace {

using Random = std::mt19937_64;

std::int64_t below(Random& random, std::int64_t count) {
  return static_cast<std::int64_t>(random() % static_cast<std::uint64_t>(count));
}

double between(Random& random, double least, double most) {
  return std::uniform_real_distribution<double>(least, most)(random);
}

// Spread over all magnitudes, and often next to where a digit joins or a unit changes.
double anyValue(Random& random, double most) {
  const double value = std::exp2(between(random, -10.0, std::log2(most)));
  switch (below(random, 6)) {
    case 0:
      return std::pow(10.0, std::floor(std::log10(value))) * between(random, 0.999, 1.0);
    case 1:
      return std::exp2(std::round(std::log2(value))) * between(random, 0.999, 1.001);
    case 2:
      return std::round(value);
    case 3:
      return 0.0;
    default:
      return value;
  }
}

Array anyRules(Random& random) {
  Array rules;
  for (std::int64_t i = below(random, 4); i > 0; --i) {
    rules.emplace_back(Dictionary{{"value", anyValue(random, 1500.0)}, {"decimals", below(random, 5)}});
  }
  return rules;
}

Dictionary anyOptions(Random& random) {
  Dictionary options;
  const auto often = [&] { return below(random, 2) == 0; };
  for (const char* name : {"space", "units"}) options.set(name, often());
  for (const char* name : {"short", "early-upgrade", "hide-bytes", "reverse", "strip", "off", "reverse-type"}) {
    if (below(random, 4) == 0) options.set(name, true);
  }
  options.set("decimals", below(random, 5));
  options.set("unitsize", below(random, 5));
  options.set("bandwidthformat", below(random, 5));
  for (const char* name : {"kb", "mb", "gb", "tb", "pb", "amperage", "power", "voltage", "frequency"}) {
    if (often()) options.set(std::string("decimals-") + name, anyRules(random));
  }
  return options;
}

ValueRange anyRange(Random& random, TextFamily family) {
  const ValueRange usual = usualRange(family);
  const double lowest = below(random, 3) == 0 ? -anyValue(random, 2000.0) : anyValue(random, usual.highest);
  const double highest = anyValue(random, usual.highest);
  if (below(random, 4) == 0) return usual;
  return {std::min(lowest, highest), std::max(lowest, highest)};
}

double anyValueIn(Random& random, ValueRange values) {
  if (below(random, 2) == 0) return between(random, values.lowest, values.highest);
  const double magnitude = anyValue(random, std::max(std::abs(values.lowest), std::abs(values.highest)) + 1.0);
  const double value = below(random, 3) == 0 ? -magnitude : magnitude;
  return std::clamp(value, values.lowest, values.highest) + 0.0;  // no range has a negative zero
}

// Each byte has a width of its own, and so has each digit.
TextMeasure anyMeasure(Random& random) {
  if (below(random, 3) == 0) return widthInColumns;
  std::array<double, 256> widths{};
  for (double& width : widths) width = static_cast<double>(4 + below(random, 12));
  return [widths](std::string_view text) {
    double width = 0.0;
    for (const char c : text) width += widths[static_cast<unsigned char>(c)];
    return width;
  };
}

// The families' functions, found by their names' order in the headers.
std::string textOf(TextFamily family, const Dictionary& options, double value) {
  using Format = std::string (*)(const Dictionary&, double);
  static constexpr Format kFormats[] = {
      KZMUtilitiesFormatNumber,
      KZMUtilitiesFormatPercentage,
      KZMUtilitiesFormatBandwidth,
      [](const Dictionary& o, double v) { return KZMUtilitiesFormatBandwidthWithAttributes(o, v).text(); },
      KZMUtilitiesFormatDiskActivity,
      [](const Dictionary& o, double v) { return KZMUtilitiesFormatDiskActivityWithAttributes(o, v).text(); },
      KZMUtilitiesFormatSpace,
      KZMUtilitiesFormatMemory,
      KZMUtilitiesFormatWeatherTemperature,
      KZMUtilitiesFormatWeatherWindSpeed,
      [](const Dictionary&, double v) { return KZMUtilitiesFormatWeatherWindDirection(v); },
      KZMUtilitiesFormatWeatherPressure,
      [](const Dictionary&, double v) { return KZMUtilitiesFormatWeatherDistance(v); },
      [](const Dictionary&, double v) { return KZMUtilitiesFormatWeatherVisibility(v); },
      [](const Dictionary&, double v) { return KZMUtilitiesFormatWeatherRainAmount(v); },
      [](const Dictionary&, double v) { return KZMUtilitiesFormatWeatherSnowAmount(v); },
      [](const Dictionary&, double v) { return KZMUtilitiesFormatWeatherUV(v); },
      [](const Dictionary&, double v) { return KZMUtilitiesFormatWeatherHumidity(v); },
      KZMUtilitiesFormatWeatherAltitude,
      KZMUtilitiesFormatWeatherAzimuth,
      [](const Dictionary&, double v) { return KZMUtilitiesFormatWeatherDays(v); },
      [](const Dictionary&, double v) { return KZMUtilitiesFormatWeatherIllumination(v); },
  };
  static constexpr SensorType::Kind kKinds[] = {
      SensorType::temperature, SensorType::percentage, SensorType::fan,   SensorType::current,
      SensorType::power,       SensorType::voltage,    SensorType::light, SensorType::frequency,
      SensorType::multiplier,  SensorType::capacity,
  };
  const auto index = static_cast<std::size_t>(family);
  if (index < std::size(kFormats)) return kFormats[index](options, value);
  return KZMUtilitiesFormatSensor(kKinds[index - std::size(kFormats)], options, value);
}

void useLocale(const std::string& locale) {
  setCurrentLocale(locale);
  KZMLocalizationSetLanguages(std::array{locale});
  KZMUtilities::shared().setCache(nullptr);
}

// How the user wants units shown: codes 0 to 3, whatever they mean for each.
void useAnyUnits(Random& random) {
  Dictionary settings;
  for (const char* name : {"Degrees", "WindSpeed", "Pressure", "Distance", "Precipitation"}) {
    settings.set(std::string("Weather.Global.Units.") + name, below(random, 4));
  }
  KZMSettingsUseObjects(std::move(settings));
}

void compare(Random& random, TextFamily family) {
  constexpr int kValues = 60;
  const Dictionary options = anyOptions(random);
  const ValueRange values = anyRange(random, family);
  const TextMeasure measure = anyMeasure(random);
  const std::string widest = widestText(family, options, values, measure);
  for (int i = 0; i < kValues; ++i) {
    const double value = anyValueIn(random, values);
    const std::string text = textOf(family, options, value);
    ASSERT_LE(measure(text), measure(widest))
        << "family " << static_cast<int>(family) << ", " << value << " of " << values.lowest << " to " << values.highest
        << ": " << text << " is wider than " << widest;
  }
}

TEST(WidestOfRandomValues, IsNeverExceeded) {
  constexpr int kRounds = 20;
  Random random(1);  // NOLINT(cert-msc32-c,cert-msc51-cpp): the same values each time
  for (const char* locale : {"en_US", "de_CH", "fr_FR", "sv_SE", "es_ES", "pl_PL", "ru_RU", "ar_EG", "fa_IR", "he_IL",
                             "hi_IN", "ja_JP", "zh_TW", "bn_BD", "en_US_POSIX"}) {
    useLocale(locale);
    for (int number = 0; number <= static_cast<int>(TextFamily::sensorCapacity); ++number) {
      for (int round = 0; round < kRounds; ++round) {
        useAnyUnits(random);
        compare(random, static_cast<TextFamily>(number));
        if (HasFatalFailure()) FAIL() << locale;
      }
    }
  }
}

}  // namespace
}  // namespace kzm
