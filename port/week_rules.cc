#include "port/week_rules.h"

#include <algorithm>
#include <new>
#include <string>
#include <string_view>
#include <unicode/gregocal.h>
#include <unicode/localpointer.h>
#include <unicode/locid.h>
#include <unicode/ures.h>

#include "port/ascii.h"
#include "port/canonical_locale.h"
#include "port/environment_locale.h"
#include "port/memory_watch.h"

namespace kzm::port {
namespace {

// The one calendar whose weeks are not those of the region.
bool countsAsIso8601(const icu::Locale& locale) {
  constexpr std::string_view kIso8601 = "iso8601";
  UErrorCode status = U_ZERO_ERROR;
  const auto calendar = locale.getKeywordValue<std::string>("calendar", status);
  return U_SUCCESS(status) && std::ranges::equal(calendar, kIso8601, {}, lower);
}

// For want of memory a calendar may have read nothing of its locale, or no weeks of regions: then it says Sunday and 1
// day, and reports no failure.
bool couldReadWeeks(const icu::Calendar& calendar, UErrorCode& status) {
  const bool couldReadLocale = *calendar.getLocale(ULOC_VALID_LOCALE, status).getName() != '\0';
  const icu::LocalUResourceBundlePointer regions(ures_openDirect(nullptr, "supplementalData", &status));
  const icu::LocalUResourceBundlePointer weeks(ures_getByKey(regions.getAlias(), "weekData", nullptr, &status));
  return couldReadLocale && U_SUCCESS(status);
}

}  // namespace

// Not of Calendar::createInstance, which keeps what it made for the next call, also when memory ran out on the way.
WeekRules weekRulesOf(const std::string& locale) {
  constexpr WeekRules kIso8601{UCAL_MONDAY, 4};
  const MemoryWatch memory;
  const icu::Locale canonical = canonicalLocale(locale);
  memory.demand();  // at once: what follows opens files, and may leave another error
  UErrorCode status = U_ZERO_ERROR;
  const icu::GregorianCalendar calendar(canonical, status);
  if (!couldReadWeeks(calendar, status)) throw std::bad_alloc();
  const WeekRules rules{calendar.getFirstDayOfWeek(status), calendar.getMinimalDaysInFirstWeek()};
  const bool isIso8601 = countsAsIso8601(canonical);
  memory.demand(status);
  return isIso8601 ? kIso8601 : rules;
}

const WeekRules& weekRules() {
  static const WeekRules rules = weekRulesOf(dateLocale());
  return rules;
}

}  // namespace kzm::port
