#include "port/week_rules.h"

#include <unicode/localpointer.h>
#include <unicode/ures.h>

#include "port/canonical_locale.h"
#include "port/environment_locale.h"
#include "port/memory_watch.h"
#include "port/region.h"

namespace kzm::port {
namespace {

constexpr WeekRules kWorld{2, 1};

using Table = icu::LocalUResourceBundlePointer;

// The row of a region: its first weekday, the days in its first week, and its weekend.
WeekRules rowOf(const Table& weeks, const std::string& region, UErrorCode& status) {
  const Table row(ures_getByKey(weeks.getAlias(), region.c_str(), nullptr, &status));
  std::int32_t size = 0;
  const std::int32_t* numbers = ures_getIntVector(row.getAlias(), &size, &status);
  return U_SUCCESS(status) && size >= 2 ? WeekRules{numbers[0], numbers[1]} : kWorld;
}

}  // namespace

// The table itself is read: a calendar of ICU takes Sunday and 1 day without a word when memory ran out on the way to
// it.
WeekRules weekRulesOf(const std::string& locale) {
  const MemoryWatch memory;
  const std::string region = regionOf(canonicalLocale(locale));
  UErrorCode status = U_ZERO_ERROR;
  const Table supplement(ures_openDirect(nullptr, "supplementalData", &status));
  const Table weeks(ures_getByKey(supplement.getAlias(), "weekData", nullptr, &status));
  memory.demand(status);
  const WeekRules rules = rowOf(weeks, region, status);  // a region without a row counts as the world
  memory.demand(status);
  return rules;
}

const WeekRules& weekRules() {
  static const WeekRules rules = weekRulesOf(dateLocale());
  return rules;
}

}  // namespace kzm::port
