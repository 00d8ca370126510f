// Sensor and weather readings, and the two companion libraries that they ask.
#include <KZMLocalization/KZMLocalization.h>
#include <KZMSettings/KZMSettings.h>
#include <KZMUtilities/resources.h>
#include <KZMUtilities/sensors.h>
#include <KZMUtilities/weather.h>

#include "bench/allocations.h"

namespace kzm::bench {
namespace {

const Dictionary& unitsAndSpace() {
  static const Dictionary options{{"units", true}, {"space", true}};
  return options;
}

void sensorTemperature(benchmark::State& state) {
  measure(state, [] { return KZMUtilitiesFormatSensor(SensorType::temperature, unitsAndSpace(), 48.25); });
}
BENCHMARK(sensorTemperature)->Name("readings/sensor temperature");

void sensorFan(benchmark::State& state) {
  measure(state, [] { return KZMUtilitiesFormatSensor(SensorType::fan, unitsAndSpace(), 1234.0); });
}
BENCHMARK(sensorFan)->Name("readings/sensor fan");

void weatherTemperature(benchmark::State& state) {
  measure(state, [] { return KZMUtilitiesFormatWeatherTemperature(unitsAndSpace(), 21.6); });
}
BENCHMARK(weatherTemperature)->Name("readings/weather temperature");

void weatherWind(benchmark::State& state) {
  measure(state, [] { return KZMUtilitiesFormatWeatherWindSpeed(unitsAndSpace(), 7.5); });
}
BENCHMARK(weatherWind)->Name("readings/weather wind");

void setting(benchmark::State& state) {
  KZMSettingsUseObjects({{"Weather.Global.Units.Pressure", 2}});
  measure(state, [] { return KZMSettingsObjectForKeyPath("Weather.Global.Units.Pressure"); });
}
BENCHMARK(setting)->Name("companions/one setting");

void localizedText(benchmark::State& state) {
  const ResourceBundle* bundle = bundleWithIdentifier(kBundleIdentifier);
  measure(state,
          [=] { return KZMLocalizedStringFromTableInBundle("Units.Memory.%@ GB", "KZMUtilities", bundle, nullptr); });
}
BENCHMARK(localizedText)->Name("companions/one text");

}  // namespace
}  // namespace kzm::bench
