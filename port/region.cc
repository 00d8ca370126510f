#include "port/region.h"

#include <string_view>

#include "port/ascii.h"
#include "port/canonical_locale.h"

namespace kzm::port {
namespace {

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

}  // namespace

std::string keywordOf(const icu::Locale& locale, const char* name) {
  UErrorCode status = U_ZERO_ERROR;
  auto value = locale.getKeywordValue<std::string>(name, status);
  return U_SUCCESS(status) ? value : std::string();
}

std::string regionOf(const icu::Locale& locale) {
  std::string region = overridingRegion(keywordOf(locale, "rg"));
  return region.empty() ? ownRegion(locale) : region;
}

}  // namespace kzm::port
