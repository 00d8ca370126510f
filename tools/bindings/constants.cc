#include <algorithm>
#include <string_view>

#include <KZMUtilities/dates.h>
#include <KZMUtilities/sensors.h>

#include "core/rows.h"
#include "tools/bindings/placeholders.h"

namespace kzm::bindings {
namespace {

struct Constant {
  const char* name;
  std::int64_t number;
  const char* documentation;
};

// clang-format off
constexpr Constant kConstants[] = {
    {"SENSOR_TEMPERATURE",                  SensorType::temperature,        "degrees Celsius"},
    {"SENSOR_PERCENTAGE",                   SensorType::percentage,         "a fraction: 1.0 is 100 %"},
    {"SENSOR_FAN",                          SensorType::fan,                "revolutions per minute"},
    {"SENSOR_CURRENT",                      SensorType::current,            "amperes"},
    {"SENSOR_POWER",                        SensorType::power,              "watts"},
    {"SENSOR_VOLTAGE",                      SensorType::voltage,            "volts"},
    {"SENSOR_LIGHT",                        SensorType::light,              "lux"},
    {"SENSOR_FREQUENCY",                    SensorType::frequency,          "megahertz"},
    {"SENSOR_MULTIPLIER",                   SensorType::multiplier,         "a plain factor"},
    {"SENSOR_CAPACITY",                     SensorType::capacity,           "milliampere-hours"},
    {"CALENDAR_UNIT_ERA",                   kCalendarUnitEra,               "0 before Christ, 1 after"},
    {"CALENDAR_UNIT_YEAR",                  kCalendarUnitYear,              "1 and above, in its era"},
    {"CALENDAR_UNIT_MONTH",                 kCalendarUnitMonth,             "1 to 12"},
    {"CALENDAR_UNIT_DAY",                   kCalendarUnitDay,               "1 to 31"},
    {"CALENDAR_UNIT_HOUR",                  kCalendarUnitHour,              "0 to 23"},
    {"CALENDAR_UNIT_MINUTE",                kCalendarUnitMinute,            "0 to 59"},
    {"CALENDAR_UNIT_SECOND",                kCalendarUnitSecond,            "0 to 59"},
    {"CALENDAR_UNIT_WEEK",                  kCalendarUnitWeek,              "the former name of the week of the year"},
    {"CALENDAR_UNIT_WEEKDAY",               kCalendarUnitWeekday,           "1 is Sunday, 7 Saturday"},
    {"CALENDAR_UNIT_WEEKDAY_ORDINAL",       kCalendarUnitWeekdayOrdinal,    "2 for a second Monday"},
    {"CALENDAR_UNIT_QUARTER",               kCalendarUnitQuarter,           "1 to 4"},
    {"CALENDAR_UNIT_WEEK_OF_MONTH",         kCalendarUnitWeekOfMonth,       "0 to 6"},
    {"CALENDAR_UNIT_WEEK_OF_YEAR",          kCalendarUnitWeekOfYear,        "1 to 53"},
    {"CALENDAR_UNIT_YEAR_FOR_WEEK_OF_YEAR", kCalendarUnitYearForWeekOfYear, "may be 0 or negative"},
    {"CALENDAR_UNIT_NANOSECOND",            kCalendarUnitNanosecond,        "0 to 999999999, truncated"},
    {"CALENDAR_UNIT_CALENDAR",              kCalendarUnitCalendar,          "the text \"gregorian\""},
    {"CALENDAR_UNIT_TIME_ZONE",             kCalendarUnitTimeZone,          "the zone's identifier, a text"},
};
// clang-format on
static_assert(std::ranges::count_if(kConstants,
                                    [](const Constant& row) {
                                      return std::string_view(row.name).starts_with("SENSOR_");
                                    }) == core::countNamed<SensorType::Kind>(),
              "a kind of sensor has no constant");

}  // namespace

std::string constants() {
  std::string text = "#define KZM_VERSION \"" KZM_VERSION "\"\n\n";
  text += "/* The kinds of sensor, with what a reading is measured in, and the units of a calendar. */\n";
  for (const Constant& constant : kConstants) {
    std::string line = "#define KZM_" + std::string(constant.name);
    line.resize(48, ' ');
    line += std::to_string(constant.number);
    line.resize(56, ' ');
    text += line + " /* " + constant.documentation + " */\n";
  }
  return text;
}

}  // namespace kzm::bindings
