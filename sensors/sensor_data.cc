#include "sensors/sensor_data.h"

#include <cmath>

#include <KZMUtilities/conversions.h>
#include <KZMUtilities/default_units.h>
#include <KZMUtilities/sensors.h>

#include "core/options.h"
#include "core/reading.h"
#include "units/measurement_unit.h"

namespace kzm::sensors {
namespace {

constexpr Key kOff = "off";
constexpr Key kDecimalsFrequency = "decimals-frequency";

Reading temperature(const Dictionary& options, double celsius) {
  MeasurementUnit unit = KZMUtilitiesDefaultUnits::shared().sensorsTemperatureUnit();
  if (options.contains(core::kReverseType)) unit = units::reversed(unit);
  if (unit == MeasurementUnit::fahrenheit) return {Unit::degrees, celciusToFahrenheit(celsius)};
  if (unit == MeasurementUnit::kelvin) return {Unit::kelvin, celciusToKelvin(celsius)};
  return {Unit::degrees, celsius};
}

// Deliberate: capped above only, -0.5 is -50; but exactly -1.0, which sources give for an unknown reading, is 0.
Reading percentage(const Dictionary& /*options*/, double fraction) {
  constexpr double kUnknown = -1.0;
  if (fraction == kUnknown) return {Unit::percent, 0.0};
  const double percent = fraction * 100.0;
  return {Unit::percent, percent < 100.0 ? percent : 100.0};  // NaN is 100
}

Reading fan(const Dictionary& options, double rpm) {
  return {rpm == 0.0 && options.contains(kOff) ? Unit::off : Unit::rpm, rpm};
}

// A quantity that is shown in thousandths of its unit when it is small.
struct Scaled {
  Unit base;
  Unit milli;
  Key decimals;
};
constexpr Scaled kCurrent{Unit::amperes, Unit::milliamperes, "decimals-amperage"};
constexpr Scaled kPower{Unit::watts, Unit::milliwatts, "decimals-power"};
constexpr Scaled kVoltage{Unit::volts, Unit::millivolts, "decimals-voltage"};

template <const Scaled& quantity>
Reading scaled(const Dictionary& options, double value) {
  Reading reading{quantity.base, value, value == 0.0 ? 0 : 1};
  if (value != 0.0 && std::abs(value) < 1.0) reading = {quantity.milli, value * 1000.0, 0};
  reading.decimals = core::readDecimals(options.find(quantity.decimals), reading.value, reading.decimals);
  return reading;
}

Reading light(const Dictionary& options, double lux) {
  return {core::readBoolean(options.find(core::kShort)) ? Unit::luxShort : Unit::lux, lux};
}

Reading frequency(const Dictionary& options, double megahertz) {
  constexpr std::int64_t kDefaultDecimals = 2;
  const double gigahertz = megahertz / 1000.0;
  return {core::readBoolean(options.find(core::kShort)) ? Unit::gigahertzShort : Unit::gigahertz, gigahertz,
          core::readDecimals(options.find(kDecimalsFrequency), gigahertz, kDefaultDecimals)};
}

template <Unit unit>
Reading plain(const Dictionary& /*options*/, double value) {
  return {unit, value};
}

struct KindRow {
  std::int64_t type;
  Reading (*read)(const Dictionary& options, double value);
};

// clang-format off
constexpr KindRow kKinds[] = {
    {SensorType::temperature, temperature                  },
    {SensorType::percentage,  percentage                   },
    {SensorType::fan,         fan                          },
    {SensorType::current,     scaled<kCurrent>             },
    {SensorType::power,       scaled<kPower>               },
    {SensorType::voltage,     scaled<kVoltage>             },
    {SensorType::light,       light                        },
    {SensorType::frequency,   frequency                    },
    {SensorType::multiplier,  plain<Unit::times>           },
    {SensorType::capacity,    plain<Unit::milliampereHours>},
};
// clang-format on

}  // namespace

std::optional<Reading> readingOf(std::int64_t type, const Dictionary& options, double value) {
  for (const KindRow& kind : kKinds) {
    if (kind.type == type) return kind.read(options, value);
  }
  return std::nullopt;
}

const core::Template* unitText(const Reading& reading, const Dictionary& options) {
  return unitText(reading.unit, core::readBoolean(options.find(core::kSpace)) ? Style::spaced : Style::tight);
}

}  // namespace kzm::sensors

std::optional<kzm::Dictionary> KZMUtilitiesSensorData(std::int64_t type, const kzm::Dictionary& options, double value) {
  const std::optional<kzm::sensors::Reading> reading = kzm::sensors::readingOf(type, options, value);
  if (!reading.has_value()) return std::nullopt;
  const kzm::core::Template* unit = kzm::sensors::unitText(*reading, options);
  if (unit == nullptr) return std::nullopt;
  return kzm::Dictionary{{"decimals", reading->decimals}, {"value", reading->value}, {"format", unit->text()}};
}
