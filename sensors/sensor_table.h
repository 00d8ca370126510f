// The unit texts of the sensor family.
#ifndef KZM_SENSORS_SENSOR_TABLE_H
#define KZM_SENSORS_SENSOR_TABLE_H

#include <cstdint>

#include "core/rows.h"
#include "core/unit_table.h"

namespace kzm::sensors {

using core::Spacing;

enum class Unit : std::uint8_t {
  degrees,
  kelvin,
  off,
  rpm,
  volts,
  millivolts,
  amperes,
  milliamperes,
  watts,
  milliwatts,
  gigahertzShort,
  gigahertz,
  luxShort,
  lux,
  milliampereHours,
  times,
  percent,  // the same in every language: not in the table
};

// clang-format off
//   unit                    spacing          template   translator's hint
inline constexpr core::UnitText<Unit> kTexts[] = {
    {Unit::degrees,          Spacing::tight,  "%@°",     nullptr},
    {Unit::kelvin,           Spacing::spaced, "%@ K",    "kelvin"},
    {Unit::kelvin,           Spacing::tight,  "%@K",     "kelvin"},
    {Unit::off,              Spacing::tight,  "Off",     nullptr},
    {Unit::rpm,              Spacing::spaced, "%@ rpm",  nullptr},
    {Unit::rpm,              Spacing::tight,  "%@rpm",   nullptr},
    {Unit::volts,            Spacing::spaced, "%@ V",    "volts"},
    {Unit::volts,            Spacing::tight,  "%@V",     "volts"},
    {Unit::millivolts,       Spacing::spaced, "%@ mV",   nullptr},
    {Unit::millivolts,       Spacing::tight,  "%@mV",    nullptr},
    {Unit::amperes,          Spacing::spaced, "%@ A",    "amps"},
    {Unit::amperes,          Spacing::tight,  "%@A",     "amps"},
    {Unit::milliamperes,     Spacing::spaced, "%@ mA",   nullptr},
    {Unit::milliamperes,     Spacing::tight,  "%@mA",    nullptr},
    {Unit::watts,            Spacing::spaced, "%@ W",    "watts"},
    {Unit::watts,            Spacing::tight,  "%@W",     "watts"},
    {Unit::milliwatts,       Spacing::spaced, "%@ mW",   nullptr},
    {Unit::milliwatts,       Spacing::tight,  "%@mW",    nullptr},
    {Unit::gigahertzShort,   Spacing::spaced, "%@ G",    "GHz"},
    {Unit::gigahertzShort,   Spacing::tight,  "%@G",     "GHz"},
    {Unit::gigahertz,        Spacing::spaced, "%@ GHz",  nullptr},
    {Unit::gigahertz,        Spacing::tight,  "%@GHz",   nullptr},
    {Unit::luxShort,         Spacing::spaced, "%@ Lx",   nullptr},
    {Unit::luxShort,         Spacing::tight,  "%@Lx",    nullptr},
    {Unit::lux,              Spacing::spaced, "%@ Lux",  nullptr},
    {Unit::lux,              Spacing::tight,  "%@Lux",   nullptr},
    {Unit::milliampereHours, Spacing::spaced, "%@ mAh",  nullptr},
    {Unit::milliampereHours, Spacing::tight,  "%@mAh",   nullptr},
    {Unit::times,            Spacing::tight,  "%@x",     nullptr},
};
// clang-format on
inline constexpr auto kRows = core::unitRows("Units.Sensors.", kTexts);
inline constexpr auto kIndex = core::unitIndex<core::countEnumerators<Unit>() - 1>(kTexts);
static_assert(core::wellFormed(kTexts));
static_assert(kIndex.hasAll(), "a unit has no row");

inline constexpr core::UnitTable kSensorTable{"Localizations-Units-Sensors", kRows};

}  // namespace kzm::sensors

#endif
