// English ordinal suffixes: a list of days, not a rule on the last digit.
#include <KZMUtilities/dates.h>

namespace kzm {

// Deliberate: the suffixes are English in every language, and any number that is no day of a month has "th"
// (OrdinalSuffix.NumbersThatAreNoDayAlwaysHaveTh).
std::string ordinalSuffixFromDay(std::int64_t day) {
  switch (day) {
    case 1:
    case 21:
    case 31:
      return "st";
    case 2:
    case 22:
      return "nd";
    case 3:
    case 23:
      return "rd";
    default:
      return "th";
  }
}

std::optional<std::string> ordinalSuffix(TimePoint t) {
  const std::optional<DateComponents> day = components(t, kCalendarUnitDay);
  if (!day.has_value()) return std::nullopt;
  return ordinalSuffixFromDay(day->number(kCalendarUnitDay).value());
}

}  // namespace kzm
