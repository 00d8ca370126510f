// Formats one reading of each family for a status bar.
// Prints: 11.4 Mb/s | 3 MB/s | 250 GB | 7.8 GB | 42% | 48° | 1,200 rpm
#include <iostream>

#include <KZMUtilities/KZMUtilities.h>

int main() {
  kzm::setCurrentLocale("en_001");
  const kzm::Dictionary oneDigitBelowHundred{{"value", 100}, {"decimals", 1}};
  const kzm::Array rules{oneDigitBelowHundred};
  const kzm::Dictionary network{{"bandwidthformat", 2}, {"space", true}, {"decimals-mb", rules}};
  const kzm::Dictionary size{{"space", true}, {"decimals-gb", rules}};
  const kzm::Dictionary sensor{{"units", true}, {"space", true}};

  const kzm::Dictionary disk{{"space", true}};
  std::cout << KZMUtilitiesFormatBandwidth(network, 1500000.0) << " | "
            << KZMUtilitiesFormatDiskActivity(disk, 3145728.0) << " | " << KZMUtilitiesFormatSpace(size, 250e9) << " | "
            << KZMUtilitiesFormatMemory(size, 8.4e9) << " | " << KZMUtilitiesFormatPercentage({}, 42.0) << " | "
            << KZMUtilitiesFormatSensor(kzm::SensorType::temperature, sensor, 48.25) << " | "
            << KZMUtilitiesFormatSensor(kzm::SensorType::fan, sensor, 1200.0) << '\n';
}
