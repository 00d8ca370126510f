// One measurement in another unit.
//
// Every function takes any double and does the one operation that its comment states (two for Fahrenheit) in double
// precision, with exactly that constant: no rounding, no range checks; NaN and infinities pass by the ordinary rules.
// Every function may be called from any thread at any time and allocates nothing.
//
// Deliberate: the names are spelled as they are published, "celcius" and the capital of KmToMiles included, and the
// functions of a pair are not exact inverses of each other: each has its own published constant
// (Conversions.KeepTheirSpelling, Conversions.FahrenheitAndBackIsNotTheSame).
#ifndef KZMUTILITIES_CONVERSIONS_H
#define KZMUTILITIES_CONVERSIONS_H

#include <KZMUtilities/export.h>

// ---- Temperature ----------------------------------------------------------------------------------------------------

/// celsius / 0.5555555820465088 + 32.0; the divisor is 5/9 in single precision (bits 0x3FE1C71C80000000).
///
/// Example:
///   celciusToFahrenheit(100.0)  // 211.99999141693155
[[nodiscard]] KZM_EXPORT double celciusToFahrenheit(double celsius) noexcept;

/// (fahrenheit + (-32.0)) × 0.5555555555555556; the factor is 5/9 in double precision (bits 0x3FE1C71C71C71C72).
///
/// Example:
///   fahrenheitToCelcius(212.0)  // 100.0
[[nodiscard]] KZM_EXPORT double fahrenheitToCelcius(double fahrenheit) noexcept;

/// celsius + 273.15, the distance of the two zeros.
///
/// Example:
///   celciusToKelvin(20.0)  // 293.15
[[nodiscard]] KZM_EXPORT double celciusToKelvin(double celsius) noexcept;

/// kelvin + (-273.15)
///
/// Example:
///   kelvinToCelcius(293.15)  // 20.0
[[nodiscard]] KZM_EXPORT double kelvinToCelcius(double kelvin) noexcept;

// ---- Length ---------------------------------------------------------------------------------------------------------

/// inches × 2.54, the definition of the inch.
///
/// Example:
///   inchToCm(10.0)  // 25.4
[[nodiscard]] KZM_EXPORT double inchToCm(double inches) noexcept;

/// centimeters × 0.3937, rounded to four digits.
///
/// Example:
///   cmToInch(2.54)  // 0.999998
[[nodiscard]] KZM_EXPORT double cmToInch(double centimeters) noexcept;

/// inches × 25.4
///
/// Example:
///   inchToMm(2.0)  // 50.8
[[nodiscard]] KZM_EXPORT double inchToMm(double inches) noexcept;

/// millimeters × 0.03937, rounded to four digits.
///
/// Example:
///   mmToInch(25.4)  // 0.999998
[[nodiscard]] KZM_EXPORT double mmToInch(double millimeters) noexcept;

/// millimeters / 10.0: a division, which is not a multiplication by a tenth.
///
/// Example:
///   mmToCm(25.0)  // 2.5
[[nodiscard]] KZM_EXPORT double mmToCm(double millimeters) noexcept;

/// centimeters × 10.0
///
/// Example:
///   cmToMm(2.5)  // 25.0
[[nodiscard]] KZM_EXPORT double cmToMm(double centimeters) noexcept;

/// miles × 1.609344, the definition of the international mile.
///
/// Example:
///   milesToKm(10.0)  // 16.09344
[[nodiscard]] KZM_EXPORT double milesToKm(double miles) noexcept;

/// kilometers × 0.621371192237, rounded to twelve digits.
///
/// Example:
///   KmToMiles(10.0)  // 6.21371192237
[[nodiscard]] KZM_EXPORT double KmToMiles(double kilometers) noexcept;

// ---- Speed ----------------------------------------------------------------------------------------------------------

/// metersPerSecond × 3.6
///
/// Example:
///   mpsToKph(10.0)  // 36.0
[[nodiscard]] KZM_EXPORT double mpsToKph(double metersPerSecond) noexcept;

/// kilometersPerHour × 0.27777777777778, rounded to fourteen digits.
///
/// Example:
///   kphToMps(3.6)  // 1.000000000000008
[[nodiscard]] KZM_EXPORT double kphToMps(double kilometersPerHour) noexcept;

/// metersPerSecond × 2.2369362920544, rounded to fourteen digits.
///
/// Example:
///   mpsToMph(10.0)  // 22.369362920544
[[nodiscard]] KZM_EXPORT double mpsToMph(double metersPerSecond) noexcept;

/// milesPerHour × 0.44704, which is exact.
///
/// Example:
///   mphToMps(100.0)  // 44.704
[[nodiscard]] KZM_EXPORT double mphToMps(double milesPerHour) noexcept;

/// metersPerSecond × 1.94384, rounded to six digits.
///
/// Example:
///   mpsToKnots(10.0)  // 19.4384
[[nodiscard]] KZM_EXPORT double mpsToKnots(double metersPerSecond) noexcept;

// ---- Pressure -------------------------------------------------------------------------------------------------------

/// inchesOfMercury / 0.029529983071445: a division by the inches in a millibar.
///
/// Example:
///   inchToMillibar(29.92)  // 1013.2074890666681
[[nodiscard]] KZM_EXPORT double inchToMillibar(double inchesOfMercury) noexcept;

#endif
