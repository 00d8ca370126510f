#include "port/measurement_habits.h"

#include <string_view>

#include "port/canonical_locale.h"
#include "port/memory_watch.h"
#include "port/region.h"

namespace kzm::port {
namespace {

struct Meaning {
  std::string_view value;
  std::string_view meaning;
};

// "fahrenhe" is how a language tag, whose subtags have at most eight letters, writes it.
// clang-format off
constexpr Meaning kSystems[] = {
    {"metric",   "001"},
    {"ussystem", "US" },
    {"uksystem", "GB" },
};
constexpr Meaning kTemperatures[] = {
    {"celsius",    "celsius"   },
    {"fahrenhe",   "fahrenheit"},
    {"fahrenheit", "fahrenheit"},
    {"kelvin",     "kelvin"    },
};
// clang-format on

template <std::size_t N>
std::string_view meaningOf(const Meaning (&meanings)[N], std::string_view value) {
  for (const Meaning& row : meanings) {
    if (row.value == value) return row.meaning;
  }
  return {};
}

std::string measuringRegionOf(const icu::Locale& locale) {
  const std::string_view region = meaningOf(kSystems, keywordOf(locale, "measure"));
  return region.empty() ? regionOf(locale) : std::string(region);
}

}  // namespace

MeasurementHabits measurementHabitsOf(const std::string& identifier) {
  const MemoryWatch memory;
  const icu::Locale locale = canonicalLocale(identifier);
  MeasurementHabits result;
  if (!locale.isBogus()) {
    result = {measuringRegionOf(locale), std::string(meaningOf(kTemperatures, keywordOf(locale, "mu")))};
  }
  memory.demand();
  return result;
}

}  // namespace kzm::port
