// Shows the weather in the units that the user chose, and in those of the region where nothing was chosen.
// Prints: 27 km/h at 1,013 hPa, then 15 knots at 29.92"
#include <iostream>

#include <KZMSettings/KZMSettings.h>
#include <KZMUtilities/KZMUtilities.h>

namespace {

std::string weather() {
  const kzm::Dictionary options{{"units", true}, {"space", true}};
  return KZMUtilitiesFormatWeatherWindSpeed(options, 7.5) + " at " +
         KZMUtilitiesFormatWeatherPressure(options, 1013.25);
}

}  // namespace

int main() {
  kzm::setCurrentLocale("en_001");
  KZMSettingsUseObjects({});
  std::cout << weather();
  KZMSettingsUseObjects({{"Weather.Global.Units.WindSpeed", 4}, {"Weather.Global.Units.Pressure", 3}});
  std::cout << ", then " << weather() << '\n';
}
