#include "sensors/sensor_data.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include <KZMUtilities/conversions.h>
#include <KZMUtilities/default_units.h>
#include <KZMUtilities/sensors.h>

#include "core/option_values.h"
#include "units/measurement_unit.h"

namespace kzm::sensors {
namespace {

constexpr Key kOff = "off";
constexpr Key kDecimalsFrequency = "decimals-frequency";

// What a kind makes of a value.
struct Converted {
  Unit unit;
  double value;
  std::int64_t decimals = 0;  // at most
};

Converted temperature(const Dictionary& options, double celsius) {
  MeasurementUnit unit = KZMUtilitiesDefaultUnits::shared().sensorsTemperatureUnit();
  if (options.contains(core::kReverseType)) unit = units::reversed(unit);
  if (unit == MeasurementUnit::fahrenheit) return {Unit::degrees, celciusToFahrenheit(celsius)};
  if (unit == MeasurementUnit::kelvin) return {Unit::kelvin, celciusToKelvin(celsius)};
  return {Unit::degrees, celsius};
}

// Deliberate: a percentage is capped above only, -0.5 is -50; but exactly -1.0, which sources give for an unknown
// reading, is 0, and NaN is 100 (SensorData.PercentageIsCappedAboveOnly).
Converted percentage(const Dictionary& /*options*/, double fraction) {
  constexpr double kUnknown = -1.0;
  if (fraction == kUnknown) return {Unit::percent, 0.0};
  const double percent = fraction * 100.0;
  return {Unit::percent, percent < 100.0 ? percent : 100.0};
}

Converted fan(const Dictionary& options, double rpm) {
  return {rpm == 0.0 && options.contains(kOff) ? Unit::off : Unit::rpm, rpm};
}

// A quantity that is shown in thousandths of its unit when it is small.
struct Thousandths {
  Unit base;
  Unit milli;
  Key decimals;
};
constexpr Thousandths kCurrent{Unit::amperes, Unit::milliamperes, "decimals-amperage"};
constexpr Thousandths kPower{Unit::watts, Unit::milliwatts, "decimals-power"};
constexpr Thousandths kVoltage{Unit::volts, Unit::millivolts, "decimals-voltage"};

// Deliberate: a current, power or voltage of exactly 0 stays in the large unit and, without a rule, has no decimals,
// where all others in that unit have one (SensorData.SmallCurrentsPowersAndVoltagesAreInThousandths).
template <const Thousandths& quantity>
Converted inThousandths(const Dictionary& options, double value) {
  Converted converted{quantity.base, value, value == 0.0 ? 0 : 1};
  if (value != 0.0 && std::abs(value) < 1.0) converted = {quantity.milli, value * 1000.0, 0};
  converted.decimals = core::readDecimals(options.find(quantity.decimals), converted.value, converted.decimals);
  return converted;
}

Converted light(const Dictionary& options, double lux) {
  return {core::readBoolean(options.find(core::kShort)) ? Unit::luxShort : Unit::lux, lux};
}

Converted frequency(const Dictionary& options, double megahertz) {
  constexpr std::int64_t kDefaultDecimals = 2;
  const double gigahertz = megahertz / 1000.0;
  return {core::readBoolean(options.find(core::kShort)) ? Unit::gigahertzShort : Unit::gigahertz, gigahertz,
          core::readDecimals(options.find(kDecimalsFrequency), gigahertz, kDefaultDecimals)};
}

template <Unit unit>
Converted plain(const Dictionary& /*options*/, double value) {
  return {unit, value};
}

struct KindRow {
  SensorType::Kind type;
  Converted (*convert)(const Dictionary& options, double value);
};

// clang-format off
//   kind                     shown as
constexpr KindRow kKinds[] = {
    {SensorType::temperature, temperature},
    {SensorType::percentage,  percentage},
    {SensorType::fan,         fan},
    {SensorType::current,     inThousandths<kCurrent>},
    {SensorType::power,       inThousandths<kPower>},
    {SensorType::voltage,     inThousandths<kVoltage>},
    {SensorType::light,       light},
    {SensorType::frequency,   frequency},
    {SensorType::multiplier,  plain<Unit::times>},
    {SensorType::capacity,    plain<Unit::milliampereHours>},
};
// clang-format on

constexpr const KindRow* rowOf(std::int64_t type) {
  for (const KindRow& kind : kKinds) {
    if (kind.type == type) return &kind;
  }
  return nullptr;
}

static_assert(std::size(kKinds) == core::countNamed<SensorType::Kind>(), "a kind has no row");
static_assert(std::ranges::all_of(kKinds, [](const KindRow& row) { return rowOf(row.type) == &row; }),
              "a kind has two rows");

}  // namespace

std::optional<core::Reading> readingOf(std::int64_t type, const Dictionary& options, double value) {
  core::prepare<kSensorTable>();
  const KindRow* kind = rowOf(type);
  if (kind == nullptr) return std::nullopt;
  const Converted converted = kind->convert(options, value);
  const core::Amount amount{core::Digits::atMost, converted.decimals, converted.value};
  if (converted.unit == Unit::percent) return core::Reading{kPercentRow, amount};
  const std::size_t row = kIndex.row(static_cast<std::size_t>(converted.unit), core::readSpacing(options));
  return core::hasText<kSensorTable>(row) ? std::optional(core::Reading{row, amount}) : std::nullopt;
}

}  // namespace kzm::sensors

std::optional<kzm::Dictionary> KZMUtilitiesSensorData(std::int64_t type, const kzm::Dictionary& options, double value) {
  using namespace kzm::sensors;
  using namespace kzm::core;
  const std::optional<Reading> reading = readingOf(type, options, value);
  if (!reading.has_value()) return std::nullopt;
  // Deliberate: the result of a sensor has "format" last, that of bytes has it first (SensorData.KeysAreInTheirOrder).
  return reading->row == kPercentRow ? data(kPercent, reading->amount, FormatKey::last)
                                     : data<kSensorTable>(*reading, FormatKey::last);
}
