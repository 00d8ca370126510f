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

std::int64_t yearInEra(const CalendarFields& r) { return r.date.year > 0 ? r.date.year : 1 - r.date.year; }

std::int64_t weekOfMonth(const CalendarFields& r) {
  return clock::weekNumber(r.wall.day, r.wall.day - r.date.day + 1, r.rules);
}

int weekday(const CalendarFields& r) { return clock::weekdayOfDay(r.wall.day); }

std::int64_t yearOfWeek(const CalendarFields& r) { return clock::yearOfWeek(r.wall.day, r.rules); }

std::int64_t weekOfYear(const CalendarFields& r) {
  return clock::weekNumber(r.wall.day, clock::newYearsDay(yearOfWeek(r)), r.rules);
}

// The fraction just below a whole second may round up to it.
std::int64_t nanosecond(const CalendarFields& r) {
  return std::min(static_cast<std::int64_t>(r.fraction * 1e9), std::int64_t{999'999'999});
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
    {kCalendarUnitEra,               "era",               [](Fields r) -> Value { return r.date.year > 0 ? 1 : 0; }},
    {kCalendarUnitYear,              "year",              [](Fields r) -> Value { return yearInEra(r); }},
    {kCalendarUnitMonth,             "month",             [](Fields r) -> Value { return r.date.month; }},
    {kCalendarUnitDay,               "day",               [](Fields r) -> Value { return r.date.day; }},
    {kCalendarUnitHour,              "hour",              [](Fields r) -> Value { return r.wall.second / 3600; }},
    {kCalendarUnitMinute,            "minute",            [](Fields r) -> Value { return r.wall.second / 60 % 60; }},
    {kCalendarUnitSecond,            "second",            [](Fields r) -> Value { return r.wall.second % 60; }},
    {kCalendarUnitWeek,              "week",              [](Fields r) -> Value { return weekOfYear(r); }},
    {kCalendarUnitWeekday,           "weekday",           [](Fields r) -> Value { return weekday(r); }},
    {kCalendarUnitWeekdayOrdinal,    "weekdayOrdinal",    [](Fields r) -> Value { return (r.date.day - 1) / 7 + 1; }},
    {kCalendarUnitQuarter,           "quarter",           [](Fields r) -> Value { return (r.date.month - 1) / 3 + 1; }},
    {kCalendarUnitWeekOfMonth,       "weekOfMonth",       [](Fields r) -> Value { return weekOfMonth(r); }},
    {kCalendarUnitWeekOfYear,        "weekOfYear",        [](Fields r) -> Value { return weekOfYear(r); }},
    {kCalendarUnitYearForWeekOfYear, "yearForWeekOfYear", [](Fields r) -> Value { return yearOfWeek(r); }},
    {kCalendarUnitNanosecond,        "nanosecond",        [](Fields r) -> Value { return nanosecond(r); }},
    {kCalendarUnitCalendar,          "calendar",          [](Fields) -> Value { return "gregorian"; }},
    {kCalendarUnitTimeZone,          "timeZone",          [](Fields r) -> Value { return r.zone.identifier(); }},
};
// clang-format on

// The fields of a reading that take part in building a time point; the others are as on 0001-01-01 00:00:00.
class Selection {
 public:
  Selection(const CalendarFields& reading, CalendarUnits units) : r_(reading), units_(units) {}

  [[nodiscard]] TimePoint timePoint() const {
    const clock::WallTime wall{day(), secondOfDay()};
    const auto occurrence = wall.second == 0 ? clock::Occurrence::dayStart : clock::Occurrence::first;
    const double fraction = has(kCalendarUnitNanosecond) ? static_cast<double>(nanosecond(r_)) / 1e9 : 0.0;
    return clock::timePointOf({clock::instantAt(wall, r_.zone, occurrence), fraction});
  }

 private:
  [[nodiscard]] bool has(CalendarUnits units) const { return (units_ & units) != 0; }

  [[nodiscard]] std::int64_t year() const {
    const std::int64_t inEra = has(kCalendarUnitYear) ? yearInEra(r_) : 1;
    return has(kCalendarUnitEra) && r_.date.year < 1 ? 1 - inEra : inEra;
  }
  [[nodiscard]] std::int64_t dayOfMonth(int day) const {
    return clock::dayOfDate({year(), has(kCalendarUnitMonth) ? r_.date.month : 1, day});
  }
  [[nodiscard]] int weekday() const {
    return has(kCalendarUnitWeekday) ? clock::weekdayOfDay(r_.wall.day) : r_.rules.firstWeekday;
  }
  [[nodiscard]] std::int64_t dayOfWeek(std::int64_t firstDay, std::int64_t week) const {
    return clock::dayInWeek(clock::firstWeekOf(firstDay, r_.rules) + 7 * (week - 1), weekday());
  }

  [[nodiscard]] std::int64_t day() const {
    if (has(kCalendarUnitDay)) return dayOfMonth(r_.date.day);
    if (has(kCalendarUnitWeekOfYear | kCalendarUnitWeek)) {
      const bool hasWeekYear = has(kCalendarUnitYearForWeekOfYear);
      const std::int64_t weekYear = hasWeekYear ? yearOfWeek(r_) : year();
      return dayOfWeek(clock::newYearsDay(weekYear), weekOfYear(r_));
    }
    if (has(kCalendarUnitWeekOfMonth)) return dayOfWeek(dayOfMonth(1), weekOfMonth(r_));
    if (!has(kCalendarUnitWeekdayOrdinal | kCalendarUnitWeekday)) return dayOfMonth(1);
    const std::int64_t weeksBefore = has(kCalendarUnitWeekdayOrdinal) ? (r_.date.day - 1) / 7 : 0;
    return clock::dayInWeek(dayOfMonth(1), weekday()) + 7 * weeksBefore;
  }

  [[nodiscard]] std::int64_t secondOfDay() const {
    const std::int64_t second = r_.wall.second;
    return (has(kCalendarUnitHour) ? second / 3600 * 3600 : 0) +
           (has(kCalendarUnitMinute) ? second / 60 % 60 * 60 : 0) + (has(kCalendarUnitSecond) ? second % 60 : 0);
  }

  const CalendarFields& r_;
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

// Deliberate: where there is no date, the interval is 0 (DateFromComponents.NoDateWhereNowHasNone).
double timeIntervalFromComponents(CalendarUnits units) { return dateFromComponents(units).value_or(0.0); }

}  // namespace kzm
