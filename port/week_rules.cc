#include "port/week_rules.h"

#include <memory>
#include <unicode/calendar.h>
#include <unicode/locid.h>

#include "port/environment_locale.h"
#include "port/memory_watch.h"

namespace kzm::port {

WeekRules weekRulesOf(const std::string& locale) {
  constexpr WeekRules kWorld{UCAL_MONDAY, 1};
  const MemoryWatch memory;
  UErrorCode status = U_ZERO_ERROR;
  const std::unique_ptr<icu::Calendar> calendar(
      icu::Calendar::createInstance(icu::Locale::createCanonical(locale.c_str()), status));
  memory.demand(status);
  if (U_FAILURE(status) || calendar == nullptr) return kWorld;
  const UCalendarDaysOfWeek first = calendar->getFirstDayOfWeek(status);
  memory.demand(status);
  return U_SUCCESS(status) ? WeekRules{first, calendar->getMinimalDaysInFirstWeek()} : kWorld;
}

const WeekRules& weekRules() {
  static const WeekRules rules = weekRulesOf(dateLocale());
  return rules;
}

}  // namespace kzm::port
