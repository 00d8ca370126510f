// The unit texts of the sensor family.
#ifndef KZM_SENSORS_SENSOR_TABLE_H
#define KZM_SENSORS_SENSOR_TABLE_H

#include <cstdint>
#include <string_view>

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

/// One text of the family, in the order in which it is looked up.
struct UnitText {
  std::string_view text;
  const char* comment;
  Unit unit;
  Spacing spacing;
};

// clang-format off
//   template   translator's hint  unit                    spacing
inline constexpr UnitText kTexts[] = {
    {"%@°",     nullptr,           Unit::degrees,          Spacing::tight},
    {"%@ K",    "kelvin",          Unit::kelvin,           Spacing::spaced},
    {"%@K",     "kelvin",          Unit::kelvin,           Spacing::tight},
    {"Off",     nullptr,           Unit::off,              Spacing::tight},
    {"%@ rpm",  nullptr,           Unit::rpm,              Spacing::spaced},
    {"%@rpm",   nullptr,           Unit::rpm,              Spacing::tight},
    {"%@ V",    "volts",           Unit::volts,            Spacing::spaced},
    {"%@V",     "volts",           Unit::volts,            Spacing::tight},
    {"%@ mV",   nullptr,           Unit::millivolts,       Spacing::spaced},
    {"%@mV",    nullptr,           Unit::millivolts,       Spacing::tight},
    {"%@ A",    "amps",            Unit::amperes,          Spacing::spaced},
    {"%@A",     "amps",            Unit::amperes,          Spacing::tight},
    {"%@ mA",   nullptr,           Unit::milliamperes,     Spacing::spaced},
    {"%@mA",    nullptr,           Unit::milliamperes,     Spacing::tight},
    {"%@ W",    "watts",           Unit::watts,            Spacing::spaced},
    {"%@W",     "watts",           Unit::watts,            Spacing::tight},
    {"%@ mW",   nullptr,           Unit::milliwatts,       Spacing::spaced},
    {"%@mW",    nullptr,           Unit::milliwatts,       Spacing::tight},
    {"%@ G",    "GHz",             Unit::gigahertzShort,   Spacing::spaced},
    {"%@G",     "GHz",             Unit::gigahertzShort,   Spacing::tight},
    {"%@ GHz",  nullptr,           Unit::gigahertz,        Spacing::spaced},
    {"%@GHz",   nullptr,           Unit::gigahertz,        Spacing::tight},
    {"%@ Lx",   nullptr,           Unit::luxShort,         Spacing::spaced},
    {"%@Lx",    nullptr,           Unit::luxShort,         Spacing::tight},
    {"%@ Lux",  nullptr,           Unit::lux,              Spacing::spaced},
    {"%@Lux",   nullptr,           Unit::lux,              Spacing::tight},
    {"%@ mAh",  nullptr,           Unit::milliampereHours, Spacing::spaced},
    {"%@mAh",   nullptr,           Unit::milliampereHours, Spacing::tight},
    {"%@x",     nullptr,           Unit::times,            Spacing::tight},
};
// clang-format on
inline constexpr auto kRows = core::unitRows("Units.Sensors.", kTexts);
inline constexpr auto kIndex = core::unitIndex<core::countEnumerators<Unit>() - 1>(kTexts);
static_assert(core::wellFormed(kTexts));
static_assert(kIndex.hasAll(), "a unit has no row");

inline constexpr core::UnitTable kTable{"Localizations-Units-Sensors", kRows};

}  // namespace kzm::sensors

#endif
