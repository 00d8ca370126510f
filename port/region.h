// Whose habits hold where a locale is in force.
#ifndef KZM_PORT_REGION_H
#define KZM_PORT_REGION_H

#include <string>
#include <unicode/locid.h>

namespace kzm::port {

/// The value of the locale's keyword; empty when it has none.
[[nodiscard]] std::string keywordOf(const icu::Locale& locale, const char* name);

/// The region that the keyword "rg" names ("gbzzzz", or a part of a country as in "gbsct"), else the locale's country,
/// else the one in which most speakers of the language live.
[[nodiscard]] std::string regionOf(const icu::Locale& locale);

}  // namespace kzm::port

#endif
