// How the user's locale counts weeks.
#ifndef KZM_PORT_WEEK_RULES_H
#define KZM_PORT_WEEK_RULES_H

#include <string>

namespace kzm::port {

struct WeekRules {
  int firstWeekday;     ///< 1 is Sunday, 7 Saturday
  int daysInFirstWeek;  ///< how many days of a year or month its first week has at least, 1 to 7
};

/// The rules of the locale with that ICU identifier, one that usableLocale gives: of its region, or of the calendar
/// that it names. Throws std::bad_alloc when memory ran out in ICU, now or when it read its tables.
[[nodiscard]] WeekRules weekRulesOf(const std::string& locale);

/// The rules of the locale that the environment gives for dates, read on the first call.
[[nodiscard]] const WeekRules& weekRules();

}  // namespace kzm::port

#endif
