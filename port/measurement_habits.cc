#include "port/measurement_habits.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "port/ascii.h"
#include "port/canonical_locale.h"
#include "port/memory_watch.h"

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

std::string keyword(const icu::Locale& locale, const char* name) {
  UErrorCode status = U_ZERO_ERROR;
  auto value = locale.getKeywordValue<std::string>(name, status);
  return U_SUCCESS(status) ? value : std::string();
}

template <std::size_t N>
std::string_view meaningOf(const Meaning (&meanings)[N], std::string_view value) {
  const auto* row = std::ranges::find(meanings, value, &Meaning::value);
  return row != std::end(meanings) ? row->meaning : std::string_view();
}

// The country of an "rg" value: two letters, and after them "zzzz" or the name of a part of the country.
std::string overridingRegion(std::string_view value) {
  constexpr std::size_t kCountry = 2;
  constexpr std::size_t kLongest = 6;
  if (value.size() <= kCountry || value.size() > kLongest || !isLetter(value[0]) || !isLetter(value[1])) return {};
  return {upper(value[0]), upper(value[1])};
}

std::string ownRegion(const icu::Locale& locale) {
  return *locale.getCountry() != '\0' ? locale.getCountry() : inFull(locale).getCountry();
}

std::string regionOf(const icu::Locale& locale) {
  if (const std::string_view region = meaningOf(kSystems, keyword(locale, "measure")); !region.empty()) {
    return std::string(region);
  }
  std::string region = overridingRegion(keyword(locale, "rg"));
  return region.empty() ? ownRegion(locale) : region;
}

}  // namespace

MeasurementHabits measurementHabitsOf(const std::string& identifier) {
  const MemoryWatch memory;
  const icu::Locale locale = canonicalLocale(identifier);
  MeasurementHabits result;
  if (!locale.isBogus()) result = {regionOf(locale), std::string(meaningOf(kTemperatures, keyword(locale, "mu")))};
  memory.demand();
  return result;
}

}  // namespace kzm::port
