#include "weather/weather_text.h"

#include "core/rows.h"

namespace kzm::weather {
namespace {

// clang-format off
//   unit                     spacing          template      translator's hint
constexpr core::UnitText<Unit> kTexts[] = {
    {Unit::degrees,           Spacing::tight,  "%@°",        nullptr},
    {Unit::kelvin,            Spacing::tight,  "%@K",        "kelvin"},
    {Unit::knots,             Spacing::spaced, "%@ knots",   nullptr},
    {Unit::knots,             Spacing::tight,  "%@knots",    nullptr},
    {Unit::milesPerHour,      Spacing::spaced, "%@ mph",     nullptr},
    {Unit::milesPerHour,      Spacing::tight,  "%@mph",      nullptr},
    {Unit::kilometersPerHour, Spacing::spaced, "%@ km/h",    nullptr},
    {Unit::kilometersPerHour, Spacing::tight,  "%@km/h",     nullptr},
    {Unit::metersPerSecond,   Spacing::spaced, "%@ m/s",     nullptr},
    {Unit::metersPerSecond,   Spacing::tight,  "%@m/s",      nullptr},
    {Unit::north,             Spacing::tight,  "North",      nullptr},
    {Unit::northEast,         Spacing::tight,  "North East", nullptr},
    {Unit::east,              Spacing::tight,  "East",       nullptr},
    {Unit::southEast,         Spacing::tight,  "South East", nullptr},
    {Unit::south,             Spacing::tight,  "South",      nullptr},
    {Unit::southWest,         Spacing::tight,  "South West", nullptr},
    {Unit::west,              Spacing::tight,  "West",       nullptr},
    {Unit::northWest,         Spacing::tight,  "North West", nullptr},
    {Unit::hectopascals,      Spacing::spaced, "%@ hPa",     nullptr},
    {Unit::hectopascals,      Spacing::tight,  "%@hPa",      nullptr},
    {Unit::millibars,         Spacing::spaced, "%@ mb",      nullptr},
    {Unit::millibars,         Spacing::tight,  "%@mb",       nullptr},
    {Unit::inches,            Spacing::tight,  "%@\"",       nullptr},
    {Unit::miles,             Spacing::spaced, "%@ miles",   nullptr},
    {Unit::kilometers,        Spacing::spaced, "%@ km",      nullptr},
    {Unit::millimeters,       Spacing::tight,  "%@mm",       nullptr},
    {Unit::centimeters,       Spacing::tight,  "%@cm",       nullptr},
    {Unit::days,              Spacing::spaced, "%@ Days",    nullptr},
    {Unit::percent,           Spacing::tight,  "%@%%",       nullptr},
};
// clang-format on
constexpr auto kRows = core::unitRows("Units.Weather.", kTexts);
constexpr auto kIndex = core::unitIndex<core::countEnumerators<Unit>()>(kTexts);
static_assert(core::wellFormed(kTexts));
static_assert(kIndex.hasAll(), "a unit has no row");

}  // namespace

// Not kept in the shared cache: a change of the language shows in the very next call.
std::string localizedText(Unit unit, Spacing spacing) {
  return core::localizedText(kRows[kIndex.row(static_cast<std::size_t>(unit), spacing)]);
}

std::string text(Unit unit, Spacing spacing, const core::Amount& amount) {
  const std::string unitText = localizedText(unit, spacing);
  return core::text(core::Template(unitText), amount);
}

std::string text(Unit unit, const core::Amount& amount) { return text(unit, Spacing::tight, amount); }

}  // namespace kzm::weather
