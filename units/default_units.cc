#include <KZMUtilities/default_units.h>
#include <optional>
#include <utility>

#include <KZMSettings/KZMSettings.h>

#include "core/reading.h"
#include "port/current_locale.h"
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

// The units of a setting's codes, from 1 on, and what is asked of the region when the user chose none of them.
struct Choice {
  Question question;
  std::string_view keyPath;
  std::array<std::optional<Unit>, 4> codes;
  Quantity quantity;
};

// Deliberate: rain and snow share one setting, whose first code means millimeters for one and centimeters for the other.
constexpr Choice kChoices[] = {
    {Question::windSpeed,
     "Weather.Global.Units.WindSpeed",
     {Unit::metersPerSecond, Unit::kilometersPerHour, Unit::milesPerHour, Unit::knots},
     Quantity::windSpeed},
    {Question::sensorsTemperature,
     "Sensors.Global.Degrees.Format",
     {Unit::celsius, Unit::fahrenheit, Unit::kelvin},
     Quantity::temperature},
    {Question::weatherTemperature,
     "Weather.Global.Units.Degrees",
     {Unit::celsius, Unit::fahrenheit, Unit::kelvin},
     Quantity::temperature},
    {Question::distance, "Weather.Global.Units.Distance", {Unit::kilometers, Unit::miles}, Quantity::distance},
    {Question::pressure,
     "Weather.Global.Units.Pressure",
     {Unit::hectopascals, Unit::millibars, Unit::inchesOfMercury},
     Quantity::pressure},
    {Question::rain, "Weather.Global.Units.Precipitation", {Unit::millimeters, Unit::inches}, Quantity::rain},
    {Question::snow, "Weather.Global.Units.Precipitation", {Unit::centimeters, Unit::inches}, Quantity::snow},
};
static_assert([] {
  std::size_t position = 0;
  for (const Choice& row : kChoices) {
    if (static_cast<std::size_t>(row.question) != position++) return false;
  }
  return true;
}());

std::optional<Unit> chosen(const Choice& choice) {
  const Value setting = KZMSettingsObjectForKeyPath(choice.keyPath);
  const std::int64_t code = core::readInteger(&setting);
  const bool isCode = code >= 1 && code <= static_cast<std::int64_t>(choice.codes.size());
  return isCode ? choice.codes[static_cast<std::size_t>(code) - 1] : std::nullopt;
}

using Preferred = std::array<std::atomic<Unit>, kQuantities>;

Unit answer(Question question, const Preferred& preferred) {
  const Choice& choice = kChoices[static_cast<std::size_t>(question)];
  const std::optional<Unit> unit = chosen(choice);
  return unit.has_value() ? *unit
                          : preferred[static_cast<std::size_t>(choice.quantity)].load(std::memory_order_relaxed);
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
MeasurementUnit KZMUtilitiesDefaultUnits::sensorsTemperatureUnit() const { return answer(Question::sensorsTemperature, preferred_); }
MeasurementUnit KZMUtilitiesDefaultUnits::weatherTemperatureUnit() const { return answer(Question::weatherTemperature, preferred_); }
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
