#include "weather/weather_text.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include <KZMUtilities/formatters.h>

#include "core/rows.h"
#include "core/unit_table.h"

namespace kzm::weather {
namespace {

constexpr std::string_view kKeyPrefix = "Units.Weather.";

struct TextRow {
  Text text;
  std::string_view key;  // behind the prefix
  const char* comment;
};

// clang-format off
constexpr TextRow kTexts[] = {
    {Text::number,                  "%@",         nullptr },
    {Text::degrees,                 "%@°",        nullptr },
    {Text::kelvin,                  "%@K",        "kelvin"},
    {Text::knotsSpaced,             "%@ knots",   nullptr },
    {Text::knots,                   "%@knots",    nullptr },
    {Text::milesPerHourSpaced,      "%@ mph",     nullptr },
    {Text::milesPerHour,            "%@mph",      nullptr },
    {Text::kilometersPerHourSpaced, "%@ km/h",    nullptr },
    {Text::kilometersPerHour,       "%@km/h",     nullptr },
    {Text::metersPerSecondSpaced,   "%@ m/s",     nullptr },
    {Text::metersPerSecond,         "%@m/s",      nullptr },
    {Text::north,                   "North",      nullptr },
    {Text::northEast,               "North East", nullptr },
    {Text::east,                    "East",       nullptr },
    {Text::southEast,               "South East", nullptr },
    {Text::south,                   "South",      nullptr },
    {Text::southWest,               "South West", nullptr },
    {Text::west,                    "West",       nullptr },
    {Text::northWest,               "North West", nullptr },
    {Text::hectopascalsSpaced,      "%@ hPa",     nullptr },
    {Text::hectopascals,            "%@hPa",      nullptr },
    {Text::millibarsSpaced,         "%@ mb",      nullptr },
    {Text::millibars,               "%@mb",       nullptr },
    {Text::inches,                  "%@\"",       nullptr },
    {Text::miles,                   "%@ miles",   nullptr },
    {Text::kilometers,              "%@ km",      nullptr },
    {Text::millimeters,             "%@mm",       nullptr },
    {Text::centimeters,             "%@cm",       nullptr },
    {Text::days,                    "%@ Days",    nullptr },
    {Text::percent,                 "%@%%",       nullptr },
};
// clang-format on

static_assert(core::standInOrder(kTexts, &TextRow::text));

std::vector<core::Template> lookedUp() {
  std::vector<core::Template> texts;
  for (const TextRow& row : kTexts) {
    texts.emplace_back(row.text == Text::number ? std::string(row.key)
                                                : core::localizedUnit(kKeyPrefix, row.key, row.comment));
  }
  return texts;
}

}  // namespace

const core::Template& textOf(Text text) {
  static const std::vector<core::Template>& texts = *new std::vector<core::Template>(lookedUp());
  return texts[static_cast<std::size_t>(text)];
}

core::NumberText decimalNumber(std::int64_t mostDigits, double value) {
  static const NumberSymbols* const symbols = &NumberFormatter(0, 0).symbols();  // of the current locale; they stay
  const auto most = static_cast<int>(std::clamp<std::int64_t>(mostDigits, 0, core::kMostFractionDigits));
  return {*symbols, 0, most, value};
}

std::string filled(Text text, const core::NumberText& number) { return textOf(text).filled(number); }

}  // namespace kzm::weather
