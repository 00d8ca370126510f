#include "port/posix_variant.h"

#include <algorithm>
#include <string_view>
#include <unicode/locid.h>

#include "port/ascii.h"
#include "port/canonical_locale.h"
#include "port/memory_watch.h"

namespace kzm::port {
namespace {

bool isWellFormed(std::string_view identifier) {
  const auto isPart = [](char c) { return isAlphanumeric(c) || c == '_' || c == '-'; };
  return !identifier.empty() && isLetter(identifier.front()) && identifier.size() <= kLongestIdentifier &&
         std::ranges::all_of(identifier, isPart);
}

}  // namespace

bool takesPosixVariant(const std::string& identifier) {
  if (!isWellFormed(identifier)) return false;
  const MemoryWatch memory;
  const icu::Locale locale((identifier + "_POSIX").c_str());
  memory.demand();
  if (locale.isBogus()) return false;  // an over-long language; such a locale must not be asked for anything
  const std::string variants = std::string("_") + locale.getVariant() + "_";
  return variants.find("_POSIX_") != std::string::npos;
}

}  // namespace kzm::port
