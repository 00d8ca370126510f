// Date operations of a clock or calendar display: day starts, sums, calendar fields, shifts between time zones.
//
// A time point is a number of seconds and carries no zone; each operation says which zone it reads it in:
//   the default zone   the host's choice (TimeZone::setDefaultZone), at first the system zone
//   the system zone    the machine's, read once
//   a given zone       an argument
// The calendar is the Gregorian one, and the Julian before 15 October 1582; the year before AD 1 is 1 BC.
//
// Wall times   One that a zone skips moves forward by the gap; one that it repeats is its first occurrence, but the
//              second when something was subtracted. A day whose midnight is skipped starts at its first instant.
// Range        From noon of 1 January 4713 BC to 7 February 506713, UTC. A time point that is null, NaN, infinite or
//              outside gives null, and so does a result outside. No count is too large: it just leads there.
// Fractions    of a second are kept as exactly as a double can.
//
// No operation fails otherwise, none changes its argument, and all may be called from any thread.
#ifndef KZMUTILITIES_DATES_H
#define KZMUTILITIES_DATES_H

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <KZMUtilities/dictionary.h>
#include <KZMUtilities/export.h>
#include <KZMUtilities/value.h>

namespace kzm {

class TimeZone;

namespace port {
class Zone;
}
namespace clock {
const port::Zone& zoneOf(const TimeZone& zone) noexcept;
}

/// Seconds since 1970-01-01 00:00:00 UTC; null is no date.
using TimePoint = std::optional<double>;

// ---- Time zones -----------------------------------------------------------------------------------------------------

/// A time zone of this machine's zone files. As cheap to copy as a pointer; a zone's file is read once in a process.
///
/// Example (UTC):
///   TimeZone::utc().identifier()  // "UTC"
///   TimeZone::setDefaultZone(*TimeZone::named("Asia/Kolkata"));
///   TimeZone::defaultZone().identifier()  // "Asia/Kolkata"
///   TimeZone::setDefaultZone(TimeZone::systemZone());
///   TimeZone::defaultZone() == TimeZone::utc()  // true
class KZM_EXPORT TimeZone {
 public:
  /// The zone of that name, such as "Europe/Paris" or "UTC"; null for an unknown name. Case matters.
  ///
  /// Example:
  ///   TimeZone::named("Mars/Olympus").has_value()  // false
  [[nodiscard]] static std::optional<TimeZone> named(std::string_view identifier);
  /// The zone "UTC", which needs no file.
  [[nodiscard]] static TimeZone utc();

  /// The zone that operations without a zone argument use.
  [[nodiscard]] static TimeZone defaultZone();
  /// Sets the default zone for every thread; calls that are under way keep the former one.
  static void setDefaultZone(TimeZone zone);

  /// The machine's zone, read on the first call: the variable TZ (a name, the path of a zone file, or a rule such as
  /// "CET-1CEST"; empty means UTC), else the link /etc/localtime, else UTC.
  [[nodiscard]] static TimeZone systemZone();

  /// The zone's name; for a system zone without a name, what TZ holds or "localtime".
  [[nodiscard]] const std::string& identifier() const noexcept;

  /// Whole seconds east of GMT at the time point. Outside the supported range: the offset at its nearer end; for NaN
  /// that of 1970-01-01.
  ///
  /// Example:
  ///   TimeZone::named("Asia/Kolkata")->offsetFromGMT(1700000000.0)  // 19800
  [[nodiscard]] std::int64_t offsetFromGMT(double timePoint) const;

  /// The same zone by name and source.
  [[nodiscard]] friend bool operator==(const TimeZone&, const TimeZone&) = default;

 private:
  friend const port::Zone& clock::zoneOf(const TimeZone& zone) noexcept;
  explicit TimeZone(const port::Zone& zone) noexcept : zone_(&zone) {}

