#include <atomic>
#include <iterator>
#include <span>
#include <string_view>
#include <utility>

#include <KZMSettings/KZMSettings.h>
#include <KZMUtilities/default_units.h>

#include "core/reading.h"
#include "core/rows.h"
#include "port/current_locale.h"
#include "port/measurement_locale.h"
#include "units/locale_units.h"

namespace kzm::units {
namespace {

using Unit = MeasurementUnit;

// The keys of the preferred units, by Quantity.
constexpr std::string_view kKeys[kQuantities] = {"windspeed", "pressure", "temperature", "distance", "rain", "snow"};

// What can be asked for; each has its row below.
enum class Question : std::uint8_t {
  windSpeed,
  sensorsTemperature,
  weatherTemperature,
  distance,
  pressure,
  rain,
  snow,
};

// The units of each setting's codes, from 1 on.
constexpr Unit kSpeeds[] = {Unit::metersPerSecond, Unit::kilometersPerHour, Unit::milesPerHour, Unit::knots};
constexpr Unit kTemperatures[] = {Unit::celsius, Unit::fahrenheit, Unit::kelvin};
constexpr Unit kDistances[] = {Unit::kilometers, Unit::miles};
constexpr Unit kPressures[] = {Unit::hectopascals, Unit::millibars, Unit::inchesOfMercury};
constexpr Unit kRains[] = {Unit::millimeters, Unit::inches};
constexpr Unit kSnows[] = {Unit::centimeters, Unit::inches};

struct Choice {
  Question question;
  std::string_view keyPath;
  std::span<const Unit> units;
  Quantity otherwise;  // what is asked of the region when the user chose none of the units
};

// Deliberate: rain and snow share one setting. Its first code means millimeters for one, centimeters for the other.
// clang-format off
constexpr Choice kChoices[] = {
    {Question::windSpeed,          "Weather.Global.Units.WindSpeed",     kSpeeds,       Quantity::windSpeed  },
    {Question::sensorsTemperature, "Sensors.Global.Degrees.Format",      kTemperatures, Quantity::temperature},
    {Question::weatherTemperature, "Weather.Global.Units.Degrees",       kTemperatures, Quantity::temperature},
    {Question::distance,           "Weather.Global.Units.Distance",      kDistances,    Quantity::distance   },
    {Question::pressure,           "Weather.Global.Units.Pressure",      kPressures,    Quantity::pressure   },
    {Question::rain,               "Weather.Global.Units.Precipitation", kRains,        Quantity::rain       },
    {Question::snow,               "Weather.Global.Units.Precipitation", kSnows,        Quantity::snow       },
};
// clang-format on
static_assert(core::standInOrder(kChoices, &Choice::question));

using Preferred = std::array<std::atomic<Unit>, kQuantities>;

Unit answer(Question question, const Preferred& preferred) {
  const Choice& choice = kChoices[static_cast<std::size_t>(question)];
  const Value setting = KZMSettingsObjectForKeyPath(choice.keyPath);
  const std::int64_t code = core::readInteger(&setting);
  if (code >= 1 && code <= std::ssize(choice.units)) return choice.units[static_cast<std::size_t>(code) - 1];
  return preferred[static_cast<std::size_t>(choice.otherwise)].load(std::memory_order_relaxed);
}

PreferredUnits localePreferences() {
  const Preferences units = preferencesFrom(samplesIn(port::measurementLocaleOf(port::currentMeasurementLocale())));
  PreferredUnits named;
  for (std::size_t i = 0; i < kQuantities; ++i) named.emplace(kKeys[i], units[i]);
  return named;
}

}  // namespace
}  // namespace kzm::units

using kzm::MeasurementUnit;
using kzm::units::answer;
using kzm::units::Question;

KZMUtilitiesDefaultUnits& KZMUtilitiesDefaultUnits::shared() {
  static KZMUtilitiesDefaultUnits& instance = *new KZMUtilitiesDefaultUnits;  // lives until the process ends
  return instance;
}

KZMUtilitiesDefaultUnits::KZMUtilitiesDefaultUnits() { setUnits(kzm::units::localePreferences()); }
KZMUtilitiesDefaultUnits::~KZMUtilitiesDefaultUnits() = default;

MeasurementUnit KZMUtilitiesDefaultUnits::windSpeedUnit() const { return answer(Question::windSpeed, preferred_); }
MeasurementUnit KZMUtilitiesDefaultUnits::sensorsTemperatureUnit() const {
  return answer(Question::sensorsTemperature, preferred_);
}
MeasurementUnit KZMUtilitiesDefaultUnits::weatherTemperatureUnit() const {
  return answer(Question::weatherTemperature, preferred_);
}
MeasurementUnit KZMUtilitiesDefaultUnits::distanceUnit() const { return answer(Question::distance, preferred_); }
MeasurementUnit KZMUtilitiesDefaultUnits::pressureUnit() const { return answer(Question::pressure, preferred_); }
MeasurementUnit KZMUtilitiesDefaultUnits::rainUnit() const { return answer(Question::rain, preferred_); }
MeasurementUnit KZMUtilitiesDefaultUnits::snowUnit() const { return answer(Question::snow, preferred_); }

kzm::PreferredUnits KZMUtilitiesDefaultUnits::units() const {
  const std::lock_guard lock(mutex_);
  return units_;
}

void KZMUtilitiesDefaultUnits::setUnits(kzm::PreferredUnits units) {
  const std::lock_guard lock(mutex_);
  units_ = std::move(units);
  for (std::size_t i = 0; i < kQuantities; ++i) {
    const auto found = units_.find(kzm::units::kKeys[i]);
    preferred_[i].store(found != units_.end() ? found->second : kzm::units::kMetric[i], std::memory_order_relaxed);
  }
}
