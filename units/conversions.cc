#include <KZMUtilities/conversions.h>

#include "units/factors.h"

namespace {

constexpr double kFiveNinthsInSinglePrecision = 0x1.1c71c8p-1;
constexpr double kFiveNinths = 0.5555555555555556;

static_assert(kFiveNinthsInSinglePrecision == 0.5555555820465088);
static_assert(kFiveNinthsInSinglePrecision == static_cast<double>(5.0F / 9.0F));
static_assert(kFiveNinths == 5.0 / 9.0);

}  // namespace

// Deliberate: the call fahrenheitToCelcius multiplies by other five ninths than celciusToFahrenheit divides by
// (Conversions.FahrenheitAndBackIsNotTheSame).
double celciusToFahrenheit(double celsius) noexcept { return celsius / kFiveNinthsInSinglePrecision + 32.0; }
double fahrenheitToCelcius(double fahrenheit) noexcept { return (fahrenheit - 32.0) * kFiveNinths; }
double celciusToKelvin(double celsius) noexcept { return celsius + 273.15; }
double kelvinToCelcius(double kelvin) noexcept { return kelvin - 273.15; }

double inchToCm(double inches) noexcept { return inches * 2.54; }
double cmToInch(double centimeters) noexcept { return centimeters * 0.3937; }
double inchToMm(double inches) noexcept { return inches * 25.4; }
double mmToInch(double millimeters) noexcept { return millimeters * 0.03937; }
// Deliberate: the call mmToCm divides, which is not the multiplication by the rounded reciprocal
// (Conversions.MmToCmDividesByTenInsteadOfMultiplyingByATenth).
double mmToCm(double millimeters) noexcept { return millimeters / 10.0; }
double cmToMm(double centimeters) noexcept { return centimeters * 10.0; }
double milesToKm(double miles) noexcept { return miles * 1.609344; }
double KmToMiles(double kilometers) noexcept { return kilometers * 0.621371192237; }

double mpsToKph(double metersPerSecond) noexcept { return metersPerSecond * 3.6; }
double kphToMps(double kilometersPerHour) noexcept { return kilometersPerHour * 0.27777777777778; }
double mpsToMph(double metersPerSecond) noexcept { return metersPerSecond * 2.2369362920544; }
double mphToMps(double milesPerHour) noexcept { return milesPerHour * 0.44704; }
double mpsToKnots(double metersPerSecond) noexcept { return metersPerSecond * 1.94384; }

// Deliberate: the call inchToMillibar divides, too (Conversions.InchToMillibarDivides).
double inchToMillibar(double inchesOfMercury) noexcept {
  return inchesOfMercury / kzm::units::kInchesOfMercuryInAMillibar;
}
