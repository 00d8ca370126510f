// A program of somebody else's, built against the installed library.
#include <iostream>

#include <KZMSettings/KZMSettings.h>
#include <KZMUtilities/KZMUtilities.h>

int main() {
  kzm::setCurrentLocale("en_US");
  KZMSettingsUseObjects({{"Weather.Global.Units.Pressure", 2}});
  const kzm::Dictionary options{{"bandwidthformat", 2}, {"space", true}};
  const std::string text = KZMUtilitiesFormatBandwidth(options, 1500000.0);
  std::cout << text << '\n';
  return text == "11 Mb/s" && KZMSettingsObjectForKeyPath("Weather.Global.Units.Pressure") == kzm::Value(2) ? 0 : 1;
}
