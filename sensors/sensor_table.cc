#include "sensors/sensor_table.h"

#include <array>
#include <cstddef>
#include <string_view>

#include "core/unit_table.h"
#include "core/warm.h"

namespace kzm::sensors {
namespace {

struct SensorUnit {
  std::string_view text;
  const char* comment;
  Unit unit;
  Style style;
};

// clang-format off
//   template   translator's hint  unit              style
constexpr SensorUnit kUnits[] = {
    {"%@°",    nullptr,  Unit::degrees,          Style::tight },
    {"%@ K",   "kelvin", Unit::kelvin,           Style::spaced},
    {"%@K",    "kelvin", Unit::kelvin,           Style::tight },
    {"Off",    nullptr,  Unit::off,              Style::tight },
    {"%@ rpm", nullptr,  Unit::rpm,              Style::spaced},
    {"%@rpm",  nullptr,  Unit::rpm,              Style::tight },
    {"%@ V",   "volts",  Unit::volts,            Style::spaced},
    {"%@V",    "volts",  Unit::volts,            Style::tight },
    {"%@ mV",  nullptr,  Unit::millivolts,       Style::spaced},
    {"%@mV",   nullptr,  Unit::millivolts,       Style::tight },
    {"%@ A",   "amps",   Unit::amperes,          Style::spaced},
    {"%@A",    "amps",   Unit::amperes,          Style::tight },
    {"%@ mA",  nullptr,  Unit::milliamperes,     Style::spaced},
    {"%@mA",   nullptr,  Unit::milliamperes,     Style::tight },
    {"%@ W",   "watts",  Unit::watts,            Style::spaced},
    {"%@W",    "watts",  Unit::watts,            Style::tight },
    {"%@ mW",  nullptr,  Unit::milliwatts,       Style::spaced},
    {"%@mW",   nullptr,  Unit::milliwatts,       Style::tight },
    {"%@ G",   "GHz",    Unit::gigahertzShort,   Style::spaced},
    {"%@G",    "GHz",    Unit::gigahertzShort,   Style::tight },
    {"%@ GHz", nullptr,  Unit::gigahertz,        Style::spaced},
    {"%@GHz",  nullptr,  Unit::gigahertz,        Style::tight },
    {"%@ Lx",  nullptr,  Unit::luxShort,         Style::spaced},
    {"%@Lx",   nullptr,  Unit::luxShort,         Style::tight },
    {"%@ Lux", nullptr,  Unit::lux,              Style::spaced},
    {"%@Lux",  nullptr,  Unit::lux,              Style::tight },
    {"%@ mAh", nullptr,  Unit::milliampereHours, Style::spaced},
    {"%@mAh",  nullptr,  Unit::milliampereHours, Style::tight },
    {"%@x",    nullptr,  Unit::times,            Style::tight },
};
// clang-format on
constexpr auto kRows = core::unitRows(kUnits);
static_assert(core::wellFormed(kRows));
constexpr core::UnitTable kTable{core::UnitFamily::sensors, kRows};

constexpr auto kUnitsInTable = static_cast<std::size_t>(Unit::percent);

// The row of each unit, by style.
constexpr auto kIndex = [] {
  std::array<std::array<std::size_t, 2>, kUnitsInTable> index{};
  for (auto& rows : index) rows.fill(std::size(kUnits));
  for (std::size_t i = std::size(kUnits); i-- > 0;) {
    auto& rows = index[static_cast<std::size_t>(kUnits[i].unit)];
    rows[static_cast<std::size_t>(kUnits[i].style)] = i;
    if (kUnits[i].style == Style::tight) rows[static_cast<std::size_t>(Style::spaced)] = i;
  }
  return index;
}();

static_assert([] {
  for (const auto& rows : kIndex) {
    if (rows[0] >= std::size(kUnits) || rows[1] >= std::size(kUnits)) return false;
  }
  return true;
}());

}  // namespace

const core::Template* unitText(Unit unit, Style style) {
  // Deliberate: the percentage is the same in every language.
  static const core::Template& percent = *new core::Template("%@%%");
  if (unit == Unit::percent) return &percent;
  return core::warmUnit(kTable, kIndex[static_cast<std::size_t>(unit)][static_cast<std::size_t>(style)]);
}

}  // namespace kzm::sensors
