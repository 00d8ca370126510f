// Weather observations as text.
//
// Values come in one fixed unit each and are shown in the unit that KZMUtilitiesDefaultUnits names at that moment: a
// change of the user's settings shows in the very next call. So does a change of the language or of the locale: a unit
// text is looked up on every call, and numbers take the style of the locale in force.
//
// Options are only read. Absent or mistyped ones read as zero or false. Every function takes any double, NaN and the
// infinities included, never fails, and may be called from any thread at any time. Results are new strings.
#ifndef KZMUTILITIES_WEATHER_H
#define KZMUTILITIES_WEATHER_H

#include <string>

#include <KZMUtilities/dictionary.h>
#include <KZMUtilities/export.h>

// ---- Temperature ----------------------------------------------------------------------------------------------------

/// An air temperature, in the user's weather temperature unit. Fahrenheit and Kelvin are whole numbers. Every "-0" in
/// the finished text becomes "0": "-0°" reads "0°", and "-0.4°" reads "0.4°".
///
/// options:
///   "units"      boolean   the number with its unit; else the number alone
///   "decimals"   integer   the most fraction digits, in Celsius only; below 0 as 0, above 340 as 340
///   "reverse"    boolean   swaps Celsius and Fahrenheit; Kelvin stays
///
/// Example (English, Celsius):
///   KZMUtilitiesFormatWeatherTemperature({{"units", true}, {"decimals", 1}}, 21.64)  // "21.6°"
[[nodiscard]] KZM_EXPORT std::string KZMUtilitiesFormatWeatherTemperature(const kzm::Dictionary& options,
                                                                          double celsius);

// ---- Wind -----------------------------------------------------------------------------------------------------------

/// A wind speed as a whole number, in the user's unit of wind speed.
///
/// options:
///   "units"   boolean   the number with its unit; else the number alone
///   "space"   boolean   one space between number and unit
///
/// Example (English, km/h):
///   KZMUtilitiesFormatWeatherWindSpeed({{"units", true}, {"space", true}}, 10.0)  // "36 km/h"
[[nodiscard]] KZM_EXPORT std::string KZMUtilitiesFormatWeatherWindSpeed(const kzm::Dictionary& options,
                                                                        double metersPerSecond);

/// The name of one of the eight directions of the compass, each 45 degrees wide; a bearing on a boundary belongs to the
/// sector clockwise of it.
///
/// degrees  0 is north, 90 east. Not reduced to one turn: negative bearings, those of 337.5 and more, and NaN are
///          north.
///
/// Example (English):
///   KZMUtilitiesFormatWeatherWindDirection(22.5)  // "North East"
[[nodiscard]] KZM_EXPORT std::string KZMUtilitiesFormatWeatherWindDirection(double degrees);

// ---- Pressure -------------------------------------------------------------------------------------------------------

/// An air pressure in the user's unit. Inches of mercury always have their mark and at most two fraction digits,
/// whatever the options say.
///
/// options:
///   "units"      boolean   the number with its unit; else the number alone
///   "space"      boolean   one space between number and unit
///   "decimals"   boolean   at most one fraction digit, 5 like true; else none
///
/// Example (English, hPa):
///   KZMUtilitiesFormatWeatherPressure({{"units", true}, {"space", true}}, 1013.25)  // "1,013 hPa"
[[nodiscard]] KZM_EXPORT std::string KZMUtilitiesFormatWeatherPressure(const kzm::Dictionary& options,
                                                                       double hectopascals);

// ---- Distance -------------------------------------------------------------------------------------------------------

/// A distance as a whole number with its unit, in the user's unit of distance. Thousands are grouped by three digits in
/// every locale, with the locale's separator.
///
/// Example (English, miles):
///   KZMUtilitiesFormatWeatherDistance(1234.4)  // "767 miles"
[[nodiscard]] KZM_EXPORT std::string KZMUtilitiesFormatWeatherDistance(double kilometers);

/// A visibility as a plain "%.0f" with the name of the user's unit of distance. The number is not converted.
///
/// distance  in whatever unit the source gives; halves are rounded to even
///
/// Example (English, miles):
///   KZMUtilitiesFormatWeatherVisibility(9.6)  // "10 miles"
[[nodiscard]] KZM_EXPORT std::string KZMUtilitiesFormatWeatherVisibility(double distance);

// ---- Precipitation --------------------------------------------------------------------------------------------------

/// An amount of rain: inches with at most two fraction digits when that is the user's unit of rain, else millimeters
/// with at most one.
///
/// Example (English, millimeters):
///   KZMUtilitiesFormatWeatherRainAmount(2.54)  // "2.5mm"
[[nodiscard]] KZM_EXPORT std::string KZMUtilitiesFormatWeatherRainAmount(double millimeters);

/// An amount of snow: inches with at most two fraction digits when that is the user's unit of rain (not of snow), else
/// centimeters with at most one.
///
/// Example (English, millimeters):
///   KZMUtilitiesFormatWeatherSnowAmount(25.0)  // "2.5cm"
[[nodiscard]] KZM_EXPORT std::string KZMUtilitiesFormatWeatherSnowAmount(double millimeters);

// ---- Quantities without a choice of unit ----------------------------------------------------------------------------

/// An ultraviolet index as a plain "%.0f".
///
/// Example:
///   KZMUtilitiesFormatWeatherUV(5.5)  // "6"
[[nodiscard]] KZM_EXPORT std::string KZMUtilitiesFormatWeatherUV(double index);

/// A relative humidity as a plain "%.0f" and a percent sign.
///
/// Example:
///   KZMUtilitiesFormatWeatherHumidity(57.0)  // "57%"
[[nodiscard]] KZM_EXPORT std::string KZMUtilitiesFormatWeatherHumidity(double percent);

/// An angle above the horizon, unchanged, always with the degree sign.
///
/// options:
///   "decimals"   integer   the most fraction digits; below 0 as 0, above 340 as 340
///
/// Example (English):
///   KZMUtilitiesFormatWeatherAltitude({{"decimals", 1}}, 41.26)  // "41.3°"
[[nodiscard]] KZM_EXPORT std::string KZMUtilitiesFormatWeatherAltitude(const kzm::Dictionary& options, double degrees);

/// An angle along the horizon, shown as KZMUtilitiesFormatWeatherAltitude does; it is not reduced to one turn. The
/// options are the same.
///
/// Example (English):
///   KZMUtilitiesFormatWeatherAzimuth({}, 725.0)  // "725°"
[[nodiscard]] KZM_EXPORT std::string KZMUtilitiesFormatWeatherAzimuth(const kzm::Dictionary& options, double degrees);

/// A number of days, with at most two fraction digits.
///
/// Example (English):
///   KZMUtilitiesFormatWeatherDays(12.3456)  // "12.35 Days"
[[nodiscard]] KZM_EXPORT std::string KZMUtilitiesFormatWeatherDays(double days);

/// The illuminated part of a disc, with at most two fraction digits.
///
/// Example (English):
///   KZMUtilitiesFormatWeatherIllumination(98.765)  // "98.76%"
[[nodiscard]] KZM_EXPORT std::string KZMUtilitiesFormatWeatherIllumination(double percent);

#endif
