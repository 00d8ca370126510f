#include <KZMUtilities/formatters.h>

#include "core/shared.h"
#include "port/posix_variant.h"

kzm::Locale::~Locale() = default;

std::shared_ptr<const kzm::Locale> KZMUtilitiesPosixLocale(const std::shared_ptr<const kzm::Locale>& locale) {
  if (locale == nullptr) return nullptr;
  const std::string& identifier = locale->identifier();
  const auto make = [&]() -> std::shared_ptr<const kzm::Locale> {
    if (!kzm::port::takesPosixVariant(identifier)) return nullptr;
    return std::make_shared<const kzm::Locale>(identifier + "_POSIX");
  };
  auto posix = kzm::core::cachedObject<kzm::Locale>("Locale-Posix-" + identifier, make);
  return posix != nullptr ? posix : locale;
}
