#include "port/week_rules.h"

#include <cstdlib>
#include <memory>
#include <string_view>
#include <unicode/calendar.h>
#include <unicode/locid.h>
#include <unicode/timezone.h>

namespace kzm::port {
namespace {

const char* localeForDates() {
  for (const char* variable : {"LC_ALL", "LC_TIME", "LANG"}) {
    const char* value = std::getenv(variable);  // NOLINT(concurrency-mt-unsafe): read once, and never written here
    if (value != nullptr && *value != '\0') return value;
  }
  return "C";
}

// Without a known language the world's rules hold; ICU would take those of the process's own locale.
icu::Locale knownLocale(std::string_view name) {
  const icu::Locale locale =
      icu::Locale::createCanonical(std::string(name.substr(0, name.find_first_of(".@"))).c_str());
  const std::string_view language = locale.getLanguage();
  const bool isPosix = language == "c" || std::string_view(locale.getVariant()) == "POSIX";
  const bool isKnown = !locale.isBogus() && !language.empty() && !isPosix && *locale.getISO3Language() != '\0';
  return isKnown ? locale : icu::Locale("en", "001");
}

}  // namespace

WeekRules weekRulesOf(const char* locale) {
  UErrorCode status = U_ZERO_ERROR;
  const std::unique_ptr<icu::Calendar> calendar(
      icu::Calendar::createInstance(icu::TimeZone::getGMT()->clone(), knownLocale(locale), status));
  if (U_FAILURE(status) || calendar == nullptr) return {UCAL_MONDAY, 1};
  const UCalendarDaysOfWeek first = calendar->getFirstDayOfWeek(status);
  return {U_SUCCESS(status) ? first : UCAL_MONDAY, calendar->getMinimalDaysInFirstWeek()};
}

const WeekRules& weekRules() {
  static const WeekRules rules = weekRulesOf(localeForDates());
  return rules;
}

}  // namespace kzm::port
