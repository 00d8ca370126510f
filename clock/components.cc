// Calendar fields of a time point, and time points built from such fields.
#include <algorithm>
#include <string_view>

#include <KZMUtilities/dates.h>

#include "clock/local_time.h"
#include "clock/weeks.h"
#include "port/now.h"
#include "port/week_rules.h"

namespace kzm {
namespace {

// A time point as the calendar in a zone sees it.
struct CalendarFields {
  clock::WallTime wall;
  clock::CivilDate date;
  double fraction;
  TimeZone zone;
  const port::WeekRules& rules;
};

std::optional<CalendarFields> read(TimePoint t) {
  const std::optional<clock::Instant> instant = clock::instantOf(t);
  if (!instant.has_value()) return std::nullopt;
  const TimeZone zone = TimeZone::defaultZone();
  const clock::WallTime wall = clock::wallTime(instant->seconds, zone);
  return CalendarFields{wall, clock::dateOfDay(wall.day), instant->fraction, zone, port::weekRules()};
}

std::int64_t yearInEra(const CalendarFields& fields) {
  return fields.date.year > 0 ? fields.date.year : 1 - fields.date.year;
}

std::int64_t weekOfMonth(const CalendarFields& fields) {
  return clock::weekNumber(fields.wall.day, fields.wall.day - fields.date.day + 1, fields.rules);
}

int weekday(const CalendarFields& fields) { return clock::weekdayOfDay(fields.wall.day); }

std::int64_t yearOfWeek(const CalendarFields& fields) { return clock::yearOfWeek(fields.wall.day, fields.rules); }

std::int64_t weekOfYear(const CalendarFields& fields) {
  return clock::weekNumber(fields.wall.day, clock::newYearsDay(yearOfWeek(fields)), fields.rules);
}

// The fraction just below a whole second may round up to it.
std::int64_t nanosecond(const CalendarFields& fields) {
  return std::min(static_cast<std::int64_t>(fields.fraction * 1e9), std::int64_t{999'999'999});
}

using Fields = const CalendarFields&;

struct FieldRow {
  CalendarUnits unit;
  std::string_view name;
  Value (*read)(Fields fields);
};

// In the order of the units' numbers.
// clang-format off
constexpr FieldRow kFields[] = {
    {kCalendarUnitEra,               "era",               [](Fields f) -> Value { return f.date.year > 0 ? 1 : 0; }},
    {kCalendarUnitYear,              "year",              [](Fields f) -> Value { return yearInEra(f); }},
    {kCalendarUnitMonth,             "month",             [](Fields f) -> Value { return f.date.month; }},
    {kCalendarUnitDay,               "day",               [](Fields f) -> Value { return f.date.day; }},
    {kCalendarUnitHour,              "hour",              [](Fields f) -> Value { return f.wall.second / 3600; }},
    {kCalendarUnitMinute,            "minute",            [](Fields f) -> Value { return f.wall.second / 60 % 60; }},
    {kCalendarUnitSecond,            "second",            [](Fields f) -> Value { return f.wall.second % 60; }},
    {kCalendarUnitWeek,              "week",              [](Fields f) -> Value { return weekOfYear(f); }},
    {kCalendarUnitWeekday,           "weekday",           [](Fields f) -> Value { return weekday(f); }},
    {kCalendarUnitWeekdayOrdinal,    "weekdayOrdinal",    [](Fields f) -> Value { return (f.date.day - 1) / 7 + 1; }},
    {kCalendarUnitQuarter,           "quarter",           [](Fields f) -> Value { return (f.date.month - 1) / 3 + 1; }},
    {kCalendarUnitWeekOfMonth,       "weekOfMonth",       [](Fields f) -> Value { return weekOfMonth(f); }},
    {kCalendarUnitWeekOfYear,        "weekOfYear",        [](Fields f) -> Value { return weekOfYear(f); }},
    {kCalendarUnitYearForWeekOfYear, "yearForWeekOfYear", [](Fields f) -> Value { return yearOfWeek(f); }},
    {kCalendarUnitNanosecond,        "nanosecond",        [](Fields f) -> Value { return nanosecond(f); }},
    {kCalendarUnitCalendar,          "calendar",          [](Fields) -> Value { return "gregorian"; }},
    {kCalendarUnitTimeZone,          "timeZone",          [](Fields f) -> Value { return f.zone.identifier(); }},
};
// clang-format on

// The fields of a reading that take part in building a time point; the others are as on 0001-01-01 00:00:00.
class Selection {
 public:
  Selection(const CalendarFields& reading, CalendarUnits units) : fields_(reading), units_(units) {}

