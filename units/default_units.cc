#include <array>
#include <atomic>
#include <iterator>
#include <mutex>
#include <span>
#include <string_view>
#include <utility>

#include <KZMSettings/KZMSettings.h>
#include <KZMUtilities/default_units.h>

#include "core/option_values.h"
#include "core/rows.h"
#include "port/current_locale.h"
#include "port/measurement_locale.h"
#include "port/never_destroyed.h"
#include "units/locale_units.h"
#include "units/measurement_unit.h"

namespace kzm::units {
namespace {

using Unit = MeasurementUnit;
using DefaultUnits = KZMUtilitiesDefaultUnits;

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
constexpr Unit kDistances[] = {Unit::kilometers, Unit::miles};
constexpr Unit kPressures[] = {Unit::hectopascals, Unit::millibars, Unit::inchesOfMercury};
constexpr Unit kRains[] = {Unit::millimeters, Unit::inches};
constexpr Unit kSnows[] = {Unit::centimeters, Unit::inches};

struct Choice {
  Question question;
  Quantity otherwise;  // what is asked of the region when the user chose none of the units
};

// clang-format off
//   question                      otherwise
constexpr Choice kChoices[] = {
    {Question::windSpeed,          Quantity::windSpeed},
    {Question::sensorsTemperature, Quantity::temperature},
    {Question::weatherTemperature, Quantity::temperature},
    {Question::distance,           Quantity::distance},
    {Question::pressure,           Quantity::pressure},
    {Question::rain,               Quantity::rain},
    {Question::snow,               Quantity::snow},
};
// clang-format on
static_assert(core::areInOrder(kChoices, &Choice::question));

// Deliberate: rain and snow share one setting. Its first code means millimeters for one, centimeters for the other
// (DefaultUnits.RainAndSnowShareOneSetting).
// clang-format off
//   key path                              units          asked by
constexpr UnitSetting kSettings[] = {
    {"Weather.Global.Units.WindSpeed",     kSpeeds,       &DefaultUnits::windSpeedUnit},
    {"Sensors.Global.Degrees.Format",      kTemperatures, &DefaultUnits::sensorsTemperatureUnit},
    {"Weather.Global.Units.Degrees",       kTemperatures, &DefaultUnits::weatherTemperatureUnit},
    {"Weather.Global.Units.Distance",      kDistances,    &DefaultUnits::distanceUnit},
    {"Weather.Global.Units.Pressure",      kPressures,    &DefaultUnits::pressureUnit},
    {"Weather.Global.Units.Precipitation", kRains,        &DefaultUnits::rainUnit},
    {"Weather.Global.Units.Precipitation", kSnows,        &DefaultUnits::snowUnit},
};
// clang-format on
static_assert(std::size(kSettings) == std::size(kChoices));

PreferredUnits localePreferences() {
  const Preferences units = preferencesFrom(samplesIn(port::measurementLocaleOf(port::currentMeasurementLocale())));
  PreferredUnits named;
  for (std::size_t i = 0; i < kQuantities; ++i) named.emplace(kKeys[i], units[i]);
  return named;
}

}  // namespace
}  // namespace kzm::units

using kzm::MeasurementUnit;
using kzm::units::Question;

struct KZMUtilitiesDefaultUnits::State {
  // The user's unit if the setting names one, else the region's.
  [[nodiscard]] MeasurementUnit answer(Question question) const {
    const auto row = static_cast<std::size_t>(question);
    const kzm::UnitSetting& setting = kzm::units::kSettings[row];
    const kzm::Value chosen = KZMSettingsObjectForKeyPath(setting.keyPath);
    const std::int64_t code = kzm::core::readInteger(&chosen);
    if (code >= 1 && code <= std::ssize(setting.units)) return setting.units[static_cast<std::size_t>(code) - 1];
    return preferred[static_cast<std::size_t>(kzm::units::kChoices[row].otherwise)].load(std::memory_order_relaxed);
  }

  std::mutex mutex;
  kzm::PreferredUnits units;
  std::array<std::atomic<MeasurementUnit>, kzm::units::kQuantities> preferred;  // what is in units, without the lock
};

KZMUtilitiesDefaultUnits& KZMUtilitiesDefaultUnits::shared() {
  static kzm::port::NeverDestroyed<KZMUtilitiesDefaultUnits> instance;
  return *instance;
}

KZMUtilitiesDefaultUnits::KZMUtilitiesDefaultUnits() : state_(std::make_unique<State>()) {
  setUnits(kzm::units::localePreferences());
}
KZMUtilitiesDefaultUnits::~KZMUtilitiesDefaultUnits() = default;

MeasurementUnit KZMUtilitiesDefaultUnits::windSpeedUnit() const { return state_->answer(Question::windSpeed); }
MeasurementUnit KZMUtilitiesDefaultUnits::sensorsTemperatureUnit() const {
  return state_->answer(Question::sensorsTemperature);
}
MeasurementUnit KZMUtilitiesDefaultUnits::weatherTemperatureUnit() const {
  return state_->answer(Question::weatherTemperature);
}
MeasurementUnit KZMUtilitiesDefaultUnits::distanceUnit() const { return state_->answer(Question::distance); }
MeasurementUnit KZMUtilitiesDefaultUnits::pressureUnit() const { return state_->answer(Question::pressure); }
MeasurementUnit KZMUtilitiesDefaultUnits::rainUnit() const { return state_->answer(Question::rain); }
MeasurementUnit KZMUtilitiesDefaultUnits::snowUnit() const { return state_->answer(Question::snow); }

kzm::PreferredUnits KZMUtilitiesDefaultUnits::units() const {
  const std::lock_guard lock(state_->mutex);
  return state_->units;
}

void KZMUtilitiesDefaultUnits::setUnits(kzm::PreferredUnits units) {
  const std::lock_guard lock(state_->mutex);
  state_->units = std::move(units);
  for (std::size_t i = 0; i < kzm::units::kQuantities; ++i) {
    const auto found = state_->units.find(kzm::units::kKeys[i]);
    const MeasurementUnit unit = found != state_->units.end() ? found->second : kzm::units::kMetric[i];
    state_->preferred[i].store(unit, std::memory_order_relaxed);
  }
}

std::span<const kzm::UnitSetting> kzm::unitSettings() noexcept { return units::kSettings; }