  const port::Zone* zone_;  // lives as long as the process
};

// ---- Calendar fields ------------------------------------------------------------------------------------------------

/// A set of calendar units; bits without a meaning are ignored. The numbers are published.
using CalendarUnits = std::uint64_t;

inline constexpr CalendarUnits kCalendarUnitEra = 2;                    ///< "era": 0 before Christ, 1 after
inline constexpr CalendarUnits kCalendarUnitYear = 4;                   ///< "year": 1 and above, in its era
inline constexpr CalendarUnits kCalendarUnitMonth = 8;                  ///< "month": 1 to 12
inline constexpr CalendarUnits kCalendarUnitDay = 16;                   ///< "day": 1 to 31
inline constexpr CalendarUnits kCalendarUnitHour = 32;                  ///< "hour": 0 to 23
inline constexpr CalendarUnits kCalendarUnitMinute = 64;                ///< "minute": 0 to 59
inline constexpr CalendarUnits kCalendarUnitSecond = 128;               ///< "second": 0 to 59
inline constexpr CalendarUnits kCalendarUnitWeek = 256;                 ///< "week": the former name of week of year
inline constexpr CalendarUnits kCalendarUnitWeekday = 512;              ///< "weekday": 1 is Sunday, 7 Saturday
inline constexpr CalendarUnits kCalendarUnitWeekdayOrdinal = 1024;      ///< "weekdayOrdinal": 2 for a second Monday
inline constexpr CalendarUnits kCalendarUnitQuarter = 2048;             ///< "quarter": 1 to 4
inline constexpr CalendarUnits kCalendarUnitWeekOfMonth = 4096;         ///< "weekOfMonth": 0 to 6
inline constexpr CalendarUnits kCalendarUnitWeekOfYear = 8192;          ///< "weekOfYear": 1 to 53
inline constexpr CalendarUnits kCalendarUnitYearForWeekOfYear = 16384;  ///< "yearForWeekOfYear": may be 0 or negative
inline constexpr CalendarUnits kCalendarUnitNanosecond = 32768;         ///< "nanosecond": 0 to 999999999, truncated
inline constexpr CalendarUnits kCalendarUnitCalendar = 1U << 20U;       ///< "calendar": the text "gregorian"
inline constexpr CalendarUnits kCalendarUnitTimeZone = 1U << 21U;       ///< "timeZone": the zone's identifier, a text

/// Calendar fields of a time point: only those that were asked for, in the order of their units' numbers.
struct DateComponents {
  struct Field {
    CalendarUnits unit = 0;
    std::string_view name;  ///< as quoted beside the unit; lives as long as the process
    Value value;            ///< an integer, or the text of "calendar" and "timeZone"
  };
  std::vector<Field> fields;

