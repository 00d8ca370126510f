// How the user's locale counts weeks.
#ifndef PORT_WEEK_RULES_H
#define PORT_WEEK_RULES_H

namespace kzm::port {

struct WeekRules {
  int firstWeekday;     ///< 1 is Sunday, 7 Saturday
  int daysInFirstWeek;  ///< how many days of a year or month its first week has at least, 1 to 7
};

/// The rules of a locale, such as "de_DE.UTF-8". Names of no known language, C and POSIX: Monday, 1 day.
[[nodiscard]] WeekRules weekRulesOf(const char* locale);

/// The rules of the locale in force for dates: the first that is not empty of LC_ALL, LC_TIME, LANG, read once.
[[nodiscard]] const WeekRules& weekRules();

}  // namespace kzm::port

#endif
