// Locales of ICU by their names.
#ifndef KZM_PORT_CANONICAL_LOCALE_H
#define KZM_PORT_CANONICAL_LOCALE_H

#include <cstddef>
#include <new>
#include <string>
#include <unicode/locid.h>
#include <unicode/uloc.h>

#include "port/memory_watch.h"

namespace kzm::port {

/// What ICU keeps of a whole identifier.
inline constexpr std::size_t kLongestIdentifier = ULOC_FULLNAME_CAPACITY - 1;

/// The canonical locale of that name, bogus when there is none. Once memory ran out while ICU read its tables of names,
/// only names that it knows by heart give a locale: then this throws std::bad_alloc, so that a good name is never taken
/// for an unknown one.
[[nodiscard]] inline icu::Locale canonicalLocale(const std::string& name) {
  icu::Locale locale = icu::Locale::createCanonical(name.c_str());
  if (locale.isBogus() != 0 && icu::Locale::createCanonical("sr_ZZ").isBogus() != 0) throw std::bad_alloc();
  return locale;
}

/// The locale with the script and the region that are likely where it names none.
[[nodiscard]] inline icu::Locale inFull(icu::Locale locale) {
  UErrorCode status = U_ZERO_ERROR;
  locale.addLikelySubtags(status);
  demandMemory(status);
  return locale;
}

}  // namespace kzm::port

#endif