  /// The integer of that unit; null when it was not asked for or is a text.
  [[nodiscard]] std::optional<std::int64_t> number(CalendarUnits unit) const {
    for (const Field& field : fields) {
      if (field.unit == unit && field.value.integer() != nullptr) return *field.value.integer();
    }
    return std::nullopt;
  }
};

/// `components:` The named fields of the time point in the default zone; null for no date.
/// Weeks begin on the weekday, and the first week has at least the days, that the locale in force for dates
/// (LC_ALL, LC_TIME, LANG, read once) has.
///
/// Example (UTC):
///   components(1700000000.0, kCalendarUnitDay | kCalendarUnitHour)->number(kCalendarUnitHour)  // 22
[[nodiscard]] KZM_EXPORT std::optional<DateComponents> components(TimePoint t, CalendarUnits units);

/// `dateFromComponents:` The time point with those fields of now, in the default zone. Fields left out are those of
/// 0001-01-01 00:00:00. Without a day, the week of the year or of the month or the weekday's number in the month gives
/// it, in this order and on the given weekday, else on the first day of the week.
///
/// Example (UTC):
///   dateFromComponents(0)  // -62135769600.0
[[nodiscard]] KZM_EXPORT TimePoint dateFromComponents(CalendarUnits units);

/// `timeIntervalFromComponents:` The same in seconds since 1970; 0 when there is no such date.
///
/// Example (UTC):
///   timeIntervalFromComponents(0)  // -62135769600.0
[[nodiscard]] KZM_EXPORT double timeIntervalFromComponents(CalendarUnits units);

// ---- Day starts, sums -----------------------------------------------------------------------------------------------

/// `dayStart` The start of the day that holds the time point in the default zone.
///
/// Deliberate: day starts do not look at the era. A day before Christ gives the start of the day with the same year
/// number, month and day after Christ (DayStart.DropsTheEra).
///
/// Example (UTC):
///   dayStart(1700000000.0)  // 1699920000.0
[[nodiscard]] KZM_EXPORT TimePoint dayStart(TimePoint t);

/// `dayStartWithTimezone:` The same in the given zone.
///
/// Example:
///   dayStartWithTimezone(1700000000.0, TimeZone::utc())  // 1699920000.0
[[nodiscard]] KZM_EXPORT TimePoint dayStartWithTimezone(TimePoint t, TimeZone zone);

/// `addDays:timezone:` The same wall time of the given zone, the given number of days later (earlier when
/// negative).
///
/// Example: the clock goes forward in between, so the two days have 47 hours
///   addDaysTimezone(1489217400.0, 2, *TimeZone::named("America/New_York"))  // 1489386600.0
[[nodiscard]] KZM_EXPORT TimePoint addDaysTimezone(TimePoint t, std::int64_t days, TimeZone zone);

/// `addDays:` The same in the default zone.
///
/// Example (UTC):
///   addDays(1700000000.0, 1)  // 1700086400.0
[[nodiscard]] KZM_EXPORT TimePoint addDays(TimePoint t, std::int64_t days);

/// `addHours:` The given number of hours later, each of 3600 elapsed seconds.
///
/// Example:
///   addHours(1700000000.5, -1)  // 1699996400.5
[[nodiscard]] KZM_EXPORT TimePoint addHours(TimePoint t, std::int64_t hours);

/// `addMonths:` The same day and wall time of the default zone, the given number of months later. A day that the month
/// does not have becomes its last: 31 January and one month is 28 or 29 February.
///
/// Example (UTC): from 31 January 2024 to 29 February
///   addMonths(1706659200.0, 1)  // 1709164800.0
[[nodiscard]] KZM_EXPORT TimePoint addMonths(TimePoint t, std::int64_t months);

// ---- Zone shifts ----------------------------------------------------------------------------------------------------

/// `corrected` The time point plus the default zone's offset then: its UTC reading is the local wall clock's.
///
/// Example (UTC):
///   corrected(1700000000.0)  // 1700000000.0
[[nodiscard]] KZM_EXPORT TimePoint corrected(TimePoint t);

/// `utcStart` The UTC midnight of the day that the time point has in the default zone.
///
/// Example (UTC):
///   utcStart(1700000000.0)  // 1699920000.0
[[nodiscard]] KZM_EXPORT TimePoint utcStart(TimePoint t);

/// `utcStartForToday` The same for now.
///
/// Example (UTC):
///   std::fmod(*utcStartForToday(), 86400.0)  // 0.0
[[nodiscard]] KZM_EXPORT TimePoint utcStartForToday();

/// `converFromTimezoneToUTC:` The time point minus the zone's offset then.
///
/// Example:
///   converFromTimezoneToUTC(1700000000.0, *TimeZone::named("Asia/Kolkata"))  // 1699980200.0
[[nodiscard]] KZM_EXPORT TimePoint converFromTimezoneToUTC(TimePoint t, TimeZone zone);

/// `converToTimezone:` The time point minus the system zone's offset then, plus the given zone's.
///
/// Example (UTC):
///   converToTimezone(1700000000.0, *TimeZone::named("Asia/Kolkata"))  // 1700019800.0
[[nodiscard]] KZM_EXPORT TimePoint converToTimezone(TimePoint t, TimeZone zone);

/// `converFromTimezone:` The time point minus the given zone's offset then, plus the system zone's.
///
/// Example (UTC):
///   converFromTimezone(1700000000.0, *TimeZone::named("Asia/Kolkata"))  // 1699980200.0
[[nodiscard]] KZM_EXPORT TimePoint converFromTimezone(TimePoint t, TimeZone zone);

// ---- Ordinal numbers ------------------------------------------------------------------------------------------------

/// `ordinalSuffixFromDay:` The English "st", "nd", "rd" or "th" of a day of the month, in every language.
/// Any number outside 1 to 31 has "th".
///
/// Example:
///   ordinalSuffixFromDay(22)  // "nd"
[[nodiscard]] KZM_EXPORT std::string ordinalSuffixFromDay(std::int64_t day);

/// `ordinalSuffix` The same for the time point's day of the month in the default zone; null for no date.
///
/// Example (UTC):
///   ordinalSuffix(1700000000.0)  // "th"
[[nodiscard]] KZM_EXPORT std::optional<std::string> ordinalSuffix(TimePoint t);

}  // namespace kzm

#endif
