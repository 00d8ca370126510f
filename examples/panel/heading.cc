#include "heading.h"

#include <cstdint>
#include <string>

#include <KZMUtilities/dates.h>
#include <KZMUtilities/formatters.h>

#include "styles.h"

namespace kzm::panel {
namespace {

// In the digits of the locale, without grouping, and with zeros in front.
std::string digits(std::int64_t number, int count) {
  if (count == 0) return {};
  return digits(number / 10, count - 1) + KZMUtilitiesFormatNumber({}, static_cast<double>(number % 10));
}

// Days that a clock change makes longer or shorter are full at their end all the same.
double partOfDay(double timePoint) {
  const TimePoint start = dayStart(timePoint);
  const TimePoint end = addDays(start, 1);
  return start.has_value() && end.has_value() ? (timePoint - *start) / (*end - *start) : 0.0;
}

}  // namespace

Heading headingAt(double timePoint) {
  const Styles styles = headingStyles();
  const auto fields = components(
      timePoint, kCalendarUnitYear | kCalendarUnitMonth | kCalendarUnitDay | kCalendarUnitHour | kCalendarUnitMinute);
  if (!fields.has_value()) return {};
  const auto field = [&fields](CalendarUnits unit, int count) { return digits(*fields->number(unit), count); };
  const std::string clock = field(kCalendarUnitHour, 2) + ":" + field(kCalendarUnitMinute, 2);
  const std::string day =
      field(kCalendarUnitYear, 4) + "-" + field(kCalendarUnitMonth, 2) + "-" + field(kCalendarUnitDay, 2);
  return {AttributedString(clock, styles.main), AttributedString(day, styles.units),
          segments(partOfDay(timePoint), 24)};
}

}  // namespace kzm::panel
