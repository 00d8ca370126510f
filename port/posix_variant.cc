#include "port/posix_variant.h"

#include <algorithm>
#include <string_view>
#include <unicode/locid.h>
#include <unicode/uloc.h>

#include "port/memory_watch.h"

namespace kzm::port {
namespace {

constexpr std::size_t kLongestIdentifier = ULOC_FULLNAME_CAPACITY - 1;  // what ICU keeps of a whole identifier

bool isWellFormed(std::string_view identifier) {
  const auto isPart = [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' || c == '-';
  };
  const bool beginsWithALetter = !identifier.empty() && (identifier[0] | 0x20) >= 'a' && (identifier[0] | 0x20) <= 'z';
  return beginsWithALetter && identifier.size() <= kLongestIdentifier &&
         std::all_of(identifier.begin(), identifier.end(), isPart);
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