  [[nodiscard]] TimePoint timePoint() const {
    const clock::WallTime wall{day(), secondOfDay()};
    const auto occurrence = wall.second == 0 ? clock::Occurrence::dayStart : clock::Occurrence::first;
    const double fraction = has(kCalendarUnitNanosecond) ? static_cast<double>(nanosecond(fields_)) / 1e9 : 0.0;
    return clock::timePointOf({clock::instantAt(wall, fields_.zone, occurrence), fraction});
  }

 private:
  [[nodiscard]] bool has(CalendarUnits units) const { return (units_ & units) != 0; }

  [[nodiscard]] std::int64_t year() const {
    const std::int64_t inEra = has(kCalendarUnitYear) ? yearInEra(fields_) : 1;
    return has(kCalendarUnitEra) && fields_.date.year < 1 ? 1 - inEra : inEra;
  }
  [[nodiscard]] std::int64_t dayOfMonth(int day) const {
    return clock::dayOfDate({year(), has(kCalendarUnitMonth) ? fields_.date.month : 1, day});
  }
  [[nodiscard]] int weekday() const {
    return has(kCalendarUnitWeekday) ? clock::weekdayOfDay(fields_.wall.day) : fields_.rules.firstWeekday;
  }
  [[nodiscard]] std::int64_t dayOfWeek(std::int64_t firstDay, std::int64_t week) const {
    return clock::dayInWeek(clock::firstWeekOf(firstDay, fields_.rules) + 7 * (week - 1), weekday());
  }

  [[nodiscard]] std::int64_t day() const {
    if (has(kCalendarUnitDay)) return dayOfMonth(fields_.date.day);
    if (has(kCalendarUnitWeekOfYear | kCalendarUnitWeek)) {
      const bool hasWeekYear = has(kCalendarUnitYearForWeekOfYear);
      const std::int64_t weekYear = hasWeekYear ? yearOfWeek(fields_) : year();
      return dayOfWeek(clock::newYearsDay(weekYear), weekOfYear(fields_));
    }
    if (has(kCalendarUnitWeekOfMonth)) return dayOfWeek(dayOfMonth(1), weekOfMonth(fields_));
    if (!has(kCalendarUnitWeekdayOrdinal | kCalendarUnitWeekday)) return dayOfMonth(1);
    const std::int64_t weeksBefore = has(kCalendarUnitWeekdayOrdinal) ? (fields_.date.day - 1) / 7 : 0;
    return clock::dayInWeek(dayOfMonth(1), weekday()) + 7 * weeksBefore;
  }

  [[nodiscard]] std::int64_t secondOfDay() const {
    const std::int64_t second = fields_.wall.second;
    return (has(kCalendarUnitHour) ? second / 3600 * 3600 : 0) +
           (has(kCalendarUnitMinute) ? second / 60 % 60 * 60 : 0) + (has(kCalendarUnitSecond) ? second % 60 : 0);
  }

  const CalendarFields& fields_;
  CalendarUnits units_;
};

}  // namespace

std::optional<DateComponents> components(TimePoint t, CalendarUnits units) {
  const std::optional<CalendarFields> reading = read(t);
  if (!reading.has_value()) return std::nullopt;
  DateComponents result;
  for (const FieldRow& row : kFields) {
    if ((units & row.unit) != 0) result.fields.push_back({row.unit, row.name, row.read(*reading)});
  }
  return result;
}

TimePoint dateFromComponents(CalendarUnits units) {
  const std::optional<CalendarFields> today = read(port::now());
  return today.has_value() ? Selection(*today, units).timePoint() : std::nullopt;
}

// Deliberate: the call timeIntervalFromComponents gives 0 where there is no date
// (DateFromComponents.NoDateWhereNowHasNone).
double timeIntervalFromComponents(CalendarUnits units) { return dateFromComponents(units).value_or(0.0); }

}  // namespace kzm
