#include <algorithm>
#include <array>
#include <atomic>
#include <iterator>
#include <mutex>
#include <span>
#include <utility>

#include <KZMSettings/KZMSettings.h>
#include <KZMUtilities/default_units.h>

#include "core/option_values.h"
#include "port/current_locale.h"
#include "port/measurement_habits.h"
#include "port/never_destroyed.h"
#include "units/locale_units.h"
#include "units/measurement_unit.h"

namespace kzm::units {
namespace {

using Defaults = KZMUtilitiesDefaultUnits;

struct Choice {
  Quantity quantity;  // for which the region is asked when the user chose none of the units
  UnitSetting setting;
};

// Deliberate: rain and snow share one setting. Its first code means millimeters for one, centimeters for the other
// (DefaultUnits.RainAndSnowShareOneSetting).
// clang-format off
//   quantity                setting: key path                     units          asked by
constexpr Choice kChoices[] = {
    {Quantity::windSpeed,   {"Weather.Global.Units.WindSpeed",     kWindSpeeds,   &Defaults::windSpeedUnit}},
    {Quantity::temperature, {"Sensors.Global.Degrees.Format",      kTemperatures, &Defaults::sensorsTemperatureUnit}},
    {Quantity::temperature, {"Weather.Global.Units.Degrees",       kTemperatures, &Defaults::weatherTemperatureUnit}},
    {Quantity::distance,    {"Weather.Global.Units.Distance",      kDistances,    &Defaults::distanceUnit}},
    {Quantity::pressure,    {"Weather.Global.Units.Pressure",      kPressures,    &Defaults::pressureUnit}},
    {Quantity::rain,        {"Weather.Global.Units.Precipitation", kRains,        &Defaults::rainUnit}},
    {Quantity::snow,        {"Weather.Global.Units.Precipitation", kSnows,        &Defaults::snowUnit}},
};
// clang-format on
static_assert(std::size(kRains) == std::size(kSnows), "a code of the shared setting means nothing for one of them");

using Accessor = decltype(UnitSetting::unit);

// An accessor without a row does not build.
constexpr const Choice& choiceOf(Accessor accessor) {
  return *std::ranges::find(kChoices, accessor, [](const Choice& choice) { return choice.setting.unit; });
}

// What hosts see of the rows.
constexpr auto kSettings = [] {
  std::array<UnitSetting, std::size(kChoices)> settings{};
  std::ranges::transform(kChoices, settings.begin(), &Choice::setting);
  return settings;
}();

PreferredUnits localePreferences() {
  const Preferences units = preferencesFrom(samplesIn(port::measurementHabitsOf(port::currentMeasurementLocale())));
  PreferredUnits named;
  for (std::size_t i = 0; i < kQuantities; ++i) named.emplace(kQuantityRows[i].key, units[i]);
  return named;
}

}  // namespace
}  // namespace kzm::units

using kzm::MeasurementUnit;

struct KZMUtilitiesDefaultUnits::State {
  // The user's unit if the setting names one, else the region's.
  template <kzm::units::Accessor accessor>
  [[nodiscard]] MeasurementUnit answer() const {
    constexpr const auto& kChoice = kzm::units::choiceOf(accessor);
    const kzm::Value chosen = KZMSettingsObjectForKeyPath(kChoice.setting.keyPath);
    const std::int64_t code = kzm::core::readInteger(&chosen);
    const auto& coded = kChoice.setting.units;
    if (code >= 1 && code <= std::ssize(coded)) return coded[static_cast<std::size_t>(code) - 1];
    return preferred[static_cast<std::size_t>(kChoice.quantity)].load(std::memory_order_relaxed);
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

using kzm::units::Defaults;
MeasurementUnit Defaults::windSpeedUnit() const { return state_->answer<&Defaults::windSpeedUnit>(); }
MeasurementUnit Defaults::sensorsTemperatureUnit() const { return state_->answer<&Defaults::sensorsTemperatureUnit>(); }
MeasurementUnit Defaults::weatherTemperatureUnit() const { return state_->answer<&Defaults::weatherTemperatureUnit>(); }
MeasurementUnit Defaults::distanceUnit() const { return state_->answer<&Defaults::distanceUnit>(); }
MeasurementUnit Defaults::pressureUnit() const { return state_->answer<&Defaults::pressureUnit>(); }
MeasurementUnit Defaults::rainUnit() const { return state_->answer<&Defaults::rainUnit>(); }
MeasurementUnit Defaults::snowUnit() const { return state_->answer<&Defaults::snowUnit>(); }

kzm::PreferredUnits KZMUtilitiesDefaultUnits::units() const {
  const std::lock_guard lock(state_->mutex);
  return state_->units;
}

void KZMUtilitiesDefaultUnits::setUnits(kzm::PreferredUnits units) {
  const std::lock_guard lock(state_->mutex);
  state_->units = std::move(units);
  for (std::size_t i = 0; i < kzm::units::kQuantities; ++i) {
    const kzm::units::QuantityRow& row = kzm::units::kQuantityRows[i];
    const auto found = state_->units.find(row.key);
    const MeasurementUnit unit = found != state_->units.end() ? found->second : row.metric;
    state_->preferred[i].store(unit, std::memory_order_relaxed);
  }
}

std::span<const kzm::UnitSetting> kzm::unitSettings() noexcept { return units::kSettings; }
